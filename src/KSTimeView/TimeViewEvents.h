#pragma once

#include "KSTimeView/model/TimeViewTypes.h"
#include "vcl/system/Event.h"
#include "vcl/system/Types.h"

class TKSTimeViewItem;
class TKSTimeviewDay;

namespace vcl
{

class TCanvas;

} // namespace vcl

// The events of the time view. Sender is the view. Reference parameters carry results back and hold their
// default before the call.

using TKSTVDayChangedEvent = vcl::TEvent<void(vcl::TObject* Sender, TKSTimeviewDay* Day)>;
using TKSTVItemNotifyEvent = vcl::TEvent<void(vcl::TObject* Sender, TKSTimeViewItem* Item)>;
using TKSTVItemChangedEvent = vcl::TEvent<void(vcl::TObject* Sender, TKSTimeViewItem* Item)>;
using TKSTVDayDragEvent = vcl::TEvent<void(vcl::TObject* Sender, TKSTimeviewDay* Day, TKSTVDragMode Mode)>;
using TKSTVItemDragEvent = vcl::TEvent<void(vcl::TObject* Sender, TKSTimeViewItem* Item, TKSTVDragMode Mode)>;
using TKSTVSelectionChangedEvent =
    vcl::TEvent<void(vcl::TObject* Sender, vcl::TDateTime StartTime, vcl::TDateTime EndTime)>;
using TKSTVSelectionHintEvent =
    vcl::TEvent<void(vcl::TObject* Sender, vcl::TDateTime StartTime, vcl::TDateTime EndTime,
                     vcl::AnsiString& Hint, int& HintWidth)>;
using TKSTVItemDragHintEvent =
    vcl::TEvent<void(vcl::TObject* Sender, TKSTimeViewItem* Item, vcl::TDateTime StartTime,
                     vcl::TDateTime EndTime, vcl::AnsiString& Hint, int& HintWidth)>;
using TKSTVWorkingHoursDragHintEvent =
    vcl::TEvent<void(vcl::TObject* Sender, vcl::TTime StartWork, vcl::TTime EndWork, TKSTimeviewDay* Day,
                     vcl::AnsiString& Hint, int& HintWidth)>;
using TKSTVDrawCaptionEvent = vcl::TEvent<void(vcl::TObject* Sender, vcl::TCanvas* Canvas,
                                               const vcl::TRect& Rect, TKSTimeviewDay* Day)>;
using TKSTVDrawItemEvent = vcl::TEvent<void(vcl::TObject* Sender, vcl::TCanvas* Canvas, TKSTimeViewItem* Item,
                                            const vcl::TRect& Rect)>;
using TKSTVDrawRulerEvent =
    vcl::TEvent<void(vcl::TObject* Sender, vcl::TCanvas* Canvas, const vcl::TRect& Rect, int YOffset)>;
using TKSTVDrawDayEvent = vcl::TEvent<void(vcl::TObject* Sender, vcl::TCanvas* Canvas, TKSTimeviewDay* Day,
                                           const vcl::TRect& Rect, int YOffset)>;
using TKSTVDrawTopSpaceEvent = vcl::TEvent<void(vcl::TObject* Sender, vcl::TCanvas* Canvas,
                                                TKSTimeviewDay* Day, const vcl::TRect& Rect)>;
using TKSTVEditingItemEvent = vcl::TEvent<void(vcl::TObject* Sender, TKSTimeViewItem* Item, bool& CanEdit)>;
using TKSTVEditedItemEvent =
    vcl::TEvent<void(vcl::TObject* Sender, TKSTimeViewItem* Item, vcl::AnsiString& NewText)>;
using TKSTVCreateOnTypeEvent =
    vcl::TEvent<void(vcl::TObject* Sender, vcl::TDateTime StartTime, vcl::TDateTime EndTime, bool AllDayItem,
                     bool& AllowCreation)>;
using TKSTVGetEditRectEvent =
    vcl::TEvent<void(vcl::TObject* Sender, TKSTimeviewDay* Day, TKSTimeViewItem* Item, vcl::TRect& EditRect)>;
using TKSTVItemToAllDayEvent = vcl::TEvent<void(vcl::TObject* Sender, TKSTimeViewItem* Item, bool& CanDrag)>;
