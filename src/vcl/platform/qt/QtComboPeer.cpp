#include <QAbstractItemView>
#include <QComboBox>

#include "vcl/platform/qt/QtConvert.h"
#include "vcl/platform/qt/QtLineEdit.h"
#include "vcl/platform/qt/QtPeer.h"
#include "vcl/platform/qt/QtWindowKinds.h"

namespace vcl::qt
{

namespace
{

/// Tells when its list opens and closes.
class TComboFace final : public QComboBox
{
public:
    using QComboBox::QComboBox;

    std::function<void(bool)> OnPopup;

    void showPopup() override
    {
        OnPopup(true);
        QComboBox::showPopup();
    }
    void hidePopup() override
    {
        const bool Shown = view()->isVisible();
        QComboBox::hidePopup();
        if (Shown)
            OnPopup(false);
    }
};

class TComboWindow final : public TPeerWindow, private TLineEditPeer, private IListPeer
{
public:
    TComboWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent)
        : TPeerWindow(Owner, Style, new TComboFace(Parent))
    {
        Face().setEditable((Style.Style & CBS_DROPDOWNLIST) != CBS_DROPDOWNLIST);
        Face().setInsertPolicy(QComboBox::NoInsert);
        if (Face().isEditable())
            Face().setCompleter(nullptr);
        SetLineEdit(Face().lineEdit());
        Face().OnPopup = [this](bool Opens) { Notice(Opens ? TPeerNotice::DropDown : TPeerNotice::CloseUp); };
        QObject::connect(&Face(), &QComboBox::activated, &Face(),
                         [this](int Index) { Notice(TPeerNotice::ItemSelected, Index); });
        QObject::connect(&Face(), &QComboBox::editTextChanged, &Face(),
                         [this] { Notice(TPeerNotice::TextChanged); });
    }

    void SetText(const AnsiString& Text) override
    {
        const TSilence Silence(*this);
        if (!Widget())
            return;
        if (LineEdit())
            LineEdit()->setText(ToQt(Text));
        else
            Face().setCurrentIndex(Face().findText(ToQt(Text), Qt::MatchExactly | Qt::MatchCaseSensitive));
    }
    AnsiString GetText() const override { return Widget() ? FromQt(Face().currentText()) : AnsiString(); }
    IEditPeer* Edit() override { return LineEdit() ? this : nullptr; }
    IListPeer* List() override { return this; }

private:
    TComboFace& Face() const { return static_cast<TComboFace&>(*Widget()); }
    std::vector<QWidget*> InputWidgets() const override
    {
        if (QLineEdit* const Line = Face().lineEdit())
            return {Widget(), Line};
        return {Widget()};
    }
    bool EditMessage(TMessage& Message) override { return TLineEditPeer::EditMessage(Message); }
    void Detach() override
    {
        Face().OnPopup = [](bool) {};
    }

    void SetItems(std::span<const AnsiString> Items) override
    {
        const TSilence Silence(*this);
        if (!Widget())
            return;
        const AnsiString Text = GetText();
        Face().clear();
        for (const AnsiString& Item : Items)
            Face().addItem(ToQt(Item));
        Face().setCurrentIndex(-1);
        if (LineEdit())
            LineEdit()->setText(ToQt(Text));
    }
    void InsertItem(int Index, const AnsiString& Text) override
    {
        const TSilence Silence(*this);
        if (!Widget() || Index < 0 || Index > Face().count())
            return;
        // The toolkit makes the first item of an empty box the current one.
        const int Before = Face().currentIndex();
        Face().insertItem(Index, ToQt(Text));
        if (Before < 0)
            Face().setCurrentIndex(-1);
    }
    void DeleteItem(int Index) override
    {
        const TSilence Silence(*this);
        if (Widget() && Index >= 0 && Index < Face().count())
            Face().removeItem(Index);
    }
    void SetItemText(int Index, const AnsiString& Text) override
    {
        const TSilence Silence(*this);
        if (Widget() && Index >= 0 && Index < Face().count())
            Face().setItemText(Index, ToQt(Text));
    }
    void SetItemIndex(int Index) override
    {
        const TSilence Silence(*this);
        if (Widget() && Index >= -1 && Index < Face().count())
            Face().setCurrentIndex(Index);
    }
    int GetItemIndex() const override { return Widget() ? Face().currentIndex() : -1; }
    void SetSelected(int Index, bool Selected) override
    {
        if (Selected)
            SetItemIndex(Index);
    }
    bool IsSelected(int Index) const override { return Index >= 0 && Index == GetItemIndex(); }
    void SetTopIndex(int) override {}
    int GetTopIndex() const override { return 0; }
    int ItemAt(TPoint) const override { return -1; }
    TRect ItemRect(int) const override { return {}; }
    void SetItemHeight(int) override {}
    void SetDroppedDown(bool DroppedDown) override
    {
        if (!Widget())
            return;
        if (DroppedDown)
            Face().showPopup();
        else
            Face().hidePopup();
    }
    bool IsDroppedDown() const override { return Widget() && Face().view()->isVisible(); }
    void SetDropDownCount(int Count) override
    {
        if (Widget())
            Face().setMaxVisibleItems(std::max(1, Count));
    }
};

} // namespace

std::shared_ptr<TWindow> MakeComboWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent)
{
    return MakePeer<TComboWindow>(Owner, Style, Parent);
}

} // namespace vcl::qt
