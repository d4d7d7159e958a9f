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

    int GetIncrement() const { return FIncrement; }
    void SetIncrement(int Value);
    /// MinValue = MaxValue: any number.
    int GetMaxValue() const { return FMaxValue; }
    void SetMaxValue(int Value);
    int GetMinValue() const { return FMinValue; }
    void SetMinValue(int Value);
    /// Clamped to the range.
    int GetValue() const { return FValue; }
    void SetValue(int Value);

protected:
    void ApplyState() override;
    void PeerNotice(TPeerNotice Notice, std::int64_t Index) override;

private:
    int Clamped(int Value) const;

    int FIncrement = 1;
    int FMaxValue = 0;
    int FMinValue = 0;
    int FValue = 0;
};

} // namespace vcl
