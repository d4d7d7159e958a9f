#pragma once

#include <cstdint>

namespace vcl
{

// Window styles: what TCreateParams::Style holds and the platform's window follows.
constexpr std::uint32_t WS_POPUP = 0x80000000; // a top-level window of its own
constexpr std::uint32_t WS_CHILD = 0x40000000;
constexpr std::uint32_t WS_VISIBLE = 0x10000000;
constexpr std::uint32_t WS_DISABLED = 0x08000000;
constexpr std::uint32_t WS_CLIPSIBLINGS = 0x04000000;
constexpr std::uint32_t WS_CLIPCHILDREN = 0x02000000;
constexpr std::uint32_t WS_CAPTION = 0x00C00000;
constexpr std::uint32_t WS_BORDER = 0x00800000; // a line of one pixel
constexpr std::uint32_t WS_DLGFRAME = 0x00400000;
constexpr std::uint32_t WS_VSCROLL = 0x00200000;
constexpr std::uint32_t WS_HSCROLL = 0x00100000;
constexpr std::uint32_t WS_SYSMENU = 0x00080000;
constexpr std::uint32_t WS_THICKFRAME = 0x00040000;
constexpr std::uint32_t WS_GROUP = 0x00020000;
constexpr std::uint32_t WS_TABSTOP = 0x00010000;
constexpr std::uint32_t WS_MINIMIZEBOX = 0x00020000; // top-level windows
constexpr std::uint32_t WS_MAXIMIZEBOX = 0x00010000; // top-level windows

constexpr std::uint32_t WS_EX_DLGMODALFRAME = 0x00000001;
constexpr std::uint32_t WS_EX_TOPMOST = 0x00000008;
constexpr std::uint32_t WS_EX_TRANSPARENT = 0x00000020;
constexpr std::uint32_t WS_EX_TOOLWINDOW = 0x00000080;
constexpr std::uint32_t WS_EX_CLIENTEDGE = 0x00000200; // a sunken edge of two pixels
constexpr std::uint32_t WS_EX_CONTEXTHELP = 0x00000400;
constexpr std::uint32_t WS_EX_RIGHT = 0x00001000;
constexpr std::uint32_t WS_EX_RTLREADING = 0x00002000;
constexpr std::uint32_t WS_EX_LEFTSCROLLBAR = 0x00004000; // the vertical bar stands on the left
constexpr std::uint32_t WS_EX_CONTROLPARENT = 0x00010000;

// Edits.
constexpr std::uint32_t ES_LEFT = 0x0000;
constexpr std::uint32_t ES_CENTER = 0x0001;
constexpr std::uint32_t ES_RIGHT = 0x0002;
constexpr std::uint32_t ES_MULTILINE = 0x0004;
constexpr std::uint32_t ES_UPPERCASE = 0x0008;
constexpr std::uint32_t ES_LOWERCASE = 0x0010;
constexpr std::uint32_t ES_PASSWORD = 0x0020;
constexpr std::uint32_t ES_AUTOVSCROLL = 0x0040;
constexpr std::uint32_t ES_AUTOHSCROLL = 0x0080;
constexpr std::uint32_t ES_NOHIDESEL = 0x0100;
constexpr std::uint32_t ES_READONLY = 0x0800;
constexpr std::uint32_t ES_WANTRETURN = 0x1000;
constexpr std::uint32_t ES_NUMBER = 0x2000;

// Combo boxes.
constexpr std::uint32_t CBS_SIMPLE = 0x0001;
constexpr std::uint32_t CBS_DROPDOWN = 0x0002;     // editable
constexpr std::uint32_t CBS_DROPDOWNLIST = 0x0003; // a choice only
constexpr std::uint32_t CBS_SORT = 0x0100;

// List boxes.
constexpr std::uint32_t LBS_SORT = 0x0002;
constexpr std::uint32_t LBS_MULTIPLESEL = 0x0008;
constexpr std::uint32_t LBS_OWNERDRAWFIXED = 0x0010;
constexpr std::uint32_t LBS_EXTENDEDSEL = 0x0800;

} // namespace vcl
