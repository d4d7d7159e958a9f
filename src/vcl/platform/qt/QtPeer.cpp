#include "vcl/platform/qt/QtPeer.h"

#include <QApplication>
#include <QFrame>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPainter>

#include "vcl/platform/Messages.h"
#include "vcl/platform/qt/QtConvert.h"
#include "vcl/platform/qt/QtFont.h"
#include "vcl/platform/qt/QtFrame.h"
#include "vcl/platform/qt/QtInput.h"
#include "vcl/platform/qt/QtWindowSystem.h"

namespace vcl::qt
{

class TPeerWindow::TFilter : public QObject
{
public:
    TFilter(TPeerWindow& Window, QObject* Parent) : QObject(Parent), FWindow(Window.weak_from_this()) {}

    bool eventFilter(QObject* Receiver, QEvent* Event) override
    {
        const std::shared_ptr<TWindow> Window = FWindow.lock();
        return Window && Window->GetOwner() && static_cast<TPeerWindow&>(*Window).Filter(Receiver, *Event);
    }

private:
    std::weak_ptr<TWindow> FWindow;
};

TPeerWindow::TPeerWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Widget)
    : TWindow(Owner, Style, Widget)
{
}

void TPeerWindow::Install()
{
    auto* const Filter = new TFilter(*this, Widget());
    Widget()->installEventFilter(Filter);
    for (QWidget* const Each : InputWidgets()) {
        Each->setFocusPolicy(Qt::NoFocus);
        Each->setMouseTracking(true);
        if (Each != Widget())
            Each->installEventFilter(Filter);
    }
    Widget()->setFocusPolicy(Qt::NoFocus);
    // A widget that has no use for the mouse must not hand it to the parent, which is another control.
    Widget()->setAttribute(Qt::WA_NoMousePropagation);
    ApplyBorder();
}

void TPeerWindow::ApplyBorder()
{
    const bool Edge = (FStyle.ExStyle & WS_EX_CLIENTEDGE) != 0 || (FStyle.Style & WS_BORDER) != 0;
    if (auto* const Edit = qobject_cast<QLineEdit*>(Widget()))
        Edit->setFrame(Edge);
    else if (auto* const Frame = qobject_cast<QFrame*>(Widget());
             Frame && Frame->inherits("QAbstractScrollArea"))
        Frame->setFrameShape(Edge ? QFrame::StyledPanel : QFrame::NoFrame);
    Widget()->setLayoutDirection((FStyle.ExStyle & WS_EX_RTLREADING) != 0 ? Qt::RightToLeft
                                                                          : Qt::LeftToRight);
}

void TPeerWindow::SetStyle(const TWindowStyle& Style)
{
    TWindow::SetStyle(Style);
    if (Widget())
        ApplyBorder();
}

TSize TPeerWindow::GetPreferredSize() const
{
    if (!Widget())
        return {};
    const QSize Size = Widget()->sizeHint();
    return {Size.width(), Size.height()};
}

void TPeerWindow::SetFont(const TFontSpec& Font)
{
    if (Widget())
        Widget()->setFont(ToQtFont(Font));
}

void TPeerWindow::SetColors(TColor Text, TColor Background, bool UseNative)
{
    if (!Widget())
        return;
    if (UseNative) {
        Widget()->setPalette(QPalette());
        return;
    }
    // Only the roles a control's two colours mean; the rest stays with the program's palette.
    QPalette Palette;
    for (const QPalette::ColorRole Role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        Palette.setColor(QPalette::Active, Role, ToQt(Text));
        Palette.setColor(QPalette::Inactive, Role, ToQt(Text));
    }
    for (const QPalette::ColorRole Role : {QPalette::Window, QPalette::Base})
        Palette.setColor(QPalette::All, Role, ToQt(Background));
    Widget()->setPalette(Palette);
}

void TPeerWindow::SetFocus()
{
    if (Widget())
        InputWidget()->setFocus(Qt::OtherFocusReason);
}

