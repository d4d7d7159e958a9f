#include "vcl/platform/qt/QtFrame.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QPainter>

#include "vcl/platform/Messages.h"
#include "vcl/platform/Platform.h"
#include "vcl/platform/System.h"
#include "vcl/platform/qt/QtConvert.h"
#include "vcl/platform/qt/QtInput.h"
#include "vcl/platform/qt/QtWindowSystem.h"

namespace vcl::qt
{

TInputScope::TInputScope(unsigned Flags)
{
    WindowSystem().BeginInput(Flags);
}

TInputScope::~TInputScope()
{
    WindowSystem().EndInput();
}

// ---- Frame

TFrame::TFrame(TFrameWindow& Window, QWidget* Parent, Qt::WindowFlags Flags)
    : QWidget(Parent, Flags), FWindow(&Window)
{
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_InputMethodEnabled);
    setMouseTracking(true);
}

bool TFrame::event(QEvent* Event)
{
    const std::shared_ptr<TWindow> Kept = FWindow ? FWindow->Keep() : nullptr;
    if (!Kept)
        return QWidget::event(Event);
    switch (Event->type()) {
    case QEvent::ShortcutOverride:
        if (FWindow->WantsKey(static_cast<QKeyEvent&>(*Event)))
            Event->accept();
        return true;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        Event->setAccepted(FWindow->KeyEvent(static_cast<QKeyEvent&>(*Event)));
        return true;
    case QEvent::Resize:
        FWindow->Layout();
        return true;
    case QEvent::Move:
        FWindow->SendMoved(WM_MOVE, 0, pos());
        return true;
    case QEvent::Show:
    case QEvent::ScreenChangeInternal:
        FWindow->ScaleMayHaveChanged();
        break;
    case QEvent::StyleChange:
        FWindow->Layout();
        if (isWindow() || FWindow->IsEmbedded())
            WindowSystem().MetricsChanged();
        break;
    case QEvent::ContextMenu:
        // The menu key has been told with the other keys; no parent shall hear of it.
        Event->accept();
        return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        // The border is not the client area: nobody below gets such a click either.
        Event->accept();
        return true;
    case QEvent::Wheel:
        FWindow->WheelTurned(static_cast<QWheelEvent&>(*Event));
        return true;
    default:
        break;
    }
    return QWidget::event(Event);
}

void TFrame::paintEvent(QPaintEvent*)
{
    QPainter Painter(this);
    PaintBorder(Painter);
}

void TFrame::PaintBorder(QPainter& Painter) const
{
    if (!FWindow || FWindow->BorderWidth() == 0)
        return;
    const auto Color = [](TColor Of) { return ToQt(Platform().System().SystemColor(SystemColorIndex(Of))); };
    const auto Ring = [&](QRect Rect, const QColor& TopLeft, const QColor& BottomRight) {
        Painter.fillRect(Rect.left(), Rect.top(), Rect.width() - 1, 1, TopLeft);
        Painter.fillRect(Rect.left(), Rect.top(), 1, Rect.height() - 1, TopLeft);
        Painter.fillRect(Rect.left(), Rect.bottom(), Rect.width(), 1, BottomRight);
        Painter.fillRect(Rect.right(), Rect.top(), 1, Rect.height(), BottomRight);
    };
    if (!FWindow->HasClientEdge()) {
        Ring(rect(), Color(clWindowFrame), Color(clWindowFrame));
        return;
    }
    Ring(rect(), Color(clBtnShadow), Color(clBtnHighlight));
    Ring(rect().adjusted(1, 1, -1, -1), Color(cl3DDkShadow), Color(cl3DLight));
}

QVariant TFrame::inputMethodQuery(Qt::InputMethodQuery Query) const
{
    if (Query == Qt::ImEnabled)
        return isEnabled();
    return QWidget::inputMethodQuery(Query);
}

void TFrame::inputMethodEvent(QInputMethodEvent* Event)
{
    Event->accept();
    if (!FWindow)
        return;
    const std::shared_ptr<TWindow> Kept = FWindow->Keep();
    for (const uint CodePoint : Event->commitString().toUcs4()) {
        if (!Kept->Send(WM_CHAR, CodePoint))
            return;
    }
}

void TFrame::focusInEvent(QFocusEvent* Event)
{
    // A menu that closes gives back what it never took.
    if (FWindow && Event->reason() != Qt::PopupFocusReason)
        FWindow->Send(WM_SETFOCUS);
}

void TFrame::focusOutEvent(QFocusEvent* Event)
{
    if (FWindow && Event->reason() != Qt::PopupFocusReason)
        FWindow->Send(WM_KILLFOCUS);
}

// ---- Client area

TClientArea::TClientArea(TFrameWindow& Window, QWidget* Parent) : QWidget(Parent), FWindow(&Window)
{
    setFocusPolicy(Qt::NoFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

bool TClientArea::event(QEvent* Event)
{
    const std::shared_ptr<TWindow> Kept = FWindow ? FWindow->Keep() : nullptr;
    if (!Kept)
        return QWidget::event(Event);
    switch (Event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        MouseEvent(static_cast<QMouseEvent&>(*Event));
        return true;
    case QEvent::Leave:
        FWindow->Send(WM_MOUSELEAVE);
        return true;
    case QEvent::ContextMenu: {
        const auto& Menu = static_cast<QContextMenuEvent&>(*Event);
        FWindow->SendContextMenu(Menu.reason() == QContextMenuEvent::Keyboard, Menu.globalPos());
        return true;
    }
    case QEvent::Wheel:
        FWindow->WheelTurned(static_cast<QWheelEvent&>(*Event));
        return true;
    default:
        return QWidget::event(Event);
    }
}

void TClientArea::MouseEvent(QMouseEvent& Event)
{
    Event.accept();
    const unsigned Msg = MouseMessageOf(Event.type(), Event.button());
    if (Msg == WM_NULL)
        return;
    const TInputScope Scope(KeyFlags(Event.modifiers(), Event.buttons()));
    FWindow->SendMouse(Msg, KeyFlags(Event.modifiers(), Event.buttons()), Event.globalPosition());
    if (Event.type() == QEvent::MouseButtonRelease && Event.buttons() == Qt::NoButton)
        WindowSystem().LoseCapture();
}

void TClientArea::paintEvent(QPaintEvent* Event)
{
    QPainter Painter(this);
    if (!FWindow) {
        Painter.fillRect(Event->rect(), palette().window());
        return;
    }
    Painter.setClipRegion(Event->region());
    FWindow->PaintClient(Painter, size());
}

bool TClientArea::focusNextPrevChild(bool Forward)
{
    if (!FWindow)
        return false;
    // Inside a foreign widget Tab walks as that widget wants; at its end the control decides, as for a key.
    QWidget* Next = QApplication::focusWidget();
    while (Next && isAncestorOf(Next)) {
        Next = Forward ? Next->nextInFocusChain() : Next->previousInFocusChain();
        const bool TakesTab = (Next->focusPolicy() & Qt::TabFocus) == Qt::TabFocus;
        if (isAncestorOf(Next) && TakesTab && !Next->focusProxy() && Next->isEnabled() && Next->isVisible()) {
            Next->setFocus(Forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return true;
        }
    }
    TMessage Message{WM_KEYDOWN, VK_TAB, 0, 0};
    const TInputScope Scope(Forward ? 0 : MK_SHIFT);
    FWindow->Send(Message);
    return true;
}

} // namespace vcl::qt
