#include "vcl/platform/qt/QtInput.h"

namespace vcl::qt
{

namespace
{

struct TKeyPair {
    int Key;
    std::uint16_t VirtualKey;
};

/// Where several keys give one virtual key, the first is the one that stands for it.
constexpr TKeyPair KeyPairs[] = {
    {Qt::Key_Backspace, VK_BACK},
    {Qt::Key_Tab, VK_TAB},
    {Qt::Key_Backtab, VK_TAB},
    {Qt::Key_Clear, VK_CLEAR},
    {Qt::Key_Return, VK_RETURN},
    {Qt::Key_Enter, VK_RETURN},
    {Qt::Key_Shift, VK_SHIFT},
    {Qt::Key_Control, VK_CONTROL},
    {Qt::Key_Alt, VK_MENU},
    {Qt::Key_AltGr, VK_MENU},
    {Qt::Key_Pause, VK_PAUSE},
    {Qt::Key_CapsLock, VK_CAPITAL},
    {Qt::Key_Escape, VK_ESCAPE},
    {Qt::Key_Space, VK_SPACE},
    {Qt::Key_PageUp, VK_PRIOR},
    {Qt::Key_PageDown, VK_NEXT},
    {Qt::Key_End, VK_END},
    {Qt::Key_Home, VK_HOME},
    {Qt::Key_Left, VK_LEFT},
    {Qt::Key_Up, VK_UP},
    {Qt::Key_Right, VK_RIGHT},
    {Qt::Key_Down, VK_DOWN},
    {Qt::Key_Select, VK_SELECT},
    {Qt::Key_Print, VK_SNAPSHOT},
    {Qt::Key_Execute, VK_EXECUTE},
    {Qt::Key_Insert, VK_INSERT},
    {Qt::Key_Delete, VK_DELETE},
    {Qt::Key_Help, VK_HELP},
    {Qt::Key_Meta, VK_LWIN},
    {Qt::Key_Super_L, VK_LWIN},
    {Qt::Key_Super_R, VK_RWIN},
    {Qt::Key_Menu, VK_APPS},
    {Qt::Key_NumLock, VK_NUMLOCK},
    {Qt::Key_ScrollLock, VK_SCROLL},
    {Qt::Key_Semicolon, VK_OEM_1},
    {Qt::Key_Colon, VK_OEM_1},
    {Qt::Key_Plus, VK_OEM_PLUS},
    {Qt::Key_Equal, VK_OEM_PLUS},
    {Qt::Key_Comma, VK_OEM_COMMA},
    {Qt::Key_Less, VK_OEM_COMMA},
    {Qt::Key_Minus, VK_OEM_MINUS},
    {Qt::Key_Underscore, VK_OEM_MINUS},
    {Qt::Key_Period, VK_OEM_PERIOD},
    {Qt::Key_Greater, VK_OEM_PERIOD},
    {Qt::Key_Slash, VK_OEM_2},
    {Qt::Key_Question, VK_OEM_2},
    {Qt::Key_QuoteLeft, VK_OEM_3},
    {Qt::Key_AsciiTilde, VK_OEM_3},
    {Qt::Key_BracketLeft, VK_OEM_4},
    {Qt::Key_BraceLeft, VK_OEM_4},
    {Qt::Key_Backslash, VK_OEM_5},
    {Qt::Key_Bar, VK_OEM_5},
    {Qt::Key_BracketRight, VK_OEM_6},
    {Qt::Key_BraceRight, VK_OEM_6},
    {Qt::Key_Apostrophe, VK_OEM_7},
    {Qt::Key_QuoteDbl, VK_OEM_7},
};

/// The number block's keys, which stand apart from the same signs elsewhere.
constexpr TKeyPair KeypadPairs[] = {
    {Qt::Key_Asterisk, VK_MULTIPLY}, {Qt::Key_Plus, VK_ADD},      {Qt::Key_Minus, VK_SUBTRACT},
    {Qt::Key_Period, VK_DECIMAL},    {Qt::Key_Comma, VK_DECIMAL}, {Qt::Key_Slash, VK_DIVIDE},
};

/// Digits by the sign that Shift makes of them on the most common keyboard.
constexpr char ShiftedDigits[] = ")!@#$%^&*(";

std::uint16_t KeypadKey(int Key)
{
    if (Key >= Qt::Key_0 && Key <= Qt::Key_9)
        return static_cast<std::uint16_t>(VK_NUMPAD0 + (Key - Qt::Key_0));
    for (const TKeyPair& Pair : KeypadPairs) {
        if (Pair.Key == Key)
            return Pair.VirtualKey;
    }
    return 0;
}

struct TCursorPair {
    TCursor Cursor;
    Qt::CursorShape Shape;
};

constexpr TCursorPair CursorPairs[] = {
    {crDefault, Qt::ArrowCursor},      {crNone, Qt::BlankCursor},
    {crArrow, Qt::ArrowCursor},        {crCross, Qt::CrossCursor},
    {crIBeam, Qt::IBeamCursor},        {crSizeAll, Qt::SizeAllCursor},
    {crSizeNESW, Qt::SizeBDiagCursor}, {crSizeNS, Qt::SizeVerCursor},
    {crSizeNWSE, Qt::SizeFDiagCursor}, {crSizeWE, Qt::SizeHorCursor},
    {crUpArrow, Qt::UpArrowCursor},    {crHourGlass, Qt::WaitCursor},
    {crDrag, Qt::DragMoveCursor},      {crNoDrop, Qt::ForbiddenCursor},
    {crHSplit, Qt::SplitHCursor},      {crVSplit, Qt::SplitVCursor},
    {crMultiDrag, Qt::DragCopyCursor}, {crSQLWait, Qt::WaitCursor},
    {crNo, Qt::ForbiddenCursor},       {crAppStart, Qt::BusyCursor},
    {crHelp, Qt::WhatsThisCursor},     {crHandPoint, Qt::PointingHandCursor},
};

} // namespace

unsigned KeyFlags(Qt::KeyboardModifiers Modifiers, Qt::MouseButtons Buttons)
{
    unsigned Result = 0;
    Result |= Buttons.testFlag(Qt::LeftButton) ? MK_LBUTTON : 0;
    Result |= Buttons.testFlag(Qt::RightButton) ? MK_RBUTTON : 0;
    Result |= Buttons.testFlag(Qt::MiddleButton) ? MK_MBUTTON : 0;
    Result |= Modifiers.testFlag(Qt::ShiftModifier) ? MK_SHIFT : 0;
    Result |= Modifiers.testFlag(Qt::ControlModifier) ? MK_CONTROL : 0;
    Result |= Modifiers.testFlag(Qt::AltModifier) ? MK_ALT : 0;
    return Result;
}

std::uint16_t VirtualKeyOf(const QKeyEvent& Event)
{
    const int Key = Event.key();
    if (Event.modifiers().testFlag(Qt::KeypadModifier)) {
        if (const std::uint16_t Found = KeypadKey(Key))
            return Found;
    }
    if ((Key >= Qt::Key_0 && Key <= Qt::Key_9) || (Key >= Qt::Key_A && Key <= Qt::Key_Z))
        return static_cast<std::uint16_t>(Key);
    if (Key >= Qt::Key_F1 && Key <= Qt::Key_F24)
        return static_cast<std::uint16_t>(VK_F1 + (Key - Qt::Key_F1));
    for (const TKeyPair& Pair : KeyPairs) {
        if (Pair.Key == Key)
            return Pair.VirtualKey;
    }
    for (int Digit = 0; Digit < 10; ++Digit) {
        if (ShiftedDigits[Digit] == Key)
            return static_cast<std::uint16_t>('0' + Digit);
    }
    return 0;
}

int KeyOfVirtualKey(std::uint16_t VirtualKey)
{
    if ((VirtualKey >= '0' && VirtualKey <= '9') || (VirtualKey >= 'A' && VirtualKey <= 'Z'))
        return VirtualKey;
    if (VirtualKey >= VK_F1 && VirtualKey <= VK_F24)
        return Qt::Key_F1 + (VirtualKey - VK_F1);
    if (VirtualKey >= VK_NUMPAD0 && VirtualKey <= VK_NUMPAD9)
        return Qt::Key_0 + (VirtualKey - VK_NUMPAD0);
    for (const TKeyPair& Pair : KeyPairs) {
        if (Pair.VirtualKey == VirtualKey)
            return Pair.Key;
    }
    for (const TKeyPair& Pair : KeypadPairs) {
        if (Pair.VirtualKey == VirtualKey)
            return Pair.Key;
    }
    return 0;
}

std::u32string CharactersOf(const QKeyEvent& Event)
{
    // Delete writes nothing here, though some systems give it a character.
    if (Event.key() == Qt::Key_Delete)
        return {};
    // Shift+Tab has a key of its own, without text.
    if (Event.key() == Qt::Key_Backtab)
        return U"\t";
    std::u32string Result;
    for (const uint CodePoint : Event.text().toUcs4())
        Result.push_back(static_cast<char32_t>(CodePoint));
    return Result;
}

unsigned MouseMessageOf(QEvent::Type Type, Qt::MouseButton Button)
{
    const bool Left = Button == Qt::LeftButton;
    const bool Right = Button == Qt::RightButton;
    const bool Middle = Button == Qt::MiddleButton;
    switch (Type) {
    case QEvent::MouseButtonPress:
        return Left ? WM_LBUTTONDOWN : Right ? WM_RBUTTONDOWN : Middle ? WM_MBUTTONDOWN : WM_NULL;
    case QEvent::MouseButtonRelease:
        return Left ? WM_LBUTTONUP : Right ? WM_RBUTTONUP : Middle ? WM_MBUTTONUP : WM_NULL;
    case QEvent::MouseButtonDblClick:
        return Left ? WM_LBUTTONDBLCLK : Right ? WM_RBUTTONDBLCLK : Middle ? WM_MBUTTONDBLCLK : WM_NULL;
    case QEvent::MouseMove:
        return WM_MOUSEMOVE;
    default:
        return WM_NULL;
    }
}

QMouseEvent MouseEventOf(const TMessage& Message, QPointF Global)
{
    struct TRow {
        unsigned Msg;
        QEvent::Type Type;
        Qt::MouseButton Button;
    };
    static constexpr TRow Rows[] = {
        {WM_MOUSEMOVE, QEvent::MouseMove, Qt::NoButton},
        {WM_LBUTTONDOWN, QEvent::MouseButtonPress, Qt::LeftButton},
        {WM_LBUTTONUP, QEvent::MouseButtonRelease, Qt::LeftButton},
        {WM_LBUTTONDBLCLK, QEvent::MouseButtonDblClick, Qt::LeftButton},
        {WM_RBUTTONDOWN, QEvent::MouseButtonPress, Qt::RightButton},
        {WM_RBUTTONUP, QEvent::MouseButtonRelease, Qt::RightButton},
        {WM_RBUTTONDBLCLK, QEvent::MouseButtonDblClick, Qt::RightButton},
        {WM_MBUTTONDOWN, QEvent::MouseButtonPress, Qt::MiddleButton},
        {WM_MBUTTONUP, QEvent::MouseButtonRelease, Qt::MiddleButton},
        {WM_MBUTTONDBLCLK, QEvent::MouseButtonDblClick, Qt::MiddleButton},
    };
    const TPoint Point = PointOfParam(Message.LParam);
    Qt::KeyboardModifiers Modifiers;
    Modifiers.setFlag(Qt::ShiftModifier, (Message.WParam & MK_SHIFT) != 0);
    Modifiers.setFlag(Qt::ControlModifier, (Message.WParam & MK_CONTROL) != 0);
    Modifiers.setFlag(Qt::AltModifier, (Message.WParam & MK_ALT) != 0);
    Qt::MouseButtons Buttons;
    Buttons.setFlag(Qt::LeftButton, (Message.WParam & MK_LBUTTON) != 0);
    Buttons.setFlag(Qt::RightButton, (Message.WParam & MK_RBUTTON) != 0);
    Buttons.setFlag(Qt::MiddleButton, (Message.WParam & MK_MBUTTON) != 0);
    const TRow* Found = &Rows[0];
    for (const TRow& Row : Rows) {
        if (Row.Msg == Message.Msg)
            Found = &Row;
    }
    Buttons.setFlag(Found->Button,
                    Found->Type != QEvent::MouseButtonRelease && Found->Button != Qt::NoButton);
    return QMouseEvent(Found->Type, QPointF(Point.X, Point.Y), Global, Found->Button, Buttons, Modifiers);
}

Qt::CursorShape CursorShapeOf(TCursor Cursor)
{
    for (const TCursorPair& Pair : CursorPairs) {
        if (Pair.Cursor == Cursor)
            return Pair.Shape;
    }
    return Qt::ArrowCursor;
}

} // namespace vcl::qt
