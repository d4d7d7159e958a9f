#pragma once

#include <memory>
#include <optional>

#include "KSTimeView/TimeViewEvents.h"
#include "KSTimeView/interaction/MouseSteps.h"
#include "KSTimeView/layout/TimeScale.h"
#include "KSTimeView/layout/VerticalScroll.h"
#include "KSTimeView/model/TimeViewDays.h"
#include "KSTimeView/model/TimeViewItems.h"
#include "KSTimeView/model/TimeviewDay.h"
#include "KSTimeView/painting/TimeViewLook.h"
#include "vcl/controls/CustomControl.h"
#include "vcl/graphics/Bitmap.h"
#include "vcl/graphics/ImageList.h"

/// A day planner: a ruler of hours, a column for each day, all-day items above them.
///
///     TKSTimeView* View = vcl::New<TKSTimeView>(Form);
///     View->SetParent(Form);
///     View->SetAlign(vcl::TAlign::alClient);
///     View->SetDateRange(vcl::Date(), 7);
///     View->GetItems()->Add("Lunch", vcl::Date() + 0.5, vcl::Date() + 0.5625, false);
///
/// It owns its items, days, ruler font and mark bitmaps; the image list stays its owner's. Nothing is laid
/// out before the view has a window.
class TKSTimeView : public vcl::TCustomControl
{
    VCL_CLASS
public:
    explicit TKSTimeView(vcl::TComponent* Owner);
    ~TKSTimeView() override;

