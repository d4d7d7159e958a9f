#include "vcl/graphics/ScrollInfo.h"

#include <algorithm>
#include <climits>

namespace vcl
{

int TScrollBarModel::GetLastPos() const
{
    return static_cast<int>(FMax - std::max<std::int64_t>(std::int64_t{FPage} - 1, 0));
}

bool TScrollBarModel::CanScroll() const
{
    return GetLastPos() > FMin;
}

int TScrollBarModel::SetInfo(const TScrollInfo& Info)
{
    if (Info.Mask & SIF_RANGE) {
        const std::int64_t Extent = std::int64_t{Info.Max} - Info.Min;
        const bool IsUsable = Extent >= 0 && Extent <= INT_MAX;
        FMin = IsUsable ? Info.Min : 0;
        FMax = IsUsable ? Info.Max : 0;
    }
    if (Info.Mask & SIF_PAGE)
        FPage = Info.Page;
    if (Info.Mask & SIF_POS)
        FPos = Info.Pos;
    Normalize();
    if (Info.Mask & (SIF_RANGE | SIF_PAGE))
        Show((Info.Mask & SIF_DISABLENOSCROLL) != 0);
    return FPos;
}

void TScrollBarModel::GetInfo(TScrollInfo& Info) const
{
    if (Info.Mask & SIF_RANGE) {
        Info.Min = FMin;
        Info.Max = FMax;
    }
    if (Info.Mask & SIF_PAGE)
        Info.Page = FPage;
    if (Info.Mask & SIF_POS)
        Info.Pos = FPos;
    if (Info.Mask & SIF_TRACKPOS)
        Info.TrackPos = GetTrackPos();
}

int TScrollBarModel::SetPos(int Value)
{
    const int Previous = FPos;
    FPos = Value;
    Normalize();
    return Previous;
}

void TScrollBarModel::SetRange(int Min, int Max)
{
    SetInfo({SIF_RANGE, Min, Max, 0, 0, 0});
}

void TScrollBarModel::BeginTracking(int TrackPos)
{
    FTracking = true;
    FTrackPos = std::clamp(TrackPos, FMin, std::max(FMin, GetLastPos()));
}

void TScrollBarModel::Normalize()
{
    const std::int64_t Extent = std::int64_t{FMax} - FMin + 1;
    FPage = static_cast<unsigned>(std::min<std::int64_t>(FPage, Extent));
    FPos = std::clamp(FPos, FMin, std::max(FMin, GetLastPos()));
}

void TScrollBarModel::Show(bool DisableNoScroll)
{
    FEnabled = CanScroll() || !DisableNoScroll;
    FVisible = CanScroll() || DisableNoScroll;
}

} // namespace vcl
