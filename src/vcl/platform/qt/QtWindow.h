#pragma once

#include <QPointer>
#include <QWidget>

#include <memory>

#include "vcl/platform/Window.h"

namespace vcl::qt
{

class TWindowSystem;

/// What all windows have in common: one widget, which lives as long as the window, and an owner that gets
/// the messages.
///
/// Either side may go first. Release() hides the widget and deletes it when its events are over; a widget
/// that the toolkit destroys tells the owner. Code that sends messages holds the window with Keep() and looks
/// whether it still has an owner afterwards.
class TWindow : public IWindow, public std::enable_shared_from_this<TWindow>
{
public:
    virtual ~TWindow() = default;

    /// Ties Window to its widget; the platform then holds it until one of both ends.
    static TWindowPtr Adopt(std::shared_ptr<TWindow> Window);

    void Release() override;
    IWindowOwner* GetOwner() const override { return FOwner; }
    void* NativeHandle() override { return FWidget; }

    void SetStyle(const TWindowStyle& Style) override { FStyle = Style; }
    void SetParent(IWindow* Parent) override;
    void SetBounds(const TRect& Bounds) override;
    TRect GetBounds() const override;
    TSize GetClientSize() const override;
    void SetVisible(bool Visible) override;
    void SetEnabled(bool Enabled) override;
    void BringToFront() override;
    void SendToBack() override;
    TPoint ClientToScreen(TPoint Point) const override;
    TPoint ScreenToClient(TPoint Point) const override;

    void SetText(const AnsiString& Text) override;
    AnsiString GetText() const override;
    void SetFont(const TFontSpec&) override {}
    void SetColors(TColor, TColor, bool) override {}
    void SetCursor(TCursor Cursor) override;

    void SetFocus() override;
    bool HasFocus() const override;
    void SetCapture(bool Capture) override;
    void SetScrollBar(TScrollBarKind, const TScrollBarState&) override {}

    double GetScale() const override;
    void RequestUpdate() override {}
    void Present(const TRect&) override {}
    void DefaultMessage(TMessage&) override {}
    bool PassFocus(bool Forward) override;

    // For the widgets and the window system
    QWidget* Widget() const { return FWidget; }
    /// The widget in whose coordinates mouse points and children stand.
    virtual QWidget* ClientWidget() const { return FWidget; }
    const TWindowStyle& Style() const { return FStyle; }
    /// Null while the window is being made.
    std::shared_ptr<TWindow> Keep() { return weak_from_this().lock(); }
    /// Sends a message; false when the owner is gone afterwards.
    bool Send(TMessage& Message);
    bool Send(unsigned Msg, std::uint64_t WParam = 0, std::int64_t LParam = 0);
    /// WM_SIZE or WM_MOVE, unless the owner itself is moving the window at this moment and so knows.
    void SendMoved(unsigned Msg, std::uint64_t WParam, QPoint Values);
    /// A mouse message with the point in client coordinates; while some window has the capture it goes there.
    bool SendMouse(unsigned Msg, unsigned Flags, QPointF Global);
    /// Right click and menu key.
    void SendContextMenu(bool ByKeyboard, QPoint Global);
    /// Paints at this many device pixels a unit instead of the screen's; 0: the screen's again.
    void SetScaleOverride(double Scale);
    virtual void ScaleMayHaveChanged();
    /// True for a window inside a widget of the surrounding program.
    bool IsEmbedded() const { return FEmbedded; }
    void SetEmbedded(bool Embedded) { FEmbedded = Embedded; }
    static TWindow* Of(const IWindow* Window);

protected:
    TWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Widget);

    /// The widget is about to lose its window.
    virtual void Detach() {}
    virtual bool IsTopLevel() const { return false; }
    void ApplyVisible();
    void SetWidget(QWidget* Widget) { FWidget = Widget; }
    void Raise();

    /// The owner changes place or frame.
    class TOwnChange
    {
    public:
        explicit TOwnChange(TWindow& Window) : FWindow(Window) { ++FWindow.FOwnChanges; }
        ~TOwnChange() { --FWindow.FOwnChanges; }
        TOwnChange(const TOwnChange&) = delete;
        TOwnChange& operator=(const TOwnChange&) = delete;

    private:
        TWindow& FWindow;
    };

    TWindowStyle FStyle;

private:
    void WidgetDestroyed();
    void OrphanChildren();

    QPointer<QWidget> FWidget;
    IWindowOwner* FOwner;
    std::shared_ptr<TWindow> FSelf;
    int FOwnChanges = 0;
    double FScaleOverride = 0;
    double FLastScale = 0;
    bool FVisible = false;
    bool FEmbedded = false;
};

} // namespace vcl::qt