    // Published properties
    vcl::TFont* GetRulerFont() const { return FRulerFont.get(); }
    void SetRulerFont(const vcl::TFont* Value) { FRulerFont->Assign(Value); }
    vcl::TCustomImageList* GetImages() const { return FImages; }
    void SetImages(vcl::TCustomImageList* Value);
    /// Position of the scroll bar in pixels of the scale. Values outside what can be scrolled are clamped;
    /// while the whole scale is visible there is no upper limit.
    int GetVScrollPosition() const;
    void SetVScrollPosition(int Value);
    TKSTVOptions GetOptions() const { return FOptions; }
    void SetOptions(TKSTVOptions Value);
    TKSTVHintsOptions GetHintsOptions() const { return FHintsOptions; }
    void SetHintsOptions(TKSTVHintsOptions Value) { FHintsOptions = Value; }
    TKSTVCustomDrawOptions GetCustomDrawOptions() const { return FCustomDrawOptions; }
    void SetCustomDrawOptions(TKSTVCustomDrawOptions Value);
    bool GetCustomEditing() const { return FCustomEditing; }
    void SetCustomEditing(bool Value) { FCustomEditing = Value; }
    TKSTVDragOptions GetDragOptions() const { return FDragOptions; }
    void SetDragOptions(TKSTVDragOptions Value) { FDragOptions = Value; }
    /// Pixels of a ruler mark and of an all-day row. The all-day area follows with the next layout.
    int GetRulerMarkHeight() const { return FRulerMarkHeight; }
    void SetRulerMarkHeight(int Value);
    vcl::TColor GetDaysGapColor() const { return FDaysGapColor; }
    void SetDaysGapColor(vcl::TColor Value) { SetLook(FDaysGapColor, Value); }
    vcl::TColor GetDaysGapCoverColor() const { return FDaysGapCoverColor; }
    void SetDaysGapCoverColor(vcl::TColor Value) { SetLook(FDaysGapCoverColor, Value); }
    /// Pixels of the strip at the left edge of each day, which items keep clear of.
    int GetDaysGapWidth() const { return FDaysGapWidth; }
    void SetDaysGapWidth(int Value) { SetMeasure(FDaysGapWidth, Value, false); }
    vcl::TColor GetTimeLinesColor() const { return FTimeLinesColor; }
    void SetTimeLinesColor(vcl::TColor Value) { SetLook(FTimeLinesColor, Value); }
    int GetCaptionHeight() const { return FCaptionHeight; }
    void SetCaptionHeight(int Value) { SetMeasure(FCaptionHeight, Value, true); }
    /// Setting it is SetDateRange: 1 to 31.
    int GetDaysCount() const { return FDays->GetCount(); }
    void SetDaysCount(int Value) { SetDateRange(GetDate(), Value); }
    bool GetShowRuler() const { return FShowRuler; }
    void SetShowRuler(bool Value) { SetMeasure(FShowRuler, Value, false); }
    bool GetShowTopSpace() const { return FShowTopSpace; }
    void SetShowTopSpace(bool Value) { SetMeasure(FShowTopSpace, Value, true); }
    bool GetShowTimeLines() const { return FShowTimeLines; }
    void SetShowTimeLines(bool Value) { SetLook(FShowTimeLines, Value); }
    int GetRulerWidth() const { return FRulerWidth; }
    void SetRulerWidth(int Value) { SetMeasure(FRulerWidth, Value, false); }
    vcl::TColor GetRulerColor() const { return FRulerColor; }
    void SetRulerColor(vcl::TColor Value) { SetLook(FRulerColor, Value); }
    vcl::TColor GetRulerMarksColor() const { return FRulerMarksColor; }
    void SetRulerMarksColor(vcl::TColor Value) { SetLook(FRulerMarksColor, Value); }
    /// With tvoAutoTimeScaleAdjust the resolutions and the shortest lengths become the minutes of a mark.
    TKSTVRulerMarkMinutes GetRulerMarkMinutes() const { return FRulerMarkMinutes; }
    void SetRulerMarkMinutes(TKSTVRulerMarkMinutes Value);
    vcl::TDate GetDate() const { return FDays->GetDate(); }
    /// Setting another date keeps the number of days, at most 31.
    void SetDate(vcl::TDate Value)
    {
        if (Value != GetDate())
            SetDateRange(Value, GetDaysCount());
    }
    /// Minutes; below 1 becomes 1.
    int GetSelectResolution() const { return FSelectResolution; }
    void SetSelectResolution(int Value);
    /// Minutes, clamped to 1..60.
    int GetItemDragResolution() const { return FItemDragResolution; }
    void SetItemDragResolution(int Value);
    vcl::TColor GetItemSelectionColor() const { return FItemSelectionColor; }
    void SetItemSelectionColor(vcl::TColor Value) { SetLook(FItemSelectionColor, Value); }
    vcl::TColor GetTimeSelectionColor() const { return FTimeSelectionColor; }
    void SetTimeSelectionColor(vcl::TColor Value) { SetLook(FTimeSelectionColor, Value); }
    vcl::TColor GetAllDaySelectionColor() const { return FAllDaySelectionColor; }
    void SetAllDaySelectionColor(vcl::TColor Value) { SetLook(FAllDaySelectionColor, Value); }
    vcl::TColor GetWorkingHoursColor() const { return FWorkingHoursColor; }
    void SetWorkingHoursColor(vcl::TColor Value) { SetLook(FWorkingHoursColor, Value); }
    /// Minutes; below 1 becomes 1.
    int GetItemsSnap() const { return FItemsSnap; }
    void SetItemsSnap(int Value);
    /// Minutes; below 5 becomes 5.
    int GetMinItemLength() const { return FMinItemLength; }
    void SetMinItemLength(int Value);
    int GetMinWorkingHours() const { return FMinWorkingHours; }
    void SetMinWorkingHours(int Value);
    vcl::TBitmap* GetItemsAboveMark() const { return FItemsAboveMark.get(); }
    void SetItemsAboveMark(const vcl::TBitmap* Value) { FItemsAboveMark->Assign(Value); }
    vcl::TBitmap* GetItemsBelowMark() const { return FItemsBelowMark.get(); }
    void SetItemsBelowMark(const vcl::TBitmap* Value) { FItemsBelowMark->Assign(Value); }
    vcl::TColor GetTopSpaceColor() const { return FTopSpaceColor; }
    void SetTopSpaceColor(vcl::TColor Value) { SetLook(FTopSpaceColor, Value); }
    /// -1: none.
    int GetPrivateImageIndex() const { return FPrivateImageIndex; }
    void SetPrivateImageIndex(int Value) { SetLook(FPrivateImageIndex, Value); }
    int GetReminderImageIndex() const { return FReminderImageIndex; }
    void SetReminderImageIndex(int Value) { SetLook(FReminderImageIndex, Value); }
    vcl::TBorderStyle GetBorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(vcl::TBorderStyle Value);
    bool GetReadOnly() const { return FReadOnly; }
    void SetReadOnly(bool Value) { FReadOnly = Value; }
    /// False: scrolling goes by whole marks.
    bool GetSmoothScroll() const { return FSmoothScroll; }
    void SetSmoothScroll(bool Value) { FSmoothScroll = Value; }
    bool GetCreateOnType() const { return FCreateOnType; }
    void SetCreateOnType(bool Value) { FCreateOnType = Value; }
    vcl::TColor GetAllDayItemSelectionColor() const { return FAllDayItemSelectionColor; }
    void SetAllDayItemSelectionColor(vcl::TColor Value) { SetLook(FAllDayItemSelectionColor, Value); }
    /// Formats of FormatDateTime; the longest that fits the column is used.
    const vcl::AnsiString& GetLongCaptionFormat() const { return FLongCaptionFormat; }
    void SetLongCaptionFormat(const vcl::AnsiString& Value) { SetLook(FLongCaptionFormat, Value); }
    const vcl::AnsiString& GetMediumCaptionFormat() const { return FMediumCaptionFormat; }
    void SetMediumCaptionFormat(const vcl::AnsiString& Value) { SetLook(FMediumCaptionFormat, Value); }
    const vcl::AnsiString& GetShortCaptionFormat() const { return FShortCaptionFormat; }
    void SetShortCaptionFormat(const vcl::AnsiString& Value) { SetLook(FShortCaptionFormat, Value); }

