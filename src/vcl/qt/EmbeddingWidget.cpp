#include "vcl/qt/EmbeddingWidget.h"

#include <QApplication>
#include <QFocusEvent>
#include <QFontInfo>

#include "vcl/controls/Program.h"
#include "vcl/platform/qt/QtConvert.h"

namespace vcl
{

TEmbeddingWidget::TEmbeddingWidget(TWinControl& Control)
    : FForm(New<TEmbeddedForm>(*this)), FControl(&Control), FSizeHint(Control.GetWidth(), Control.GetHeight())
{
    setFocusPolicy(Qt::TabFocus);
    TakeFont();
    TakeColors();
    FForm->SetBounds(0, 0, Control.GetWidth(), Control.GetHeight());
    Control.SetParent(FForm.get());
    FForm->SetVisible(true);
}

TEmbeddingWidget::~TEmbeddingWidget()
{
    RunGuarded(nullptr, [this] {
        TWinControl* const Control = FControl.Get();
        if (Control && Control->GetParent() == FForm.get())
            Control->SetParent(nullptr);
        FForm.reset();
    });
}

QSize TEmbeddingWidget::minimumSizeHint() const
{
    const TWinControl* const Control = FControl.Get();
    if (!Control)
        return {};
    return {Control->GetConstraints()->GetMinWidth(), Control->GetConstraints()->GetMinHeight()};
}

void TEmbeddingWidget::resizeEvent(QResizeEvent*)
{
    RunGuarded(FForm.get(), [this] { FForm->SetBounds(0, 0, width(), height()); });
}

void TEmbeddingWidget::changeEvent(QEvent* Event)
{
    RunGuarded(FForm.get(), [this, Event] {
        if (Event->type() == QEvent::FontChange)
            TakeFont();
        else if (Event->type() == QEvent::PaletteChange)
            TakeColors();
        else if (Event->type() == QEvent::EnabledChange)
            FForm->SetEnabled(isEnabled());
    });
    QWidget::changeEvent(Event);
}

void TEmbeddingWidget::focusInEvent(QFocusEvent* Event)
{
    RunGuarded(FForm.get(), [this, Event] {
        if (Event->reason() == Qt::TabFocusReason)
            FForm->EnterFirst();
        else if (Event->reason() == Qt::BacktabFocusReason)
            FForm->EnterLast();
        else
            FForm->EnterAgain();
    });
}

void TEmbeddingWidget::TakeFont()
{
    if (!FForm)
        return;
    const QFontInfo Info(font());
    FForm->GetFont()->SetName(qt::FromQt(Info.family()));
    FForm->GetFont()->SetHeight(-Info.pixelSize());
}

void TEmbeddingWidget::TakeColors()
{
    if (!FForm)
        return;
    // A system colour follows the application; only surroundings of another colour are copied.
    const auto Follow = [this](QPalette::ColorRole Role, TColor System) {
        const QColor Here = palette().color(QPalette::Active, Role);
        return Here == QApplication::palette().color(QPalette::Active, Role) ? System : qt::FromQt(Here);
    };
    FForm->SetColor(Follow(QPalette::Window, clBtnFace));
    FForm->GetFont()->SetColor(Follow(QPalette::WindowText, clWindowText));
}

} // namespace vcl
