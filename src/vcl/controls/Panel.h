#pragma once

#include <algorithm>

#include "vcl/controls/CustomControl.h"

namespace vcl
{

enum class TPanelBevel { bvNone, bvLowered, bvRaised, bvSpace };
template <>
struct TypeTraits<TPanelBevel> {
    static const TTypeInfo& Info();
};

/// A surface that holds other controls, with up to two bevels around it and a caption in the middle.
class TPanel : public TCustomControl
{
    VCL_CLASS
public:
    explicit TPanel(TComponent* Owner);

    TAlignment GetAlignment() const { return FAlignment; }
    void SetAlignment(TAlignment Value) { Change(FAlignment, Value); }
    TPanelBevel GetBevelInner() const { return FBevelInner; }
    void SetBevelInner(TPanelBevel Value) { Change(FBevelInner, Value); }
    TPanelBevel GetBevelOuter() const { return FBevelOuter; }
    void SetBevelOuter(TPanelBevel Value) { Change(FBevelOuter, Value); }
    /// Pixels of each bevel, at least 1.
    int GetBevelWidth() const { return FBevelWidth; }
    void SetBevelWidth(int Value) { Change(FBevelWidth, std::max(Value, 1)); }
    TBorderStyle GetBorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(TBorderStyle Value);
    /// Pixels between the two bevels.
    int GetBorderWidth() const { return FBorderWidth; }
    void SetBorderWidth(int Value) { Change(FBorderWidth, std::max(Value, 0)); }
    /// Kept for form files: a panel that is resized is always painted whole. So are Locked and
    /// ParentBackground.
    bool GetFullRepaint() const { return FFullRepaint; }
    void SetFullRepaint(bool Value) { FFullRepaint = Value; }
    bool GetLocked() const { return FLocked; }
    void SetLocked(bool Value) { FLocked = Value; }
    bool GetParentBackground() const { return FParentBackground; }
    void SetParentBackground(bool Value) { FParentBackground = Value; }

protected:
    void CreateParams(TCreateParams& Params) override;
    void Paint() override;
    void AdjustClientRect(TRect& Rect) override;
    void CMTextChanged(TMessage& Message) override;
    void CMCtl3DChanged(TMessage& Message) override;

private:
    template <class T>
    void Change(T& Field, T Value)
    {
        if (Field == Value)
            return;
        Field = Value;
        Realign();
        Invalidate();
    }
    void PaintBevel(TRect& Rect, TPanelBevel Bevel);

    TAlignment FAlignment = TAlignment::taCenter;
    TPanelBevel FBevelInner = TPanelBevel::bvNone;
    TPanelBevel FBevelOuter = TPanelBevel::bvRaised;
    int FBevelWidth = 1;
    TBorderStyle FBorderStyle = TBorderStyle::bsNone;
    int FBorderWidth = 0;
    bool FFullRepaint = true;
    bool FLocked = false;
    bool FParentBackground = true;
};

} // namespace vcl
