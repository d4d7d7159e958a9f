#include "vcl/graphics/Surface.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <string>

#include "vcl/graphics/Region.h"
#include "vcl/system/Exception.h"

namespace vcl
{

namespace
{

constexpr std::uint32_t Opaque = 0xFF000000u;

int ToInt(double Value)
{
    constexpr double Lowest = std::numeric_limits<int>::min();
    constexpr double Highest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(Value, Lowest, Highest));
}

int ScaledEdge(int Unit, double Scale)
{
    return Scale == 1.0 ? Unit : ToInt(std::floor(Unit * Scale + 0.5));
}

void CheckSize(int Width, int Height, double Scale)
{
    if (!(Scale >= TSurface::MinScale && Scale <= TSurface::MaxScale))
        throw EInvalidGraphicOperation("Scale of a surface out of range");
    if (Width < 0 || Height < 0)
        throw EInvalidGraphicOperation("Size of a surface is negative");
    const std::int64_t DeviceWidth = ScaledEdge(Width, Scale);
    const std::int64_t DeviceHeight = ScaledEdge(Height, Scale);
    if (DeviceWidth > TSurface::MaxSide || DeviceHeight > TSurface::MaxSide ||
        DeviceWidth * DeviceHeight > TSurface::MaxPixels)
        throw EInvalidGraphicOperation("Surface of " + std::to_string(Width) + " x " +
                                       std::to_string(Height) + " is too large");
}

bool IsWhole(double Value)
{
    return std::floor(Value) == Value;
}

} // namespace

TSurface::TSurface(int Width, int Height, double Scale, std::uint32_t Fill)
{
    Resize(Width, Height, Scale, Fill);
}

void TSurface::Resize(int Width, int Height, double Scale, std::uint32_t Fill)
{
    CheckSize(Width, Height, Scale);
    const int DeviceWidth = ScaledEdge(Width, Scale);
    const int DeviceHeight = ScaledEdge(Height, Scale);
    if (Scale != FScale || DeviceWidth != FDeviceWidth || DeviceHeight != FDeviceHeight) {
        std::vector<std::uint32_t> Pixels(
            static_cast<std::size_t>(DeviceWidth) * static_cast<std::size_t>(DeviceHeight), Fill | Opaque);
        const int Columns = Scale == FScale ? std::min(DeviceWidth, FDeviceWidth) : 0;
        const int Rows = Columns > 0 ? std::min(DeviceHeight, FDeviceHeight) : 0;
        for (int Y = 0; Y < Rows; ++Y)
            std::copy_n(Row(Y), Columns, Pixels.data() + static_cast<std::ptrdiff_t>(Y) * DeviceWidth);
        FPixels = std::move(Pixels);
    }
    FWidth = Width;
    FHeight = Height;
    FScale = Scale;
    FDeviceWidth = DeviceWidth;
    FDeviceHeight = DeviceHeight;
}

int TSurface::ToDevice(int Unit) const
{
    return ScaledEdge(Unit, FScale);
}

TRect TSurface::ToDevice(const TRect& Rect) const
{
    return {ToDevice(Rect.Left), ToDevice(Rect.Top), ToDevice(Rect.Right), ToDevice(Rect.Bottom)};
}

TRect TSurface::ToUnits(const TRect& DeviceRect) const
{
    if (FScale == 1.0)
        return DeviceRect;
    // An edge lies up to half a device pixel from its exact place.
    const auto Low = [this](int Edge) { return ToInt(std::floor((Edge + 0.5) / FScale)); };
    const auto High = [this](int Edge) { return ToInt(std::ceil((Edge - 0.5) / FScale)); };
    TRect Result{Low(DeviceRect.Left), Low(DeviceRect.Top), High(DeviceRect.Right), High(DeviceRect.Bottom)};
    if (ToDevice(Result.Left) > DeviceRect.Left)
        --Result.Left;
    if (ToDevice(Result.Top) > DeviceRect.Top)
        --Result.Top;
    return Result;
}

std::uint32_t TSurface::GetPixel(TPoint Point) const
{
    const TPoint Device{ToDevice(Point.X), ToDevice(Point.Y)};
    return DeviceBounds().Contains(Device) ? Row(Device.Y)[Device.X] & ~Opaque : 0;
}

void TSurface::Fill(std::uint32_t Color)
{
    std::fill(FPixels.begin(), FPixels.end(), Color | Opaque);
}

bool TSurface::CanScroll(int DeltaX, int DeltaY) const
{
    return IsWhole(DeltaX * FScale) && IsWhole(DeltaY * FScale);
}

bool TSurface::Scroll(const TRect& Area, int DeltaX, int DeltaY)
{
    if (!CanScroll(DeltaX, DeltaY))
        return false;
    const TRect Inside = IntersectionOf(ToDevice(Area), DeviceBounds());
    const std::int64_t MoveX = ToDevice(DeltaX);
    const std::int64_t MoveY = ToDevice(DeltaY);
    if (std::abs(MoveX) >= Inside.Width() || std::abs(MoveY) >= Inside.Height())
        return true;
    const int Columns = Inside.Width() - static_cast<int>(std::abs(MoveX));
    const int Rows = Inside.Height() - static_cast<int>(std::abs(MoveY));
    const int SourceX = Inside.Left + static_cast<int>(std::max<std::int64_t>(0, -MoveX));
    const int TargetX = SourceX + static_cast<int>(MoveX);
    for (int Index = 0; Index < Rows; ++Index) {
        // Rows are taken from the side they move towards, so none is overwritten before it has moved.
        const int TargetY = MoveY > 0 ? Inside.Bottom - 1 - Index : Inside.Top + Index;
        std::memmove(Row(TargetY) + TargetX, Row(TargetY - static_cast<int>(MoveY)) + SourceX,
                     static_cast<std::size_t>(Columns) * sizeof(std::uint32_t));
    }
    return true;
}

} // namespace vcl
