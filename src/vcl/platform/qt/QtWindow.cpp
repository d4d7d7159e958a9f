#include "vcl/platform/qt/QtWindow.h"

#include <QApplication>

#include "vcl/platform/Messages.h"
#include "vcl/platform/qt/QtConvert.h"
#include "vcl/platform/qt/QtInput.h"
#include "vcl/platform/qt/QtWindowSystem.h"

namespace vcl::qt
{

TWindow::TWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Widget)
    : FStyle(Style), FWidget(Widget), FOwner(&Owner)
{
}

TWindowPtr TWindow::Adopt(std::shared_ptr<TWindow> Window)
{
    TWindow* const Result = Window.get();
    QWidget* const Widget = Window->FWidget;
    Result->FSelf = std::move(Window);
    WindowSystem().Register(*Result, Widget);
    QObject::connect(Widget, &QObject::destroyed, [Weak = Result->weak_from_this()] {
        if (const std::shared_ptr<TWindow> Alive = Weak.lock())
            Alive->WidgetDestroyed();
    });
    return TWindowPtr(Result);
}

TWindow* TWindow::Of(const IWindow* Window)
{
    // This platform's windows are the only ones its functions are given.
    return const_cast<TWindow*>(static_cast<const TWindow*>(Window));
}

void TWindow::Release()
{
    const std::shared_ptr<TWindow> Self = std::move(FSelf);
    FOwner = nullptr;
    WindowSystem().Unregister(*this);
    if (!FWidget)
        return;
    Detach();
    OrphanChildren();
    // Until it is deleted the widget has nobody to tell.
    for (QObject* const Child : FWidget->findChildren<QObject*>())
        Child->blockSignals(true);
    FWidget->blockSignals(true);
    FWidget->hide();
    FWidget->deleteLater();
}

void TWindow::WidgetDestroyed()
{
    const std::shared_ptr<TWindow> Self = std::move(FSelf);
    FWidget = nullptr;
    WindowSystem().Unregister(*this);
    if (IWindowOwner* const Owner = std::exchange(FOwner, nullptr))
        Owner->WindowDestroyed();
}

void TWindow::OrphanChildren()
{
    for (TWindow* Window : WindowSystem().Windows()) {
        if (Window->FWidget && Window->FWidget->parentWidget() == ClientWidget()) {
            Window->FWidget->hide();
            Window->FWidget->setParent(nullptr);
        }
    }
}

bool TWindow::Send(TMessage& Message)
{
    const std::shared_ptr<TWindow> Self = Keep();
    if (!Self || !FOwner)
        return false;
    FOwner->WindowMessage(Message);
    return FOwner != nullptr;
}

bool TWindow::Send(unsigned Msg, std::uint64_t WParam, std::int64_t LParam)
{
    TMessage Message{Msg, WParam, LParam, 0};
    return Send(Message);
}

bool TWindow::SendMouse(unsigned Msg, unsigned Flags, QPointF Global)
{
    TWindow* const Captured = WindowSystem().Captured();
    TWindow& Target = Captured ? *Captured : *this;
    if (!Target.FWidget)
        return FOwner != nullptr;
    const QPoint Point = Target.ClientWidget()->mapFromGlobal(Global).toPoint();
    const std::shared_ptr<TWindow> Self = Keep();
    Target.Send(Msg, Flags, MakePointParam(Point.x(), Point.y()));
    return FOwner != nullptr;
}

void TWindow::SendContextMenu(bool ByKeyboard, QPoint Global)
{
    Send(WM_CONTEXTMENU, 0, ByKeyboard ? -1 : MakePointParam(Global.x(), Global.y()));
}

void TWindow::SetParent(IWindow* Parent)
{
    if (!FWidget)
        return;
    QWidget* const Next = Parent ? Of(Parent)->ClientWidget() : nullptr;
    if (FWidget->parentWidget() == Next)
        return;
    FWidget->setParent(Next);
    ApplyVisible();
}

void TWindow::SendMoved(unsigned Msg, std::uint64_t WParam, QPoint Values)
{
    if (FOwnChanges == 0)
        Send(Msg, WParam, MakePointParam(Values.x(), Values.y()));
}

