#include "gallery/Icons.h"

#include <array>

#include "vcl/graphics/Bitmap.h"
#include "vcl/graphics/Canvas.h"

namespace gallery
{

namespace
{

constexpr int Size = 12;
constexpr vcl::TColor Ground = vcl::clFuchsia;

template <class TDraw>
void Add(vcl::TCustomImageList& Images, vcl::TColor Outline, vcl::TColor Fill, TDraw&& Draw)
{
    vcl::TBitmap Bitmap(Size, Size);
    vcl::TCanvas& Canvas = *Bitmap.GetCanvas();
    Canvas.GetBrush()->SetColor(Ground);
    Canvas.FillRect({0, 0, Size, Size});
    Canvas.GetPen()->SetColor(Outline);
    Canvas.GetBrush()->SetColor(Fill);
    Draw(Canvas);
    Images.AddMasked(&Bitmap, Ground);
}

} // namespace

void MakeIcons(vcl::TCustomImageList& Images)
{
    Images.SetSize(Size, Size);
    Add(Images, vcl::TColor(0x703000), vcl::TColor(0xF0B060),
        [](vcl::TCanvas& Canvas) { Canvas.Ellipse(0, 0, Size, Size); });
    Add(Images, vcl::TColor(0x003870), vcl::TColor(0x40A8F8), [](vcl::TCanvas& Canvas) {
        constexpr int Middle = Size / 2;
        const std::array<vcl::TPoint, 4> Corners = {
            {{Middle, 0}, {Size - 1, Middle}, {Middle, Size - 1}, {0, Middle}}};
        Canvas.Polygon(Corners);
    });
}

} // namespace gallery