bool TPeerWindow::HasFocus() const
{
    return Widget() && InputWidget()->hasFocus();
}

void TPeerWindow::RenderTo(const TPixelBuffer& Target, TPoint Origin)
{
    if (!Widget() || !Target.Pixels)
        return;
    QImage Image(reinterpret_cast<uchar*>(Target.Pixels), Target.Width, Target.Height,
                 static_cast<qsizetype>(Target.Stride) * 4, QImage::Format_RGB32);
    const double Scale = GetScale();
    Image.setDevicePixelRatio(Scale);
    QPainter Painter(&Image);
    Painter.translate(Origin.X / Scale, Origin.Y / Scale);
    Widget()->render(&Painter, QPoint(0, 0), QRegion(), QWidget::DrawChildren);
}

void TPeerWindow::Notice(TPeerNotice Notice, std::int64_t Index)
{
    if (!FSilent)
        Send(CN_COMMAND, static_cast<std::uint64_t>(Notice), Index);
}

bool TPeerWindow::Filter(QObject* Receiver, QEvent& Event)
{
    if (FDelivering || !Receiver->isWidgetType())
        return false;
    const std::shared_ptr<TWindow> Kept = Keep();
    auto& Target = static_cast<QWidget&>(*Receiver);
    switch (Event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        return FilterMouse(Target, static_cast<QMouseEvent&>(Event));
    case QEvent::Wheel:
        return FilterWheel(static_cast<QWheelEvent&>(Event));
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        return FilterKey(Target, static_cast<QKeyEvent&>(Event));
    case QEvent::InputMethod:
        return FilterInputMethod(Target, static_cast<QInputMethodEvent&>(Event));
    case QEvent::ContextMenu: {
        const auto& Menu = static_cast<QContextMenuEvent&>(Event);
        TMessage Message{WM_CONTEXTMENU, 0,
                         Menu.reason() == QContextMenuEvent::Keyboard
                             ? -1
                             : MakePointParam(Menu.globalPos().x(), Menu.globalPos().y()),
                         0};
        TPending Pending{WM_CONTEXTMENU, &Target, &Event, false, 0};
        return Offer(Pending, Message);
    }
    case QEvent::Leave:
        Send(WM_MOUSELEAVE);
        return false;
    case QEvent::FocusIn:
        if (static_cast<QFocusEvent&>(Event).reason() != Qt::PopupFocusReason && &Target == InputWidget())
            Send(WM_SETFOCUS);
        return !Kept->GetOwner();
    case QEvent::FocusOut:
        if (static_cast<QFocusEvent&>(Event).reason() != Qt::PopupFocusReason && &Target == InputWidget())
            Send(WM_KILLFOCUS);
        return !Kept->GetOwner();
    case QEvent::Move:
        if (&Target == Widget())
            SendMoved(WM_MOVE, 0, Target.pos());
        return false;
    case QEvent::Resize:
        if (&Target == Widget())
            SendMoved(WM_SIZE, SIZE_RESTORED, {Target.width(), Target.height()});
        return false;
    default:
        return false;
    }
}

bool TPeerWindow::Offer(TPending& Pending, TMessage& Message)
{
    const std::shared_ptr<TWindow> Kept = Keep();
    TPending* const Before = std::exchange(FPending, &Pending);
    Send(Message);
    FPending = Before;
    // The widget has had the event already, or is not to have it.
    return true;
}

