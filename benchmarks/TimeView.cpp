// The time view with many appointments: a week of 1400 x 900 pixels as a program shows it.

#include <benchmark/benchmark.h>

#include <malloc.h>
#include <memory>
#include <random>

#include "KSTimeView/KSTimeView.h"
#include "benchmarks/Table.h"
#include "vcl/forms/Form.h"

namespace ks::bench
{

namespace
{

constexpr double Monday = 46027; // 5 January 2026
constexpr int AllDayCount = 20;
constexpr int Width = 1400;
constexpr int Height = 900;
constexpr const char* Caption = "Appointment 12345678";

struct TAppointment {
    double Start;
    double End;
    bool AllDay;
};

/// Appointments of 15 to 120 minutes between six and eight o'clock in the evening, a few of them all-day.
std::vector<TAppointment> Appointments(int Count, double FirstDay, int Days)
{
    std::mt19937 Random(1);
    const auto Below = [&Random](int Limit) {
        return static_cast<int>(Random() % static_cast<unsigned>(Limit));
    };
    std::vector<TAppointment> Result;
    for (int Index = 0; Index < Count; ++Index) {
        const double Day = FirstDay + Below(Days);
        const int Length = 15 + 5 * Below(22);
        const int Start = 6 * 60 + 5 * Below((14 * 60 - Length) / 5 + 1);
        if (Index < AllDayCount)
            Result.push_back({Day, Day + 1, true});
        else
            Result.push_back({Day + Start / 1440.0, Day + (Start + Length) / 1440.0, false});
    }
    return Result;
}

/// A form with a week on it.
class TWeek
{
public:
    TWeek() : FForm(vcl::New<vcl::TForm>(nullptr)), FView(vcl::New<TKSTimeView>(FForm.get()))
    {
        FForm->SetClientSize({Width, Height});
        FView->SetDateRange(Monday, 7);
        FView->SetBorderStyle(vcl::TBorderStyle::bsNone);
        FView->SetBounds(0, 0, Width, Height);
        FView->SetParent(FForm.get());
        FForm->Show();
        FView->Refresh();
    }

