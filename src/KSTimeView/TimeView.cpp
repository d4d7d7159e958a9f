// The life of a view and its properties.

#include "KSTimeView/TimeView.h"

#include <algorithm>

#include "KSTimeView/TimeViewHostAdapter.h"
#include "KSTimeView/TimeViewMarks.h"
#include "KSTimeView/painting/Clock.h"
#include "vcl/controls/Program.h"
#include "vcl/platform/Platform.h"
#include "vcl/platform/System.h"
#include "vcl/platform/WindowStyles.h"
#include "vcl/system/DateTime.h"

namespace
{

constexpr int InitialWidth = 320;
constexpr int InitialHeight = 240;
constexpr int ShortestSpan = 5; // minutes of an item, and of working hours
constexpr int LongestDragResolution = 60;

/// Pixel values far beyond any screen count as these, so that sums stay numbers.
constexpr int LargestMeasure = 1 << 20;
constexpr int LargestOffset = 1 << 29;

int Measure(int Value)
{
    return std::clamp(Value, -LargestMeasure, LargestMeasure);
}

const TKSTVOptions InitialOptions{TKSTVOption::tvoTimeSelection,       TKSTVOption::tvoMutipleDaySelection,
                                  TKSTVOption::tvoItemsSelection,      TKSTVOption::tvoShowDaysGapCover,
                                  TKSTVOption::tvoAutoTimeScaleAdjust, TKSTVOption::tvoItemsBelowMark,
                                  TKSTVOption::tvoItemsAboveMark};

const TKSTVDragOptions AllDrags{TKSTVDragOption::doBeginWork, TKSTVDragOption::doEndWork,
                                TKSTVDragOption::doItemStart, TKSTVDragOption::doItemStartToOtherDay,
                                TKSTVDragOption::doItemEnd,   TKSTVDragOption::doItemEndToOtherDay,
                                TKSTVDragOption::doItem,      TKSTVDragOption::doItemToOtherDay};

} // namespace

TKSTimeView::TKSTimeView(vcl::TComponent* Owner)
    : TCustomControl(Owner), FHost(std::make_unique<THost>(*this)),
      FDays(std::make_unique<timeview::TTimeViewDays>(*FHost)),
      FItems(vcl::New<TKSTimeViewItems>(FHost.get())), FRulerFont(std::make_unique<vcl::TFont>()),
      FImagesLink(std::make_unique<vcl::TChangeLink>()), FItemsAboveMark(std::make_unique<vcl::TBitmap>()),
      FItemsBelowMark(std::make_unique<vcl::TBitmap>()), FOptions(InitialOptions), FDragOptions(AllDrags)
{
    const auto Redraw = [this](vcl::TObject*) { Invalidate(); };
    FRulerFont->SetName("Arial");
    FRulerFont->OnChange = Redraw;
    FImagesLink->OnChange = Redraw;
    LoadMarks();
    FItemsAboveMark->OnChange = Redraw;
    FItemsBelowMark->OnChange = Redraw;
    SetBounds(GetLeft(), GetTop(), InitialWidth, InitialHeight);
    FDays->SetFirstDate(vcl::Date());
    FDays->AllocDays(1);
    CalcDisplay();
    UpdateVScrollBar();
}

TKSTimeView::~TKSTimeView()
{
    // Items reach the view while they go, so they go first; the virtual calls were made in BeforeDestruction.
    delete FItems;
}

void TKSTimeView::BeforeDestruction()
{
    // Here what descendants override is still reached.
    vcl::RunGuarded(this, [this] { HideItemEditor(true); });
    FItems->FreeItems();
    TCustomControl::BeforeDestruction();
}

void TKSTimeView::LoadMarks()
{
    RegisterTimeViewMarks();
    FItemsAboveMark->LoadFromResourceName("ITEMS_ABOVE_BITMAP");
    FItemsBelowMark->LoadFromResourceName("ITEMS_BELOW_BITMAP");
    FItemsAboveMark->SetTransparent(true);
    FItemsBelowMark->SetTransparent(true);
}

