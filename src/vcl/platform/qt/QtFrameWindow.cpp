#include <QApplication>
#include <QPainter>
#include <QStyle>
#include <QWheelEvent>

#include "vcl/platform/Messages.h"
#include "vcl/platform/Platform.h"
#include "vcl/platform/System.h"
#include "vcl/platform/qt/QtConvert.h"
#include "vcl/platform/qt/QtFrame.h"
#include "vcl/platform/qt/QtInput.h"
#include "vcl/platform/qt/QtWindowSystem.h"

namespace vcl::qt
{

namespace
{

std::size_t IndexOf(TScrollBarKind Kind)
{
    return Kind == TScrollBarKind::sbHorizontal ? 0 : 1;
}

} // namespace

TFrameWindow::TFrameWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent)
    : TFrameWindow(Owner, Style, Parent, Qt::Widget)
{
}

TFrameWindow::TFrameWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent,
                           Qt::WindowFlags Flags)
    : TWindow(Owner, Style, nullptr), FFrame(new TFrame(*this, Parent, Flags)),
      FClient(new TClientArea(*this, FFrame))
{
    SetWidget(FFrame);
}

void TFrameWindow::Detach()
{
    FFrame->Forget();
    FClient->Forget();
}

QWidget* TFrameWindow::ClientWidget() const
{
    return FClient;
}

bool TFrameWindow::HasClientEdge() const
{
    return (FStyle.ExStyle & WS_EX_CLIENTEDGE) != 0;
}

int TFrameWindow::BorderWidth() const
{
    if (FFrame->isWindow() && !(FStyle.Kind == TWindowKind::Hint))
        return 0;
    return HasClientEdge() ? 2 : (FStyle.Style & WS_BORDER) != 0 ? 1 : 0;
}

void TFrameWindow::SetBounds(const TRect& Bounds)
{
    const TOwnChange Own(*this);
    TWindow::SetBounds(Bounds);
    // A hidden widget hears of its new size only when it is shown.
    Layout();
}

void TFrameWindow::SetStyle(const TWindowStyle& Style)
{
    const TOwnChange Own(*this);
    TWindow::SetStyle(Style);
    if (!Widget())
        return;
    FFrame->update();
    Layout();
}

unsigned TFrameWindow::SizeKind() const
{
    return SIZE_RESTORED;
}

void TFrameWindow::Layout()
{
    if (!Widget())
        return;
    const int Border = BorderWidth();
    QRect Inner = FFrame->rect().adjusted(Border, Border + TopMargin(), -Border, -Border);
    ISystem& System = Platform().System();
    const bool Across = FStates[0].Visible;
    const bool Down = FStates[1].Visible;
    const int BarWidth = Down ? System.Metric(TSystemMetric::VScrollBarWidth) : 0;
    const int BarHeight = Across ? System.Metric(TSystemMetric::HScrollBarHeight) : 0;
    const bool OnTheLeft = (FStyle.ExStyle & WS_EX_LEFTSCROLLBAR) != 0;
    QRect Client = Inner.adjusted(OnTheLeft ? BarWidth : 0, 0, OnTheLeft ? 0 : -BarWidth, -BarHeight);
    Client.setWidth(std::max(0, Client.width()));
    Client.setHeight(std::max(0, Client.height()));
    if (Down)
        FBars[1]->setGeometry(OnTheLeft ? Inner.left() : Client.right() + 1, Inner.top(), BarWidth,
                              Client.height());
    if (Across)
        FBars[0]->setGeometry(Client.left(), Client.bottom() + 1, Client.width(), BarHeight);
    FClient->setGeometry(Client);
    if (Client.size() == FSentSize)
        return;
    FSentSize = Client.size();
    SendMoved(WM_SIZE, SizeKind(), {Client.width(), Client.height()});
}

QScrollBar& TFrameWindow::Bar(TScrollBarKind Kind)
{
    QScrollBar*& Place = FBars[IndexOf(Kind)];
    if (!Place) {
        Place = new QScrollBar(Kind == TScrollBarKind::sbVertical ? Qt::Vertical : Qt::Horizontal, FFrame);
        Place->setFocusPolicy(Qt::NoFocus);
        Place->setContextMenuPolicy(Qt::NoContextMenu);
        Place->setCursor(Qt::ArrowCursor);
        QObject::connect(Place, &QScrollBar::actionTriggered, FFrame,
                         [this, Kind](int Action) { Scrolled(Kind, Action); });
        QObject::connect(Place, &QScrollBar::sliderReleased, FFrame, [this, Kind] {
            const std::shared_ptr<TWindow> Kept = Keep();
            SendScroll(Kind, SB_THUMBPOSITION);
            SendScroll(Kind, SB_ENDSCROLL);
        });
    }
    return *Place;
}

