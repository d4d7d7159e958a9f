#pragma once

#include <string>
#include <vector>

#include "vcl/controls/CustomControl.h"
#include "vcl/controls/Edit.h"

namespace vcl::tests
{

/// A self-drawn control that does a little of everything and notes what happens to it.
class TProbe : public TCustomControl
{
    VCL_CLASS
public:
    explicit TProbe(TComponent* Owner);

    TBorderStyle GetBorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(TBorderStyle Value);
    /// Scroll bars that the window is made with.
    void SetBars(bool Horizontal, bool Vertical);
    /// An edit in the client area, as an in-place editor would be.
    TEdit& AddEdit();

    /// What is to happen in the given place ("MouseDown", "Timer", ...), besides being noted.
    void When(std::string Place, std::function<void()> Action);

    std::vector<std::string> TakeNotes() { return std::exchange(FNotes, {}); }
    void Note(const std::string& Text);

    int WantedDialogCode = 0;
    bool WantsSpecialKeys = false;
    /// Drawn in Paint, when set.
    std::function<void(TCanvas&)> OnPaintProbe;
    /// Messages to note by number; others are not noted.
    std::vector<unsigned> NotedMessages;

    using TCustomControl::RecreateWnd;
    using TWinControl::CreateParams;

    void WndProc(TMessage& Message) override;

protected:
    void CreateParams(TCreateParams& Params) override;
    void Paint() override;
    void Click() override;
    void DblClick() override;
    void MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y) override;
    void MouseMove(TShiftState Shift, int X, int Y) override;
    void MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y) override;
    void KeyDown(std::uint16_t& Key, TShiftState Shift) override;
    void KeyPress(char32_t& Key) override;
    void KeyUp(std::uint16_t& Key, TShiftState Shift) override;
    void DoEnter() override;
    void DoExit() override;
    void Resize() override;
    void CMMouseEnter(TMessage& Message) override;
    void CMMouseLeave(TMessage& Message) override;
    void CMWantSpecialKey(TMessage& Message) override { Message.Result = WantsSpecialKeys ? 1 : 0; }
    void WMGetDlgCode(TMessage& Message) override { Message.Result = WantedDialogCode; }
    void WMTimer(TMessage& Message) override;
    void WMVScroll(TMessage& Message) override;
    void WMHScroll(TMessage& Message) override;
    void WMSize(TMessage& Message) override;

private:
    TBorderStyle FBorderStyle = TBorderStyle::bsNone;
    bool FHorizontalBar = false;
    bool FVerticalBar = false;
    std::vector<std::string> FNotes;
    std::vector<std::pair<std::string, std::function<void()>>> FActions;
};

} // namespace vcl::tests