    // Public properties
    TKSTimeViewItems* GetItems() const { return FItems; }
    /// The item with the selection; null for none. Items of other views are ignored.
    TKSTimeViewItem* GetSelectedItem() const { return FSelectedItem; }
    void SetSelectedItem(TKSTimeViewItem* Value);
    /// The item under in-place editing; null for none.
    TKSTimeViewItem* GetEditedItem() const { return FEditedItem; }
    /// The selected time, dates with times; -1 and -1 for none. Setting it raises OnSelectionChanged.
    vcl::TDateTime GetSelectedStart() const { return FSelectedStart; }
    vcl::TDateTime GetSelectedEnd() const { return FSelectedEnd; }
    void SetTimeSelection(vcl::TDateTime Start, vcl::TDateTime End);
    /// The first and last selected day of the all-day area; -1 and -1 for none. Setting them raises
    /// OnAllDaySelectionChanged.
    vcl::TDateTime GetAllDaySelectionStart() const { return FAllDaySelectionStart; }
    vcl::TDateTime GetAllDaySelectionEnd() const { return FAllDaySelectionEnd; }
    void SetAllDaySelection(vcl::TDateTime Start, vcl::TDateTime End);
    /// Kept for the program; nothing is drawn below the scale.
    int GetBottomSpace() const { return FBottomSpace; }
    void SetBottomSpace(int Value) { SetMeasure(FBottomSpace, Value, true); }
    vcl::TColor GetBottomSpaceColor() const { return FBottomSpaceColor; }
    void SetBottomSpaceColor(vcl::TColor Value) { SetLook(FBottomSpaceColor, Value); }