void TFrameWindow::SetScrollBar(TScrollBarKind Kind, const TScrollBarState& State)
{
    if (!Widget())
        return;
    const TOwnChange Own(*this);
    FStates[IndexOf(Kind)] = State;
    if (!State.Visible && !FBars[IndexOf(Kind)])
        return;
    QScrollBar& Target = Bar(Kind);
    // While the thumb is held it follows the mouse, not the position, as the range's end may round it.
    const std::int64_t Last =
        std::max<std::int64_t>(State.Min, std::int64_t{State.Max} - std::max(1u, State.Page) + 1);
    const QSignalBlocker Silent(Target);
    Target.setRange(State.Min, static_cast<int>(Last));
    Target.setPageStep(static_cast<int>(std::clamp(State.Page, 1u, 0x7FFFFFFFu)));
    if (!Target.isSliderDown())
        Target.setValue(State.Pos);
    Target.setEnabled(State.Enabled);
    Target.setVisible(State.Visible);
    Layout();
}

void TFrameWindow::Scrolled(TScrollBarKind Kind, int Action)
{
    if (!GetOwner())
        return;
    const std::shared_ptr<TWindow> Kept = Keep();
    QScrollBar& Target = Bar(Kind);
    unsigned Request = 0;
    switch (Action) {
    case QAbstractSlider::SliderSingleStepAdd:
        Request = SB_LINEDOWN;
        break;
    case QAbstractSlider::SliderSingleStepSub:
        Request = SB_LINEUP;
        break;
    case QAbstractSlider::SliderPageStepAdd:
        Request = SB_PAGEDOWN;
        break;
    case QAbstractSlider::SliderPageStepSub:
        Request = SB_PAGEUP;
        break;
    case QAbstractSlider::SliderToMinimum:
        Request = SB_TOP;
        break;
    case QAbstractSlider::SliderToMaximum:
        Request = SB_BOTTOM;
        break;
    case QAbstractSlider::SliderMove:
        // A drag, or a click that takes the thumb along: the position is where the mouse has it.
        Request = Target.isSliderDown() ? SB_THUMBTRACK : SB_THUMBPOSITION;
        SendScroll(Kind, Request);
        break;
    default:
        return;
    }
    const bool Moved = Action == QAbstractSlider::SliderMove;
    if (!Moved) {
        SendScroll(Kind, Request);
        SendScroll(Kind, SB_ENDSCROLL);
    }
    if (!Kept->GetOwner() || !Kept->Widget() || Target.isSliderDown())
        return;
    // The bar now takes over its slider position: that must be what the owner has set, if anything.
    const QSignalBlocker Silent(Target);
    Target.setSliderPosition(FStates[IndexOf(Kind)].Pos);
}

void TFrameWindow::SendScroll(TScrollBarKind Kind, unsigned Request)
{
    if (!Widget())
        return;
    const unsigned Msg = Kind == TScrollBarKind::sbVertical ? WM_VSCROLL : WM_HSCROLL;
    Send(Msg, MakeScrollParam(Request, Bar(Kind).sliderPosition()));
}

void TFrameWindow::RequestUpdate()
{
    if (std::exchange(FUpdatePosted, true))
        return;
    WindowSystem().Post([Weak = weak_from_this()] {
        const std::shared_ptr<TWindow> Window = Weak.lock();
        if (Window)
            static_cast<TFrameWindow&>(*Window).UpdateNow();
    });
}

void TFrameWindow::UpdateNow()
{
    FUpdatePosted = false;
    // What is hidden is painted when it is shown.
    if (GetOwner() && Widget() && FClient->isVisible())
        GetOwner()->WindowUpdate();
}

void TFrameWindow::Present(const TRect& Rect)
{
    if (Widget() && !FPainting)
        FClient->update(ToQt(Rect));
}

void TFrameWindow::Flush()
{
    if (Widget() && !FPainting && FClient->isVisible())
        FClient->repaint();
}

void TFrameWindow::PaintClient(QPainter& Painter, const QSize& Size)
{
    const std::shared_ptr<TWindow> Kept = Keep();
    ScaleMayHaveChanged();
    if (GetOwner() && !FPainting) {
        // The owner presents what it paints now; that is on its way to the screen already.
        FPainting = true;
        GetOwner()->WindowUpdate();
        FPainting = false;
    }
    if (!GetOwner())
        return;
    const TPixelBuffer Pixels = GetOwner()->WindowPixels();
    if (!Pixels.Pixels || Pixels.Width <= 0 || Pixels.Height <= 0) {
        Painter.fillRect(QRect(QPoint(0, 0), Size), FClient->palette().window());
        return;
    }
    QImage Image(reinterpret_cast<const uchar*>(Pixels.Pixels), Pixels.Width, Pixels.Height,
                 static_cast<qsizetype>(Pixels.Stride) * 4, QImage::Format_RGB32);
    Image.setDevicePixelRatio(GetScale());
    Painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    Painter.drawImage(QPointF(0, 0), Image);
}

