#pragma once

#include <map>
#include <memory>
#include <vector>

#include "vcl/controls/Control.h"
#include "vcl/controls/CreateParams.h"
#include "vcl/controls/FormSite.h"
#include "vcl/graphics/Brush.h"
#include "vcl/graphics/ScrollInfo.h"
#include "vcl/platform/WindowSystem.h"

namespace vcl
{

class TCanvas;
class TClientSurface;
class TControlWindow;
class TWindowScrollBars;

/// A control with a window of its own: focus, keyboard, scroll bars, timers, children.
///
/// The window's handle is made when first needed (GetHandle, or when everything up to the form shows), lost
/// when the platform or the parent's handle goes, and made anew by RecreateWnd with what CreateParams then
/// says. The platform's window object behind it stays the same all the time.
class TWinControl : public TControl
{
    VCL_CLASS
public:
    explicit TWinControl(TComponent* Owner);
    ~TWinControl() override;

    // Properties that descendants publish
    bool GetCtl3D() const { return FCtl3D; }
    void SetCtl3D(bool Value);
    bool GetParentCtl3D() const { return FParentCtl3D; }
    void SetParentCtl3D(bool Value);
    bool GetDockSite() const { return FDockSite; }
    void SetDockSite(bool Value) { FDockSite = Value; }
    TImeMode GetImeMode() const { return FImeMode; }
    void SetImeMode(TImeMode Value) { FImeMode = Value; }
    const AnsiString& GetImeName() const { return FImeName; }
    void SetImeName(const AnsiString& Value) { FImeName = Value; }
    /// Place among the siblings for Tab, -1 without a parent. Others move to make room.
    std::int16_t GetTabOrder() const;
    void SetTabOrder(std::int16_t Value);
    bool GetTabStop() const { return FTabStop; }
    void SetTabStop(bool Value);
    bool GetUseDockManager() const { return FUseDockManager; }
    void SetUseDockManager(bool Value) { FUseDockManager = Value; }

    // Children
    /// Window controls and others, back to front within each kind, others first.
    int GetControlCount() const;
    TControl* GetControl(int Index) const;
    TControl* FindChildControl(const AnsiString& Name) const;
    bool ContainsControl(const TControl* Control) const;
    /// The child at a client point. Disabled ones only when asked for.
    TControl* ControlAtPos(TPoint Point, bool AllowDisabled, bool AllowWinControls = false) const;
    void InsertControl(TControl* Control);
    void RemoveControl(TControl* Control);
    /// While disabled (nested), children are not aligned; EnableAlign aligns when something was due.
    void DisableAlign() { ++FAlignLevel; }
    void EnableAlign();
    void Realign() { AlignControls(nullptr); }
    void GetTabOrderList(std::vector<TWinControl*>& List) const;
    /// Scales children and, on a form, the form.
    void ScaleBy(int M, int D);
    void ScaleControls(int M, int D);

    // Window
    bool HandleAllocated() const { return FHandle; }
    void HandleNeeded();
    /// The window, made when there is none. Raises EInvalidOperation for a control that has no parent to be
    /// shown in, or on a platform without windows.
    IWindow* GetHandle();
    /// The window object, null before the first handle. It may be there without a handle.
    IWindow* GetWindow() const { return FWindow.get(); }
    /// True when it and all its ancestors show.
    bool GetShowing() const;
    void UpdateControlState();

    // Focus
    /// Takes the focus; makes this the form's active control. Raises EInvalidOperation when it cannot.
    virtual void SetFocus();
    bool CanFocus() const;
    virtual bool Focused() const;
    /// The child after Current (null: the first) in tab order, or before it; null when there is none.
    TWinControl* FindNextControl(TWinControl* Current, bool GoForward, bool CheckTabStop,
                                 bool CheckParent) const;
    void SelectNext(TWinControl* Current, bool GoForward, bool CheckTabStop);
    void SelectFirst();

    // Messages and timers
    /// Sends the message later, from the event loop, if the control still has a handle then.
    void PostMessage(unsigned Msg, std::uint64_t WParam = 0, std::int64_t LParam = 0);
    /// WM_TIMER with Id every Interval milliseconds until KillTimer or the handle's end; a running timer of
    /// the same number starts anew. Returns Id.
    std::uint64_t SetTimer(std::uint64_t Id, unsigned Interval);
    bool KillTimer(std::uint64_t Id);
    void WndProc(TMessage& Message) override;
    void Dispatch(TMessage& Message) override;
    /// Hands the message to the platform's own window.
    void DefaultHandler(TMessage& Message) override;
    /// Sends the message to every child.
    void Broadcast(TMessage& Message);
    void NotifyControls(unsigned Msg);

