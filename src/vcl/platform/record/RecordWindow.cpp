#include "vcl/platform/record/RecordWindow.h"

#include <algorithm>
#include <utility>

#include "vcl/platform/Platform.h"
#include "vcl/platform/System.h"
#include "vcl/platform/VirtualKeys.h"
#include "vcl/platform/record/RecordWindowSystem.h"

namespace vcl::record
{

namespace
{

constexpr int FormFrame = 4;
constexpr int CaptionHeight = 19;
constexpr int MenuHeight = 19;
constexpr int BarSize = 16;

const char* NameOf(TWindowKind Kind)
{
    static constexpr const char* Names[] = {"client", "form",     "hint",     "label", "button",
                                            "tool",   "edit",     "spin",     "check", "combo",
                                            "list",   "listview", "statusbar"};
    return Names[static_cast<std::size_t>(Kind)];
}

} // namespace

TWindow::TWindow(TWindowSystem& System, int Id, IWindowOwner& Owner, const TWindowStyle& Style,
                 TWindow* Parent, const TRect& Bounds)
    : FSystem(System), FOwner(&Owner), FId(Id), FStyle(Style), FBounds(Bounds)
{
    MakePeers();
    SetParent(Parent);
    FSystem.Log(std::string("create ") + NameOf(Style.Kind) + " " + std::to_string(Id) + " " +
                RectText(Bounds));
}

TWindow::~TWindow()
{
    Unlink();
}

void TWindow::MakePeers()
{
    using enum TWindowKind;
    const TWindowKind Kind = FStyle.Kind;
    if (Kind == Edit || Kind == SpinEdit || Kind == ComboBox)
        FEdit = std::make_unique<TEdit>(*this);
    if (Kind == SpinEdit)
        FSpin = std::make_unique<TSpin>(*this);
    if (Kind == Button || Kind == ToolButton || Kind == CheckBox)
        FButton = std::make_unique<TButton>(*this, Kind == CheckBox);
    if (Kind == Label)
        FLabel = std::make_unique<TLabel>();
    if (Kind == ListBox || Kind == ComboBox)
        FList = std::make_unique<TList>(*this, Kind == ComboBox);
    if (Kind == ListView)
        FListView = std::make_unique<TListView>(*this);
    if (Kind == StatusBar)
        FStatusBar = std::make_unique<TStatusBar>();
}

void TWindow::Unlink()
{
    for (TWindow* Child : FChildren)
        Child->FParent = nullptr;
    FChildren.clear();
    if (FParent)
        std::erase(FParent->FChildren, this);
    FParent = nullptr;
    FSystem.Forget(*this);
}

void TWindow::Release()
{
    FSystem.Log("release " + std::to_string(FId));
    FOwner = nullptr;
    FVisible = false;
    Unlink();
    FSystem.Bury(this);
}

void TWindow::DestroyByPlatform()
{
    while (!FChildren.empty())
        FChildren.back()->DestroyByPlatform();
    FSystem.Log("destroyed " + std::to_string(FId));
    IWindowOwner* const Owner = std::exchange(FOwner, nullptr);
    Unlink();
    if (Owner)
        Owner->WindowDestroyed();
    FSystem.Bury(this);
}

void TWindow::SetStyle(const TWindowStyle& Style)
{
    FStyle.Style = Style.Style;
    FStyle.ExStyle = Style.ExStyle;
    FSystem.Log("style " + std::to_string(FId));
}

void TWindow::SetParent(IWindow* Parent)
{
    TWindow* const Next = static_cast<TWindow*>(Parent);
    if (Next == FParent)
        return;
    if (FParent)
        std::erase(FParent->FChildren, this);
    FParent = Next;
    if (FParent)
        FParent->FChildren.push_back(this);
}

void TWindow::SetBounds(const TRect& Bounds)
{
    FBounds = Bounds;
}

TRect TWindow::GetFrame() const
{
    const bool IsSizeable = (FStyle.Style & WS_THICKFRAME) != 0;
    const int Side = IsSizeable ? FormFrame : (FStyle.Style & WS_BORDER) != 0 ? 1 : 0;
    if (FStyle.Kind != TWindowKind::Form)
        return {};
    const int Caption = (FStyle.Style & WS_CAPTION) == WS_CAPTION ? CaptionHeight : 0;
    return {Side, Side + Caption, Side, Side};
}

TRect TWindow::Insets() const
{
    TRect Result = GetFrame();
    if (FStyle.Kind == TWindowKind::Form) {
        Result.Top += FHasMenu ? MenuHeight : 0;
    } else {
        const int Edge = (FStyle.ExStyle & WS_EX_CLIENTEDGE) != 0 ? 2
                         : (FStyle.Style & WS_BORDER) != 0        ? 1
                                                                  : 0;
        Result = {Edge, Edge, Edge, Edge};
    }
    if (FVertical.Visible) {
        const bool IsLeft = (FStyle.ExStyle & WS_EX_LEFTSCROLLBAR) != 0;
        (IsLeft ? Result.Left : Result.Right) += BarSize;
    }
    if (FHorizontal.Visible)
        Result.Bottom += BarSize;
    return Result;
}

TSize TWindow::GetClientSize() const
{
    const TRect Inset = Insets();
    return {std::max(FBounds.Width() - Inset.Left - Inset.Right, 0),
            std::max(FBounds.Height() - Inset.Top - Inset.Bottom, 0)};
}

TSize TWindow::GetPreferredSize() const
{
    if (FStyle.Kind < TWindowKind::Label)
        return {};
    ITextEngine& Engine = Platform().Text();
    constexpr int Padding = 4;
    return {Engine.TextWidth(FFont, FText) + 2 * Padding, Engine.Metrics(FFont).Height + 2 * Padding};
}

bool TWindow::IsOnScreen() const
{
    return FVisible && (IsTopLevel() || FParent->IsOnScreen());
}

void TWindow::SetVisible(bool Visible)
{
    if (Visible == FVisible)
        return;
    FVisible = Visible;
    FSystem.Log((Visible ? "show " : "hide ") + std::to_string(FId));
    if (Visible && FStyle.Kind == TWindowKind::Form)
        FSystem.ActivateWindow(this);
    if (!Visible) {
        for (TWindow* Window = FSystem.GetFocused(); Window; Window = Window->FParent)
            if (Window == this) {
                FSystem.FocusWindow(nullptr);
                break;
            }
        if (FSystem.GetActive() == this)
            FSystem.ActivateWindow(nullptr);
    }
}

void TWindow::BringToFront()
{
    if (!FParent)
        return;
    std::erase(FParent->FChildren, this);
    FParent->FChildren.push_back(this);
}

void TWindow::SendToBack()
{
    if (!FParent)
        return;
    std::erase(FParent->FChildren, this);
    FParent->FChildren.insert(FParent->FChildren.begin(), this);
}

TPoint TWindow::ClientToScreen(TPoint Point) const
{
    const TRect Inset = Insets();
    const TPoint Inside{Point.X + FBounds.Left + Inset.Left, Point.Y + FBounds.Top + Inset.Top};
    return IsTopLevel() ? Inside : FParent->ClientToScreen(Inside);
}

TPoint TWindow::ScreenToClient(TPoint Point) const
{
    const TPoint Origin = ClientToScreen({0, 0});
    return {Point.X - Origin.X, Point.Y - Origin.Y};
}

void TWindow::SetText(const AnsiString& Text)
{
    FText = Text;
    if (FEdit)
        FEdit->TextReplaced();
}

void TWindow::SetColors(TColor Text, TColor Background, bool)
{
    FTextColor = Text;
    FBackground = Background;
}

void TWindow::SetFocus()
{
    if (FEnabled)
        FSystem.FocusWindow(this);
}

bool TWindow::HasFocus() const
{
    return FSystem.GetFocused() == this;
}

void TWindow::SetCapture(bool Capture)
{
    if (Capture)
        FSystem.CaptureWindow(this);
    else if (FSystem.GetCaptured() == this)
        FSystem.CaptureWindow(nullptr);
}

void TWindow::SetScrollBar(TScrollBarKind Kind, const TScrollBarState& State)
{
    (Kind == TScrollBarKind::sbHorizontal ? FHorizontal : FVertical) = State;
}

void TWindow::Present(const TRect& Rect)
{
    FSystem.Log("present " + std::to_string(FId) + " " + RectText(Rect));
}

void TWindow::RenderTo(const TPixelBuffer& Target, TPoint Origin)
{
    // A plain block in the window's colour: enough to see in a picture that the peer is there.
    const TRect Inside{std::max(Origin.X, 0), std::max(Origin.Y, 0),
                       std::min(Origin.X + static_cast<int>(FBounds.Width() * FScale), Target.Width),
                       std::min(Origin.Y + static_cast<int>(FBounds.Height() * FScale), Target.Height)};
    const std::uint32_t Color = static_cast<std::uint32_t>(FBackground);
    const std::uint32_t Pixel =
        0xFF000000u | (Color & 0xFFu) << 16 | (Color & 0xFF00u) | (Color >> 16 & 0xFFu);
    for (int Y = Inside.Top; Y < Inside.Bottom; ++Y)
        for (int X = Inside.Left; X < Inside.Right; ++X)
            Target.Pixels[static_cast<std::ptrdiff_t>(Y) * Target.Stride + X] = Pixel;
}

bool TWindow::UpdateNow()
{
    if (!FUpdateRequested || !FOwner || !IsOnScreen())
        return false;
    FUpdateRequested = false;
    FOwner->WindowUpdate();
    return true;
}

std::int64_t TWindow::Send(unsigned Msg, std::uint64_t WParam, std::int64_t LParam)
{
    if (!FOwner)
        return 0;
    const TWindowSystem::TDispatch Dispatch(FSystem);
    TMessage Message{Msg, WParam, LParam, 0};
    FOwner->WindowMessage(Message);
    return Message.Result;
}

void TWindow::Notice(TPeerNotice Notice, std::int64_t Index)
{
    Send(CN_COMMAND, static_cast<std::uint64_t>(Notice), Index);
}

void TWindow::DefaultMessage(TMessage& Message)
{
    switch (Message.Msg) {
    case WM_KEYDOWN:
        return DefaultKey(Message);
    case WM_CHAR:
        if (FEdit && FStyle.Kind != TWindowKind::SpinEdit)
            FEdit->Char(static_cast<char32_t>(Message.WParam));
        else if (FButton && Message.WParam == VK_SPACE)
            FButton->Click();
        return;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_LBUTTONUP:
        return DefaultMouse(Message);
    default:
        return;
    }
}

void TWindow::DefaultKey(const TMessage& Message)
{
    const std::uint16_t Key = static_cast<std::uint16_t>(Message.WParam);
    if (FSpin && (Key == VK_UP || Key == VK_DOWN))
        FSpin->Step(Key == VK_UP ? 1 : -1);
    else if (FList)
        FList->Key(Key);
    else if (FListView)
        FListView->Key(Key);
    else if (FEdit)
        FEdit->Key(Key);
}

void TWindow::DefaultMouse(const TMessage& Message)
{
    const TPoint Point = PointOfParam(Message.LParam);
    if (Message.Msg == WM_LBUTTONUP) {
        const TSize Size = GetClientSize();
        if (FButton && TRect{0, 0, Size.Width, Size.Height}.Contains(Point))
            FButton->Click();
        return;
    }
    const bool TakesFocus = FStyle.Kind > TWindowKind::Label && FStyle.Kind != TWindowKind::ToolButton &&
                            FStyle.Kind != TWindowKind::StatusBar;
    if (TakesFocus)
        SetFocus();
    if (FEdit && FStyle.Kind == TWindowKind::Edit)
        FEdit->Press(Point);
    if (FList && FStyle.Kind == TWindowKind::ListBox)
        FList->Choose(FList->ItemAt(Point));
    if (FListView)
        FListView->Choose(FListView->RowAt(Point));
    if (Message.Msg == WM_LBUTTONDBLCLK && FList)
        FList->Activate();
    if (Message.Msg == WM_LBUTTONDBLCLK && FListView)
        FListView->Activate();
}

void TWindow::SetMenu(const TMenuSpec* Menu)
{
    FHasMenu = Menu != nullptr;
    FMenu = Menu ? *Menu : TMenuSpec{};
}

void TWindow::Activate()
{
    FSystem.ActivateWindow(this);
}

void TWindow::UserBounds(const TRect& Bounds)
{
    const TRect Old = FBounds;
    FBounds = Bounds;
    if (Old.Left != Bounds.Left || Old.Top != Bounds.Top)
        Send(WM_MOVE, 0, MakePointParam(Bounds.Left, Bounds.Top));
    if (Old.Width() != Bounds.Width() || Old.Height() != Bounds.Height())
        Send(WM_SIZE, SIZE_RESTORED, MakePointParam(GetClientSize().Width, GetClientSize().Height));
}

void TWindow::UserClose()
{
    Send(WM_CLOSE);
}

void TWindow::UserState(unsigned State)
{
    FWindowState = State;
    Send(WM_SIZE, State, MakePointParam(GetClientSize().Width, GetClientSize().Height));
}

void TWindow::ChangeScale(double Scale)
{
    FScale = Scale;
    if (FOwner)
        FOwner->WindowScaleChanged();
}

} // namespace vcl::record
