// Input as a user would make it: what a window system sends for it.

#include <algorithm>
#include <utility>

#include "vcl/platform/VirtualKeys.h"
#include "vcl/platform/record/RecordWindowSystem.h"
#include "vcl/platform/record/Utf8Text.h"

namespace vcl::record
{

namespace
{

struct TButtonMessages {
    unsigned Down, Up, DoubleClick;
};

TButtonMessages MessagesOf(unsigned Button)
{
    if (Button == MK_RBUTTON)
        return {WM_RBUTTONDOWN, WM_RBUTTONUP, WM_RBUTTONDBLCLK};
    if (Button == MK_MBUTTON)
        return {WM_MBUTTONDOWN, WM_MBUTTONUP, WM_MBUTTONDBLCLK};
    return {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK};
}

} // namespace

bool TWindowSystem::AcceptsInput(TWindow& Window) const
{
    const TWindow* Top = &Window;
    bool IsEnabled = Window.IsEnabled();
    while (!Top->IsTopLevel()) {
        Top = Top->GetParentWindow();
        IsEnabled = IsEnabled && Top->IsEnabled();
    }
    const bool IsBlocked = std::any_of(FWindows.begin(), FWindows.end(), [Top](const TWindow* Other) {
        return Other != Top && Other->IsModal() && Other->IsVisible() && !Top->IsModal();
    });
    return IsEnabled && !IsBlocked;
}

TWindow& TWindowSystem::Receiver(TWindow& Window, TPoint& Point)
{
    FCursorPos = Window.ClientToScreen(Point);
    if (!FCaptured || FCaptured == &Window)
        return Window;
    Point = FCaptured->ScreenToClient(FCursorPos);
    return *FCaptured;
}

void TWindowSystem::MouseMessage(TWindow& Window, unsigned Msg, TPoint Point, unsigned Keys)
{
    const TDispatch Dispatch(*this);
    TWindow& Target = Receiver(Window, Point);
    FKeyFlags = Keys;
    if (!AcceptsInput(Target))
        return;
    if (FUnderMouse && FUnderMouse != &Target) {
        TWindow* const Left = std::exchange(FUnderMouse, nullptr);
        Left->Send(WM_MOUSELEAVE);
    }
    FUnderMouse = &Target;
    Target.Send(Msg, Keys, MakePointParam(Point.X, Point.Y));
}

void TWindowSystem::MouseMove(TWindow& Window, TPoint Point, unsigned Keys)
{
    MouseMessage(Window, WM_MOUSEMOVE, Point, Keys);
}

void TWindowSystem::MouseDown(TWindow& Window, TPoint Point, unsigned Button, unsigned Keys)
{
    MouseMessage(Window, MessagesOf(Button).Down, Point, Keys | Button);
}

void TWindowSystem::MouseUp(TWindow& Window, TPoint Point, unsigned Button, unsigned Keys)
{
    const TDispatch Dispatch(*this);
    const TPoint Screen = Window.ClientToScreen(Point);
    TWindow& Target = Receiver(Window, Point);
    MouseMessage(Window, MessagesOf(Button).Up, Window.ScreenToClient(Screen), Keys & ~Button);
    FCaptured = nullptr; // ends with the last button
    if (Button == MK_RBUTTON && AcceptsInput(Target))
        Target.Send(WM_CONTEXTMENU, 0, MakePointParam(Screen.X, Screen.Y));
}

void TWindowSystem::MouseClick(TWindow& Window, TPoint Point, unsigned Button, unsigned Keys)
{
    const TDispatch Dispatch(*this);
    MouseMove(Window, Point, Keys);
    MouseDown(Window, Point, Button, Keys);
    MouseUp(Window, Point, Button, Keys);
}

void TWindowSystem::MouseDoubleClick(TWindow& Window, TPoint Point, unsigned Keys)
{
    const TDispatch Dispatch(*this);
    MouseClick(Window, Point, MK_LBUTTON, Keys);
    MouseMessage(Window, WM_LBUTTONDBLCLK, Point, Keys | MK_LBUTTON);
    MouseUp(Window, Point, MK_LBUTTON, Keys);
}

void TWindowSystem::MouseLeave()
{
    if (!FUnderMouse)
        return;
    TWindow* const Left = std::exchange(FUnderMouse, nullptr);
    Left->Send(WM_MOUSELEAVE);
}

void TWindowSystem::Wheel(TWindow& Window, TPoint Point, int Distance, unsigned Keys)
{
    FCursorPos = Window.ClientToScreen(Point);
    FKeyFlags = Keys;
    if (AcceptsInput(Window))
        Window.Send(WM_MOUSEWHEEL, MakeWheelParam(Keys, Distance),
                    MakePointParam(FCursorPos.X, FCursorPos.Y));
}

bool TWindowSystem::HasWindow(const TWindow* Window) const
{
    return std::find(FWindows.begin(), FWindows.end(), Window) != FWindows.end();
}

/// The window that got the key gets its character, if it is still there.
void TWindowSystem::CharOf(TWindow* Window, std::uint16_t Key)
{
    const bool IsPrintable = (Key >= '0' && Key <= '9') || (Key >= 'A' && Key <= 'Z') || Key == VK_SPACE;
    const bool IsControl = Key == VK_RETURN || Key == VK_ESCAPE || Key == VK_BACK || Key == VK_TAB;
    if (!IsPrintable && !IsControl)
        return;
    const bool IsLetter = Key >= 'A' && Key <= 'Z';
    std::uint64_t Char = Key;
    if (IsLetter && (FKeyFlags & MK_CONTROL))
        Char = Key - 'A' + 1u;
    else if (IsLetter && !(FKeyFlags & MK_SHIFT))
        Char = Key - 'A' + std::uint64_t{'a'};
    if (HasWindow(Window))
        Window->Send(FKeyFlags & MK_ALT ? WM_SYSCHAR : WM_CHAR, Char);
}

void TWindowSystem::KeyPress(std::uint16_t Key, unsigned Modifiers)
{
    const TDispatch Dispatch(*this);
    FKeyFlags = Modifiers;
    const bool IsSystem = (Modifiers & MK_ALT) != 0;
    TWindow* const Window = FFocused;
    if (Window && AcceptsInput(*Window) && Window->Send(IsSystem ? WM_SYSKEYDOWN : WM_KEYDOWN, Key) != 1)
        CharOf(Window, Key);
    if (FFocused)
        FFocused->Send(IsSystem ? WM_SYSKEYUP : WM_KEYUP, Key);
    FKeyFlags = 0;
}

void TWindowSystem::Type(const AnsiString& Text)
{
    const TDispatch Dispatch(*this);
    for (const char32_t Char : CodePointsOf(Text)) {
        const bool IsLetter = (Char >= 'a' && Char <= 'z');
        const std::uint64_t Key = IsLetter      ? Char - 'a' + std::uint64_t{'A'}
                                  : Char < 0x80 ? std::uint64_t{Char}
                                                : std::uint64_t{VK_PROCESSKEY};
        FKeyFlags = Char >= 'A' && Char <= 'Z' ? MK_SHIFT : 0;
        TWindow* const Window = FFocused;
        if (!Window || !AcceptsInput(*Window))
            return;
        if (Window->Send(WM_KEYDOWN, Key) != 1 && HasWindow(Window))
            Window->Send(WM_CHAR, Char);
        if (FFocused)
            FFocused->Send(WM_KEYUP, Key);
    }
    FKeyFlags = 0;
}

void TWindowSystem::Scroll(TWindow& Window, TScrollBarKind Kind, unsigned Request, int Position)
{
    Window.Send(Kind == TScrollBarKind::sbHorizontal ? WM_HSCROLL : WM_VSCROLL,
                MakeScrollParam(Request, Position));
}

} // namespace vcl::record