timeview::TViewGeometry TKSTimeView::Geometry() const
{
    timeview::TViewGeometry Result;
    const vcl::TRect Client = GetClientRect();
    Result.ClientWidth = Client.Width();
    Result.ClientHeight = Client.Height();
    Result.RulerWidth = Measure(FRulerWidth);
    Result.CaptionHeight = Measure(FCaptionHeight);
    Result.RulerMarkHeight = Measure(FRulerMarkHeight);
    Result.DaysGapWidth = Measure(FDaysGapWidth);
    Result.TotalScaleHeight = FTotalScaleHeight;
    Result.ScrollOffset = std::clamp(FScrollOffset, -LargestOffset, LargestOffset);
    Result.ShowRuler = FShowRuler;
    Result.ShowTopSpace = FShowTopSpace;
    Result.ShowDaysGapCover = FOptions.Contains(TKSTVOption::tvoShowDaysGapCover);
    return Result;
}

void TKSTimeView::SetImages(vcl::TCustomImageList* Value)
{
    if (FImages == Value)
        return;
    FImages = Value;
    FImagesLink->Follow(Value, *this);
    Invalidate();
}

void TKSTimeView::Notification(vcl::TComponent* Component, vcl::TOperation Operation)
{
    TCustomControl::Notification(Component, Operation);
    if (Operation != vcl::TOperation::opRemove || Component != FImages)
        return;
    FImages = nullptr;
    Invalidate();
}

void TKSTimeView::SetOptions(TKSTVOptions Value)
{
    SetLook(FOptions, Value);
}

void TKSTimeView::SetCustomDrawOptions(TKSTVCustomDrawOptions Value)
{
    SetLook(FCustomDrawOptions, Value);
}

void TKSTimeView::SetRulerMarkHeight(int Value)
{
    if (FRulerMarkHeight == Value)
        return;
    FRulerMarkHeight = Value;
    FTotalScaleHeight = timeview::TotalScaleHeight(GetMarksMinutes(), Measure(Value));
    UpdateVScrollBar();
    Invalidate();
}

void TKSTimeView::SetRulerMarkMinutes(TKSTVRulerMarkMinutes Value)
{
    if (FRulerMarkMinutes == Value)
        return;
    FRulerMarkMinutes = Value;
    const int Minutes = GetMarksMinutes();
    FTotalScaleHeight = timeview::TotalScaleHeight(Minutes, Measure(FRulerMarkHeight));
    if (FOptions.Contains(TKSTVOption::tvoAutoTimeScaleAdjust))
        FSelectResolution = FItemDragResolution = FMinItemLength = FMinWorkingHours = Minutes;
    UpdateVScrollBar();
    Invalidate();
    OnTimeScaleChanged(this);
}

void TKSTimeView::CMFontChanged(vcl::TMessage& Message)
{
    TCustomControl::CMFontChanged(Message);
    Invalidate();
}

void TKSTimeView::SetSelectResolution(int Value)
{
    FSelectResolution = std::max(Value, 1);
}

void TKSTimeView::SetItemDragResolution(int Value)
{
    FItemDragResolution = std::clamp(Value, 1, LongestDragResolution);
}

void TKSTimeView::SetItemsSnap(int Value)
{
    FItemsSnap = std::max(Value, 1);
}

void TKSTimeView::SetMinItemLength(int Value)
{
    FMinItemLength = std::max(Value, ShortestSpan);
}

void TKSTimeView::SetMinWorkingHours(int Value)
{
    FMinWorkingHours = std::max(Value, ShortestSpan);
}

void TKSTimeView::SetBorderStyle(vcl::TBorderStyle Value)
{
    if (FBorderStyle == Value)
        return;
    FBorderStyle = Value;
    RecreateWnd();
}