    // Days
    /// Exception "Index out of range" outside 0..DaysCount-1. Writing replaces the entry; the day that stood
    /// there is the caller's to free.
    TKSTimeviewDay* GetDay(int Index) const { return FDays->GetDay(Index); }
    void SetDay(int Index, TKSTimeviewDay* Value) { FDays->SetDay(Index, Value); }
    /// A day of this view that does not stand in its list yet; for SetDay.
    TKSTimeviewDay* NewDay(vcl::TDateTime Date);
    void SetDateRange(vcl::TDateTime Date, int Count) { FDays->SetDateRange(Date, Count); }
    /// Adds a day in order of dates, without any limit to their number. Null when the date exists.
    TKSTimeviewDay* AddDate(vcl::TDateTime Date) { return FDays->AddDate(Date); }
    /// Takes a day away; the last one stays.
    void DeleteDate(vcl::TDateTime Date) { FDays->DeleteDate(Date); }
    void AddDatesRange(vcl::TDateTime First, vcl::TDateTime Last) { FDays->AddDatesRange(First, Last); }
    void DeleteDatesRange(vcl::TDateTime First, vcl::TDateTime Last) { FDays->DeleteDatesRange(First, Last); }
    bool DayExists(vcl::TDateTime Date) const { return FDays->DayExists(Date); }
    /// Exception "Invalid date" when Date is negative.
    TKSTimeviewDay* GetDayFromDate(vcl::TDateTime Date) const { return FDays->GetDayFromDate(Date); }
    /// The day under a point; Y is not used. See TTimeViewDays::GetOverDay.
    TKSTimeviewDay* GetOverDay(int X, int Y) const;
    /// True when some timed item, or some all-day item, appears on Date.
    bool ItemExistOnDay(vcl::TDateTime Date) const { return ExistsOnDay(Date, false); }
    bool AllDayItemExistOnDay(vcl::TDateTime Date) const { return ExistsOnDay(Date, true); }

    // Geometry; pixels in the client area
    /// Minutes of a ruler mark.
    int GetMarksMinutes() const { return timeview::MarksMinutes(FRulerMarkMinutes); }
    int GetTotalScaleHeight() const { return FTotalScaleHeight; }
    int GetScrollOffset() const { return FScrollOffset; }
    /// Height of the all-day area as laid out, and as shown.
    int GetTopSpace() const { return FDays->GetTopSpace(); }
    int GetEffectiveTopSpace() const { return FShowTopSpace ? GetTopSpace() : 0; }
    /// See timeview::TTimeScale.
    int TimeToPos(vcl::TTime Time, int Resolution) const;
    vcl::TTime PosToTime(int Y, int Resolution, bool Nearest) const;
    /// Lays out days and items; without a window, and while the items are being updated, nothing happens.
    void CalcDisplay() { FDays->CalcDisplay(); }
    void UpdateVScrollBar();
    /// Scrolls up until the top of a timed item shows. Items below are not scrolled to.
    void ScrollInView(TKSTimeViewItem* Item, TKSTimeviewDay* Day);

    // Items in streams and files
    void SaveToStream(vcl::TStream& Stream) const { FItems->WriteData(Stream); }
    void LoadFromStream(vcl::TStream& Stream);
    void SaveToFile(const vcl::AnsiString& FileName) const;
    void LoadFromFile(const vcl::AnsiString& FileName);

    // Painting
    /// While the items are being updated nothing happens.
    void Invalidate() override;
    /// Paints a clock face on any canvas.
    void DrawClock(vcl::TCanvas* Canvas, const vcl::TRect& Rect, vcl::TTime Time) const;

    // Events
    TKSTVDayChangedEvent OnChangeBeginWork;
    TKSTVDayChangedEvent OnChangeEndWork;
    TKSTVDayChangedEvent OnNewDay;
    TKSTVItemNotifyEvent OnDeletion;
    vcl::TNotifyEvent OnTimeScaleChanged;
    TKSTVDayDragEvent OnDragBeginWork;
    TKSTVDayDragEvent OnDragEndWork;
    TKSTVSelectionChangedEvent OnSelectionChanged;
    TKSTVSelectionChangedEvent OnAllDaySelectionChanged;
    TKSTVItemDragEvent OnDragItemStart;
    TKSTVItemDragEvent OnDragItemEnd;
    TKSTVItemDragEvent OnDragItem;
    TKSTVItemChangedEvent OnItemClick;
    TKSTVItemChangedEvent OnItemDblClick;
    TKSTVSelectionHintEvent OnSelectionHint;
    TKSTVSelectionHintEvent OnAllDaySelectionHint;
    TKSTVItemDragHintEvent OnItemStartDragHint;
    TKSTVItemDragHintEvent OnItemEndDragHint;
    TKSTVWorkingHoursDragHintEvent OnBeginWorkDragHint;
    TKSTVWorkingHoursDragHintEvent OnEndWorkDragHint;
    TKSTVDrawCaptionEvent OnDrawCaption;
    TKSTVDrawItemEvent OnDrawItem;
    TKSTVDrawRulerEvent OnDrawRuler;
    TKSTVDrawDayEvent OnDrawDay;
    TKSTVDrawTopSpaceEvent OnDrawTopSpace;
    TKSTVEditingItemEvent OnEditingItem;
    TKSTVEditedItemEvent OnEditedItem;
    TKSTVCreateOnTypeEvent OnCreateOnType;
    TKSTVItemNotifyEvent OnCreatedOnType;
    TKSTVGetEditRectEvent OnGetEditRect;
    TKSTVItemToAllDayEvent OnDragItemToAllDay;
    TKSTVItemToAllDayEvent OnDragItemFromAllDay;

