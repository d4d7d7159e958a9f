#include <QCheckBox>
#include <QPushButton>
#include <QToolButton>

#include "vcl/platform/qt/QtConvert.h"
#include "vcl/platform/qt/QtMenu.h"
#include "vcl/platform/qt/QtPeer.h"
#include "vcl/platform/qt/QtWindowKinds.h"

namespace vcl::qt
{

namespace
{

QAbstractButton* MakeButton(TWindowKind Kind, QWidget* Parent)
{
    if (Kind == TWindowKind::CheckBox)
        return new QCheckBox(Parent);
    if (Kind == TWindowKind::ToolButton)
        return new QToolButton(Parent);
    auto* const Push = new QPushButton(Parent);
    Push->setAutoDefault(false);
    return Push;
}

class TButtonWindow final : public TPeerWindow, private IButtonPeer
{
public:
    TButtonWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent)
        : TPeerWindow(Owner, Style, MakeButton(Style.Kind, Parent))
    {
        QObject::connect(Face(), &QAbstractButton::clicked, Face(), [this] { Notice(TPeerNotice::Clicked); });
    }

    void SetText(const AnsiString& Text) override
    {
        if (!Widget())
            return;
        Face()->setText(ToQt(Text));
        ArrangeToolButton();
    }
    AnsiString GetText() const override { return Widget() ? FromQt(Face()->text()) : AnsiString(); }
    IButtonPeer* Button() override { return this; }

private:
    QAbstractButton* Face() const { return static_cast<QAbstractButton*>(Widget()); }
    template <class T>
    T* As() const
    {
        return qobject_cast<T*>(Widget());
    }
    bool TakesFocus() const override { return FStyle.Kind != TWindowKind::ToolButton; }

    void SetCheckState(TCheckState State) override
    {
        const TSilence Silence(*this);
        if (auto* const Box = As<QCheckBox>())
            Box->setCheckState(State == TCheckState::Checked  ? Qt::Checked
                               : State == TCheckState::Grayed ? Qt::PartiallyChecked
                                                              : Qt::Unchecked);
        else if (Widget())
            Face()->setChecked(State == TCheckState::Checked);
    }

    TCheckState GetCheckState() const override
    {
        if (const auto* const Box = As<QCheckBox>(); Box && Box->checkState() == Qt::PartiallyChecked)
            return TCheckState::Grayed;
        return Widget() && Face()->isChecked() ? TCheckState::Checked : TCheckState::Unchecked;
    }

    void SetTriState(bool Allow) override
    {
        if (auto* const Box = As<QCheckBox>())
            Box->setTristate(Allow);
    }

    void SetDefault(bool Default) override
    {
        if (auto* const Push = As<QPushButton>())
            Push->setDefault(Default);
    }

    void SetCheckable(bool Checkable) override
    {
        if (As<QToolButton>())
            Face()->setCheckable(Checkable);
    }

    void SetFlat(bool Flat) override
    {
        if (auto* const Tool = As<QToolButton>())
            Tool->setAutoRaise(Flat);
    }

    void SetGlyph(const TPixelBuffer& Glyph) override
    {
        if (!Widget())
            return;
        const QPixmap Picture = PixmapOf(Glyph);
        Face()->setIcon(QIcon(Picture));
        if (!Picture.isNull())
            Face()->setIconSize(Picture.size());
        ArrangeToolButton();
    }

    void SetArrow(int Direction) override
    {
        static constexpr Qt::ArrowType Arrows[] = {Qt::NoArrow, Qt::LeftArrow, Qt::UpArrow, Qt::RightArrow,
                                                   Qt::DownArrow};
        if (auto* const Tool = As<QToolButton>(); Tool && Direction >= -1 && Direction <= 3)
            Tool->setArrowType(Arrows[Direction + 1]);
        ArrangeToolButton();
    }

    void ArrangeToolButton()
    {
        auto* const Tool = As<QToolButton>();
        if (!Tool)
            return;
        const bool Picture = !Tool->icon().isNull() || Tool->arrowType() != Qt::NoArrow;
        Tool->setToolButtonStyle(Tool->text().isEmpty() ? Qt::ToolButtonIconOnly
                                 : Picture              ? Qt::ToolButtonTextBesideIcon
                                                        : Qt::ToolButtonTextOnly);
    }
};

} // namespace

std::shared_ptr<TWindow> MakeButtonWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent)
{
    return MakePeer<TButtonWindow>(Owner, Style, Parent);
}

} // namespace vcl::qt
