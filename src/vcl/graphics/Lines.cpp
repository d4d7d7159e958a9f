#include "vcl/graphics/Lines.h"

namespace vcl
{

namespace
{

constexpr std::array Dash{18, 6};
constexpr std::array Dot{3, 3};
constexpr std::array DashDot{9, 6, 3, 6};
constexpr std::array DashDotDot{9, 3, 3, 3, 3, 3};

std::span<const int> PatternOf(TPenStyle Style)
{
    switch (Style) {
    case TPenStyle::psDash:
        return Dash;
    case TPenStyle::psDot:
        return Dot;
    case TPenStyle::psDashDot:
        return DashDot;
    case TPenStyle::psDashDotDot:
        return DashDotDot;
    default:
        return {};
    }
}

} // namespace

std::int64_t TThinLine::MinorAt(std::int64_t Major) const
{
    const TAscending Line = Ascending();
    return Line.Minor + static_cast<std::int64_t>(CeilDiv(Line.Numerator(Major), TWide{2} * Line.Length));
}

/// The first step of From .. To at which the minor coordinate, on its way, has reached Minor (Reached) or is
/// below it (not Reached, for falling lines); To when there is none.
std::int64_t TThinLine::FirstStepWhere(bool Reached, std::int64_t Minor) const
{
    std::int64_t Low = From;
    std::int64_t High = To;
    while (Low < High) {
        const std::int64_t Middle = Low + (High - Low) / 2;
        if ((MinorAt(Middle) >= Minor) == Reached)
            High = Middle;
        else
            Low = Middle + 1;
    }
    return Low;
}

void TThinLine::Clip(std::int64_t MajorLow, std::int64_t MajorHigh, std::int64_t MinorLow,
                     std::int64_t MinorHigh, std::int64_t Slack)
{
    From = std::max(From, MajorLow);
    To = std::min(To, MajorHigh);
    MinorLow -= Slack;
    MinorHigh += Slack;
    const auto IsInside = [&](std::int64_t Minor) { return Minor >= MinorLow && Minor < MinorHigh; };
    if (From >= To || (IsInside(MinorAt(From)) && IsInside(MinorAt(To - 1))))
        return;
    const bool Rising = Ascending().Rise >= 0;
    const std::int64_t First = FirstStepWhere(Rising, Rising ? MinorLow : MinorHigh);
    const std::int64_t Last = FirstStepWhere(Rising, Rising ? MinorHigh : MinorLow);
    From = First;
    To = Last;
}

TDashes::TDashes(TPenStyle Style) : FPattern(PatternOf(Style))
{
    for (const int Length : FPattern)
        FPeriod += Length;
}

void TDashes::Advance(std::int64_t Length)
{
    if (!IsSolid())
        FPhase = (FPhase + Length) % FPeriod;
}

TDashes::TPiece TDashes::PieceAt(std::int64_t Distance) const
{
    std::int64_t Offset = (Distance + FPhase) % FPeriod;
    std::size_t Index = 0;
    while (Offset >= FPattern[Index])
        Offset -= FPattern[Index++];
    return {Index % 2 == 0, FPattern[Index] - Offset};
}

} // namespace vcl