bool TPeerWindow::FilterMouse(QWidget& Receiver, QMouseEvent& Event)
{
    Event.accept();
    const unsigned Msg = MouseMessageOf(Event.type(), Event.button());
    if (Msg == WM_NULL)
        return false;
    const unsigned Flags = KeyFlags(Event.modifiers(), Event.buttons());
    const TInputScope Scope(Flags);
    TWindow* const Captured = WindowSystem().Captured();
    if (Captured && Captured != this) {
        SendMouse(Msg, Flags, Event.globalPosition());
    } else {
        const QPoint Point = Widget()->mapFromGlobal(Event.globalPosition()).toPoint();
        TMessage Message{Msg, Flags, MakePointParam(Point.x(), Point.y()), 0};
        TPending Pending{Msg, &Receiver, &Event, false, Flags};
        Offer(Pending, Message);
    }
    if (Event.type() == QEvent::MouseButtonRelease && Event.buttons() == Qt::NoButton)
        WindowSystem().LoseCapture();
    return true;
}

bool TPeerWindow::FilterWheel(QWheelEvent& Event)
{
    const unsigned Flags = KeyFlags(Event.modifiers(), Event.buttons());
    const TInputScope Scope(Flags);
    const int Distance = Event.angleDelta().y();
    TMessage Message{WM_MOUSEWHEEL, MakeWheelParam(Flags, Distance),
                     MakePointParam(static_cast<int>(Event.globalPosition().x()),
                                    static_cast<int>(Event.globalPosition().y())),
                     0};
    TPending Pending{WM_MOUSEWHEEL, InputWidget(), nullptr, false, Message.WParam};
    Offer(Pending, Message);
    // The widget scrolls itself when nobody had a use for the wheel.
    return !(Pending.CameBack && GetOwner());
}

bool TPeerWindow::FilterKey(QWidget& Receiver, QKeyEvent& Event)
{
    // Keys that an inner widget did not want pass by here a second time.
    const QWidget* const Focused = QApplication::focusWidget();
    if (&Receiver != InputWidget() && Focused && Focused != &Receiver)
        return false;
    const TInputScope Scope(KeyFlags(Event.modifiers(), QGuiApplication::mouseButtons()));
    if (Event.type() == QEvent::KeyPress)
        return KeyDown(Receiver, Event);
    const std::uint16_t Key = VirtualKeyOf(Event);
    const unsigned Msg = Event.modifiers().testFlag(Qt::AltModifier) ? WM_SYSKEYUP : WM_KEYUP;
    TMessage Message{Msg, Key, 0, 0};
    TPending Pending{Msg, &Receiver, &Event, false, Key};
    return Key != 0 && !Event.isAutoRepeat() && Offer(Pending, Message);
}

bool TPeerWindow::KeyDown(QWidget& Receiver, QKeyEvent& Event)
{
    const std::shared_ptr<TWindow> Kept = Keep();
    const bool Alt = Event.modifiers().testFlag(Qt::AltModifier);
    const std::uint16_t Key = VirtualKeyOf(Event);
    const std::u32string Characters = CharactersOf(Event);
    Event.accept();
    // A key that writes reaches the widget with its character; all others when their WM_KEYDOWN comes back.
    const bool Writes = !Characters.empty();
    const unsigned KeyMsg = Alt ? WM_SYSKEYDOWN : WM_KEYDOWN;
    TPending Pending{KeyMsg, &Receiver, Writes ? nullptr : &Event, false, Key};
    if (Key != 0) {
        TMessage Message{KeyMsg, Key, 0, 0};
        Offer(Pending, Message);
        if (Message.Result == 1 || !GetOwner())
            return true;
        if (Key == VK_APPS)
            return false;
    } else if (!Writes) {
        return false;
    }
    const unsigned CharMsg = Alt ? WM_SYSCHAR : WM_CHAR;
    for (const char32_t Character : Characters) {
        TMessage Message{CharMsg, Character, 0, 0};
        TPending Char{CharMsg, &Receiver, &Event, false, Character};
        Offer(Char, Message);
        if (!GetOwner())
            return true;
    }
    return true;
}

