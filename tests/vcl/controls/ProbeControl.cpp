#include "ProbeControl.h"

#include <algorithm>

namespace vcl::tests
{

namespace
{

std::string PointText(int X, int Y)
{
    return " " + std::to_string(X) + "," + std::to_string(Y);
}

} // namespace

const TClass& TProbe::StaticClass()
{
    static const TClass Class = DefineClass<TProbe, TCustomControl>(
        "TProbe", {
                      Publish("Align"),          Publish("Anchors"),
                      Publish("BiDiMode"),       Publish("Color"),
                      Publish("Constraints"),    Publish("Ctl3D"),
                      Publish("DockSite"),       Publish("DragCursor"),
                      Publish("DragKind"),       Publish("DragMode"),
                      Publish("Enabled"),        Publish("Font"),
                      Publish("ImeMode"),        Publish("ImeName"),
                      Publish("ParentBiDiMode"), Publish("ParentColor"),
                      Publish("ParentCtl3D"),    Publish("ParentFont"),
                      Publish("ParentShowHint"), Publish("PopupMenu"),
                      Publish("ShowHint"),       Publish("TabOrder"),
                      Publish("TabStop"),        Publish("UseDockManager"),
                      Publish("Visible"),        Publish("OnCanResize"),
                      Publish("OnClick"),        Publish("OnConstrainedResize"),
                      Publish("OnDblClick"),     Publish("OnDockDrop"),
                      Publish("OnDockOver"),     Publish("OnDragDrop"),
                      Publish("OnDragOver"),     Publish("OnEndDock"),
                      Publish("OnEndDrag"),      Publish("OnEnter"),
                      Publish("OnExit"),         Publish("OnGetSiteInfo"),
                      Publish("OnKeyDown"),      Publish("OnKeyPress"),
                      Publish("OnKeyUp"),        Publish("OnMouseDown"),
                      Publish("OnMouseMove"),    Publish("OnMouseUp"),
                      Publish("OnMouseWheel"),   Publish("OnMouseWheelDown"),
                      Publish("OnMouseWheelUp"), Publish("OnResize"),
                      Publish("OnStartDock"),    Publish("OnStartDrag"),
                      Publish("OnUnDock"),
                  });
    return Class;
}

TProbe::TProbe(TComponent* Owner) : TCustomControl(Owner)
{
    SetTabStop(true);
}

void TProbe::SetBorderStyle(TBorderStyle Value)
{
    FBorderStyle = Value;
    RecreateWnd();
}

void TProbe::SetBars(bool Horizontal, bool Vertical)
{
    FHorizontalBar = Horizontal;
    FVerticalBar = Vertical;
    RecreateWnd();
}

TEdit& TProbe::AddEdit()
{
    TEdit* const Edit = New<TEdit>(this);
    Edit->SetBounds(5, 5, 60, 20);
    Edit->SetParent(this);
    return *Edit;
}

void TProbe::When(std::string Place, std::function<void()> Action)
{
    FActions.emplace_back(std::move(Place), std::move(Action));
}

void TProbe::Note(const std::string& Text)
{
    FNotes.push_back(Text);
    for (const auto& [Place, Action] : FActions)
        if (Text.rfind(Place, 0) == 0) {
            // The action may free this control and the list it stands in.
            const std::function<void()> Copy = Action;
            Copy();
            return;
        }
}

void TProbe::WndProc(TMessage& Message)
{
    TAliveGuard Guard(*this);
    if (std::find(NotedMessages.begin(), NotedMessages.end(), Message.Msg) != NotedMessages.end())
        Note("message " + std::to_string(Message.Msg) + " " + std::to_string(Message.WParam));
    if (Guard.IsAlive())
        TCustomControl::WndProc(Message);
}

void TProbe::CreateParams(TCreateParams& Params)
{
    TCustomControl::CreateParams(Params);
    if (FHorizontalBar)
        Params.Style |= WS_HSCROLL;
    if (FVerticalBar)
        Params.Style |= WS_VSCROLL;
    if (FBorderStyle != TBorderStyle::bsSingle)
        return;
    if (GetCtl3D())
        Params.ExStyle |= WS_EX_CLIENTEDGE;
    else
        Params.Style |= WS_BORDER;
}

void TProbe::Paint()
{
    TAliveGuard Guard(*this);
    const TRect Clip = GetCanvas()->GetClipRect();
    Note("Paint " + std::to_string(Clip.Left) + "," + std::to_string(Clip.Top) + "," +
         std::to_string(Clip.Width()) + "," + std::to_string(Clip.Height()));
    if (Guard.IsAlive() && OnPaintProbe)
        OnPaintProbe(*GetCanvas());
}

void TProbe::Click()
{
    TAliveGuard Guard(*this);
    Note("Click");
    if (Guard.IsAlive())
        TCustomControl::Click();
}

void TProbe::DblClick()
{
    TAliveGuard Guard(*this);
    Note("DblClick");
    if (Guard.IsAlive())
        TCustomControl::DblClick();
}

void TProbe::MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    TAliveGuard Guard(*this);
    Note("MouseDown" + PointText(X, Y) + (Shift.Contains(TShiftKey::ssDouble) ? " double" : ""));
    if (Guard.IsAlive())
        TCustomControl::MouseDown(Button, Shift, X, Y);
}

