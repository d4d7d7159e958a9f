#pragma once

#include <memory>

#include "vcl/classes/Component.h"
#include "vcl/controls/ControlTypes.h"
#include "vcl/controls/PopupMenuBase.h"
#include "vcl/controls/SizeConstraints.h"
#include "vcl/graphics/Font.h"
#include "vcl/platform/Messages.h"
#include "vcl/system/Liveness.h"

namespace vcl
{

class TWinControl;

/// Something visible with bounds in a parent: the base of window controls (TWinControl) and of controls that
/// paint on their parent's window (TGraphicControl).
///
/// Everything that happens to it is a message: WndProc gets it first, Dispatch gives it to the handlers,
/// which call the virtual methods (MouseDown, Click, ...), and these raise the events. Properties that
/// descendants publish are all public here.
class TControl : public TComponent
{
    VCL_CLASS
public:
    explicit TControl(TComponent* Owner);
    ~TControl() override;

    // Bounds. Pixels in the parent's client area; all changes go through SetBounds.
    int GetLeft() const { return FLeft; }
    void SetLeft(int Value);
    int GetTop() const { return FTop; }
    void SetTop(int Value);
    int GetWidth() const { return FWidth; }
    void SetWidth(int Value);
    int GetHeight() const { return FHeight; }
    void SetHeight(int Value);
    /// Negative sizes become 0; size constraints and OnCanResize have their say first.
    virtual void SetBounds(int Left, int Top, int Width, int Height);
    TRect GetBoundsRect() const { return vcl::Bounds(FLeft, FTop, FWidth, FHeight); }
    void SetBoundsRect(const TRect& Rect) { SetBounds(Rect.Left, Rect.Top, Rect.Width(), Rect.Height()); }
    /// The area inside border and scroll bars: left and top are 0.
    virtual TRect GetClientRect() const { return {0, 0, FWidth, FHeight}; }
    int GetClientWidth() const { return GetClientRect().Width(); }
    void SetClientWidth(int Value) { SetClientSize({Value, GetClientHeight()}); }
    int GetClientHeight() const { return GetClientRect().Height(); }
    void SetClientHeight(int Value) { SetClientSize({GetClientWidth(), Value}); }
    virtual void SetClientSize(TSize Value);
    TPoint ClientToScreen(TPoint Point) const;
    TPoint ScreenToClient(TPoint Point) const;
    /// The client area's corner on the screen; {0, 0} plus the bounds of the ancestors when there is no
    /// window.
    virtual TPoint GetClientOrigin() const;

    // Published properties (by this class or by descendants)
    TAlign GetAlign() const { return FAlign; }
    void SetAlign(TAlign Value);
    TAnchors GetAnchors() const { return FAnchors; }
    void SetAnchors(TAnchors Value);
    bool GetAutoSize() const { return FAutoSize; }
    virtual void SetAutoSize(bool Value);
    TBiDiMode GetBiDiMode() const { return FBiDiMode; }
    virtual void SetBiDiMode(TBiDiMode Value);
    AnsiString GetCaption() const { return GetText(); }
    void SetCaption(const AnsiString& Value) { SetText(Value); }
    /// What Caption and Text of descendants show.
    virtual AnsiString GetText() const { return FText; }
    virtual void SetText(const AnsiString& Value);
    TColor GetColor() const { return FColor; }
    void SetColor(TColor Value);
    TSizeConstraints* GetConstraints() const { return FConstraints.get(); }
    void SetConstraints(const TSizeConstraints* Value) { FConstraints->Assign(Value); }
    TCursor GetCursor() const { return FCursor; }
    void SetCursor(TCursor Value);
    TCursor GetDragCursor() const { return FDragCursor; }
    void SetDragCursor(TCursor Value) { FDragCursor = Value; }
    TDragKind GetDragKind() const { return FDragKind; }
    void SetDragKind(TDragKind Value) { FDragKind = Value; }
    TDragMode GetDragMode() const { return FDragMode; }
    virtual void SetDragMode(TDragMode Value) { FDragMode = Value; }
    virtual bool GetEnabled() const { return FEnabled; }
    virtual void SetEnabled(bool Value);
    TFont* GetFont() const { return FFont.get(); }
    void SetFont(const TFont* Value) { FFont->Assign(Value); }
    int GetHelpContext() const { return FHelpContext; }
    void SetHelpContext(int Value) { FHelpContext = Value; }
    const AnsiString& GetHint() const { return FHint; }
    void SetHint(const AnsiString& Value) { FHint = Value; }
    bool GetParentBiDiMode() const { return FParentBiDiMode; }
    void SetParentBiDiMode(bool Value);
    bool GetParentColor() const { return FParentColor; }
    void SetParentColor(bool Value);
    bool GetParentFont() const { return FParentFont; }
    void SetParentFont(bool Value);
    bool GetParentShowHint() const { return FParentShowHint; }
    void SetParentShowHint(bool Value);
    TPopupMenuBase* GetPopupMenu() const { return FPopupMenu; }
    void SetPopupMenu(TPopupMenuBase* Value);
    bool GetShowHint() const { return FShowHint; }
    void SetShowHint(bool Value);
    bool GetVisible() const { return FVisible; }
    void SetVisible(bool Value);