bool TPeerWindow::FilterInputMethod(QWidget& Receiver, QInputMethodEvent& Event)
{
    const std::shared_ptr<TWindow> Kept = Keep();
    const QString Commit = Event.commitString();
    if (Commit.isEmpty())
        return false;
    // What is committed goes the way of typed text; what is being composed stays with the widget.
    QInputMethodEvent Rest(Event.preeditString(), Event.attributes());
    Deliver(Receiver, Rest);
    for (const uint CodePoint : Commit.toUcs4()) {
        if (!Send(WM_CHAR, CodePoint))
            break;
    }
    return true;
}

void TPeerWindow::Deliver(QWidget& Receiver, QEvent& Event)
{
    const std::shared_ptr<TWindow> Kept = Keep();
    const bool Before = std::exchange(FDelivering, true);
    // Keys go to the widget alone, as the event itself is still on its way. The mouse passes the other
    // filters too: a view handles what happens on its viewport in one.
    if (Event.type() == QEvent::KeyPress || Event.type() == QEvent::KeyRelease)
        static_cast<QObject&>(Receiver).event(&Event);
    else
        QCoreApplication::sendEvent(&Receiver, &Event);
    FDelivering = Before;
}

void TPeerWindow::DefaultMessage(TMessage& Message)
{
    if (!Widget())
        return;
    const bool Button = Message.Msg == WM_LBUTTONDOWN || Message.Msg == WM_LBUTTONDBLCLK;
    if (Button && TakesFocus() && Widget()->isEnabled() && !HasFocus())
        SetFocus();
    if (!Widget())
        return;
    if (!FPending || FPending->Msg != Message.Msg || FPending->CameBack) {
        DeliverPosted(Message);
        return;
    }
    FPending->CameBack = true;
    if (!FPending->Event)
        return;
    const bool Character = Message.Msg == WM_CHAR;
    if (Character && Message.WParam != FPending->WParam) {
        // A handler made another character of it.
        DeliverPosted(Message);
        return;
    }
    if (Message.WParam == VK_TAB && (Character || Message.Msg == WM_KEYDOWN))
        return; // the toolkit would move the focus by an order of its own
    Deliver(*FPending->Receiver, *FPending->Event);
}

void TPeerWindow::DeliverPosted(TMessage& Message)
{
    if (EditMessage(Message))
        return;
    QWidget* const Target = InputWidget();
    if (Message.Msg >= WM_MOUSEMOVE && Message.Msg <= WM_MBUTTONDBLCLK) {
        const TPoint Point = PointOfParam(Message.LParam);
        const QPoint Global = Widget()->mapToGlobal(ToQt(Point));
        TMessage Moved = Message;
        const QPoint Inside = Target->mapFromGlobal(Global);
        Moved.LParam = MakePointParam(Inside.x(), Inside.y());
        QMouseEvent Event = MouseEventOf(Moved, Global);
        Deliver(*Target, Event);
        return;
    }
    if (Message.Msg == WM_KEYDOWN || Message.Msg == WM_KEYUP) {
        const int Key = KeyOfVirtualKey(static_cast<std::uint16_t>(Message.WParam));
        const unsigned Flags = WindowSystem().GetKeyFlags();
        Qt::KeyboardModifiers Modifiers;
        Modifiers.setFlag(Qt::ShiftModifier, (Flags & MK_SHIFT) != 0);
        Modifiers.setFlag(Qt::ControlModifier, (Flags & MK_CONTROL) != 0);
        QKeyEvent Event(Message.Msg == WM_KEYDOWN ? QEvent::KeyPress : QEvent::KeyRelease, Key, Modifiers);
        if (Key != 0)
            Deliver(*Target, Event);
        return;
    }
    if (Message.Msg == WM_CHAR && Message.WParam >= 0x20) {
        const char32_t CodePoint = static_cast<char32_t>(Message.WParam);
        QKeyEvent Event(QEvent::KeyPress, 0, Qt::NoModifier, QString::fromUcs4(&CodePoint, 1));
        Deliver(*Target, Event);
    }
}

} // namespace vcl::qt