void TKSTimeView::CreateParams(vcl::TCreateParams& Params)
{
    TCustomControl::CreateParams(Params);
    Params.Style |= vcl::WS_VSCROLL;
    if (FBorderStyle != vcl::TBorderStyle::bsSingle)
        return;
    if (vcl::Platform().System().NewStyleControls() && GetCtl3D())
        Params.ExStyle |= vcl::WS_EX_CLIENTEDGE;
    else
        Params.Style |= vcl::WS_BORDER;
}

void TKSTimeView::DestroyWnd()
{
    // What was asked for while there was a window is still laid out for it.
    FDays->EnsureLayout();
    TCustomControl::DestroyWnd();
}

void TKSTimeView::LoseHandle()
{
    FAutoScroll = timeview::TAutoScrollZone::None;
    TCustomControl::LoseHandle();
}

void TKSTimeView::CMCtl3DChanged(vcl::TMessage& Message)
{
    TCustomControl::CMCtl3DChanged(Message);
    if (FBorderStyle == vcl::TBorderStyle::bsSingle)
        RecreateWnd();
}

void TKSTimeView::SetSelectedItem(TKSTimeViewItem* Value)
{
    // An item on its way out would leave a dangling selection behind.
    if (FSelectedItem == Value || (Value && (Value->GetTimeView() != this || !Value->IsStaying())))
        return;
    FSelectedItem = Value;
    Invalidate();
}

void TKSTimeView::SetTimeSelection(vcl::TDateTime Start, vcl::TDateTime End)
{
    if (FSelectedStart == Start && FSelectedEnd == End)
        return;
    FSelectedStart = Start;
    FSelectedEnd = End;
    Invalidate();
    OnSelectionChanged(this, Start, End);
}

void TKSTimeView::SetAllDaySelection(vcl::TDateTime Start, vcl::TDateTime End)
{
    if (FAllDaySelectionStart == Start && FAllDaySelectionEnd == End)
        return;
    FAllDaySelectionStart = Start;
    FAllDaySelectionEnd = End;
    Invalidate();
    OnAllDaySelectionChanged(this, Start, End);
}

TKSTimeviewDay* TKSTimeView::NewDay(vcl::TDateTime Date)
{
    return vcl::New<TKSTimeviewDay>(FDays.get(), Date);
}

TKSTimeviewDay* TKSTimeView::GetOverDay(int X, int) const
{
    return FDays->GetOverDay(X);
}

bool TKSTimeView::ExistsOnDay(vcl::TDateTime Date, bool AllDay) const
{
    return std::any_of(FItems->begin(), FItems->end(), [&](const TKSTimeViewItem* Item) {
        return Item->GetAllDay() == AllDay && Item->AppearsOnDay(Date);
    });
}

void TKSTimeView::LoadFromStream(vcl::TStream& Stream)
{
    const vcl::TAliveGuard Guard(*this);
    const auto Attach = [&] {
        if (!Guard.IsAlive())
            return;
        FItems->ReattachToDays();
        CalcDisplay();
    };
    try {
        FItems->ReadData(Stream);
    } catch (...) {
        // The items read so far stay, so they show.
        Attach();
        throw;
    }
    Attach();
}

void TKSTimeView::SaveToFile(const vcl::AnsiString& FileName) const
{
    vcl::TFileStream Stream(FileName, vcl::fmCreate);
    SaveToStream(Stream);
}

void TKSTimeView::LoadFromFile(const vcl::AnsiString& FileName)
{
    vcl::TFileStream Stream(FileName, vcl::fmOpenRead);
    LoadFromStream(Stream);
}

void TKSTimeView::Invalidate()
{
    if (!FItems || !FItems->IsUpdating())
        TCustomControl::Invalidate();
}

void TKSTimeView::DrawClock(vcl::TCanvas* Canvas, const vcl::TRect& Rect, vcl::TTime Time) const
{
    timeview::DrawClock(*Canvas, Rect, Time);
}

void TKSTimeView::Delete(TKSTimeViewItem* Item)
{
    OnDeletion(this, Item);
}

void TKSTimeView::EditItem(TKSTimeViewItem*, TKSTimeviewDay*)
{
}

void TKSTimeView::HideItemEditor(bool)
{
}
