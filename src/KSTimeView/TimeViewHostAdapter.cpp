#include "KSTimeView/TimeViewHostAdapter.h"

#include "vcl/controls/Program.h"

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