void TProbe::MouseMove(TShiftState Shift, int X, int Y)
{
    TAliveGuard Guard(*this);
    Note("MouseMove" + PointText(X, Y));
    if (Guard.IsAlive())
        TCustomControl::MouseMove(Shift, X, Y);
}

void TProbe::MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    TAliveGuard Guard(*this);
    Note("MouseUp" + PointText(X, Y));
    if (Guard.IsAlive())
        TCustomControl::MouseUp(Button, Shift, X, Y);
}

void TProbe::KeyDown(std::uint16_t& Key, TShiftState Shift)
{
    TAliveGuard Guard(*this);
    Note("KeyDown " + std::to_string(Key));
    if (Guard.IsAlive())
        TCustomControl::KeyDown(Key, Shift);
}

void TProbe::KeyPress(char32_t& Key)
{
    TAliveGuard Guard(*this);
    Note("KeyPress " + std::to_string(static_cast<unsigned>(Key)));
    if (Guard.IsAlive())
        TCustomControl::KeyPress(Key);
}

void TProbe::KeyUp(std::uint16_t& Key, TShiftState Shift)
{
    TAliveGuard Guard(*this);
    Note("KeyUp " + std::to_string(Key));
    if (Guard.IsAlive())
        TCustomControl::KeyUp(Key, Shift);
}

void TProbe::DoEnter()
{
    TAliveGuard Guard(*this);
    Note("Enter");
    if (Guard.IsAlive())
        TCustomControl::DoEnter();
}

void TProbe::DoExit()
{
    TAliveGuard Guard(*this);
    Note("Exit");
    if (Guard.IsAlive())
        TCustomControl::DoExit();
}

void TProbe::Resize()
{
    TAliveGuard Guard(*this);
    Note("Resize");
    if (Guard.IsAlive())
        TCustomControl::Resize();
}

void TProbe::CMMouseEnter(TMessage& Message)
{
    TAliveGuard Guard(*this);
    Note("MouseEnter");
    if (Guard.IsAlive())
        TCustomControl::CMMouseEnter(Message);
}

void TProbe::CMMouseLeave(TMessage& Message)
{
    TAliveGuard Guard(*this);
    Note("MouseLeave");
    if (Guard.IsAlive())
        TCustomControl::CMMouseLeave(Message);
}

void TProbe::WMTimer(TMessage& Message)
{
    Note("Timer " + std::to_string(Message.WParam));
}

void TProbe::WMVScroll(TMessage& Message)
{
    Note("VScroll " + std::to_string(ScrollRequest(Message.WParam)) + " " +
         std::to_string(ScrollPosition(Message.WParam)));
}

void TProbe::WMHScroll(TMessage& Message)
{
    Note("HScroll " + std::to_string(ScrollRequest(Message.WParam)) + " " +
         std::to_string(ScrollPosition(Message.WParam)));
}

void TProbe::WMSize(TMessage& Message)
{
    TAliveGuard Guard(*this);
    const TPoint Size = PointOfParam(Message.LParam);
    Note("Size" + PointText(Size.X, Size.Y));
    if (Guard.IsAlive())
        TCustomControl::WMSize(Message);
}

} // namespace vcl::tests