    // Painting
    void Invalidate() override;
    /// Invalidates part of the client area. Erase only says whether flicker is welcome: damage is always
    /// erased.
    void InvalidateRect(const TRect& Rect, bool Erase = true);
    void Update() override;
    void Repaint() override;
    /// Moves the contents and the children; what comes into view is invalidated.
    virtual void ScrollBy(int DeltaX, int DeltaY);
    /// Paints the control with its children onto another canvas.
    void PaintTo(TCanvas& Canvas, int X, int Y);
    /// Filled behind Paint; its colour is Color.
    TBrush* GetBrush() const { return FBrush.get(); }
    bool GetDoubleBuffered() const { return FDoubleBuffered; }
    void SetDoubleBuffered(bool Value) { FDoubleBuffered = Value; }

    // Scroll bars. Bar is sbHorizontal or sbVertical; without a handle nothing happens and 0 is answered.
    /// Applies what Info.Mask names and returns the position that resulted.
    int SetScrollInfo(TScrollBarKind Bar, const TScrollInfo& Info, bool Redraw = true);
    bool GetScrollInfo(TScrollBarKind Bar, TScrollInfo& Info) const;
    /// Returns the previous position.
    int SetScrollPos(TScrollBarKind Bar, int Position, bool Redraw = true);
    int GetScrollPos(TScrollBarKind Bar) const;
    void SetScrollRange(TScrollBarKind Bar, int Min, int Max, bool Redraw = true);
    void ShowScrollBar(TScrollBarKind Bar, bool Show);

    void SetBounds(int Left, int Top, int Width, int Height) override;
    TRect GetClientRect() const override;
    TPoint GetClientOrigin() const override;
    void GetChildren(const std::function<void(TComponent*)>& Receive, TComponent* Root) override;
    void SetChildOrder(TComponent* Child, int Order) override;
    void BeforeDestruction() override;
    /// The form interface of a control that is a form, else null.
    virtual IFormSite* GetFormSite() { return nullptr; }

    bool IsCtl3DStored() const { return !FParentCtl3D; }

    // Events
    TDockDropEvent OnDockDrop;
    TDockOverEvent OnDockOver;
    TNotifyEvent OnEnter;
    TNotifyEvent OnExit;
    TGetSiteInfoEvent OnGetSiteInfo;
    TKeyEvent OnKeyDown;
    TKeyPressEvent OnKeyPress;
    TKeyEvent OnKeyUp;
    TUnDockEvent OnUnDock;

    // Keys as WndProc gives them; true: consumed. The form's key preview comes first.
    bool DoKeyDown(TMessage& Message);
    bool DoKeyPress(TMessage& Message);
    bool DoKeyUp(TMessage& Message);

protected:
    friend class TControl;
    friend class TControlWindow;
    friend class TClientSurface;

    // The window's life
    /// Fills in what the window is to be; descendants call their ancestor first.
    virtual void CreateParams(TCreateParams& Params);
    /// Makes the handle. Descendants apply their own state to the window after calling it.
    virtual void CreateWnd();
    /// Ends the handle; descendants keep what only the window knows before calling it.
    virtual void DestroyWnd();
    /// The handle goes, by DestroyWnd or with the platform's window: what belonged to it, as timers, is gone.
    virtual void LoseHandle();
    /// Ends and, when it shows or showed, re-makes the handle with what CreateParams says now. Scroll bars,
    /// text, font and focus are applied again, children follow.
    void RecreateWnd();
    void DestroyHandle();
    virtual void CreateHandle();

    // What messages lead to
    virtual void KeyDown(std::uint16_t& Key, TShiftState Shift) { OnKeyDown(this, Key, Shift); }
    virtual void KeyPress(char32_t& Key) { OnKeyPress(this, Key); }
    virtual void KeyUp(std::uint16_t& Key, TShiftState Shift) { OnKeyUp(this, Key, Shift); }
    virtual void DoEnter() { OnEnter(this); }
    virtual void DoExit() { OnExit(this); }
    /// Draws the damaged part of the client area; the canvas of a TCustomControl paints here.
    virtual void PaintWindow(TCanvas& /*Canvas*/) {}
    virtual void UpdateShowing();
    /// Aligns children into Rect (the client area) and applies anchors; Control (null: all) has changed.
    virtual void AlignControls(TControl* Control);
    /// Descendants with an inner frame make Rect smaller.
    virtual void AdjustClientRect(TRect& /*Rect*/) {}
    /// Notice of a native peer (CN_COMMAND).
    virtual void PeerNotice(TPeerNotice /*Notice*/, std::int64_t /*Index*/) {}
    /// A child wants to be seen (it gets the focus): descendants that show one of several bring it up.
    virtual void ShowControl(TControl* Control);
    /// The platform minimised, maximised or restored the window (SIZE_...).
    virtual void PlatformState(unsigned /*State*/) {}
    /// Native peers: the colours and the font go to the window.
    void ApplyFontAndColors();