void TFrameWindow::RenderTo(const TPixelBuffer& Target, TPoint Origin)
{
    if (!Widget() || !Target.Pixels)
        return;
    const std::shared_ptr<TWindow> Kept = Keep();
    QImage Image(reinterpret_cast<uchar*>(Target.Pixels), Target.Width, Target.Height,
                 static_cast<qsizetype>(Target.Stride) * 4, QImage::Format_RGB32);
    const double Scale = GetScale();
    Image.setDevicePixelRatio(Scale);
    QPainter Painter(&Image);
    Painter.translate(Origin.X / Scale, Origin.Y / Scale);
    FFrame->PaintBorder(Painter);
    for (QScrollBar* const Each : FBars) {
        if (Each && !Each->isHidden())
            Each->render(&Painter, Each->pos());
    }
    Painter.translate(FClient->pos());
    Painter.setClipRect(FClient->rect());
    PaintClient(Painter, FClient->size());
}

void TFrameWindow::WheelTurned(QWheelEvent& Event)
{
    // The toolkit offers an event that nobody took to the parents, one by one. Our parents are asked by the
    // control itself, so only the widget that was hit answers.
    const QWidget* const Hit = FFrame->childAt(FFrame->mapFromGlobal(Event.globalPosition().toPoint()));
    if (Hit && WindowSystem().WindowOf(Hit) != this) {
        Event.ignore();
        return;
    }
    Event.accept();
    // To the right is negative with the toolkit, and positive in messages.
    FWheel += QPoint(-Event.angleDelta().x(), Event.angleDelta().y());
    const unsigned Flags = KeyFlags(Event.modifiers(), Event.buttons());
    const TInputScope Scope(Flags);
    const std::shared_ptr<TWindow> Kept = Keep();
    const auto SendNotches = [&](int& Distance, unsigned Msg) {
        // Fine wheels turn by less than a notch; what is left waits for the next event.
        const int Notches = Distance / WHEEL_DELTA;
        Distance -= Notches * WHEEL_DELTA;
        if (Notches != 0 && Kept->GetOwner())
            Kept->Send(Msg, MakeWheelParam(Flags, Notches * WHEEL_DELTA),
                       MakePointParam(static_cast<int>(Event.globalPosition().x()),
                                      static_cast<int>(Event.globalPosition().y())));
    };
    SendNotches(FWheel.ry(), WM_MOUSEWHEEL);
    SendNotches(FWheel.rx(), WM_MOUSEHWHEEL);
}

bool TFrameWindow::WantsKey(const QKeyEvent& Event)
{
    TMessage Message{WM_GETDLGCODE, 0, 0, 0};
    if (!Send(Message))
        return false;
    if ((Message.Result & DLGC_WANTALLKEYS) != 0)
        return true;
    const bool Writes = !Event.text().isEmpty() && Event.text().front().isPrint() &&
                        (Event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == 0;
    return Writes && (Message.Result & DLGC_WANTCHARS) != 0;
}

bool TFrameWindow::KeyEvent(QKeyEvent& Event)
{
    // An event that an inner window has seen already comes by on its way up.
    const QWidget* const Focused = QApplication::focusWidget();
    if (Focused && Focused != FFrame && FFrame->isAncestorOf(Focused))
        return false;
    const std::uint16_t Key = VirtualKeyOf(Event);
    const bool Alt = Event.modifiers().testFlag(Qt::AltModifier);
    const TInputScope Scope(KeyFlags(Event.modifiers(), QGuiApplication::mouseButtons()));
    const std::shared_ptr<TWindow> Kept = Keep();
    if (Event.type() == QEvent::KeyRelease) {
        if (Key != 0 && !Event.isAutoRepeat())
            Send(Alt ? WM_SYSKEYUP : WM_KEYUP, Key);
        return true;
    }
    TMessage Message{Alt ? WM_SYSKEYDOWN : WM_KEYDOWN, Key, 0, 0};
    FKeyCameBack = false;
    if (Key != 0 && (!Send(Message) || Message.Result == 1))
        return true;
    if (Key == VK_APPS) {
        SendContextMenu(true, {});
        return true;
    }
    for (const char32_t CodePoint : CharactersOf(Event)) {
        TMessage Char{Alt ? WM_SYSCHAR : WM_CHAR, CodePoint, 0, 0};
        if (!Send(Char))
            return true;
    }
    // Escape and Return that nobody used may still close a dialog of the surrounding program.
    return !(FKeyCameBack && (Key == VK_ESCAPE || Key == VK_RETURN));
}

void TFrameWindow::DefaultMessage(TMessage& Message)
{
    if (Message.Msg == WM_KEYDOWN || Message.Msg == WM_SYSKEYDOWN)
        FKeyCameBack = true;
}

} // namespace vcl::qt
