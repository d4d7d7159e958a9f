#pragma once

#include <cstdint>
#include <vector>

#include "vcl/platform/TextEngine.h"
#include "vcl/system/Types.h"

namespace vcl
{

/// A picture in memory: 32-bit pixels 0xFFRRGGBB. Its size is given in device-independent units; a scale
/// tells how many device pixels make one unit. It belongs to no toolkit and may be used in any thread, by one
/// thread at a time.
///
///     TSurface Surface(200, 100, 1.5);
///     TRasterPainter Painter(Surface);
///     Painter.FillRect(State, TRect{10, 10, 50, 20});
///
/// An edge at unit x lies at device pixel ToDevice(x), rounded; so rectangles that touch in units touch in
/// device pixels too.
class TSurface
{
public:
    static constexpr int MaxSide = 65536;
    static constexpr std::int64_t MaxPixels = std::int64_t{1} << 27;
    static constexpr double MinScale = 0.125;
    static constexpr double MaxScale = 16.0;

    /// An empty surface of 0 x 0 units.
    TSurface() = default;
    /// A surface filled with Fill (0x00RRGGBB). EInvalidGraphicOperation when a side is negative, the scale
    /// is outside its range, or the picture would exceed MaxSide or MaxPixels device pixels.
    TSurface(int Width, int Height, double Scale = 1.0, std::uint32_t Fill = 0xFFFFFF);

    int GetWidth() const { return FWidth; }
    int GetHeight() const { return FHeight; }
    double GetScale() const { return FScale; }
    int GetDeviceWidth() const { return FDeviceWidth; }
    int GetDeviceHeight() const { return FDeviceHeight; }
    TRect DeviceBounds() const { return {0, 0, FDeviceWidth, FDeviceHeight}; }

    /// Gives the surface another size. With the same scale what fits is kept and the rest is filled with
    /// Fill; with another scale everything is filled. Errors as the constructor; the surface is then
    /// unchanged.
    void Resize(int Width, int Height, double Scale, std::uint32_t Fill = 0xFFFFFF);
    void Resize(int Width, int Height) { Resize(Width, Height, FScale); }

    /// The device pixel edge at which a unit edge lies; saturates at the ends of int.
    int ToDevice(int Unit) const;
    TRect ToDevice(const TRect& Rect) const;
    /// The smallest rectangle in units that covers a rectangle of device pixels.
    TRect ToUnits(const TRect& DeviceRect) const;

    /// The colour (0x00RRGGBB) at a unit's top left device pixel; 0 outside.
    std::uint32_t GetPixel(TPoint Point) const;
    void Fill(std::uint32_t Color);

    /// One row of device pixels, 0xFFRRGGBB; Y in 0 .. GetDeviceHeight() - 1.
    std::uint32_t* Row(int Y) { return FPixels.data() + Offset(Y); }
    const std::uint32_t* Row(int Y) const { return FPixels.data() + Offset(Y); }
    TPixelBuffer Buffer() { return {FPixels.data(), FDeviceWidth, FDeviceHeight, FDeviceWidth}; }

    /// Whether a distance in units is a whole number of device pixels.
    bool CanScroll(int DeltaX, int DeltaY) const;
    /// Moves the pixels inside Area (units); what would leave it is lost, what comes into view keeps its old
    /// pixels and has to be painted again. False, and nothing moves, when CanScroll is false.
    bool Scroll(const TRect& Area, int DeltaX, int DeltaY);

private:
    std::size_t Offset(int Y) const
    {
        return static_cast<std::size_t>(Y) * static_cast<std::size_t>(FDeviceWidth);
    }

    int FWidth = 0;
    int FHeight = 0;
    double FScale = 1.0;
    int FDeviceWidth = 0;
    int FDeviceHeight = 0;
    std::vector<std::uint32_t> FPixels;
};

} // namespace vcl
