#pragma once

#include <memory>

#include "vcl/platform/Messages.h"
#include "vcl/platform/Peers.h"
#include "vcl/platform/TextEngine.h"
#include "vcl/platform/WindowStyles.h"
#include "vcl/system/AnsiString.h"
#include "vcl/system/Types.h"

namespace vcl
{

class IWindow;
struct TMenuSpec;

enum class TWindowKind {
    Client, // self-drawn: frame, scroll bars and a client area that shows the owner's pixels
    Form,   // top level, with caption; its client area is self-drawn too
    Hint,   // top level without caption; never takes the focus or the mouse
    Label,  // the rest are native peers, which draw and edit on their own
    Button,
    ToolButton,
    Edit,
    SpinEdit,
    CheckBox,
    ComboBox,
    ListBox,
    ListView,
    StatusBar,
};

/// What a scroll bar shows. The position moves only when the owner says so: a bar that is used sends
/// WM_VSCROLL or WM_HSCROLL and waits.
struct TScrollBarState {
    bool Visible = false;
    bool Enabled = true;
    int Min = 0;
    int Max = 0;
    /// Size of the thumb in units of the range; positions go up to Max - max(Page - 1, 0).
    unsigned Page = 0;
    int Pos = 0;
    bool operator==(const TScrollBarState&) const = default;
};

enum class TScrollBarKind { sbHorizontal, sbVertical };

/// How a window is made, and what re-creation of its handle applies again.
struct TWindowStyle {
    TWindowKind Kind = TWindowKind::Client;
    std::uint32_t Style = 0;   // WS_..., ES_..., CBS_..., LBS_...
    std::uint32_t ExStyle = 0; // WS_EX_...
};

/// The control behind a window. Calls come on the thread of the user interface; none of them throws: what
/// goes wrong inside has been handed to the application's exception handler.
///
/// Any call may end with the window released (a handler freed its control); a platform must not touch the
/// owner again without looking whether it still has one.
class IWindowOwner
{
public:
    /// Input and state changes. Mouse points are in client coordinates, the wheel's in screen coordinates.
    /// What no handler consumed comes back through IWindow::DefaultMessage within the call.
    ///
    /// Keyboard: WM_KEYDOWN (WM_SYSKEYDOWN with Alt), then, unless its Result is 1, one WM_CHAR for each code
    /// point the key or the input method gave, then WM_KEYUP. Tab and arrow keys are sent like any other.
    virtual void WindowMessage(TMessage& Message) noexcept = 0;

    /// Paints what has been invalidated. The platform calls it before it shows pixels.
    virtual void WindowUpdate() noexcept = 0;

    /// The client area in device pixels; empty until something was painted. Valid until the next call.
    virtual TPixelBuffer WindowPixels() noexcept = 0;

    /// The number of device pixels a unit has, or the screen, has changed: everything needs painting.
    virtual void WindowScaleChanged() noexcept = 0;

    /// The platform destroyed the window on its own account. The owner forgets its pointer without
    /// Release.
    virtual void WindowDestroyed() noexcept = 0;

protected:
    ~IWindowOwner() = default;
};

/// One window of the platform behind a control (on a widget toolkit, one widget). It lives from the control's
/// first handle to the control's end, through every re-creation of the handle.
///
/// Sizes and positions are units; children stand in client coordinates of their parent, top-level windows
/// in screen coordinates. Bounds include border and scroll bars.
class IWindow
{
public:
    /// Cuts the tie to the owner, which gets no further call, hides the window and destroys it as soon as no
    /// event of it is under way. The windows of children that are still there lose their parent first.
    virtual void Release() = 0;
    /// The control behind the window; null once released.
    virtual IWindowOwner* GetOwner() const = 0;
    /// The toolkit's own object (QWidget*), for a bridge; null where there is none.
    virtual void* NativeHandle() { return nullptr; }

