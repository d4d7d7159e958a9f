#pragma once

#include <algorithm>

#include "vcl/graphics/TextLayout.h"

namespace vcl::tests
{

/// Every code point is 9 pixels wide, a line 17 high; counts how many code points were asked about.
class TCellMeasure : public ITextMeasure
{
public:
    int LineHeight() override { return 17; }
    int ExternalLeading() override { return 3; }
    int AveCharWidth() override { return 9; }
    int Width(std::string_view Text) override { return 9 * Count(Text); }
    void Extents(std::string_view Text, std::vector<int>& Extents) override
    {
        Extents.clear();
        for (int Index = Count(Text); Index > 0; --Index)
            Extents.push_back(9 * (static_cast<int>(Extents.size()) + 1));
    }

    long Measured = 0;

private:
    int Count(std::string_view Text)
    {
        const auto Points = std::count_if(Text.begin(), Text.end(), [](char Byte) {
            return (static_cast<unsigned char>(Byte) & 0xC0) != 0x80;
        });
        Measured += Points;
        return static_cast<int>(Points);
    }
};

} // namespace vcl::tests
