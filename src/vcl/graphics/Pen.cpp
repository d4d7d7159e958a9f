#include "vcl/graphics/Pen.h"

#include "vcl/graphics/Colors.h"

namespace vcl
{

const TTypeInfo& TypeTraits<TPenStyle>::Info()
{
    static const TTypeInfo Type = EnumerationType(
        "TPenStyle", {"psSolid", "psDash", "psDot", "psDashDot", "psDashDotDot", "psClear", "psInsideFrame"});
    return Type;
}

/// Form files list the modes in another order than the raster operations are numbered.
namespace
{

constexpr TPenMode ModesByOrdinal[] = {
    TPenMode::pmBlack,       TPenMode::pmWhite,      TPenMode::pmNop,         TPenMode::pmNot,
    TPenMode::pmCopy,        TPenMode::pmNotCopy,    TPenMode::pmMergePenNot, TPenMode::pmMaskPenNot,
    TPenMode::pmMergeNotPen, TPenMode::pmMaskNotPen, TPenMode::pmMerge,       TPenMode::pmNotMerge,
    TPenMode::pmMask,        TPenMode::pmNotMask,    TPenMode::pmXor,         TPenMode::pmNotXor,
};

} // namespace

const TTypeInfo& TypeTraits<TPenMode>::Info()
{
    static const TTypeInfo Type =
        EnumerationType("TPenMode", {"pmBlack", "pmWhite", "pmNop", "pmNot", "pmCopy", "pmNotCopy",
                                     "pmMergePenNot", "pmMaskPenNot", "pmMergeNotPen", "pmMaskNotPen",
                                     "pmMerge", "pmNotMerge", "pmMask", "pmNotMask", "pmXor", "pmNotXor"});
    return Type;
}

TPropertyValue TypeTraits<TPenMode>::ToValue(TPenMode Mode)
{
    std::int64_t Ordinal = 0;
    while (ModesByOrdinal[Ordinal] != Mode)
        ++Ordinal;
    return Ordinal;
}

TPenMode TypeTraits<TPenMode>::FromValue(const TPropertyValue& Value)
{
    return ModesByOrdinal[std::get<std::int64_t>(Value) & 15];
}

const TClass& TPen::StaticClass()
{
    static const TClass Class = DefineClass<TPen, TGraphicsObject>(
        "TPen", {
                    Published<&TPen::GetColor, &TPen::SetColor>("Color").Default(clBlack),
                    Published<&TPen::GetMode, &TPen::SetMode>("Mode").Default(
                        std::get<std::int64_t>(TypeTraits<TPenMode>::ToValue(TPenMode::pmCopy))),
                    Published<&TPen::GetStyle, &TPen::SetStyle>("Style").Default(TPenStyle::psSolid),
                    Published<&TPen::GetWidth, &TPen::SetWidth>("Width").Default(1),
                });
    return Class;
}

void TPen::SetWidth(int Value)
{
    if (Value >= 0)
        SetField(FWidth, Value);
}

void TPen::Assign(const TPersistent* Source)
{
    const TPen* const Other = As<TPen>(Source);
    if (!Other) {
        TPersistent::Assign(Source);
        return;
    }
    const bool Differs = FColor != Other->FColor || FMode != Other->FMode || FStyle != Other->FStyle ||
                         FWidth != Other->FWidth;
    FColor = Other->FColor;
    FMode = Other->FMode;
    FStyle = Other->FStyle;
    FWidth = Other->FWidth;
    if (Differs)
        Changed();
}

TPenState TPen::GetState() const
{
    return {FStyle, FWidth, ColorToPixel(FColor)};
}

} // namespace vcl
