#include "KSTimeView/KSTimeView.h"
#include "gallery/States.h"
#include "vcl/graphics/Canvas.h"
#include "vcl/system/DateTime.h"

namespace gallery
{

namespace
{

constexpr int MorningMarks = 15; // half hours above the first one shown: the view opens at 07:30
constexpr double Hour = 1.0 / 24;

TKSTimeView& ViewOf(TScene& Scene)
{
    return static_cast<TKSTimeView&>(Scene.Control);
}

/// Monday, 16 March 2026.
vcl::TDate Monday()
{
    return vcl::EncodeDate(2026, 3, 16);
}

TKSTimeViewItem* Add(TKSTimeView& View, const char* Caption, int Day, double From, double To,
                     vcl::TColor Color = vcl::clWindow)
{
    const vcl::TDate Date = Monday() + Day;
    TKSTimeViewItem* const Item = View.GetItems()->Add(Caption, Date + From * Hour, Date + To * Hour, false);
    Item->SetColor(Color);
    return Item;
}

void AddAllDay(TKSTimeView& View, const char* Caption, int Day, int Days)
{
    View.GetItems()->Add(Caption, Monday() + Day, Monday() + Day + Days, true);
}

void ShowWorkingHours(TKSTimeView& View)
{
    for (int Index = 0; Index < View.GetDaysCount(); ++Index)
        View.GetDay(Index)->SetShowWorkingHours(true);
}

void OpenInTheMorning(TScene& Scene)
{
    TKSTimeView& View = ViewOf(Scene);
    View.SetVScrollPosition(MorningMarks * View.GetRulerMarkHeight() * 30 / View.GetMarksMinutes());
}

void FillDay(TKSTimeView& View)
{
    View.SetDateRange(Monday(), 1);
    Add(View, "Planning of the spring list", 0, 8.5, 10);
    Add(View, "Call with the printers", 0, 9, 10.5, vcl::TColor(0xD0F0D0));
    Add(View, "Proofs of the map", 0, 9.5, 11, vcl::TColor(0xC8E0FF));
    Add(View, "Lunch with Ana", 0, 12, 13, vcl::TColor(0xFFE8C8));
    Add(View, "Interview", 0, 14, 15.5)->SetShowReminder(true);
    Add(View, "Dentist", 0, 15, 16)->SetPrivateItem(true);
}

void FillWeek(TKSTimeView& View)
{
    FillDay(View);
    View.SetDateRange(Monday(), 7);
    Add(View, "Estimates", 1, 9, 11);
    Add(View, "Paper samples", 1, 10.5, 12, vcl::TColor(0xC8E0FF));
    Add(View, "Workshop", 2, 9, 16.5, vcl::TColor(0xD0F0D0));
    Add(View, "Reading", 3, 13, 14);
    Add(View, "Cover", 3, 13.5, 15.5, vcl::TColor(0xFFE8C8));
    Add(View, "Release", 4, 15, 16);
    Add(View, "Concert", 5, 19, 22);
}

void Empty(TScene& Scene)
{
    ViewOf(Scene).SetDateRange(Monday(), 1);
}

void OneDay(TScene& Scene)
{
    TKSTimeView& View = ViewOf(Scene);
    View.SetImages(&Scene.Images);
    View.SetReminderImageIndex(0);
    View.SetPrivateImageIndex(1);
    FillDay(View);
    ShowWorkingHours(View);
}

void Week(TScene& Scene)
{
    FillWeek(ViewOf(Scene));
    ShowWorkingHours(ViewOf(Scene));
}

void HourMarks(TScene& Scene)
{
    Week(Scene);
    ViewOf(Scene).SetRulerMarkMinutes(TKSTVRulerMarkMinutes::rmm60Minutes);
}

void FiveMinuteMarks(TScene& Scene)
{
    OneDay(Scene);
    ViewOf(Scene).SetRulerMarkMinutes(TKSTVRulerMarkMinutes::rmm5Minutes);
}

void RightToLeft(TScene& Scene)
{
    Week(Scene);
    ViewOf(Scene).SetBiDiMode(vcl::TBiDiMode::bdRightToLeft);
    AddAllDay(ViewOf(Scene), "Fair", 1, 3);
}

void SelectedItem(TScene& Scene)
{
    OneDay(Scene);
    ViewOf(Scene).SetSelectedItem(ViewOf(Scene).GetItems()->GetItem(1));
}

void AllDayRows(TScene& Scene)
{
    Week(Scene);
    TKSTimeView& View = ViewOf(Scene);
    AddAllDay(View, "Fair", 1, 3);
    AddAllDay(View, "Holiday", 3, 1);
    AddAllDay(View, "Ana away", 0, 5);
    AddAllDay(View, "Week-end trip", 5, 2);
}

void OwnerDrawn(TScene& Scene)
{
    OneDay(Scene);
    TKSTimeView& View = ViewOf(Scene);
    View.SetCustomDrawOptions({TKSTVCustomDrawOption::cdoItems, TKSTVCustomDrawOption::cdoCaptions});
    View.OnDrawItem = [](vcl::TObject*, vcl::TCanvas* Canvas, TKSTimeViewItem* Item, const vcl::TRect& Rect) {
        Canvas->GetPen()->SetColor(vcl::TColor(0x806040));
        Canvas->GetPen()->SetStyle(vcl::TPenStyle::psSolid);
        Canvas->GetBrush()->SetStyle(vcl::TBrushStyle::bsSolid);
        Canvas->GetBrush()->SetColor(vcl::TColor(0xF0DCC8));
        Canvas->RoundRect(Rect.Left, Rect.Top, Rect.Right, Rect.Bottom, 12, 12);
        Canvas->GetBrush()->SetStyle(vcl::TBrushStyle::bsClear);
        Canvas->GetFont()->SetColor(vcl::TColor(0x603010));
        Canvas->TextRect(Rect, Rect.Left + 6, Rect.Top + 4, Item->GetCaption());
    };
    View.OnDrawCaption = [](vcl::TObject*, vcl::TCanvas* Canvas, const vcl::TRect& Rect,
                            TKSTimeviewDay* Day) {
        Canvas->GetBrush()->SetStyle(vcl::TBrushStyle::bsSolid);
        Canvas->GetBrush()->SetColor(vcl::TColor(0x806040));
        Canvas->FillRect(Rect);
        Canvas->GetFont()->SetColor(vcl::clWhite);
        const vcl::TDateParts Date = vcl::DecodeDate(Day->GetDate());
        Canvas->TextRect(Rect, Rect.Left + 8, Rect.Top + 3, "Day " + std::to_string(Date.Day));
    };
}

void FiftyOverlapping(TScene& Scene)
{
    TKSTimeView& View = ViewOf(Scene);
    View.SetDateRange(Monday(), 1);
    for (int Index = 0; Index < 50; ++Index) {
        const double Start = 8 + 0.1 * Index;
        Add(View, ("Item " + std::to_string(Index + 1)).c_str(), 0, Start, Start + 5,
            Index % 2 == 0 ? vcl::clWindow : vcl::TColor(0xC8E0FF));
    }
}

} // namespace

std::vector<TState> TimeViewStates()
{
    constexpr const char* Page = "TKSTimeView";
    constexpr TSceneStep Morning = &OpenInTheMorning;
    return {
        {Page, "empty", &Empty},
        {Page, "one-day", &OneDay, Morning},
        {Page, "week", &Week, Morning},
        {Page, "hour-marks", &HourMarks, Morning},
        {Page, "five-minute-marks", &FiveMinuteMarks, Morning},
        {Page, "right-to-left", &RightToLeft, Morning},
        {Page, "selected-item", &SelectedItem, Morning},
        {Page, "all-day-rows", &AllDayRows, Morning},
        {Page, "owner-drawn", &OwnerDrawn, Morning},
        {Page, "narrow", &Week, Morning, 300},
        {Page, "fifty-overlapping", &FiftyOverlapping, Morning},
    };
}

} // namespace gallery
