#pragma once

#include "vcl/graphics/GraphicsObject.h"
#include "vcl/graphics/Painter.h"

namespace vcl
{

class TBitmap;

template <>
struct TypeTraits<TBrushStyle> {
    static const TTypeInfo& Info();
};

/// What areas are filled with. A new brush is solid and white.
class TBrush : public TGraphicsObject
{
    VCL_CLASS
public:
    TColor GetColor() const { return FColor; }
    /// A clear brush becomes solid; a bitmap stays in force.
    void SetColor(TColor Value);
    /// bsPattern and bsMono are the painters' own and come from Bitmap; asking for them here is ignored.
    TBrushStyle GetStyle() const { return FStyle; }
    void SetStyle(TBrushStyle Value);
    /// The bitmap whose top left 8x8 pixels fill instead of the colour, repeated where it is smaller; null
    /// for none. A monochrome bitmap paints its black pixels in the text colour and the others in the
    /// background colour. The bitmap is not owned and must outlive its use here; its pixels are read when
    /// painting.
    TBitmap* GetBitmap() const { return FBitmap; }
    void SetBitmap(TBitmap* Value) { SetField(FBitmap, Value); }

    void Assign(const TPersistent* Source) override;

    /// The brush with its colour resolved and its pattern read.
    TBrushState GetState() const;

private:
    TColor FColor = clWhite;
    TBrushStyle FStyle = TBrushStyle::bsSolid;
    TBitmap* FBitmap = nullptr;
};

} // namespace vcl
