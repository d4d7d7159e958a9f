#pragma once

#include <cstdint>
#include <vector>

#include "vcl/platform/TextEngine.h"
#include "vcl/system/AnsiString.h"

namespace vcl
{

/// A menu as the platform shows it: values only, made anew whenever something changes.
struct TMenuSpec {
    struct TItem {
        /// Not 0; what WM_COMMAND, WM_INITMENUPOPUP and PopupMenu's answer carry.
        unsigned Command = 0;
        /// "&" marks the access key; "-" is a separator.
        AnsiString Caption;
        /// Virtual key | scShift | scCtrl | scAlt; 0 none.
        std::uint16_t ShortCut = 0;
        bool Enabled = true;
        bool Visible = true;
        bool Checked = false;
        /// Checked items of this kind show a dot.
        bool Radio = false;
        bool Default = false;
        /// 0xAARRGGBB; empty: none. The pixels must stay until the menu is replaced.
        TPixelBuffer Glyph;
        /// Not empty: a submenu.
        std::vector<TItem> Items;
    };

    std::vector<TItem> Items;
    bool RightToLeft = false;
};

constexpr std::uint16_t scShift = 0x2000;
constexpr std::uint16_t scCtrl = 0x4000;
constexpr std::uint16_t scAlt = 0x8000;

} // namespace vcl
