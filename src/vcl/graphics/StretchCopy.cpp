#include "vcl/graphics/StretchCopy.h"

#include <algorithm>
#include <vector>

#include "vcl/graphics/WideMath.h"
#include "vcl/system/Exception.h"

namespace vcl
{

namespace
{

constexpr int Nowhere = -1;

/// One direction of a rectangle, ordered, in device pixels.
struct TSide {
    std::int64_t From;
    std::int64_t Size;
    bool Mirrored;
};

TSide SideOf(const TSurface& Surface, int First, int Last)
{
    const auto Device = [&Surface](std::int64_t Unit) {
        return std::int64_t{Surface.ToDevice(Saturate(Unit))};
    };
    const bool Mirrored = Last < First;
    const std::int64_t From = Device(Mirrored ? std::int64_t{Last} + 1 : First);
    const std::int64_t To = Device(Mirrored ? std::int64_t{First} + 1 : Last);
    return {From, To - From, Mirrored};
}

enum class TShrink { KeepFirst, KeepLast };

/// Which of Source pixels lands on pixel Index of Target pixels. Enlarged, it is the one under the target
/// pixel's centre, of two that meet there the first. Shrunk, several source centres fall on a target pixel,
/// and one of them is kept.
std::int64_t SourceOf(std::int64_t Index, std::int64_t Target, std::int64_t Source, TShrink Shrink)
{
    TWide Result = 0;
    if (Target >= Source)
        Result = CeilDiv(TWide{2 * Index + 1} * Source, TWide{2} * Target) - 1;
    else if (Shrink == TShrink::KeepFirst)
        Result = CeilDiv(CeilDiv(TWide{2 * Index} * Source, Target) - 1, 2);
    else
        Result = FloorDiv(CeilDiv(TWide{2 * Index + 2} * Source, Target) - 2, 2);
    return static_cast<std::int64_t>(Result);
}

/// The source pixel of each target pixel from Low to High - 1, or Nowhere.
std::vector<int> SourcesOf(const TSide& Target, const TSide& Source, int Low, int High, int SourceLimit,
                           TShrink Shrink)
{
    std::vector<int> Result;
    Result.reserve(static_cast<std::size_t>(High - Low));
    const bool Mirrored = Target.Mirrored != Source.Mirrored;
    for (std::int64_t Pixel = Low; Pixel < High; ++Pixel) {
        std::int64_t Offset = SourceOf(Pixel - Target.From, Target.Size, Source.Size, Shrink);
        if (Mirrored)
            Offset = Source.Size - 1 - Offset;
        const std::int64_t Place = Source.From + Offset;
        Result.push_back(Place >= 0 && Place < SourceLimit ? static_cast<int>(Place) : Nowhere);
    }
    return Result;
}

/// Whether every column comes from somewhere, one beside the other.
bool AreNeighbours(const std::vector<int>& Columns)
{
    if (Columns.front() == Nowhere)
        return false;
    for (std::size_t Index = 1; Index < Columns.size(); ++Index)
        if (Columns[Index] != Columns[Index - 1] + 1)
            return false;
    return true;
}

/// The copied part of a surface whose pixels change while they are read.
class TSourcePixels
{
public:
    TSourcePixels(const TSurface& Source, bool Keep, const std::vector<int>& Rows) : FSource(Source)
    {
        if (!Keep)
            return;
        int Last = Nowhere;
        for (const int Row : Rows) {
            if (Row == Nowhere)
                continue;
            FFirst = FFirst == Nowhere ? Row : std::min(FFirst, Row);
            Last = std::max(Last, Row);
        }
        if (FFirst != Nowhere)
            FKept.assign(Source.Row(FFirst), Source.Row(Last) + Source.GetDeviceWidth());
    }

    const std::uint32_t* Row(int Y) const
    {
        if (FKept.empty())
            return FSource.Row(Y);
        return FKept.data() + static_cast<std::ptrdiff_t>(Y - FFirst) * FSource.GetDeviceWidth();
    }

private:
    const TSurface& FSource;
    int FFirst = Nowhere;
    std::vector<std::uint32_t> FKept;
};

} // namespace

void StretchCopyPixels(TRasterTarget& Target, const TRect& TargetRect, const TSurface& Source,
                       const TRect& SourceRect, std::span<const std::uint8_t> Transparent)
{
    const auto SourceWidth = static_cast<std::size_t>(Source.GetDeviceWidth());
    if (!Transparent.empty() &&
        Transparent.size() != SourceWidth * static_cast<std::size_t>(Source.GetDeviceHeight()))
        throw EInvalidGraphicOperation("Mask and picture differ in size");
    TSurface& Surface = Target.GetSurface();
    const TSide TargetX = SideOf(Surface, TargetRect.Left, TargetRect.Right);
    const TSide TargetY = SideOf(Surface, TargetRect.Top, TargetRect.Bottom);
    const TRect Reached = IntersectionOf(Target.GetBounds(), {Saturate(TargetX.From), Saturate(TargetY.From),
                                                              Saturate(TargetX.From + TargetX.Size),
                                                              Saturate(TargetY.From + TargetY.Size)});
    if (Reached.IsEmpty())
        return;
    const TSide SourceX = SideOf(Source, SourceRect.Left, SourceRect.Right);
    const TSide SourceY = SideOf(Source, SourceRect.Top, SourceRect.Bottom);
    if (SourceX.Size <= 0 || SourceY.Size <= 0)
        return;
    const std::vector<int> Columns =
        SourcesOf(TargetX, SourceX, Reached.Left, Reached.Right, Source.GetDeviceWidth(), TShrink::KeepLast);
    const std::vector<int> Rows = SourcesOf(TargetY, SourceY, Reached.Top, Reached.Bottom,
                                            Source.GetDeviceHeight(), TShrink::KeepFirst);
    const TSourcePixels Pixels(Source, &Source == &Surface, Rows);
    const bool IsPlain = Transparent.empty() && AreNeighbours(Columns);

    const auto CopyRow = [&](int Y, int From, int To) {
        const int SourceRow = Rows[static_cast<std::size_t>(Y - Reached.Top)];
        if (SourceRow == Nowhere)
            return;
        const std::uint32_t* Read = Pixels.Row(SourceRow);
        std::uint32_t* Write = Surface.Row(Y);
        if (IsPlain) {
            std::copy_n(Read + Columns[static_cast<std::size_t>(From - Reached.Left)], To - From,
                        Write + From);
            return;
        }
        const std::size_t MaskRow = static_cast<std::size_t>(SourceRow) * SourceWidth;
        for (int X = From; X < To; ++X) {
            const int Column = Columns[static_cast<std::size_t>(X - Reached.Left)];
            if (Column == Nowhere)
                continue;
            if (Transparent.empty() || Transparent[MaskRow + static_cast<std::size_t>(Column)] == 0)
                Write[X] = Read[Column];
        }
    };
    Target.ForEachPart(Reached, [&](const TRect& Part) {
        for (int Y = Part.Top; Y < Part.Bottom; ++Y)
            CopyRow(Y, Part.Left, Part.Right);
    });
}

} // namespace vcl