    /// An attached item is being freed; raises OnDeletion.
    virtual void Delete(TKSTimeViewItem* Item);
    /// Edits an item in place on one of its days. Without an in-place editor there is nothing to open.
    virtual void EditItem(TKSTimeViewItem* Item, TKSTimeviewDay* Day);
    /// Closes the in-place editor, taking over its text or not. Without one nothing happens.
    virtual void HideItemEditor(bool Accept);

    void BeforeDestruction() override;

protected:
    /// Scrolls on while the pointer is near an edge of the scale during a mouse operation.
    void HandleAutoScrolling(int X, int Y);
    void KillAutoScrolling();
    /// Edits the selected item in half a second unless the button is used until then.
    void StartEditDelay();
    /// Auto-scrolling moved the scale below the pointer: the operation under way goes on there.
    virtual void ContinueOperation(timeview::TMouseOperation Operation, int X, int Y);
    /// Mouse operations under way.
    timeview::TOperationFlags FOperations;

    void Loaded() override;
    void Paint() override;
    void CreateParams(vcl::TCreateParams& Params) override;
    void DestroyWnd() override;
    void LoseHandle() override;
    void Notification(vcl::TComponent* Component, vcl::TOperation Operation) override;
    void CMCtl3DChanged(vcl::TMessage& Message) override;
    void CMFontChanged(vcl::TMessage& Message) override;
    void WMSize(vcl::TMessage& Message) override;
    void WMVScroll(vcl::TMessage& Message) override;
    void WMTimer(vcl::TMessage& Message) override;
    void WMGetDlgCode(vcl::TMessage& Message) override;
    bool DoMouseWheelDown(vcl::TShiftState Shift, vcl::TPoint MousePos) override;
    bool DoMouseWheelUp(vcl::TShiftState Shift, vcl::TPoint MousePos) override;
    void MouseDown(vcl::TMouseButton Button, vcl::TShiftState Shift, int X, int Y) override;
    void MouseUp(vcl::TMouseButton Button, vcl::TShiftState Shift, int X, int Y) override;
    void KeyDown(std::uint16_t& Key, vcl::TShiftState Shift) override;

private:
    class THost;
    class TOwnerDraw;

    /// What only shows: store and repaint.
    template <class T>
    void SetLook(T& Field, const T& Value)
    {
        if (Field == Value)
            return;
        Field = Value;
        Invalidate();
    }
    /// What the layout depends on: store, lay out, perhaps adapt the scroll bar, repaint.
    template <class T>
    void SetMeasure(T& Field, T Value, bool MovesScale)
    {
        if (Field == Value)
            return;
        Field = Value;
        CalcDisplay();
        if (MovesScale)
            UpdateVScrollBar();
        Invalidate();
    }
    void LoadMarks();
    timeview::TTimeViewLook Look();
    bool ExistsOnDay(vcl::TDateTime Date, bool AllDay) const;
    timeview::TScrollMetrics ScrollMetrics() const;
    timeview::TViewGeometry Geometry() const;
    void PaintDay(TKSTimeviewDay& Day);
    void DrawItem(TKSTimeviewDay& Day, TKSTimeViewItem* Item);
    void ApplyLoadedScrollPosition();
    void ScrollTo(int Value);
    void ScrollByMarks(int Marks);
    void Scroll(timeview::TScrollRequest Request, int ThumbPosition = 0);
    TKSTimeViewItem* ItemAt(int X, int Y) const;
    void Apply(const timeview::TPressStep& Step);
    TKSTimeviewDay* DayOfSelectedItem() const;
    void AutoScrollTick();
    void EditDelayOver();

