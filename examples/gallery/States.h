#pragma once

#include <string_view>
#include <vector>

#include "vcl/controls/WinControl.h"
#include "vcl/graphics/ImageList.h"

namespace gallery
{

/// What a state's functions work on.
struct TScene {
    vcl::TWinControl& Control; // new, of the state's class, on the window
    vcl::TImageList& Images;   // small pictures, see MakeIcons
};

using TSceneStep = void (*)(TScene& Scene);

/// One way to see a control: a line of the gallery's table.
struct TState {
    const char* Page; // name of the control's class
    const char* Name; // unique on its page; words with hyphens
    TSceneStep Setup; // fills the new control
    /// What needs the window on the screen, such as the focus; null: nothing.
    TSceneStep Shown = nullptr;
    int Width = 0; // of the control in pixels; 0: all the room there is
};

/// All states, page by page. No clock and no random number goes into them: a state always looks the same.
const std::vector<TState>& States();
std::vector<TState> TimeViewStates();
std::vector<TState> TreeViewStates();

/// The names of the pages in order.
std::vector<vcl::AnsiString> Pages();
/// The states of a page, case ignored; empty when there is no such page.
std::vector<const TState*> StatesOf(std::string_view Page);
/// Null when there is none; case ignored.
const TState* FindState(std::string_view Page, std::string_view Name);

} // namespace gallery
