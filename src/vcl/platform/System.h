#pragma once

#include <array>
#include <cstdint>
#include <functional>

#include "vcl/system/AnsiString.h"
#include "vcl/system/Types.h"

namespace vcl
{

enum class TSystemMetric {
    VScrollBarWidth,  // SM_CXVSCROLL
    HScrollBarHeight, // SM_CYHSCROLL
    BorderWidth,      // SM_CXBORDER
    EdgeWidth,        // SM_CXEDGE
    DragThreshold,    // SM_CXDRAG, pixels the mouse may move before a press becomes a drag
    DoubleClickTime,  // milliseconds
    CaretBlinkTime,   // milliseconds
    WheelScrollLines,
    ScreenWidth,
    ScreenHeight,
};

/// System colours, metrics and locale names, live from the platform or from a fixed table.
class ISystem
{
public:
    virtual ~ISystem() = default;

    /// The colour behind a system colour index (0 = clScrollBar), as 0x00BBGGRR.
    virtual TColor SystemColor(int Index) = 0;
    virtual int Metric(TSystemMetric Metric) = 0;
    /// Name and height of the platform's message font.
    virtual AnsiString DefaultFontName() = 0;
    virtual int DefaultFontHeight() = 0;
    /// Windows since the mid-nineties have client edges; every platform here has.
    virtual bool NewStyleControls() { return true; }
};

constexpr int SystemColorCount = 25;

/// The classic fixed colours, as 0x00BBGGRR in index order; tests and references use them.
const std::array<TColor, SystemColorCount>& ClassicSystemColors();

/// The fixed tables: classic colours, classic metrics, "Arial" 11 pixels.
class TClassicSystem : public ISystem
{
public:
    TColor SystemColor(int Index) override;
    int Metric(TSystemMetric Metric) override;
    AnsiString DefaultFontName() override { return "Arial"; }
    int DefaultFontHeight() override { return -11; }
};

} // namespace vcl
