#pragma once

#include "vcl/controls/Edit.h"

namespace vcl
{

/// An edit for a whole number, with buttons that step it.
class TSpinEdit : public TCustomEdit
{
    VCL_CLASS
public:
    explicit TSpinEdit(TComponent* Owner);

    /// False: the buttons alone change the value.
    bool GetEditorEnabled() const { return FEditorEnabled; }
    void SetEditorEnabled(bool Value);
    int GetIncrement() const { return FIncrement; }
    void SetIncrement(int Value);
    /// Unless MinValue is below MaxValue any number is allowed.
    int GetMaxValue() const { return FMaxValue; }
    void SetMaxValue(int Value);
    int GetMinValue() const { return FMinValue; }
    void SetMinValue(int Value);
    /// Clamped to the range.
    int GetValue() const { return FValue; }
    void SetValue(int Value);
    /// A text that is no number sets the least value.
    void SetText(const AnsiString& Value) override;

protected:
    void ApplyState() override;
    void Loaded() override;
    void PeerNotice(TPeerNotice Notice, std::int64_t Index) override;

private:
    int Clamped(int Value) const;
    void RangeChanged();
    void ShowRange();

    bool FEditorEnabled = true;
    int FIncrement = 1;
    int FMaxValue = 0;
    int FMinValue = 0;
    int FValue = 0;
};

} // namespace vcl
