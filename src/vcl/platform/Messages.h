#pragma once

#include <cstdint>

#include "vcl/system/Types.h"

namespace vcl
{

/// One message to a control. What WParam and LParam carry stands beside each constant below; a handler
/// leaves its answer in Result.
///
/// WParam has 64 bits, so a scroll message carries a whole 32-bit position (see MakeScrollParam).
struct TMessage {
    unsigned Msg = 0;
    std::uint64_t WParam = 0;
    std::int64_t LParam = 0;
    std::int64_t Result = 0;
};

// Window life and state.
constexpr unsigned WM_NULL = 0x0000;
constexpr unsigned WM_CREATE = 0x0001;
constexpr unsigned WM_DESTROY = 0x0002;
constexpr unsigned WM_MOVE = 0x0003;
constexpr unsigned WM_SIZE = 0x0005;     // WParam SIZE_..., LParam client width | height << 16
constexpr unsigned WM_ACTIVATE = 0x0006; // WParam WA_...
constexpr unsigned WM_SETFOCUS = 0x0007;
constexpr unsigned WM_KILLFOCUS = 0x0008;
constexpr unsigned WM_ENABLE = 0x000A;
constexpr unsigned WM_SETTEXT = 0x000C;
constexpr unsigned WM_PAINT = 0x000F;
constexpr unsigned WM_CLOSE = 0x0010;
constexpr unsigned WM_ERASEBKGND = 0x0014;
constexpr unsigned WM_SYSCOLORCHANGE = 0x0015;
constexpr unsigned WM_SHOWWINDOW = 0x0018; // WParam 1 shown, 0 hidden
constexpr unsigned WM_SETTINGCHANGE = 0x001A;
constexpr unsigned WM_ACTIVATEAPP = 0x001C; // WParam 1 or 0
constexpr unsigned WM_FONTCHANGE = 0x001D;
constexpr unsigned WM_CANCELMODE = 0x001F;
constexpr unsigned WM_SETCURSOR = 0x0020; // LParam HTCLIENT
constexpr unsigned WM_MOUSEACTIVATE = 0x0021;
constexpr unsigned WM_CONTEXTMENU = 0x007B; // LParam screen point, -1 when asked for by the keyboard
constexpr unsigned WM_NCHITTEST = 0x0084;
constexpr unsigned WM_GETDLGCODE = 0x0087; // Result DLGC_...

// Keyboard: WParam is the virtual key; for WM_CHAR it is one code point.
constexpr unsigned WM_KEYDOWN = 0x0100;
constexpr unsigned WM_KEYUP = 0x0101;
constexpr unsigned WM_CHAR = 0x0102;
constexpr unsigned WM_SYSKEYDOWN = 0x0104;
constexpr unsigned WM_SYSKEYUP = 0x0105;
constexpr unsigned WM_SYSCHAR = 0x0106;

constexpr unsigned WM_COMMAND = 0x0111; // a menu item was chosen: WParam its command
constexpr unsigned WM_TIMER = 0x0113;   // WParam the timer's number
constexpr unsigned WM_HSCROLL = 0x0114; // WParam see MakeScrollParam
constexpr unsigned WM_VSCROLL = 0x0115;
constexpr unsigned WM_INITMENUPOPUP = 0x0117; // WParam the command of the item whose submenu opens

// Mouse: WParam MK_..., LParam client point (screen point for the wheel) as two signed 16-bit halves.
constexpr unsigned WM_MOUSEMOVE = 0x0200;
constexpr unsigned WM_LBUTTONDOWN = 0x0201;
constexpr unsigned WM_LBUTTONUP = 0x0202;
constexpr unsigned WM_LBUTTONDBLCLK = 0x0203;
constexpr unsigned WM_RBUTTONDOWN = 0x0204;
constexpr unsigned WM_RBUTTONUP = 0x0205;
constexpr unsigned WM_RBUTTONDBLCLK = 0x0206;
constexpr unsigned WM_MBUTTONDOWN = 0x0207;
constexpr unsigned WM_MBUTTONUP = 0x0208;
constexpr unsigned WM_MBUTTONDBLCLK = 0x0209;
constexpr unsigned WM_MOUSEWHEEL = 0x020A; // WParam MK_... | distance << 16 (120 a notch, up positive)
constexpr unsigned WM_MOUSEHWHEEL = 0x020E;
constexpr unsigned WM_CAPTURECHANGED = 0x0215;
constexpr unsigned WM_MOUSELEAVE = 0x02A3; // the pointer left the window

constexpr unsigned WM_CUT = 0x0300;
constexpr unsigned WM_COPY = 0x0301;
constexpr unsigned WM_PASTE = 0x0302;
constexpr unsigned WM_CLEAR = 0x0303;
constexpr unsigned WM_UNDO = 0x0304;

/// The first number free for a control's own messages.
constexpr unsigned WM_USER = 0x0400;

// Component messages: between controls of one program, never from the platform.
constexpr unsigned CM_BASE = 0xB000;
constexpr unsigned CM_ACTIVATE = CM_BASE + 0;
constexpr unsigned CM_DEACTIVATE = CM_BASE + 1;
constexpr unsigned CM_CANCELMODE = CM_BASE + 4; // LParam the control that took over
constexpr unsigned CM_DIALOGKEY = CM_BASE + 5;  // WParam the key; Result 1 handled
constexpr unsigned CM_DIALOGCHAR = CM_BASE + 6; // WParam the code point; Result 1 handled
constexpr unsigned CM_FOCUSCHANGED = CM_BASE + 7;
constexpr unsigned CM_PARENTFONTCHANGED = CM_BASE + 8;
constexpr unsigned CM_PARENTCOLORCHANGED = CM_BASE + 9;
constexpr unsigned CM_HITTEST = CM_BASE + 10; // LParam the point; Result 0 outside
constexpr unsigned CM_VISIBLECHANGED = CM_BASE + 11;
constexpr unsigned CM_ENABLEDCHANGED = CM_BASE + 12;
constexpr unsigned CM_COLORCHANGED = CM_BASE + 13;
constexpr unsigned CM_FONTCHANGED = CM_BASE + 14;
constexpr unsigned CM_CURSORCHANGED = CM_BASE + 15;
constexpr unsigned CM_CTL3DCHANGED = CM_BASE + 16;
constexpr unsigned CM_PARENTCTL3DCHANGED = CM_BASE + 17;
constexpr unsigned CM_TEXTCHANGED = CM_BASE + 18;
constexpr unsigned CM_MOUSEENTER = CM_BASE + 19;
constexpr unsigned CM_MOUSELEAVE = CM_BASE + 20;
constexpr unsigned CM_MENUCHANGED = CM_BASE + 21;
constexpr unsigned CM_SYSCOLORCHANGE = CM_BASE + 24;
constexpr unsigned CM_SYSFONTCHANGED = CM_BASE + 25;
constexpr unsigned CM_SHOWINGCHANGED = CM_BASE + 27;
constexpr unsigned CM_ENTER = CM_BASE + 28;
constexpr unsigned CM_EXIT = CM_BASE + 29;
constexpr unsigned CM_DESIGNHITTEST = CM_BASE + 30;
constexpr unsigned CM_WANTSPECIALKEY = CM_BASE + 32; // WParam the key; Result 1: the control wants it
constexpr unsigned CM_SHOWHINTCHANGED = CM_BASE + 36;
constexpr unsigned CM_PARENTSHOWHINTCHANGED = CM_BASE + 37;
constexpr unsigned CM_CHILDKEY = CM_BASE + 41; // WParam the key, LParam the control; Result 1 handled
constexpr unsigned CM_HINTSHOW = CM_BASE + 48; // LParam a THintInfo*; Result 1: show no hint
constexpr unsigned CM_BIDIMODECHANGED = CM_BASE + 60;
constexpr unsigned CM_PARENTBIDIMODECHANGED = CM_BASE + 61;
constexpr unsigned CM_BORDERCHANGED = CM_BASE + 62;
constexpr unsigned CM_TABSTOPCHANGED = CM_BASE + 63;
constexpr unsigned CM_WINDOWHOOK = CM_BASE + 64;

// What happened in a native peer, sent to the control it stands behind.
constexpr unsigned CN_BASE = 0xBC00;
constexpr unsigned CN_KEYDOWN = CN_BASE + WM_KEYDOWN;
constexpr unsigned CN_KEYUP = CN_BASE + WM_KEYUP;
constexpr unsigned CN_CHAR = CN_BASE + WM_CHAR;
constexpr unsigned CN_SYSKEYDOWN = CN_BASE + WM_SYSKEYDOWN;
/// WParam is a TPeerNotice, LParam an index where the notice has one.
constexpr unsigned CN_COMMAND = CN_BASE + WM_COMMAND;

// WM_SIZE.
constexpr unsigned SIZE_RESTORED = 0;
constexpr unsigned SIZE_MINIMIZED = 1;
constexpr unsigned SIZE_MAXIMIZED = 2;

// WM_ACTIVATE.
constexpr unsigned WA_INACTIVE = 0;
constexpr unsigned WA_ACTIVE = 1;
constexpr unsigned WA_CLICKACTIVE = 2;

// WM_GETDLGCODE: the keys a control wants for itself.
constexpr int DLGC_WANTARROWS = 0x0001;
constexpr int DLGC_WANTTAB = 0x0002;
constexpr int DLGC_WANTALLKEYS = 0x0004;
constexpr int DLGC_WANTCHARS = 0x0080;

// Mouse messages: keys and buttons held. MK_ALT is this system's own.
constexpr unsigned MK_LBUTTON = 0x0001;
constexpr unsigned MK_RBUTTON = 0x0002;
constexpr unsigned MK_SHIFT = 0x0004;
constexpr unsigned MK_CONTROL = 0x0008;
constexpr unsigned MK_MBUTTON = 0x0010;
constexpr unsigned MK_ALT = 0x0020;

// Scroll requests; the even and the odd one of a pair serve both directions.
constexpr unsigned SB_LINEUP = 0;
constexpr unsigned SB_LINELEFT = 0;
constexpr unsigned SB_LINEDOWN = 1;
constexpr unsigned SB_LINERIGHT = 1;
constexpr unsigned SB_PAGEUP = 2;
constexpr unsigned SB_PAGELEFT = 2;
constexpr unsigned SB_PAGEDOWN = 3;
constexpr unsigned SB_PAGERIGHT = 3;
constexpr unsigned SB_THUMBPOSITION = 4;
constexpr unsigned SB_THUMBTRACK = 5;
constexpr unsigned SB_TOP = 6;
constexpr unsigned SB_LEFT = 6;
constexpr unsigned SB_BOTTOM = 7;
constexpr unsigned SB_RIGHT = 7;
constexpr unsigned SB_ENDSCROLL = 8;

constexpr int WHEEL_DELTA = 120;
constexpr int HTCLIENT = 1;
constexpr int HTTRANSPARENT = -1;

/// A point as two signed 16-bit halves, as mouse messages carry it.
constexpr std::int64_t MakePointParam(int X, int Y)
{
    return static_cast<std::int64_t>((static_cast<std::uint32_t>(Y) & 0xFFFFu) << 16 |
                                     (static_cast<std::uint32_t>(X) & 0xFFFFu));
}

constexpr TPoint PointOfParam(std::int64_t LParam)
{
    return {static_cast<std::int16_t>(LParam & 0xFFFF), static_cast<std::int16_t>((LParam >> 16) & 0xFFFF)};
}

/// The request (SB_...) in the low 16 bits, above it the position, which keeps all its 32 bits.
constexpr std::uint64_t MakeScrollParam(unsigned Request, int Position)
{
    return static_cast<std::uint64_t>(static_cast<std::uint32_t>(Position)) << 16 | (Request & 0xFFFFu);
}

constexpr unsigned ScrollRequest(std::uint64_t WParam)
{
    return static_cast<unsigned>(WParam & 0xFFFFu);
}

constexpr int ScrollPosition(std::uint64_t WParam)
{
    return static_cast<int>(static_cast<std::uint32_t>(WParam >> 16));
}

/// MK_... flags below, the signed distance above.
constexpr std::uint64_t MakeWheelParam(unsigned Keys, int Distance)
{
    return static_cast<std::uint64_t>((static_cast<std::uint32_t>(Distance) & 0xFFFFu) << 16 |
                                      (Keys & 0xFFFFu));
}

constexpr int WheelDistance(std::uint64_t WParam)
{
    return static_cast<std::int16_t>((WParam >> 16) & 0xFFFF);
}

} // namespace vcl