    TWinControl* GetParent() const { return FParent; }
    virtual void SetParent(TWinControl* Value);
    TControlStyle GetControlStyle() const { return FControlStyle; }
    void SetControlStyle(TControlStyle Value) { FControlStyle = Value; }
    TControlState GetControlState() const { return FControlState; }
    /// The mouse's messages come here until capture ends.
    bool GetMouseCapture() const;
    void SetMouseCapture(bool Value);

    // Order and visibility
    void Show() { SetVisible(true); }
    void Hide() { SetVisible(false); }
    void BringToFront() { SetZOrder(true); }
    void SendToBack() { SetZOrder(false); }

    // Painting
    /// Asks for painting later; several calls make one painting.
    virtual void Invalidate();
    /// Paints now what has been asked for.
    virtual void Update();
    /// Paints everything now.
    virtual void Repaint();
    void Refresh() { Repaint(); }

    // Messages
    /// Sends a message to this control and returns the handler's result.
    std::int64_t Perform(unsigned Msg, std::uint64_t WParam = 0, std::int64_t LParam = 0);
    /// First in line for every message.
    virtual void WndProc(TMessage& Message);
    /// Calls the handler of the message, or DefaultHandler when there is none.
    virtual void Dispatch(TMessage& Message);
    virtual void DefaultHandler(TMessage&) {}

    // Dragging
    /// Starts a drag, at once or (Immediate false) after the mouse has moved Threshold pixels (-1: the
    /// platform's own distance).
    void BeginDrag(bool Immediate, int Threshold = -1);
    void EndDrag(bool Drop);
    /// True while this control is the source of a drag.
    bool Dragging() const;
    virtual void DragDrop(TObject* Source, int X, int Y);

    // Bidirectional text
    virtual bool UseRightToLeftReading() const { return FBiDiMode != TBiDiMode::bdLeftToRight; }
    bool UseRightToLeftAlignment() const { return FBiDiMode == TBiDiMode::bdRightToLeft; }
    bool UseRightToLeftScrollBar() const
    {
        return FBiDiMode == TBiDiMode::bdRightToLeft || FBiDiMode == TBiDiMode::bdRightToLeftNoAlign;
    }
    bool IsRightToLeft() const { return UseRightToLeftReading(); }
    /// Flags plus the reading order's flag, left and right exchanged where alignment follows the direction.
    unsigned DrawTextBiDiModeFlags(unsigned Flags) const;
    /// Flags plus the reading order's flag alone.
    unsigned DrawTextBiDiModeFlagsReadingOnly() const;

    /// Moves and resizes by M / D; the font too unless it is the parent's.
    virtual void ChangeScale(int M, int D);

