#pragma once

#include "KSTimeView/TimeView.h"

/// The view as its items and days see it.
class TKSTimeView::THost final : public timeview::IViewHost
{
public:
    explicit THost(TKSTimeView& View) : FView(View) {}

    TKSTimeView* View() override { return &FView; }
    timeview::TTimeViewDays& Days() override { return *FView.FDays; }
    TKSTimeViewItems& Items() override { return *FView.FItems; }
    vcl::IWindow* Handle() override { return FView.GetHandle(); }
    bool HasWindow() const override { return FView.HandleAllocated(); }
    timeview::TViewGeometry Geometry() const override { return FView.Geometry(); }

    void Repaint() override { FView.Invalidate(); }
    void RepaintDays(int Left, int Right) override;
    void RepaintRect(const vcl::TRect& Rect) override;
    void UpdateScrollBar() override { FView.UpdateVScrollBar(); }
    void PaintDay(TKSTimeviewDay& Day) override { FView.PaintDay(Day); }
    void DrawItem(TKSTimeviewDay& Day, TKSTimeViewItem* Item) override { FView.DrawItem(Day, Item); }

    void HideItemEditor(bool Accept) override { FView.HideItemEditor(Accept); }
    TKSTimeViewItem* EditedItem() const override { return FView.FEditedItem; }
    /// Only called while an item is being edited.
    void SetEditorColor(vcl::TColor) override {}
    TKSTimeViewItem* SelectedItem() const override { return FView.FSelectedItem; }
    void ClearSelectedItem() override { FView.SetSelectedItem(nullptr); }
    bool HasPrivateImage() const override { return FView.FImages && FView.FPrivateImageIndex != -1; }
    bool HasReminderImage() const override { return FView.FImages && FView.FReminderImageIndex != -1; }

    void ItemDeleting(TKSTimeViewItem* Item) override;
    void BeginWorkChanged(TKSTimeviewDay* Day) override { FView.OnChangeBeginWork(&FView, Day); }
    void EndWorkChanged(TKSTimeviewDay* Day) override { FView.OnChangeEndWork(&FView, Day); }
    bool WantsNewDays() const override { return static_cast<bool>(FView.OnNewDay); }
    void NewDay(TKSTimeviewDay* Day) override { FView.OnNewDay(&FView, Day); }
    void ReportFailure(std::exception_ptr Failure) override;

private:
    TKSTimeView& FView;
};