void TWindow::SetBounds(const TRect& Bounds)
{
    const TOwnChange Own(*this);
    if (FWidget)
        FWidget->setGeometry(ToQt(Bounds));
}

TRect TWindow::GetBounds() const
{
    return FWidget ? FromQt(FWidget->geometry()) : TRect{};
}

TSize TWindow::GetClientSize() const
{
    if (!FWidget)
        return {};
    const QSize Size = ClientWidget()->size();
    return {Size.width(), Size.height()};
}

void TWindow::SetVisible(bool Visible)
{
    FVisible = Visible;
    ApplyVisible();
}

void TWindow::ApplyVisible()
{
    if (!FWidget)
        return;
    if (FVisible && !IsTopLevel() && !FWidget->parentWidget()) {
        // It waits for a parent; shown now it would be a window of its own on the screen.
        FWidget->setAttribute(Qt::WA_WState_ExplicitShowHide, false);
        return;
    }
    FWidget->setVisible(FVisible);
}

void TWindow::SetEnabled(bool Enabled)
{
    if (FWidget)
        FWidget->setEnabled(Enabled);
}

/// Without a screen, top-level windows have no order, and the toolkit complains when it is to change.
void TWindow::Raise()
{
    const bool HasOrder =
        !FWidget->isWindow() || QGuiApplication::platformName() != QLatin1String("offscreen");
    if (HasOrder)
        FWidget->raise();
}

void TWindow::BringToFront()
{
    if (FWidget)
        Raise();
}

void TWindow::SendToBack()
{
    if (FWidget)
        FWidget->lower();
}

TPoint TWindow::ClientToScreen(TPoint Point) const
{
    return FWidget ? FromQt(ClientWidget()->mapToGlobal(ToQt(Point))) : Point;
}

TPoint TWindow::ScreenToClient(TPoint Point) const
{
    return FWidget ? FromQt(ClientWidget()->mapFromGlobal(ToQt(Point))) : Point;
}

void TWindow::SetText(const AnsiString& Text)
{
    if (FWidget)
        FWidget->setAccessibleName(ToQt(Text));
}

AnsiString TWindow::GetText() const
{
    return FWidget ? FromQt(FWidget->accessibleName()) : AnsiString();
}

void TWindow::SetCursor(TCursor Cursor)
{
    if (!FWidget)
        return;
    if (Cursor == crDefault)
        ClientWidget()->unsetCursor();
    else
        ClientWidget()->setCursor(CursorShapeOf(Cursor));
}

void TWindow::SetFocus()
{
    if (FWidget)
        FWidget->setFocus(Qt::OtherFocusReason);
}

bool TWindow::HasFocus() const
{
    return FWidget && FWidget->hasFocus();
}

void TWindow::SetCapture(bool Capture)
{
    WindowSystem().SetCapture(*this, Capture);
}

double TWindow::GetScale() const
{
    if (FScaleOverride > 0)
        return FScaleOverride;
    return FWidget ? FWidget->devicePixelRatioF() : 1.0;
}

void TWindow::SetScaleOverride(double Scale)
{
    FScaleOverride = Scale;
    ScaleMayHaveChanged();
}

void TWindow::ScaleMayHaveChanged()
{
    const double Scale = GetScale();
    if (Scale == FLastScale)
        return;
    const bool First = FLastScale == 0;
    FLastScale = Scale;
    const std::shared_ptr<TWindow> Self = Keep();
    if (FOwner && !(First && Scale == 1.0))
        FOwner->WindowScaleChanged();
}

bool TWindow::PassFocus(bool Forward)
{
    QWidget* const Outside = FWidget ? FWidget->parentWidget() : nullptr;
    if (!FEmbedded || !Outside)
        return false;
    QWidget* const Window = Outside->window();
    QWidget* Next = Outside;
    do {
        Next = Forward ? Next->nextInFocusChain() : Next->previousInFocusChain();
        const bool TakesTab = (Next->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && !Next->focusProxy();
        if (TakesTab && Next != Outside && !Outside->isAncestorOf(Next) && Next->isEnabled() &&
            Next->isVisibleTo(Window)) {
            Next->setFocus(Forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return true;
        }
    } while (Next != Outside);
    return false;
}

} // namespace vcl::qt
