#include <QSpinBox>

#include <limits>

#include "vcl/platform/qt/QtConvert.h"
#include "vcl/platform/qt/QtLineEdit.h"
#include "vcl/platform/qt/QtPeer.h"
#include "vcl/platform/qt/QtWindowKinds.h"

namespace vcl::qt
{

namespace
{

/// A spin box whose inner line edit is in reach.
class TSpinFace final : public QSpinBox
{
public:
    explicit TSpinFace(QWidget* Parent) : QSpinBox(Parent)
    {
        setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    }
    QLineEdit* Line() const { return lineEdit(); }
};

class TSpinWindow final : public TPeerWindow, private TLineEditPeer, private ISpinPeer
{
public:
    TSpinWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent)
        : TPeerWindow(Owner, Style, new TSpinFace(Parent))
    {
        SetLineEdit(Face().Line());
        QObject::connect(&Face(), &QSpinBox::textChanged, &Face(),
                         [this] { Notice(TPeerNotice::TextChanged); });
        QObject::connect(&Face(), &QSpinBox::valueChanged, &Face(),
                         [this] { Notice(TPeerNotice::ValueChanged); });
    }

    void SetText(const AnsiString& Text) override
    {
        const TSilence Silence(*this);
        if (Widget() && LineEdit()->text() != ToQt(Text))
            LineEdit()->setText(ToQt(Text));
    }
    AnsiString GetText() const override { return Widget() ? FromQt(LineEdit()->text()) : AnsiString(); }
    IEditPeer* Edit() override { return this; }
    ISpinPeer* Spin() override { return this; }

private:
    TSpinFace& Face() const { return static_cast<TSpinFace&>(*Widget()); }
    std::vector<QWidget*> InputWidgets() const override { return {Widget(), Face().Line()}; }
    bool EditMessage(TMessage& Message) override { return TLineEditPeer::EditMessage(Message); }

    void SetRange(int Min, int Max) override
    {
        const TSilence Silence(*this);
        if (!Widget())
            return;
        if (Min == 0 && Max == 0)
            Face().setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
        else
            Face().setRange(Min, Max);
    }
    void SetIncrement(int Increment) override
    {
        if (Widget())
            Face().setSingleStep(Increment);
    }
    void SetValue(int Value) override
    {
        const TSilence Silence(*this);
        if (Widget())
            Face().setValue(Value);
    }
    int GetValue() const override { return Widget() ? Face().value() : 0; }
};

} // namespace

std::shared_ptr<TWindow> MakeSpinWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent)
{
    return MakePeer<TSpinWindow>(Owner, Style, Parent);
}

} // namespace vcl::qt
