#include "KSTimeView/view/ViewFixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

/// Every event that the view raises, noted with what it carries; the sender is always the view.
class TTimeViewEvents : public TTimeViewTest
{
protected:
    TTimeViewEvents()
    {
        View().OnChangeBeginWork = DayEvent("begin work");
        View().OnChangeEndWork = DayEvent("end work");
        View().OnNewDay = DayEvent("new day");
        View().OnDeletion = ItemEvent("deletion");
        View().OnItemClick = ItemEvent("click");
        View().OnItemDblClick = ItemEvent("double click");
        View().OnSelectionChanged = TimesEvent("selection");
        View().OnAllDaySelectionChanged = TimesEvent("all-day selection");
        View().OnTimeScaleChanged = [this](vcl::TObject* Sender) { Note(Sender, "time scale"); };
    }
    ~TTimeViewEvents() override { View().OnDeletion = nullptr; }

    std::vector<std::string> TakeLog() { return std::exchange(FLog, {}); }

private:
    void Note(vcl::TObject* Sender, const std::string& What)
    {
        EXPECT_EQ(Sender, FView) << What;
        FLog.push_back(What);
    }
    TKSTVDayChangedEvent DayEvent(const std::string& Name)
    {
        return [this, Name](vcl::TObject* Sender, TKSTimeviewDay* Day) {
            Note(Sender, Name + " " + vcl::IntToStr(static_cast<int>(Day->GetDate() - Monday)));
        };
    }
    TKSTVItemNotifyEvent ItemEvent(const std::string& Name)
    {
        return [this, Name](vcl::TObject* Sender, TKSTimeViewItem* Item) {
            Note(Sender, Name + " " + Item->GetCaption());
        };
    }
    TKSTVSelectionChangedEvent TimesEvent(const std::string& Name)
    {
        return [this, Name](vcl::TObject* Sender, vcl::TDateTime Start, vcl::TDateTime End) {
            Note(Sender, Name + " " + std::to_string(static_cast<int>((Start - Monday) * 24)) + " to " +
                             std::to_string(static_cast<int>((End - Monday) * 24)));
        };
    }

    std::vector<std::string> FLog;
};

TEST_F(TTimeViewEvents, OfDaysTellWhichDay)
{
    Show();
    View().SetDateRange(Monday + 1, 2);
    EXPECT_THAT(TakeLog(), ElementsAre("new day 1", "new day 2"));
    View().AddDate(Monday + 5);
    EXPECT_THAT(TakeLog(), ElementsAre("new day 5"));
    Day(1).SetBeginWork(0.25);
    Day(2).SetEndWork(0.5);
    EXPECT_THAT(TakeLog(), ElementsAre("begin work 2", "end work 5"));
    Day(1).SetShowWorkingHours(true);
    View().DeleteDate(Monday + 5);
    View().DeleteDatesRange(Monday, Monday + 1);
    EXPECT_THAT(TakeLog(), IsEmpty());
}

TEST_F(TTimeViewEvents, OfItemsTellWhichItem)
{
    Show();
    Add(9, 10, false, "Lunch");
    TKSTimeViewItem* const Other = Add(12, 13, false, "Other");
    Windows().MouseDoubleClick(Window(), {300, 440});
    EXPECT_THAT(TakeLog(), ElementsAre("click Lunch", "double click Lunch"));
    Other->Delete();
    EXPECT_THAT(TakeLog(), ElementsAre("deletion Other"));
    View().GetItems()->Clear();
    EXPECT_THAT(TakeLog(), ElementsAre("deletion Lunch"));
}

TEST_F(TTimeViewEvents, OfSelectionsTellTheTimesWhenTheyChange)
{
    View().SetTimeSelection(Monday + 0.5, Monday + 0.75);
    View().SetTimeSelection(Monday + 0.5, Monday + 0.75);
    EXPECT_THAT(TakeLog(), ElementsAre("selection 12 to 18"));
    View().SetAllDaySelection(Monday, Monday + 2);
    View().SetAllDaySelection(Monday, Monday + 2);
    EXPECT_THAT(TakeLog(), ElementsAre("all-day selection 0 to 48"));
    EXPECT_EQ(View().GetSelectedStart(), Monday + 0.5);
    EXPECT_EQ(View().GetSelectedEnd(), Monday + 0.75);
    EXPECT_EQ(View().GetAllDaySelectionStart(), Monday);
    EXPECT_EQ(View().GetAllDaySelectionEnd(), Monday + 2);
    View().SetRulerMarkMinutes(TKSTVRulerMarkMinutes::rmm5Minutes);
    EXPECT_THAT(TakeLog(), ElementsAre("time scale"));
}

} // namespace
