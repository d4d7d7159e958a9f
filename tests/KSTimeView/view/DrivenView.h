#pragma once

// A time view whose protected hooks a test drives and whose virtual calls are noted.

#include "KSTimeView/view/ViewFixture.h"

class TDrivenView : public TKSTimeView
{
public:
    using TKSTimeView::FOperations;
    using TKSTimeView::HandleAutoScrolling;
    using TKSTimeView::KillAutoScrolling;
    using TKSTimeView::StartEditDelay;
    using TKSTimeView::TKSTimeView;

    void EditItem(TKSTimeViewItem* Item, TKSTimeviewDay* Day) override
    {
        Log.push_back("edit " + Item->GetCaption() + " on day " + vcl::IntToStr(Day->GetIndex()));
    }
    void HideItemEditor(bool Accept) override
    {
        Log.push_back((Accept ? "hide editor at " : "cancel editor at ") + vcl::IntToStr(GetScrollOffset()));
    }
    void ContinueOperation(timeview::TMouseOperation Operation, int X, int Y) override
    {
        Log.push_back("operation " + vcl::IntToStr(static_cast<int>(Operation)) + " at " + vcl::IntToStr(X) +
                      "," + vcl::IntToStr(Y) + " scrolled to " + vcl::IntToStr(GetScrollOffset()));
    }
    void Invalidate() override
    {
        ++Invalidations;
        TKSTimeView::Invalidate();
    }

    std::vector<std::string> Log;
    int Invalidations = 0;
};

class TDrivenViewTest : public TTimeViewTest
{
protected:
    TDrivenViewTest()
    {
        delete FView;
        FView = FDriven = vcl::New<TDrivenView>(FForm);
        FView->SetDate(Monday);
        FView->SetBorderStyle(vcl::TBorderStyle::bsNone);
        FDriven->Log.clear();
    }
    /// What was noted since the last time.
    std::vector<std::string> TakeLog() { return std::exchange(FDriven->Log, {}); }

    TDrivenView* FDriven;
};
