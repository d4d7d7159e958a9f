#pragma once

#include <functional>
#include <string>
#include <vector>

#include "KSTimeView/model/TimeViewDays.h"
#include "KSTimeView/model/TimeViewItems.h"
#include "KSTimeView/model/TimeviewDay.h"

/// A view without a window system: items, days, and a log of what they asked of the view.
class TFakeView final : public timeview::IViewHost
{
public:
    static constexpr double Monday = 36528; // 3 January 2000

    explicit TFakeView(int DayCount = 1, bool Eager = false)
        : FDays(*this), FItems(vcl::New<TKSTimeViewItems>(this))
    {
        Layout.ClientWidth = 757;
        Layout.ClientHeight = 500;
        FDays.SetEager(Eager);
        FDays.SetFirstDate(Monday);
        FDays.AllocDays(DayCount);
        FDays.CalcDisplay();
        Log.clear();
    }
    ~TFakeView() { delete FItems; }

    TKSTimeView* View() override { return nullptr; }
    timeview::TTimeViewDays& Days() override { return FDays; }
    TKSTimeViewItems& Items() override { return *FItems; }
    vcl::IWindow* Handle() override { return nullptr; }
    bool HasWindow() const override { return Window; }
    timeview::TViewGeometry Geometry() const override { return Layout; }
    void Repaint() override
    {
        if (FItems->IsUpdating())
            return;
        Log.push_back("repaint");
        if (OnRepaint)
            OnRepaint();
    }
    void RepaintDays(int Left, int Right) override
    {
        Ranges.push_back({Left, Right});
        Repaint();
    }
    void RepaintRect(const vcl::TRect& Rect) override
    {
        Log.push_back("repaint " + std::to_string(Rect.Left) + ".." + std::to_string(Rect.Right));
    }
    void UpdateScrollBar() override { Log.push_back("scroll bar"); }
    void PaintDay(TKSTimeviewDay&) override { Log.push_back("paint day"); }
    void DrawItem(TKSTimeviewDay&, TKSTimeViewItem* Item) override
    {
        Log.push_back("draw " + Item->GetCaption());
    }
    void HideItemEditor(bool Accept) override
    {
        Log.push_back(Accept ? "hide editor" : "cancel editor");
        if (OnHideEditor)
            OnHideEditor();
    }
    TKSTimeViewItem* EditedItem() const override { return Editing; }
    void SetEditorColor(vcl::TColor Color) override
    {
        Log.push_back("editor colour " + std::to_string(Color));
    }
    TKSTimeViewItem* SelectedItem() const override { return Selection; }
    void ClearSelectedItem() override
    {
        Log.push_back("clear selection");
        Selection = nullptr;
    }
    bool HasPrivateImage() const override { return PrivateImage; }
    bool HasReminderImage() const override { return ReminderImage; }
    void ItemDeleting(TKSTimeViewItem* Item) override
    {
        Log.push_back("deleting " + Item->GetCaption());
        if (OnDeletion)
            OnDeletion(Item);
    }
    void BeginWorkChanged(TKSTimeviewDay*) override { Log.push_back("begin work"); }
    void EndWorkChanged(TKSTimeviewDay*) override { Log.push_back("end work"); }
    bool WantsNewDays() const override { return OnNewDay != nullptr; }
    void NewDay(TKSTimeviewDay* Day) override
    {
        if (OnNewDay)
            OnNewDay(Day);
    }
    void ReportFailure(std::exception_ptr) override { Log.push_back("failure"); }

    TKSTimeViewItem* Add(double StartHour, double EndHour, bool AllDay = false)
    {
        return FItems->Add("", Monday + StartHour / 24, Monday + EndHour / 24, AllDay);
    }
    void LoseWindow()
    {
        FDays.EnsureLayout();
        Window = false;
    }
    TKSTimeviewDay* Day(int Index) { return FDays.GetDay(Index); }

    timeview::TViewGeometry Layout;
    bool Window = true;
    bool PrivateImage = false;
    bool ReminderImage = false;
    TKSTimeViewItem* Editing = nullptr;
    TKSTimeViewItem* Selection = nullptr;
    std::function<void(TKSTimeViewItem*)> OnDeletion;
    std::function<void(TKSTimeviewDay*)> OnNewDay;
    std::function<void()> OnHideEditor;
    std::function<void()> OnRepaint;
    std::vector<std::string> Log;
    /// Of the repaints that reached some days only.
    std::vector<std::pair<int, int>> Ranges;

private:
    timeview::TTimeViewDays FDays;
    TKSTimeViewItems* FItems; // reached while it empties itself
};
