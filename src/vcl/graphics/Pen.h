#pragma once

#include "vcl/graphics/GraphicsObject.h"
#include "vcl/graphics/Painter.h"

namespace vcl
{

template <>
struct TypeTraits<TPenStyle> {
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<TPenMode> {
    static const TTypeInfo& Info();
    // Ordinals in form files differ from the numbers of the raster operations.
    static TPropertyValue ToValue(TPenMode Mode);
    static TPenMode FromValue(const TPropertyValue& Value);
};

/// What lines and outlines are drawn with. A new pen is solid, black and one pixel wide.
class TPen : public TGraphicsObject
{
    VCL_CLASS
public:
    TColor GetColor() const { return FColor; }
    void SetColor(TColor Value) { SetField(FColor, Value); }
    /// How pen and brush combine with what is there.
    TPenMode GetMode() const { return FMode; }
    void SetMode(TPenMode Value) { SetField(FMode, Value); }
    /// Dashes and dots appear with widths 0 and 1 only; a wider pen is solid.
    TPenStyle GetStyle() const { return FStyle; }
    void SetStyle(TPenStyle Value) { SetField(FStyle, Value); }
    /// Pixels; 0 draws as 1. Negative values are ignored.
    int GetWidth() const { return FWidth; }
    void SetWidth(int Value);

    void Assign(const TPersistent* Source) override;

    /// The pen with its colour resolved.
    TPenState GetState() const;

private:
    TColor FColor = clBlack;
    TPenMode FMode = TPenMode::pmCopy;
    TPenStyle FStyle = TPenStyle::psSolid;
    int FWidth = 1;
};

} // namespace vcl