    std::unique_ptr<THost> FHost;
    std::unique_ptr<timeview::TTimeViewDays> FDays;
    TKSTimeViewItems* FItems = nullptr; // reached while it empties itself
    std::unique_ptr<vcl::TFont> FRulerFont;
    std::unique_ptr<vcl::TChangeLink> FImagesLink;
    std::unique_ptr<vcl::TBitmap> FItemsAboveMark;
    std::unique_ptr<vcl::TBitmap> FItemsBelowMark;
    vcl::TCustomImageList* FImages = nullptr;
    TKSTimeViewItem* FSelectedItem = nullptr;
    TKSTimeViewItem* FEditedItem = nullptr;
    timeview::TPressState FPress;
    vcl::TDateTime FPressedDate = 0;
    vcl::TDateTime FSelectedStart = -1;
    vcl::TDateTime FSelectedEnd = -1;
    vcl::TDateTime FAllDaySelectionStart = -1;
    vcl::TDateTime FAllDaySelectionEnd = -1;
    vcl::AnsiString FLongCaptionFormat = "dddd d mmmm yyyy";
    vcl::AnsiString FMediumCaptionFormat = "ddd d mmm yy";
    vcl::AnsiString FShortCaptionFormat = "dd/mm/yy";
    std::optional<int> FLoadedScrollPosition; // from a form file, until there is a scale to apply it to
    int FScrollOffset = 0;
    int FBarPosition = 0;
    int FBarTopSpace = 0; // the top space the scroll bar was made for
    int FTotalScaleHeight = 960;
    int FRulerMarkHeight = 20;
    int FDaysGapWidth = 6;
    int FCaptionHeight = 22;
    int FRulerWidth = 50;
    int FBottomSpace = 0;
    int FSelectResolution = 30;
    int FItemDragResolution = 30;
    int FItemsSnap = 15;
    int FMinItemLength = 30;
    int FMinWorkingHours = 30;
    int FPrivateImageIndex = -1;
    int FReminderImageIndex = -1;
    TKSTVOptions FOptions;
    TKSTVHintsOptions FHintsOptions;
    TKSTVCustomDrawOptions FCustomDrawOptions;
    TKSTVDragOptions FDragOptions;
    TKSTVRulerMarkMinutes FRulerMarkMinutes = TKSTVRulerMarkMinutes::rmm30Minutes;
    vcl::TBorderStyle FBorderStyle = vcl::TBorderStyle::bsSingle;
    timeview::TAutoScrollZone FAutoScroll = timeview::TAutoScrollZone::None; // not None: timer 1 runs
    vcl::TColor FDaysGapColor = vcl::clWhite;
    vcl::TColor FDaysGapCoverColor = vcl::clBlue;
    vcl::TColor FTimeLinesColor = vcl::clBtnShadow;
    vcl::TColor FRulerColor = vcl::clBtnFace;
    vcl::TColor FRulerMarksColor = vcl::clBtnShadow;
    vcl::TColor FItemSelectionColor = vcl::clBlue;
    vcl::TColor FTimeSelectionColor = vcl::clHighlight;
    vcl::TColor FAllDaySelectionColor = vcl::clWindow;
    vcl::TColor FWorkingHoursColor = vcl::clWindow;
    vcl::TColor FTopSpaceColor = vcl::clBtnShadow;
    vcl::TColor FAllDayItemSelectionColor = vcl::clWindow;
    vcl::TColor FBottomSpaceColor = vcl::clBtnShadow;
    bool FCustomEditing = false;
    bool FShowRuler = true;
    bool FShowTopSpace = true;
    bool FShowTimeLines = true;
    bool FReadOnly = false;
    bool FSmoothScroll = true;
    bool FCreateOnType = true;
};
