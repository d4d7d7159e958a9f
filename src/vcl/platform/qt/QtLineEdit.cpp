#include "vcl/platform/qt/QtLineEdit.h"

#include <algorithm>

#include "vcl/platform/qt/QtConvert.h"

namespace vcl::qt
{

namespace
{

/// The toolkit counts UTF-16 units, the interface code points.
int UnitsOf(const QString& Text, int CodePoints)
{
    int Unit = 0;
    for (; CodePoints > 0 && Unit < Text.size(); --CodePoints)
        Unit += Text.at(Unit).isHighSurrogate() && Unit + 1 < Text.size() ? 2 : 1;
    return Unit;
}

int CodePointsOf(const QString& Text, int Units)
{
    return static_cast<int>(Text.left(Units).toUcs4().size());
}

constexpr int NoLimit = 32767;

} // namespace

Qt::Alignment AlignmentOf(TTextAlign Align)
{
    switch (Align) {
    case TTextAlign::Right:
        return Qt::AlignRight | Qt::AlignVCenter;
    case TTextAlign::Center:
        return Qt::AlignHCenter | Qt::AlignVCenter;
    case TTextAlign::Left:
        break;
    }
    return Qt::AlignLeft | Qt::AlignVCenter;
}

void TLineEditPeer::SetSelection(int Start, int Length)
{
    if (!FEdit)
        return;
    const QString Text = FEdit->text();
    const int First = UnitsOf(Text, std::max(0, Start));
    const int Last = UnitsOf(Text, std::max(0, Start) + std::max(0, std::min(Length, NoLimit)));
    if (Last > First)
        FEdit->setSelection(First, Last - First);
    else
        FEdit->setCursorPosition(First);
    if (Last == First)
        FEdit->deselect();
}

int TLineEditPeer::GetSelStart() const
{
    if (!FEdit)
        return 0;
    const int Unit = FEdit->hasSelectedText() ? FEdit->selectionStart() : FEdit->cursorPosition();
    return CodePointsOf(FEdit->text(), Unit);
}

int TLineEditPeer::GetSelLength() const
{
    return FEdit ? static_cast<int>(FEdit->selectedText().toUcs4().size()) : 0;
}

void TLineEditPeer::ReplaceSelection(const AnsiString& Text)
{
    if (FEdit)
        FEdit->insert(ToQt(Text));
}

void TLineEditPeer::SetReadOnly(bool ReadOnly)
{
    if (FEdit)
        FEdit->setReadOnly(ReadOnly);
}

void TLineEditPeer::SetMaxLength(int Length)
{
    if (FEdit)
        FEdit->setMaxLength(Length > 0 ? std::min(Length, NoLimit) : NoLimit);
}

void TLineEditPeer::SetPasswordChar(char32_t Char)
{
    if (FEdit)
        FEdit->setEchoMode(Char != 0 ? QLineEdit::Password : QLineEdit::Normal);
}

void TLineEditPeer::SetAlignment(TTextAlign Alignment)
{
    if (FEdit)
        FEdit->setAlignment(AlignmentOf(Alignment));
}

bool TLineEditPeer::IsModified() const
{
    return FEdit && FEdit->isModified();
}

void TLineEditPeer::SetModified(bool Modified)
{
    if (FEdit)
        FEdit->setModified(Modified);
}

bool TLineEditPeer::EditMessage(const TMessage& Message)
{
    if (!FEdit)
        return false;
    const bool Writable = !FEdit->isReadOnly();
    switch (Message.Msg) {
    case WM_CHAR: {
        constexpr std::uint64_t Backspace = 8;
        const char32_t Character = static_cast<char32_t>(Message.WParam);
        if (Writable && Character >= 0x20)
            FEdit->insert(QString::fromUcs4(&Character, 1));
        else if (Writable && Message.WParam == Backspace)
            FEdit->backspace();
        return true;
    }
    case WM_CUT:
        FEdit->cut();
        return true;
    case WM_COPY:
        FEdit->copy();
        return true;
    case WM_PASTE:
        FEdit->paste();
        return true;
    case WM_CLEAR:
        if (Writable)
            FEdit->insert(QString());
        return true;
    case WM_UNDO:
        FEdit->undo();
        return true;
    default:
        return false;
    }
}

} // namespace vcl::qt
