#pragma once

#include <cstdint>

namespace vcl
{

// Virtual key codes, as WM_KEYDOWN carries them. Letters and digits are their ASCII capitals.
constexpr std::uint16_t VK_LBUTTON = 0x01;
constexpr std::uint16_t VK_RBUTTON = 0x02;
constexpr std::uint16_t VK_CANCEL = 0x03;
constexpr std::uint16_t VK_MBUTTON = 0x04;
constexpr std::uint16_t VK_BACK = 0x08;
constexpr std::uint16_t VK_TAB = 0x09;
constexpr std::uint16_t VK_CLEAR = 0x0C;
constexpr std::uint16_t VK_RETURN = 0x0D;
constexpr std::uint16_t VK_SHIFT = 0x10;
constexpr std::uint16_t VK_CONTROL = 0x11;
constexpr std::uint16_t VK_MENU = 0x12;
constexpr std::uint16_t VK_PAUSE = 0x13;
constexpr std::uint16_t VK_CAPITAL = 0x14;
constexpr std::uint16_t VK_ESCAPE = 0x1B;
constexpr std::uint16_t VK_SPACE = 0x20;
constexpr std::uint16_t VK_PRIOR = 0x21;
constexpr std::uint16_t VK_NEXT = 0x22;
constexpr std::uint16_t VK_END = 0x23;
constexpr std::uint16_t VK_HOME = 0x24;
constexpr std::uint16_t VK_LEFT = 0x25;
constexpr std::uint16_t VK_UP = 0x26;
constexpr std::uint16_t VK_RIGHT = 0x27;
constexpr std::uint16_t VK_DOWN = 0x28;
constexpr std::uint16_t VK_SELECT = 0x29;
constexpr std::uint16_t VK_PRINT = 0x2A;
constexpr std::uint16_t VK_EXECUTE = 0x2B;
constexpr std::uint16_t VK_SNAPSHOT = 0x2C;
constexpr std::uint16_t VK_INSERT = 0x2D;
constexpr std::uint16_t VK_DELETE = 0x2E;
constexpr std::uint16_t VK_HELP = 0x2F;
constexpr std::uint16_t VK_LWIN = 0x5B;
constexpr std::uint16_t VK_RWIN = 0x5C;
constexpr std::uint16_t VK_APPS = 0x5D;
constexpr std::uint16_t VK_NUMPAD0 = 0x60;
constexpr std::uint16_t VK_NUMPAD9 = 0x69;
constexpr std::uint16_t VK_MULTIPLY = 0x6A;
constexpr std::uint16_t VK_ADD = 0x6B;
constexpr std::uint16_t VK_SEPARATOR = 0x6C;
constexpr std::uint16_t VK_SUBTRACT = 0x6D;
constexpr std::uint16_t VK_DECIMAL = 0x6E;
constexpr std::uint16_t VK_DIVIDE = 0x6F;
constexpr std::uint16_t VK_F1 = 0x70;
constexpr std::uint16_t VK_F2 = 0x71;
constexpr std::uint16_t VK_F3 = 0x72;
constexpr std::uint16_t VK_F4 = 0x73;
constexpr std::uint16_t VK_F5 = 0x74;
constexpr std::uint16_t VK_F6 = 0x75;
constexpr std::uint16_t VK_F7 = 0x76;
constexpr std::uint16_t VK_F8 = 0x77;
constexpr std::uint16_t VK_F9 = 0x78;
constexpr std::uint16_t VK_F10 = 0x79;
constexpr std::uint16_t VK_F11 = 0x7A;
constexpr std::uint16_t VK_F12 = 0x7B;
constexpr std::uint16_t VK_F24 = 0x87;
constexpr std::uint16_t VK_NUMLOCK = 0x90;
constexpr std::uint16_t VK_SCROLL = 0x91;
constexpr std::uint16_t VK_OEM_1 = 0xBA;      // ;
constexpr std::uint16_t VK_OEM_PLUS = 0xBB;   // =
constexpr std::uint16_t VK_OEM_COMMA = 0xBC;  // ,
constexpr std::uint16_t VK_OEM_MINUS = 0xBD;  // -
constexpr std::uint16_t VK_OEM_PERIOD = 0xBE; // .
constexpr std::uint16_t VK_OEM_2 = 0xBF;      // /
constexpr std::uint16_t VK_OEM_3 = 0xC0;      // `
constexpr std::uint16_t VK_OEM_4 = 0xDB;      // [
constexpr std::uint16_t VK_OEM_5 = 0xDC;      // backslash
constexpr std::uint16_t VK_OEM_6 = 0xDD;      // ]
constexpr std::uint16_t VK_OEM_7 = 0xDE;      // '
constexpr std::uint16_t VK_PROCESSKEY = 0xE5;

} // namespace vcl