    /// Style and border as a re-created handle wants them; the kind never changes.
    virtual void SetStyle(const TWindowStyle& Style) = 0;
    /// Moves the window below another one; null: it waits hidden without a parent, or is top level.
    virtual void SetParent(IWindow* Parent) = 0;
    virtual void SetBounds(const TRect& Bounds) = 0;
    virtual TRect GetBounds() const = 0;
    /// The area without border and scroll bars. It follows SetStyle, SetBounds and SetScrollBar at once; the
    /// owner tells itself of that. WM_SIZE and WM_MOVE come for changes that are not the owner's doing.
    virtual TSize GetClientSize() const = 0;
    /// The size the contents want (native peers: from text and font); {0, 0} when they do not care.
    virtual TSize GetPreferredSize() const { return {}; }
    virtual void SetVisible(bool Visible) = 0;
    virtual void SetEnabled(bool Enabled) = 0;
    virtual void BringToFront() = 0;
    virtual void SendToBack() = 0;
    virtual TPoint ClientToScreen(TPoint Point) const = 0;
    virtual TPoint ScreenToClient(TPoint Point) const = 0;

    /// Caption of a form, text of a peer.
    virtual void SetText(const AnsiString& Text) = 0;
    virtual AnsiString GetText() const = 0;
    virtual void SetFont(const TFontSpec& Font) = 0;
    /// Real colours, 0x00BBGGRR. UseNative says that both are the platform's own for this kind of peer, which
    /// may then keep its usual look.
    virtual void SetColors(TColor Text, TColor Background, bool UseNative) = 0;
    virtual void SetCursor(TCursor Cursor) = 0;

    virtual void SetFocus() = 0;
    virtual bool HasFocus() const = 0;
    /// While captured, mouse messages go to this window as long as a button is held. Ends by itself with the
    /// last button; WM_CAPTURECHANGED tells of an end the owner did not ask for.
    virtual void SetCapture(bool Capture) = 0;

    virtual void SetScrollBar(TScrollBarKind Kind, const TScrollBarState& State) = 0;

    /// Device pixels a unit: 1, 1.25, 2, ...
    virtual double GetScale() const { return 1.0; }
    /// Some painting is pending: WindowUpdate is called soon, from the event loop. Calls coalesce.
    virtual void RequestUpdate() = 0;
    /// The pixels of Rect (client units) have changed and belong on the screen.
    virtual void Present(const TRect& Rect) = 0;
    /// Puts what was presented on the screen now.
    virtual void Flush() {}
    /// Draws the window as it looks now, children left out, its top left corner at Origin (device pixels).
    virtual void RenderTo(const TPixelBuffer& Target, TPoint Origin) = 0;

    /// What the platform does with a message that no handler consumed: an edit takes the character, a mouse
    /// message (real or posted) places its caret. Self-drawn windows ignore it.
    virtual void DefaultMessage(TMessage& Message) = 0;

    // Forms.
    /// Null: no menu bar. A chosen item arrives as WM_COMMAND.
    virtual void SetMenu(const TMenuSpec*) {}
    /// SIZE_RESTORED, SIZE_MINIMIZED or SIZE_MAXIMIZED.
    virtual void SetWindowState(unsigned) {}
    /// 0xFFRRGGBB pixels of the form's icon.
    virtual void SetIcon(const TPixelBuffer&) {}
    /// Blocks the program's other windows while shown.
    virtual void SetModal(bool) {}
    virtual void Activate() {}
    /// Frame around the client area: left, top, right, bottom of a form's decoration in units.
    virtual TRect GetFrame() const { return {}; }
    /// An embedded host gives the focus to what follows (or precedes) it in the surrounding program; false
    /// when there is nothing, so the focus stays.
    virtual bool PassFocus(bool /*Forward*/) { return false; }

    // Native peers answer for their kind.
    virtual IEditPeer* Edit() { return nullptr; }
    virtual IButtonPeer* Button() { return nullptr; }
    virtual ILabelPeer* Label() { return nullptr; }
    virtual ISpinPeer* Spin() { return nullptr; }
    virtual IListPeer* List() { return nullptr; }
    virtual IListViewPeer* ListView() { return nullptr; }
    virtual IStatusBarPeer* StatusBar() { return nullptr; }

protected:
    virtual ~IWindow() = default;
};

struct TWindowRelease {
    void operator()(IWindow* Window) const { Window->Release(); }
};
/// The owner's hold on its window.
using TWindowPtr = std::unique_ptr<IWindow, TWindowRelease>;

} // namespace vcl