    /// For TAliveGuard and TWeak.
    const TLiveness& GetLiveness() const { return FLiveness; }

    TComponent* GetParentComponent() const override;
    bool HasParent() const override { return FParent != nullptr; }
    void SetParentComponent(TComponent* Value) override;
    void SetName(const AnsiString& Value) override;
    void DefineProperties(TFiler& Filer) override;
    void BeforeDestruction() override;

    bool IsAnchorsStored() const;
    bool IsBiDiModeStored() const { return !FParentBiDiMode; }
    bool IsColorStored() const { return !FParentColor; }
    bool IsFontStored() const { return !FParentFont; }
    bool IsShowHintStored() const { return !FParentShowHint; }

    // Events
    TCanResizeEvent OnCanResize;
    TNotifyEvent OnClick;
    TConstrainedResizeEvent OnConstrainedResize;
    TNotifyEvent OnDblClick;
    TDragDropEvent OnDragDrop;
    TDragOverEvent OnDragOver;
    TEndDragEvent OnEndDock;
    TEndDragEvent OnEndDrag;
    TMouseEvent OnMouseDown;
    TMouseMoveEvent OnMouseMove;
    TMouseEvent OnMouseUp;
    TMouseWheelEvent OnMouseWheel;
    TMouseWheelUpDownEvent OnMouseWheelDown;
    TMouseWheelUpDownEvent OnMouseWheelUp;
    TNotifyEvent OnResize;
    TStartDockEvent OnStartDock;
    TStartDragEvent OnStartDrag;

    // Called by TWinControl, the drag and the hint machinery.
    /// The popup menu this control opens itself; descendants may choose one when asked.
    virtual TPopupMenuBase* GetPopupMenuToShow() { return FPopupMenu; }
    virtual void DoStartDrag(TDragObject*& DragObject) { OnStartDrag(this, DragObject); }
    virtual void DoEndDrag(TObject* Target, int X, int Y) { OnEndDrag(this, Target, X, Y); }
    virtual void DragOver(TObject* Source, int X, int Y, TDragState State, bool& Accept);
    /// A control may refuse a drag it is the source of.
    virtual void DragCanceled() {}
    /// The parent scrolls: moves along without counting as moved by the program.
    void MoveWithContents(int DeltaX, int DeltaY);
    /// Takes this control's anchors for a new size of the parent's client area.
    void ParentResized(TSize NewClient, TRect& NewBounds) const;

protected:
    friend class TWinControl;

