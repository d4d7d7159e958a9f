#include "vcl/graphics/Brush.h"

#include <algorithm>

#include "vcl/graphics/Bitmap.h"
#include "vcl/graphics/Colors.h"
#include "vcl/graphics/Surface.h"

namespace vcl
{

namespace
{

constexpr int PatternSide = 8;

void ReadPattern(const TBitmap& Bitmap, TBrushState& State)
{
    const TSurface& Surface = Bitmap.GetSurface();
    const int Width = std::min(PatternSide, Surface.GetWidth());
    const int Height = std::min(PatternSide, Surface.GetHeight());
    State.Style = Bitmap.GetMonochrome() ? TBrushStyle::bsMono : TBrushStyle::bsPattern;
    for (int Y = 0; Y < PatternSide; ++Y) {
        for (int X = 0; X < PatternSide; ++X) {
            const std::uint32_t Pixel = Surface.GetPixel({X % Width, Y % Height}) & 0xFFFFFF;
            State.Pattern[static_cast<std::size_t>(Y * PatternSide + X)] = Pixel;
            if (Pixel != 0)
                State.Mono[static_cast<std::size_t>(Y)] |= static_cast<std::uint8_t>(0x80 >> X);
        }
    }
}

} // namespace

const TTypeInfo& TypeTraits<TBrushStyle>::Info()
{
    static const TTypeInfo Type =
        EnumerationType("TBrushStyle", {"bsSolid", "bsClear", "bsHorizontal", "bsVertical", "bsFDiagonal",
                                        "bsBDiagonal", "bsCross", "bsDiagCross"});
    return Type;
}

const TClass& TBrush::StaticClass()
{
    static const TClass Class = DefineClass<TBrush, TGraphicsObject>(
        "TBrush", {
                      Published<&TBrush::GetColor, &TBrush::SetColor>("Color").Default(clWhite),
                      Published<&TBrush::GetStyle, &TBrush::SetStyle>("Style").Default(TBrushStyle::bsSolid),
                  });
    return Class;
}

void TBrush::SetColor(TColor Value)
{
    if (FColor == Value && FStyle != TBrushStyle::bsClear)
        return;
    FColor = Value;
    if (FStyle == TBrushStyle::bsClear)
        FStyle = TBrushStyle::bsSolid;
    Changed();
}

void TBrush::SetStyle(TBrushStyle Value)
{
    if (Value < TBrushStyle::bsPattern)
        SetField(FStyle, Value);
}

void TBrush::Assign(const TPersistent* Source)
{
    const TBrush* const Other = As<TBrush>(Source);
    if (!Other) {
        TPersistent::Assign(Source);
        return;
    }
    const bool Differs = FColor != Other->FColor || FStyle != Other->FStyle || FBitmap != Other->FBitmap;
    FColor = Other->FColor;
    FStyle = Other->FStyle;
    FBitmap = Other->FBitmap;
    if (Differs)
        Changed();
}

TBrushState TBrush::GetState() const
{
    TBrushState State;
    State.Style = FStyle;
    State.Color = ColorToPixel(FColor);
    if (FBitmap && !FBitmap->GetEmpty())
        ReadPattern(*FBitmap, State);
    return State;
}

} // namespace vcl
