#pragma once

#include <QKeyEvent>
#include <QMouseEvent>

#include <cstdint>
#include <string>

#include "vcl/platform/Messages.h"
#include "vcl/platform/VirtualKeys.h"

namespace vcl::qt
{

/// MK_... flags.
unsigned KeyFlags(Qt::KeyboardModifiers Modifiers, Qt::MouseButtons Buttons);

/// The virtual key of a key event; 0 for keys that have none. Keys are told by what they write, so that
/// letters are where the user's keyboard has them.
std::uint16_t VirtualKeyOf(const QKeyEvent& Event);

/// The key that a virtual key stands for; 0 when there is none.
int KeyOfVirtualKey(std::uint16_t VirtualKey);

/// The code points of WM_CHAR that go with the key.
std::u32string CharactersOf(const QKeyEvent& Event);

/// Message of a mouse button event; WM_NULL for buttons that have none.
unsigned MouseMessageOf(QEvent::Type Type, Qt::MouseButton Button);

/// A mouse event for a message, to be handed to a widget. The message is one of the mouse's.
QMouseEvent MouseEventOf(const TMessage& Message, QPointF Global);

Qt::CursorShape CursorShapeOf(TCursor Cursor);

} // namespace vcl::qt