    // What messages lead to
    virtual void Click() { OnClick(this); }
    virtual void DblClick() { OnDblClick(this); }
    virtual void MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y);
    virtual void MouseMove(TShiftState Shift, int X, int Y);
    virtual void MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y);
    /// True when the wheel was used; otherwise the parent is asked.
    virtual bool DoMouseWheel(TShiftState Shift, int WheelDelta, TPoint MousePos);
    virtual bool DoMouseWheelDown(TShiftState Shift, TPoint MousePos);
    virtual bool DoMouseWheelUp(TShiftState Shift, TPoint MousePos);
    /// DragMode is dmAutomatic and a button went down.
    virtual void BeginAutoDrag() { BeginDrag(true); }
    virtual void Resize() { OnResize(this); }
    virtual bool CanResize(int& NewWidth, int& NewHeight);
    virtual void ConstrainedResize(int& MinWidth, int& MinHeight, int& MaxWidth, int& MaxHeight);
    /// With AutoSize: the size wanted; false: none.
    virtual bool CanAutoSize(int& /*NewWidth*/, int& /*NewHeight*/) { return false; }
    /// With AutoSize: takes the size CanAutoSize gives.
    virtual void AdjustSize();
    virtual void VisibleChanging() {}
    virtual void ColorChanged() {}
    virtual void FontChanged();

    virtual void SetZOrder(bool TopMost);
    virtual void RequestAlign();
    /// Remembers bounds and the parent's client size: what anchors keep distance from.
    void UpdateAnchorRules();
    /// Invalidates the parent's area this control covers, when it shows.
    void InvalidateControl(bool IsVisible, bool IsOpaque);

    void ReadState(TReader& Reader) override;
    void Loaded() override;
    void Notification(TComponent* Component, TOperation Operation) override;

    // Message handlers of descendants' interest; each is called from Dispatch.
    virtual void CMFontChanged(TMessage& Message);
    virtual void CMColorChanged(TMessage& Message);
    virtual void CMEnabledChanged(TMessage& Message);
    virtual void CMVisibleChanged(TMessage& Message);
    virtual void CMTextChanged(TMessage& Message);
    virtual void CMBiDiModeChanged(TMessage& Message);
    virtual void CMShowHintChanged(TMessage&) {}
    virtual void CMMouseEnter(TMessage& Message);
    virtual void CMMouseLeave(TMessage& Message);
    virtual void CMHitTest(TMessage& Message) { Message.Result = 1; }
    virtual void WMContextMenu(TMessage& Message);
    virtual void WMCancelMode(TMessage& Message);

    void DoMouseDown(TMessage& Message, TMouseButton Button, TShiftState Shift);
    void DoMouseUp(TMessage& Message, TMouseButton Button);
    void ChangeControlState(TControlStateFlag Flag, bool Value);

    TControlStyle FControlStyle{TControlStyleFlag::csCaptureMouse, TControlStyleFlag::csClickEvents,
                                TControlStyleFlag::csSetCaption, TControlStyleFlag::csDoubleClicks};
    TControlState FControlState;
    /// The direct fields behind bounds, for a descendant whose window was moved by the platform.
    int FLeft = 0;
    int FTop = 0;
    int FWidth = 0;
    int FHeight = 0;

private:
    void DispatchMouse(TMessage& Message);
    bool DispatchNotification(TMessage& Message);
    bool TakeButton(TMessage& Message, TMouseButton Button);
    void ButtonDown(TMessage& Message, TMouseButton Button);
    void ButtonDoubleClicked(TMessage& Message, TMouseButton Button);
    void ButtonUp(TMessage& Message, TMouseButton Button);
    void WMMouseWheel(TMessage& Message);
    void WMMouseMove(TMessage& Message);
    void SendCancelMode();
    bool CheckNewSize(int& NewWidth, int& NewHeight);
    void ApplyConstraints(int& NewWidth, int& NewHeight);
    void ConstraintsChanged();
    void FontObjectChanged();
    void FollowParent(bool& Field, bool Value, unsigned Msg);
    void TakeFromParent(unsigned Msg);

    TLiveness FLiveness;
    TWinControl* FParent = nullptr;
    AnsiString FText;
    AnsiString FHint;
    std::unique_ptr<TFont> FFont;
    std::unique_ptr<TSizeConstraints> FConstraints;
    TPopupMenuBase* FPopupMenu = nullptr;
    TRect FAnchorBounds;
    TSize FAnchorParentSize;
    int FHelpContext = 0;
    TColor FColor = clWindow;
    TCursor FCursor = crDefault;
    TCursor FDragCursor = crDrag;
    TAlign FAlign = TAlign::alNone;
    TAnchors FAnchors{TAnchorKind::akLeft, TAnchorKind::akTop};
    TBiDiMode FBiDiMode = TBiDiMode::bdLeftToRight;
    TDragKind FDragKind = TDragKind::dkDrag;
    TDragMode FDragMode = TDragMode::dmManual;
    bool FAutoSize = false;
    bool FEnabled = true;
    bool FVisible = true;
    bool FShowHint = false;
    bool FParentBiDiMode = true;
    bool FParentColor = true;
    bool FParentFont = true;
    bool FParentShowHint = true;
    bool FAnchorMove = false;
    int FWheelRest = 0; // what of a wheel's notch has not been used yet
};

/// The anchors that Align implies; a control's Anchors equal to these are not stored.
TAnchors AnchorsOfAlign(TAlign Align);

} // namespace vcl
