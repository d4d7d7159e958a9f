#pragma once

#include "vcl/controls/PeerControl.h"

namespace vcl
{

/// A push button. On a form, Return clicks the one that is Default and Escape the one that is Cancel; a
/// ModalResult other than 0 closes a modal form.
class TButton : public TPeerControl
{
    VCL_CLASS
public:
    explicit TButton(TComponent* Owner);

    bool GetCancel() const { return FCancel; }
    void SetCancel(bool Value) { FCancel = Value; }
    bool GetDefault() const { return FDefault; }
    void SetDefault(bool Value);
    /// True while Return presses the button: it has the focus, or it is Default and no button has it.
    bool IsActive() const;
    int GetModalResult() const { return FModalResult; }
    void SetModalResult(int Value) { FModalResult = Value; }

    void Click() override;

protected:
    void ApplyState() override;
    void PeerNotice(TPeerNotice Notice, std::int64_t Index) override;
    void CMDialogKey(TMessage& Message) override;
    void CMDialogChar(TMessage& Message) override;
    void CMFocusChanged(TMessage& Message) override;

private:
    void ShowActive();

    int FModalResult = 0;
    bool FCancel = false;
    bool FDefault = false;
};

} // namespace vcl
