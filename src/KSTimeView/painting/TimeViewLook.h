#pragma once

#include "KSTimeView/model/TimeViewTypes.h"
#include "vcl/system/AnsiString.h"
#include "vcl/system/Types.h"

class TKSTimeViewItem;
class TKSTimeviewDay;

namespace vcl
{

class TBitmap;
class TCanvas;
class TControl;
class TCustomImageList;
class TFont;

} // namespace vcl

namespace timeview
{

/// Everything about the view's looks that painting reads; sizes and times are in TViewFrame, days and items
/// in the model.
struct TTimeViewLook {
    vcl::TColor RulerColor = vcl::clBtnFace;
    vcl::TColor RulerMarksColor = vcl::clBtnShadow;
    vcl::TColor DaysGapColor = vcl::clWhite;
    vcl::TColor DaysGapCoverColor = vcl::clBlue;
    vcl::TColor TimeLinesColor = vcl::clBtnShadow;
    vcl::TColor TopSpaceColor = vcl::clBtnShadow;
    vcl::TColor WorkingHoursColor = vcl::clWindow;
    vcl::TColor TimeSelectionColor = vcl::clHighlight;
    vcl::TColor AllDaySelectionColor = vcl::clWindow;
    vcl::TColor ItemSelectionColor = vcl::clBlue;
    vcl::TColor AllDayItemSelectionColor = vcl::clWindow;
    bool ShowTimeLines = true;
    /// The ruler says 9:00 at every hour instead of a large 9 with a small 00.
    bool HourMarks = false;
    bool ShowItemsMarks = true;
    bool RightToLeftReading = false;
    const vcl::TFont* Font = nullptr;
    const vcl::TFont* RulerFont = nullptr;
    vcl::TBitmap* ItemsAboveMark = nullptr;
    vcl::TBitmap* ItemsBelowMark = nullptr;
    const vcl::TCustomImageList* Images = nullptr;
    int PrivateImageIndex = -1;
    int ReminderImageIndex = -1;
    vcl::AnsiString LongCaptionFormat;
    vcl::AnsiString MediumCaptionFormat;
    vcl::AnsiString ShortCaptionFormat;
    /// Start and end; -1 and -1 for none.
    vcl::TDateTime SelectedStart = -1;
    vcl::TDateTime SelectedEnd = -1;
    vcl::TDateTime AllDaySelectionStart = -1;
    vcl::TDateTime AllDaySelectionEnd = -1;
    /// Adapts DT_ flags to the control's reading direction.
    const vcl::TControl* Control = nullptr;
};

/// The program's own drawing. Each call answers whether the program draws this kind of part, and has then
/// done so. Handlers may change or free anything; see Interrupted.
class IOwnerDraw
{
public:
    virtual bool DrawsItems() const = 0;
    /// Whether it draws any part of a day, so that each day must be gone through whatever is visible.
    virtual bool DrawsDays() const = 0;
    virtual bool DrawRuler(const vcl::TRect& Rect, int YOffset) = 0;
    virtual bool DrawDay(TKSTimeviewDay* Day, const vcl::TRect& Rect, int YOffset) = 0;
    virtual bool DrawTopSpace(TKSTimeviewDay* Day, const vcl::TRect& Rect) = 0;
    virtual bool DrawItem(TKSTimeViewItem* Item, const vcl::TRect& Rect) = 0;
    virtual bool DrawCaption(TKSTimeviewDay* Day, const vcl::TRect& Rect) = 0;
    /// True once a handler has freed the view or changed its days: painting must stop without another look at
    /// either.
    virtual bool Interrupted() const = 0;

protected:
    ~IOwnerDraw() = default;
};

} // namespace timeview
