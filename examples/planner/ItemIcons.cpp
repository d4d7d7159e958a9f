#include "planner/ItemIcons.h"

#include <array>
#include <string_view>

#include "vcl/graphics/Bitmap.h"
#include "vcl/graphics/Canvas.h"

namespace planner
{

namespace
{

constexpr int IconSize = 11;
constexpr vcl::TColor Ground = vcl::clFuchsia;

using TShape = std::array<std::string_view, IconSize>;

// x: outline, o: fill.
constexpr TShape Bell = {
    ".....x.....", //
    "....xxx....", //
    "...xooox...", //
    "..xooooox..", //
    "..xooooox..", //
    "..xooooox..", //
    "..xooooox..", //
    ".xooooooox.", //
    "xxxxxxxxxxx", //
    "....xox....", //
    ".....x.....", //
};
constexpr TShape Padlock = {
    "...xxxxx...", //
    "..x.....x..", //
    "..x.....x..", //
    "..x.....x..", //
    ".xxxxxxxxx.", //
    ".xooooooox.", //
    ".xoooxooox.", //
    ".xoooxooox.", //
    ".xoooxooox.", //
    ".xooooooox.", //
    ".xxxxxxxxx.", //
};

void Add(vcl::TImageList& Images, const TShape& Shape, vcl::TColor Outline, vcl::TColor Fill)
{
    vcl::TBitmap Bitmap(IconSize, IconSize);
    vcl::TCanvas* const Canvas = Bitmap.GetCanvas();
    for (int Y = 0; Y < IconSize; ++Y)
        for (int X = 0; X < IconSize; ++X) {
            const char Cell = Shape[static_cast<std::size_t>(Y)][static_cast<std::size_t>(X)];
            Canvas->SetPixel(X, Y, Cell == 'x' ? Outline : Cell == 'o' ? Fill : Ground);
        }
    Images.AddMasked(&Bitmap, Ground);
}

} // namespace

std::unique_ptr<vcl::TImageList> MakeItemIcons()
{
    auto Images = std::make_unique<vcl::TImageList>();
    Images->SetSize(IconSize, IconSize);
    Add(*Images, Bell, vcl::TColor(0x003060), vcl::TColor(0x30C8FF));
    Add(*Images, Padlock, vcl::TColor(0x707070), vcl::TColor(0xE0E0E0));
    return Images;
}

} // namespace planner
