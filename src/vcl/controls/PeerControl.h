#pragma once

#include "vcl/controls/WinControl.h"

namespace vcl
{

/// A control that the platform draws and edits: the base of the standard controls. It holds the values, gives
/// them to the platform's window when that is made, and hears of the user's changes.
class TPeerControl : public TWinControl
{
    VCL_CLASS
protected:
    TPeerControl(TComponent* Owner, TWindowKind Kind, TSize Size);

    void CreateParams(TCreateParams& Params) override;
    void CreateWnd() override;
    /// Gives every value to the window, which has just been made.
    virtual void ApplyState() {}
    bool CanAutoSize(int& NewWidth, int& NewHeight) override;
    void Loaded() override;
    void CMTextChanged(TMessage& Message) override;
    void CMFontChanged(TMessage& Message) override;
    void CMCtl3DChanged(TMessage& Message) override;

    /// The window while there is a handle, else null.
    IWindow* Peer() const { return HandleAllocated() ? GetWindow() : nullptr; }
    /// Takes over what the user typed: nothing is sent back to the platform and no event raised.
    void TakeText(const AnsiString& Text);
    bool IsTakingText() const { return FTakingText; }

private:
    TWindowKind FKind;
    bool FTakingText = false;
};

} // namespace vcl
