#include "KSTimeView/TimeViewHostAdapter.h"

#include <algorithm>

#include "vcl/controls/Program.h"

void TKSTimeView::THost::RepaintDays(int Left, int Right)
{
    if (!FView.HandleAllocated() || FView.FItems->IsUpdating())
        return;
    const timeview::TViewGeometry Geometry = FView.Geometry();
    // The marks of hidden items stand in the ruler; the bars of a selected item reach into the gap before.
    if (Geometry.ShowRuler)
        FView.InvalidateRect({0, 0, Geometry.RulerWidth, Geometry.ClientHeight}, false);
    const int Reach = std::max(Geometry.DaysGapWidth, 0) + 1;
    FView.InvalidateRect({Left - Reach, 0, Right + Reach, Geometry.ClientHeight}, false);
}

void TKSTimeView::THost::RepaintRect(const vcl::TRect& Rect)
{
    if (FView.HandleAllocated())
        FView.InvalidateRect(Rect, false);
}

void TKSTimeView::THost::ItemDeleting(TKSTimeViewItem* Item)
{
    FView.FPress = timeview::ForgetItem(FView.FPress, Item);
    FView.Delete(Item);
}

void TKSTimeView::THost::ReportFailure(std::exception_ptr Failure)
{
    try {
        std::rethrow_exception(Failure);
    } catch (...) {
        vcl::Program().HandleException(&FView);
    }
}
