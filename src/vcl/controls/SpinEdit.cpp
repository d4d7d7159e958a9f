#include "vcl/controls/SpinEdit.h"

#include <algorithm>

namespace vcl
{

const TClass& TSpinEdit::StaticClass()
{
    static const TClass Class = DefineClass<TSpinEdit, TCustomEdit>(
        "TSpinEdit",
        {
            Publish("Anchors"),
            Publish("AutoSelect"),
            Publish("Color"),
            Publish("Constraints"),
            Publish("Ctl3D"),
            Publish("Enabled"),
            Publish("Font"),
            Published<&TSpinEdit::GetIncrement, &TSpinEdit::SetIncrement>("Increment").Default(1),
            Publish("MaxLength"),
            // The range before the value it clamps.
            Published<&TSpinEdit::GetMaxValue, &TSpinEdit::SetMaxValue>("MaxValue").NoDefault(),
            Published<&TSpinEdit::GetMinValue, &TSpinEdit::SetMinValue>("MinValue").NoDefault(),
            Publish("ParentColor").Default(false),
            Publish("ParentCtl3D"),
            Publish("ParentFont"),
            Publish("ParentShowHint"),
            Publish("PopupMenu"),
            Publish("ReadOnly"),
            Publish("ShowHint"),
            Publish("TabOrder"),
            Publish("TabStop").Default(true),
            Published<&TSpinEdit::GetValue, &TSpinEdit::SetValue>("Value").NoDefault(),
            Publish("Visible"),
            Publish("OnChange"),
            Publish("OnClick"),
            Publish("OnEnter"),
            Publish("OnExit"),
            Publish("OnKeyDown"),
            Publish("OnKeyPress"),
            Publish("OnKeyUp"),
        });
    return Class;
}

TSpinEdit::TSpinEdit(TComponent* Owner) : TCustomEdit(Owner, TWindowKind::SpinEdit)
{
    SetText("0");
}

int TSpinEdit::Clamped(int Value) const
{
    return FMinValue < FMaxValue ? std::clamp(Value, FMinValue, FMaxValue) : Value;
}

void TSpinEdit::SetIncrement(int Value)
{
    FIncrement = Value;
    if (Peer())
        Peer()->Spin()->SetIncrement(Value);
}

void TSpinEdit::SetMaxValue(int Value)
{
    FMaxValue = Value;
    if (Peer())
        Peer()->Spin()->SetRange(FMinValue, FMaxValue);
}

void TSpinEdit::SetMinValue(int Value)
{
    FMinValue = Value;
    if (Peer())
        Peer()->Spin()->SetRange(FMinValue, FMaxValue);
}

void TSpinEdit::SetValue(int Value)
{
    Value = Clamped(Value);
    if (FValue == Value)
        return;
    FValue = Value;
    if (Peer())
        Peer()->Spin()->SetValue(Value);
    TakeText(IntToStr(Value));
}

void TSpinEdit::ApplyState()
{
    ISpinPeer* const Spin = Peer()->Spin();
    Spin->SetRange(FMinValue, FMaxValue);
    Spin->SetIncrement(FIncrement);
    Spin->SetValue(FValue);
}

void TSpinEdit::PeerNotice(TPeerNotice Notice, std::int64_t)
{
    const bool HasChanged = Notice == TPeerNotice::ValueChanged || Notice == TPeerNotice::TextChanged;
    if (!HasChanged || !Peer() || Peer()->Spin()->GetValue() == FValue)
        return;
    FValue = Peer()->Spin()->GetValue();
    TakeText(IntToStr(FValue));
}

} // namespace vcl
