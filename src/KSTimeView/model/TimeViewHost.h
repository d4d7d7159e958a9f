#pragma once

#include <exception>

#include "vcl/system/Types.h"

class TKSTimeView;
class TKSTimeViewItem;
class TKSTimeViewItems;
class TKSTimeviewDay;

namespace vcl
{

class IWindow;

} // namespace vcl

namespace timeview
{

class TTimeViewDays;
struct TViewFrame;

/// The properties and state of the view that geometry depends on; pixels.
struct TViewGeometry {
    int ClientWidth = 0;
    int ClientHeight = 0;
    int RulerWidth = 50;
    int CaptionHeight = 22;
    /// Height of a ruler mark and of a row of the all-day area.
    int RulerMarkHeight = 20;
    int DaysGapWidth = 6;
    int TotalScaleHeight = 960;
    int ScrollOffset = 0;
    bool ShowRuler = true;
    bool ShowTopSpace = true;
    bool ShowDaysGapCover = true;
};

/// What items and days know of the view they stand in.
///
/// Calls that raise events may free the view; who makes them looks at a life witness afterwards.
class IViewHost
{
public:
    /// The control; null where items live without one.
    virtual TKSTimeView* View() = 0;
    virtual TTimeViewDays& Days() = 0;
    virtual TKSTimeViewItems& Items() = 0;
    /// The view's window, made when there is none.
    virtual vcl::IWindow* Handle() = 0;
    virtual bool HasWindow() const = 0;
    virtual TViewGeometry Geometry() const = 0;

    virtual void Repaint() = 0;
    /// Timed items of the days between two pixel columns have changed: repaints these and the ruler.
    virtual void RepaintDays(int Left, int Right) = 0;
    virtual void RepaintRect(const vcl::TRect& Rect) = 0;
    virtual void UpdateScrollBar() = 0;
    virtual void PaintDay(TKSTimeviewDay& Day) = 0;
    virtual void DrawItem(TKSTimeviewDay& Day, TKSTimeViewItem* Item) = 0;

    virtual void HideItemEditor(bool Accept) = 0;
    virtual TKSTimeViewItem* EditedItem() const = 0;
    virtual void SetEditorColor(vcl::TColor Color) = 0;
    virtual TKSTimeViewItem* SelectedItem() const = 0;
    virtual void ClearSelectedItem() = 0;
    virtual bool HasPrivateImage() const = 0;
    virtual bool HasReminderImage() const = 0;

    /// An attached item is about to leave; raises OnDeletion.
    virtual void ItemDeleting(TKSTimeViewItem* Item) = 0;
    virtual void BeginWorkChanged(TKSTimeviewDay* Day) = 0;
    virtual void EndWorkChanged(TKSTimeviewDay* Day) = 0;
    virtual bool WantsNewDays() const = 0;
    virtual void NewDay(TKSTimeviewDay* Day) = 0;
    /// A handler failed where the failure cannot go up to the caller.
    virtual void ReportFailure(std::exception_ptr Failure) = 0;

protected:
    ~IViewHost() = default;
};

} // namespace timeview
