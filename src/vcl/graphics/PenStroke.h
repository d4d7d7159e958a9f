#pragma once

#include <span>

#include "vcl/graphics/Lines.h"
#include "vcl/graphics/Painter.h"
#include "vcl/graphics/RasterTarget.h"
#include "vcl/graphics/WideLines.h"

namespace vcl
{

/// A state's pen on a raster target: draws chains of lines given in units. One of these draws one figure,
/// with one dash phase.
class TPenStroke
{
public:
    TPenStroke(TRasterTarget& Target, const TDrawState& State);

    bool IsVisible() const { return FVisible; }
    /// Drawn with a round pen of several pixels rather than as a chain of thin lines.
    bool IsWide() const { return FUnits > 1 && FPixels > 1; }
    bool IsDashed() const { return !FDashes.IsSolid(); }
    /// The pen's width in units and in device pixels, both at least 1.
    int GetUnits() const { return FUnits; }
    int GetPixels() const { return FPixels; }
    const TInk& GetInk() const { return FInk; }

    /// The device pixels of a box of units whose border pixels the pen follows: with a wide pen larger than
    /// the box, unless the pen stays inside the frame.
    TRect Around(const TRect& Box) const;
    /// The device pixel on which the pen stands for a unit coordinate.
    int CentreOf(int Unit) const;
    TPoint CentreOf(TPoint Point) const { return {CentreOf(Point.X), CentreOf(Point.Y)}; }

    /// Lines from point to point, without the very last pixel when thin. Closed: back to the first as well.
    void Chain(std::span<const TPoint> Points, bool Closed);
    /// The border inside a rectangle of device pixels, as wide as the pen, with round corners.
    void WideFrame(const TRect& Outer);
    /// A thin solid or dashed line in units, without its end. Joined: another line of the figure starts
    /// there.
    void ThinLine(TPoint From, TPoint To, bool IsJoined);
    /// A rectangle of units in device pixels, at least one pixel each way.
    TRect Visible(std::int64_t Left, std::int64_t Top, std::int64_t Right, std::int64_t Bottom) const;

private:
    void UnitLine(TPoint From, TPoint To, bool AlongX);
    void DeviceLine(TPoint From, TPoint To, bool AlongX, bool IsJoined);
    void WideChain(std::span<const TPoint> DevicePoints, bool Closed);
    int Device(std::int64_t Unit) const { return FTarget.GetSurface().ToDevice(Saturate(Unit)); }

    TRasterTarget& FTarget;
    bool FVisible;
    bool FInsideFrame;
    int FUnits;
    int FPixels;
    TInk FInk;
    TInk FGapInk;
    TDashes FDashes;
};

} // namespace vcl
