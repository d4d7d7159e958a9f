#pragma once

#include <QScrollBar>

#include <array>

#include "vcl/platform/qt/QtWindow.h"

namespace vcl::qt
{

class TClientArea;
class TFrame;

/// A self-drawn control: a frame with border and scroll bars around a client area that shows the owner's
/// pixels.
class TFrameWindow : public TWindow
{
public:
    TFrameWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent);

    void SetStyle(const TWindowStyle& Style) override;
    void SetBounds(const TRect& Bounds) override;
    void SetScrollBar(TScrollBarKind Kind, const TScrollBarState& State) override;
    void RequestUpdate() override;
    void DefaultMessage(TMessage& Message) override;
    void Present(const TRect& Rect) override;
    void Flush() override;
    void RenderTo(const TPixelBuffer& Target, TPoint Origin) override;
    QWidget* ClientWidget() const override;

    // From the widgets
    void UpdateNow();
    /// Blits the owner's pixels for a paint event of the client area.
    void PaintClient(QPainter& Painter, const QSize& Size);
    /// Places bars and client area; WM_SIZE when the client area's size has changed.
    void Layout();
    void WheelTurned(QWheelEvent& Event);
    bool KeyEvent(QKeyEvent& Event);
    /// Whether a key is the control's before a shortcut of the program gets it.
    bool WantsKey(const QKeyEvent& Event);
    int BorderWidth() const;
    bool HasClientEdge() const;
    /// Room above the client area, for a menu bar.
    virtual int TopMargin() const { return 0; }
    virtual unsigned SizeKind() const;

protected:
    TFrameWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent, Qt::WindowFlags Flags);

    void Detach() override;
    TFrame* Frame() const { return FFrame; }

private:
    void Scrolled(TScrollBarKind Kind, int Action);
    void SendScroll(TScrollBarKind Kind, unsigned Request);
    QScrollBar& Bar(TScrollBarKind Kind);

    TFrame* FFrame;
    TClientArea* FClient;
    std::array<QScrollBar*, 2> FBars{};
    std::array<TScrollBarState, 2> FStates;
    QSize FSentSize{0, 0};
    QPoint FWheel;
    bool FKeyCameBack = false;
    bool FUpdatePosted = false;
    bool FPainting = false;
};

/// The widget around everything; it has the keyboard focus.
class TFrame : public QWidget
{
public:
    TFrame(TFrameWindow& Window, QWidget* Parent, Qt::WindowFlags Flags);

    /// The window is gone; the widget waits for its deletion.
    void Forget() { FWindow = nullptr; }
    QVariant inputMethodQuery(Qt::InputMethodQuery Query) const override;
    void PaintBorder(QPainter& Painter) const;

protected:
    bool event(QEvent* Event) override;
    void paintEvent(QPaintEvent* Event) override;
    void inputMethodEvent(QInputMethodEvent* Event) override;
    void focusInEvent(QFocusEvent* Event) override;
    void focusOutEvent(QFocusEvent* Event) override;
    TFrameWindow* Window() const { return FWindow; }

private:
    TFrameWindow* FWindow;
};

/// Shows the owner's pixels and takes the mouse.
class TClientArea : public QWidget
{
public:
    TClientArea(TFrameWindow& Window, QWidget* Parent);

    void Forget() { FWindow = nullptr; }
    bool ForwardTab(bool Forward) { return focusNextPrevChild(Forward); }

protected:
    bool event(QEvent* Event) override;
    void paintEvent(QPaintEvent* Event) override;
    bool focusNextPrevChild(bool Forward) override;

private:
    void MouseEvent(QMouseEvent& Event);

    TFrameWindow* FWindow;
};

/// Lets input handling see the flags of the event, and notices the last button going up.
class TInputScope
{
public:
    explicit TInputScope(unsigned Flags);
    ~TInputScope();
    TInputScope(const TInputScope&) = delete;
    TInputScope& operator=(const TInputScope&) = delete;
};

} // namespace vcl::qt
