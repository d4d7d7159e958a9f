#pragma once

#include <memory>

#include "vcl/forms/CustomForm.h"
#include "vcl/forms/FormExtras.h"

namespace vcl
{

/// Key 0 or Handled true: the key goes no further.
using TShortCutEvent = TEvent<void(TObject* Sender, std::uint16_t& Key, TShiftState Shift, bool& Handled)>;

/// The form programs derive theirs from, or load from a form file as it is.
///
/// The properties from AlphaBlend to VertScrollBar stand in many form files; they are kept and written again,
/// and change nothing.
class TForm : public TCustomForm
{
    VCL_CLASS
public:
    explicit TForm(TComponent* Owner);
    ~TForm() override;

    bool GetAlphaBlend() const { return FAlphaBlend; }
    void SetAlphaBlend(bool Value) { FAlphaBlend = Value; }
    std::uint8_t GetAlphaBlendValue() const { return FAlphaBlendValue; }
    void SetAlphaBlendValue(std::uint8_t Value) { FAlphaBlendValue = Value; }
    bool GetAutoScroll() const { return FAutoScroll; }
    void SetAutoScroll(bool Value) { FAutoScroll = Value; }
    int GetBorderWidth() const { return FBorderWidth; }
    void SetBorderWidth(int Value) { FBorderWidth = Value; }
    TDefaultMonitor GetDefaultMonitor() const { return FDefaultMonitor; }
    void SetDefaultMonitor(TDefaultMonitor Value) { FDefaultMonitor = Value; }
    const AnsiString& GetHelpFile() const { return FHelpFile; }
    void SetHelpFile(const AnsiString& Value) { FHelpFile = Value; }
    TControlScrollBar* GetHorzScrollBar() const { return FHorzScrollBar.get(); }
    void SetHorzScrollBar(const TControlScrollBar* Value) { FHorzScrollBar->Assign(Value); }
    TIcon* GetIcon() const { return FIcon.get(); }
    void SetIcon(const TIcon* Value) { FIcon->Assign(Value); }
    TPrintScale GetPrintScale() const { return FPrintScale; }
    void SetPrintScale(TPrintScale Value) { FPrintScale = Value; }
    bool GetScreenSnap() const { return FScreenSnap; }
    void SetScreenSnap(bool Value) { FScreenSnap = Value; }
    int GetSnapBuffer() const { return FSnapBuffer; }
    void SetSnapBuffer(int Value) { FSnapBuffer = Value; }
    bool GetTransparentColor() const { return FTransparentColor; }
    void SetTransparentColor(bool Value) { FTransparentColor = Value; }
    TColor GetTransparentColorValue() const { return FTransparentColorValue; }
    void SetTransparentColorValue(TColor Value) { FTransparentColorValue = Value; }
    TControlScrollBar* GetVertScrollBar() const { return FVertScrollBar.get(); }
    void SetVertScrollBar(const TControlScrollBar* Value) { FVertScrollBar->Assign(Value); }

    bool IsShortCut(std::uint16_t Key, TShiftState Shift) override;

    /// Each key pressed on the form, before the menu and the control with the focus.
    TShortCutEvent OnShortCut;

private:
    std::unique_ptr<TControlScrollBar> FHorzScrollBar;
    std::unique_ptr<TControlScrollBar> FVertScrollBar;
    std::unique_ptr<TIcon> FIcon;
    AnsiString FHelpFile;
    int FBorderWidth = 0;
    int FSnapBuffer = 10;
    TColor FTransparentColorValue = clBlack;
    TDefaultMonitor FDefaultMonitor = TDefaultMonitor::dmActiveForm;
    TPrintScale FPrintScale = TPrintScale::poProportional;
    std::uint8_t FAlphaBlendValue = 255;
    bool FAlphaBlend = false;
    bool FAutoScroll = true;
    bool FScreenSnap = false;
    bool FTransparentColor = false;
};

} // namespace vcl
