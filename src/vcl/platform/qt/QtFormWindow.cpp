#include "vcl/platform/qt/QtFormWindow.h"

#include <QCloseEvent>
#include <QMenuBar>

#include "vcl/platform/Messages.h"
#include "vcl/platform/qt/QtConvert.h"
#include "vcl/platform/qt/QtMenu.h"
#include "vcl/platform/qt/QtWindowSystem.h"

namespace vcl::qt
{

/// Looks at the frame's events before the frame does.
class TFormWindow::TFormFilter : public QObject
{
public:
    explicit TFormFilter(TFormWindow& Window, QObject* Parent)
        : QObject(Parent), FWindow(Window.weak_from_this())
    {
        Parent->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* Event) override
    {
        const std::shared_ptr<TWindow> Window = FWindow.lock();
        return Window && Window->GetOwner() && static_cast<TFormWindow&>(*Window).FormEvent(*Event);
    }

private:
    std::weak_ptr<TWindow> FWindow;
};

Qt::WindowFlags WindowFlagsOf(const TWindowStyle& Style)
{
    const auto Has = [&Style](std::uint32_t Flag) { return (Style.Style & Flag) == Flag; };
    if (Style.Kind == TWindowKind::Hint)
        return Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowTransparentForInput |
               Qt::WindowDoesNotAcceptFocus;
    Qt::WindowFlags Flags = (Style.ExStyle & WS_EX_TOOLWINDOW) != 0 ? Qt::Tool : Qt::Window;
    Flags |= Qt::CustomizeWindowHint;
    if (Has(WS_CAPTION))
        Flags |= Qt::WindowTitleHint;
    else
        Flags |= Qt::FramelessWindowHint;
    if (Has(WS_SYSMENU))
        Flags |= Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    if (Has(WS_CAPTION | WS_MINIMIZEBOX))
        Flags |= Qt::WindowMinimizeButtonHint;
    if (Has(WS_CAPTION | WS_MAXIMIZEBOX))
        Flags |= Qt::WindowMaximizeButtonHint;
    if ((Style.ExStyle & WS_EX_TOPMOST) != 0)
        Flags |= Qt::WindowStaysOnTopHint;
    return Flags;
}

TFormWindow::TFormWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent)
    : TFrameWindow(Owner, Style, Parent, WindowFlagsOf(Style)), FSentState(SIZE_RESTORED)
{
    if (Style.Kind != TWindowKind::Hint)
        return;
    Widget()->setAttribute(Qt::WA_ShowWithoutActivating);
    Widget()->setAttribute(Qt::WA_TransparentForMouseEvents);
}

void TFormWindow::SetStyle(const TWindowStyle& Style)
{
    TFrameWindow::SetStyle(Style);
    ApplyFlags();
}

void TFormWindow::ApplyFlags()
{
    if (!Widget() || Widget()->windowFlags() == WindowFlagsOf(FStyle))
        return;
    const QRect Geometry = Widget()->geometry();
    Widget()->setWindowFlags(WindowFlagsOf(FStyle)); // hides it
    SetBounds(FromQt(Geometry));
    ApplyVisible();
}

bool TFormWindow::IsResizable() const
{
    return FStyle.Kind == TWindowKind::Form && (FStyle.Style & WS_THICKFRAME) != 0;
}

void TFormWindow::SetParent(IWindow* Parent)
{
    if (!Widget())
        return;
    // Below another window it stays in front of it, but remains a window of its own.
    QWidget* const Next = Parent ? Of(Parent)->Widget()->window() : nullptr;
    if (Widget()->parentWidget() == Next)
        return;
    Widget()->setParent(Next, WindowFlagsOf(FStyle));
    ApplyVisible();
}

void TFormWindow::SetBounds(const TRect& Bounds)
{
    if (!Widget())
        return;
    if (IsResizable() || FStyle.Kind == TWindowKind::Hint) {
        Widget()->setMinimumSize(0, 0);
        Widget()->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    } else {
        Widget()->setFixedSize(std::max(0, Bounds.Width()), std::max(0, Bounds.Height()));
    }
    TFrameWindow::SetBounds(Bounds);
}

