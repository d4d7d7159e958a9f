// Text layout with any text, rectangle and flags: it ends, stays inside the text, and never splits a code
// point.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "vcl/graphics/TextLayout.h"
#include "vcl/system/CodePage.h"

namespace
{

class TMeasure : public vcl::ITextMeasure
{
public:
    int LineHeight() override { return 12; }
    int ExternalLeading() override { return 2; }
    int AveCharWidth() override { return 7; }
    int Width(std::string_view Text) override
    {
        std::vector<int> All;
        Extents(Text, All);
        return All.empty() ? 0 : All.back();
    }
    // Widths differ by character, some are 0, so that prefixes and sums do not go together.
    void Extents(std::string_view Text, std::vector<int>& Extents) override
    {
        Extents.clear();
        for (std::size_t Offset = 0; Offset < Text.size();) {
            const char32_t Point = vcl::DecodeUtf8(Text, Offset);
            Extents.push_back((Extents.empty() ? 0 : Extents.back()) + static_cast<int>(Point % 13));
        }
    }
};

template <class T>
T Take(const std::uint8_t*& Data, std::size_t& Size)
{
    T Value{};
    const std::size_t Count = std::min(Size, sizeof Value);
    std::memcpy(&Value, Data, Count);
    Data += Count;
    Size -= Count;
    return Value;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size)
{
    const auto Flags = Take<std::uint32_t>(Data, Size);
    vcl::TRect Rect;
    Rect.Left = Take<std::int16_t>(Data, Size);
    Rect.Top = Take<std::int16_t>(Data, Size);
    Rect.Right = Rect.Left + Take<std::int16_t>(Data, Size);
    Rect.Bottom = Rect.Top + Take<std::int16_t>(Data, Size);
    vcl::TDrawTextParams Params;
    Params.TabLength = Take<std::int8_t>(Data, Size);
    Params.LeftMargin = Take<std::int8_t>(Data, Size);
    Params.RightMargin = Take<std::int8_t>(Data, Size);
    const vcl::AnsiString Text = vcl::AnsiToUtf8({reinterpret_cast<const char*>(Data), Size});

    TMeasure Measure;
    const vcl::TTextLayout Layout = vcl::LayoutText(Measure, Text, Rect, Flags, Params);
    if (Layout.Lines.size() > Text.size() + 1 || Layout.LengthDrawn > static_cast<int>(Text.size()))
        std::abort();
    for (const vcl::TTextLine& Line : Layout.Lines) {
        for (const vcl::TTextPiece& Piece : Line.Pieces) {
            if (!vcl::IsValidUtf8(Piece.Text) || Piece.Underline >= static_cast<int>(Piece.Text.size()))
                std::abort();
        }
    }
    if (!vcl::IsValidUtf8(Layout.Modified))
        std::abort();
    return 0;
}