    void ReadState(TReader& Reader) override;
    void Loaded() override;
    void SetZOrder(bool TopMost) override;
    void ColorChanged() override;
    void ChangeScale(int M, int D) override;
    void AdjustSize() override;

    void CMFontChanged(TMessage& Message) override;
    void CMColorChanged(TMessage& Message) override;
    void CMEnabledChanged(TMessage& Message) override;
    void CMVisibleChanged(TMessage& Message) override;
    void CMTextChanged(TMessage& Message) override;
    void CMBiDiModeChanged(TMessage& Message) override;
    void CMShowHintChanged(TMessage& Message) override;
    virtual void CMCtl3DChanged(TMessage& Message);
    virtual void CMShowingChanged(TMessage& Message);
    virtual void CMDialogKey(TMessage& Message);
    virtual void CMDialogChar(TMessage& Message);
    virtual void CMFocusChanged(TMessage& Message);
    virtual void CMSysColorChange(TMessage& Message);
    virtual void CMSysFontChanged(TMessage& Message);
    /// Which keys the control wants although they move the focus: see DLGC_...
    virtual void WMGetDlgCode(TMessage& Message) { Message.Result = 0; }
    /// Result 1: the control wants the key Message.WParam before the form uses it.
    virtual void CMWantSpecialKey(TMessage& Message) { Message.Result = 0; }
    virtual void WMSize(TMessage& Message);
    virtual void WMMove(TMessage& Message);
    virtual void WMTimer(TMessage&) {}
    virtual void WMHScroll(TMessage&) {}
    virtual void WMVScroll(TMessage&) {}
    virtual void WMSetFocus(TMessage& Message);
    virtual void WMKillFocus(TMessage& Message);
    virtual void WMEraseBkgnd(TMessage& Message);
    virtual void WMPaint(TMessage& Message);

    /// The client area's canvas: draws into the control's pixels at any time.
    TCanvas& ClientCanvas();

    /// WM_SIZE when the client area has another size than last told, or Always.
    void TellSize(bool Always = false);

    /// A child's handle needs this; forms and embedded hosts say true without a parent.
    virtual bool CanLiveWithoutParent() const { return false; }

private:
    bool DispatchWindow(TMessage& Message);
    bool DispatchNotification(TMessage& Message);
    bool DispatchKey(TMessage& Message);
    void CNKeyDown(TMessage& Message);
    void CNChar(TMessage& Message);
    void SysChar(TMessage& Message);
    bool RouteMouse(TMessage& Message);
    void ApplyScrollBars(bool Always = false);
    void ScrollBarsChanged();
    bool IsSelfDrawn() const;
    bool IsTopLevel() const { return FTopLevel; }
    TPoint ClientInset() const;
    void PlatformMoved(TMessage& Message);
    void PaintContents(TCanvas& Canvas);
    void TellMove(const TRect& Old);
    void FixupTabList();
    void TakeCtl3DFromParent();
    void KillTimers();
    void WindowGone();
    void InsertChild(TControl* Control);
    void RemoveChild(TControl* Control);
    void ReorderChild(TControl& Child, bool TopMost);
    void RemoveFocus(bool Removing);
    void AlignEdge(TControl* Changed, TAlign Align, TRect& Rest);
    void AlignAnchored(TSize Client);
    void UpdateTabOrder(int Value);
    void PaintControls(TCanvas& Canvas);
    void ChildInvalidated(const TRect& Rect);

    std::unique_ptr<TControlWindow> FPlatform; // the owner interface the window talks to
    TWindowPtr FWindow;
    std::unique_ptr<TClientSurface> FClient;
    std::unique_ptr<TBrush> FBrush;
    std::vector<TControl*> FControls;       // without windows, back to front
    std::vector<TWinControl*> FWinControls; // back to front
    std::vector<TWinControl*> FTabList;
    std::map<std::uint64_t, TTimerHandle> FTimers;
    std::unique_ptr<TWindowScrollBars> FScrollBars;
    TSize FSentClientSize{-1, -1};
    AnsiString FImeName;
    int FAlignLevel = 0;
    bool FAligning = false;
    TWindowKind FKind = TWindowKind::Client;
    TImeMode FImeMode = TImeMode::imDontCare;
    std::int16_t FTabOrder = -1;
    bool FHandle = false;
    bool FTopLevel = false;
    bool FShowing = false;
    bool FCtl3D = true;
    bool FParentCtl3D = true;
    bool FDockSite = false;
    bool FTabStop = false;
    bool FUseDockManager = false;
    bool FDoubleBuffered = false;
};

/// The form a control stands on, as controls see it; null when there is none.
IFormSite* GetFormSiteOf(TControl* Control);

} // namespace vcl
