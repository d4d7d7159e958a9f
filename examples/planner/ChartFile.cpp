#include "planner/ChartFile.h"

#include <algorithm>
#include <cmath>
#include <filesystem>

namespace planner
{

namespace
{

// Text of half its size is the smallest that reads well on paper.
constexpr double MostShrinking = 2.0;

std::string LowerCase(std::string Text)
{
    std::transform(Text.begin(), Text.end(), Text.begin(),
                   [](char Letter) { return Letter >= 'A' && Letter <= 'Z' ? char(Letter + 32) : Letter; });
    return Text;
}

} // namespace

bool IsChartFile(const std::string& FileName)
{
    const std::string Extension = LowerCase(std::filesystem::path(FileName).extension().string());
    return Extension == ".txt" || Extension == ".tree";
}

std::string ChartTitle(const std::string& FileName, bool Modified)
{
    const std::string Name =
        FileName.empty() ? "New chart" : std::filesystem::path(FileName).filename().string();
    return (Modified ? "*" : "") + Name + " - Chart";
}

std::string WithExtension(const std::string& FileName, const std::string& Extension)
{
    return std::filesystem::path(FileName.empty() ? "chart" : FileName)
        .replace_extension("." + Extension)
        .string();
}

std::string LineEndOf(const std::string& Text)
{
    const std::size_t Feed = Text.find('\n');
    const bool IsBare = Feed != std::string::npos && (Feed == 0 || Text[Feed - 1] != '\r');
    return IsBare ? "\n" : "\r\n";
}

std::string WithLineEnds(const std::string& Text, const std::string& LineEnd)
{
    std::string Result;
    Result.reserve(Text.size());
    for (std::size_t From = 0; From < Text.size();) {
        const std::size_t End = std::min(Text.find("\r\n", From), Text.size());
        Result.append(Text, From, End - From);
        if (End < Text.size())
            Result += LineEnd;
        From = End + 2;
    }
    return Result;
}

vcl::TSize PrintPageFor(vcl::TSize Chart, vcl::TSize Paper)
{
    const double Needed = std::max(static_cast<double>(Chart.Width) / Paper.Width,
                                   static_cast<double>(Chart.Height) / Paper.Height);
    const double Factor = std::clamp(Needed, 1.0, MostShrinking);
    return {static_cast<int>(std::ceil(Paper.Width * Factor)),
            static_cast<int>(std::ceil(Paper.Height * Factor))};
}

std::string BoxCountText(int Count)
{
    return std::to_string(Count) + (Count == 1 ? " box" : " boxes");
}

} // namespace planner
