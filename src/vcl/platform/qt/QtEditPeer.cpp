#include <QLineEdit>

#include "vcl/platform/qt/QtConvert.h"
#include "vcl/platform/qt/QtLineEdit.h"
#include "vcl/platform/qt/QtPeer.h"
#include "vcl/platform/qt/QtWindowKinds.h"

namespace vcl::qt
{

namespace
{

class TEditWindow final : public TPeerWindow, private TLineEditPeer
{
public:
    TEditWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent)
        : TPeerWindow(Owner, Style, new QLineEdit(Parent))
    {
        auto* const Line = static_cast<QLineEdit*>(Widget());
        SetLineEdit(Line);
        Line->setContextMenuPolicy(Qt::DefaultContextMenu);
        QObject::connect(Line, &QLineEdit::textChanged, Line, [this] { Notice(TPeerNotice::TextChanged); });
        ApplyStyle();
    }

    void SetStyle(const TWindowStyle& Style) override
    {
        TPeerWindow::SetStyle(Style);
        if (Widget())
            ApplyStyle();
    }

    void SetText(const AnsiString& Text) override
    {
        const TSilence Silence(*this);
        if (Widget() && LineEdit()->text() != ToQt(Text))
            LineEdit()->setText(ToQt(Text));
    }

    AnsiString GetText() const override { return Widget() ? FromQt(LineEdit()->text()) : AnsiString(); }
    IEditPeer* Edit() override { return this; }

private:
    bool EditMessage(TMessage& Message) override { return TLineEditPeer::EditMessage(Message); }

    void ApplyStyle()
    {
        const auto Has = [this](std::uint32_t Flag) { return (FStyle.Style & Flag) != 0; };
        SetAlignment(Has(ES_CENTER)  ? TTextAlign::Center
                     : Has(ES_RIGHT) ? TTextAlign::Right
                                     : TTextAlign::Left);
        LineEdit()->setEchoMode(Has(ES_PASSWORD) ? QLineEdit::Password : QLineEdit::Normal);
        LineEdit()->setReadOnly(Has(ES_READONLY));
    }
};

} // namespace

std::shared_ptr<TWindow> MakeEditWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent)
{
    return MakePeer<TEditWindow>(Owner, Style, Parent);
}

} // namespace vcl::qt