void TFormWindow::SetText(const AnsiString& Text)
{
    TFrameWindow::SetText(Text);
    if (Widget())
        Widget()->setWindowTitle(ToQt(Text));
}

AnsiString TFormWindow::GetText() const
{
    return Widget() ? FromQt(Widget()->windowTitle()) : AnsiString();
}

int TFormWindow::TopMargin() const
{
    return FMenuBar ? FMenuBar->sizeHint().height() : 0;
}

void TFormWindow::SetMenu(const TMenuSpec* Menu)
{
    if (!Widget())
        return;
    // The old bar may be in the middle of telling about a chosen item.
    if (FMenuBar) {
        FMenuBar->hide();
        FMenuBar->deleteLater();
        FMenuBar = nullptr;
    }
    if (Menu) {
        FMenuBar = new QMenuBar(Widget());
        FillMenuBar(*FMenuBar, *Menu, *this);
        FMenuBar->setGeometry(0, 0, Widget()->width(), FMenuBar->sizeHint().height());
        FMenuBar->show();
    }
    Layout();
}

void TFormWindow::SetWindowState(unsigned State)
{
    FSentState = State;
    if (!Widget())
        return;
    const Qt::WindowStates Others =
        Widget()->windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen);
    Widget()->setWindowState(Others | (State == SIZE_MINIMIZED   ? Qt::WindowMinimized
                                       : State == SIZE_MAXIMIZED ? Qt::WindowMaximized
                                                                 : Qt::WindowNoState));
}

unsigned TFormWindow::SizeKind() const
{
    return Widget()->isMinimized()   ? SIZE_MINIMIZED
           : Widget()->isMaximized() ? SIZE_MAXIMIZED
                                     : SIZE_RESTORED;
}

void TFormWindow::SetIcon(const TPixelBuffer& Icon)
{
    if (Widget())
        Widget()->setWindowIcon(QIcon(PixmapOf(Icon)));
}

void TFormWindow::SetModal(bool Modal)
{
    if (!Widget())
        return;
    // The toolkit looks at this only while showing a window.
    const bool Shown = Widget()->isVisible();
    if (Shown)
        Widget()->hide();
    Widget()->setWindowModality(Modal ? Qt::ApplicationModal : Qt::NonModal);
    if (Shown)
        Widget()->show();
}

void TFormWindow::Activate()
{
    if (!Widget())
        return;
    Raise();
    Widget()->activateWindow();
}

void TFormWindow::Install()
{
    new TFormFilter(*this, Widget());
}

bool TFormWindow::FormEvent(QEvent& Event)
{
    switch (Event.type()) {
    case QEvent::Close:
        // Whether the form goes, hides or stays is for the control to say.
        Event.ignore();
        Send(WM_CLOSE);
        return true;
    case QEvent::WindowActivate:
        Send(WM_ACTIVATE, WA_ACTIVE);
        return false;
    case QEvent::WindowDeactivate:
        WindowSystem().LoseCapture();
        Send(WM_ACTIVATE, WA_INACTIVE);
        return false;
    case QEvent::WindowStateChange: {
        const unsigned State = SizeKind();
        const TSize Client = GetClientSize();
        if (std::exchange(FSentState, State) != State)
            SendMoved(WM_SIZE, State, {Client.Width, Client.Height});
        return false;
    }
    case QEvent::Resize:
        if (FMenuBar)
            FMenuBar->setGeometry(0, 0, Widget()->width(), FMenuBar->sizeHint().height());
        return false;
    default:
        return false;
    }
}

std::shared_ptr<TWindow> MakeFormWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent)
{
    const auto Window = std::make_shared<TFormWindow>(Owner, Style, Parent ? Parent->window() : nullptr);
    Window->Install();
    return Window;
}

} // namespace vcl::qt