    TKSTimeView& View() { return *FView; }
    void Fill(const std::vector<TAppointment>& Items)
    {
        FView->GetItems()->BeginUpdate();
        AddOneByOne(Items);
        FView->GetItems()->EndUpdate();
    }
    void AddOneByOne(const std::vector<TAppointment>& Items)
    {
        for (const TAppointment& Item : Items)
            FView->GetItems()->Add(Caption, Item.Start, Item.End, Item.AllDay);
    }
    void Empty()
    {
        FView->GetItems()->Clear();
        FView->Refresh();
    }

private:
    std::unique_ptr<vcl::TForm> FForm;
    TKSTimeView* FView;
};

/// Measures Action on an empty week; emptying it again is not measured.
template <class TAction>
void RunOnEmptyWeek(benchmark::State& State, TAction&& Action)
{
    TWeek Week;
    for (auto _ : State) {
        Action(Week);
        State.PauseTiming();
        Week.Empty();
        State.ResumeTiming();
    }
}

/// Measures Action on a week with these appointments.
template <class TAction>
void RunOnFullWeek(benchmark::State& State, const std::vector<TAppointment>& Items, TAction&& Action)
{
    TWeek Week;
    Week.Fill(Items);
    Week.View().Refresh();
    for (auto _ : State)
        Action(Week.View());
}

std::vector<TAppointment> FullWeek()
{
    return Appointments(10000, Monday, 7);
}

std::vector<TAppointment> UsualWeek()
{
    return Appointments(1000, Monday, 7);
}

std::vector<TAppointment> Year()
{
    return Appointments(100000, Monday - 180, 365);
}

void FillAndLayOut(benchmark::State& State)
{
    RunOnEmptyWeek(State, [Items = FullWeek()](TWeek& Week) {
        Week.Fill(Items);
        benchmark::DoNotOptimize(Week.View().GetDay(6)->GetColumnCount());
    });
}

void FirstPaint(benchmark::State& State)
{
    RunOnFullWeek(State, FullWeek(), [](TKSTimeView& View) { View.Refresh(); });
}

void FillLayOutAndPaint(benchmark::State& State)
{
    RunOnEmptyWeek(State, [Items = UsualWeek()](TWeek& Week) {
        Week.Fill(Items);
        Week.View().Update();
    });
}

void AddOneByOne(benchmark::State& State)
{
    RunOnEmptyWeek(State, [Items = FullWeek()](TWeek& Week) {
        Week.AddOneByOne(Items);
        benchmark::DoNotOptimize(Week.View().GetDay(6)->GetColumnCount());
    });
}

void FillAYear(benchmark::State& State)
{
    RunOnEmptyWeek(State, [Items = Year()](TWeek& Week) { Week.Fill(Items); });
}

void PaintAWeekOfAYear(benchmark::State& State)
{
    RunOnFullWeek(State, Year(), [](TKSTimeView& View) { View.Refresh(); });
}

void ChangeOne(benchmark::State& State)
{
    RunOnFullWeek(State, FullWeek(), [Longer = false](TKSTimeView& View) mutable {
        TKSTimeViewItem* const Item = View.GetItems()->GetItem(5000);
        Longer = !Longer;
        Item->SetEndTime(Item->GetEndTime() + (Longer ? 0.01 : -0.01));
        View.Update();
    });
}

void ScrollByAMark(benchmark::State& State)
{
    RunOnFullWeek(State, UsualWeek(), [Down = false](TKSTimeView& View) mutable {
        Down = !Down;
        View.SetVScrollPosition(View.GetVScrollPosition() + (Down ? 20 : -20));
        View.Update();
    });
}

void LoadStream(benchmark::State& State)
{
    vcl::TMemoryStream Stream;
    {
        TWeek Source;
        Source.Fill(FullWeek());
        Source.View().SaveToStream(Stream);
    }
    RunOnEmptyWeek(State, [&Stream](TWeek& Week) {
        Stream.SetPosition(0);
        Week.View().LoadFromStream(Stream);
    });
}

double BytesAnItem()
{
    TWeek Week;
    const std::vector<TAppointment> Items = FullWeek();
    const std::size_t Before = mallinfo2().uordblks;
    Week.Fill(Items);
    Week.View().GetTopSpace();
    return static_cast<double>(mallinfo2().uordblks - Before) / static_cast<double>(Items.size());
}

} // namespace

void AddTimeViewCases(TCases& Cases)
{
    const std::string First = "10,000 appointments in a week: fill and lay out";
    Cases.Rows.push_back({.Name = First, .Run = FillAndLayOut, .Reach = 15});
    Cases.Rows.push_back(
        {.Name = "the same, first paint at 1400 x 900", .Run = FirstPaint, .Reach = 45, .Floor = {30000, 0}});
    Cases.Rows.push_back({.Name = "1,000 in the week: fill, lay out, first paint",
                          .Run = FillLayOutAndPaint,
                          .Reach = 16,
                          .Floor = {3000, 100}});
    Cases.Rows.push_back(
        {.Name = "10,000 added one by one", .Run = AddOneByOne, .ReachRow = First, .ReachFactor = 2});
    Cases.Rows.push_back({.Name = "100,000 over a year: fill", .Run = FillAYear, .Reach = 120});
    Cases.Rows.push_back({.Name = "100,000 over a year, a week shown: paint",
                          .Run = PaintAWeekOfAYear,
                          .Reach = 20,
                          .Floor = {6000, 100}});
    Cases.Rows.push_back({.Name = "change one of 10,000: lay out and repaint",
                          .Run = ChangeOne,
                          .Reach = 8,
                          .Floor = {4300, 0}});
    Cases.Rows.push_back({.Name = "scroll by one mark with 1,000 in the week",
                          .Run = ScrollByAMark,
                          .Reach = 4,
                          .Floor = {3000, 100}});
    Cases.Rows.push_back({.Name = "load a stream of 10,000 items", .Run = LoadStream, .Reach = 10});
    Cases.Figures.push_back({.Name = "memory for an item with a caption of 20 characters",
                             .Measure = BytesAnItem,
                             .Reach = 400,
                             .Unit = "bytes"});
}

} // namespace ks::bench
