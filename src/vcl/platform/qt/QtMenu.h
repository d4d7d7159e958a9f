#pragma once

#include <QMenu>

#include "vcl/platform/Menu.h"

class QMenuBar;

namespace vcl::qt
{

class TWindow;

/// Fills Menu with actions. A chosen one sends WM_COMMAND to Window (when there is one), a submenu about to
/// open WM_INITMENUPOPUP; both may end the window.
void FillMenu(QMenu& Menu, const std::vector<TMenuSpec::TItem>& Items, TWindow* Window);
void FillMenuBar(QMenuBar& Bar, const TMenuSpec& Menu, TWindow& Window);

/// Shows the menu and waits; the command chosen, or 0.
unsigned RunPopupMenu(const TMenuSpec& Menu, QPoint Screen, TWindow* Window);

/// Virtual key and modifiers as the toolkit writes them; empty for 0 and keys it does not know.
QKeySequence ShortCutOf(std::uint16_t ShortCut);

/// A picture of 0xAARRGGBB pixels; null for an empty buffer.
QPixmap PixmapOf(const TPixelBuffer& Buffer);

} // namespace vcl::qt
