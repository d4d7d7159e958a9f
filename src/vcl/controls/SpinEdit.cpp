#include "vcl/controls/SpinEdit.h"

#include <algorithm>
#include <charconv>

namespace vcl
{

const TClass& TSpinEdit::StaticClass()
{
    static const TClass Class = DefineClass<TSpinEdit, TCustomEdit>(
        "TSpinEdit",
        {
            Publish("Anchors"),
            Publish("AutoSelect"),
            Publish("AutoSize").Default(true),
            Publish("Color"),
            Publish("Constraints"),
            Publish("Ctl3D"),
            Publish("DragCursor"),
            Publish("DragMode"),
            Published<&TSpinEdit::GetEditorEnabled, &TSpinEdit::SetEditorEnabled>("EditorEnabled")
                .Default(true),
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
            Publish("OnDblClick"),
            Publish("OnDragDrop"),
            Publish("OnDragOver"),
            Publish("OnEndDrag"),
            Publish("OnEnter"),
            Publish("OnExit"),
            Publish("OnKeyDown"),
            Publish("OnKeyPress"),
            Publish("OnKeyUp"),
            Publish("OnMouseDown"),
            Publish("OnMouseMove"),
            Publish("OnMouseUp"),
            Publish("OnStartDrag"),
        });
    return Class;
}

TSpinEdit::TSpinEdit(TComponent* Owner) : TCustomEdit(Owner, TWindowKind::SpinEdit)
{
    FControlStyle.Exclude(TControlStyleFlag::csSetCaption);
    TakeText("0");
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

void TSpinEdit::SetEditorEnabled(bool Value)
{
    FEditorEnabled = Value;
    if (Peer())
        Peer()->Edit()->SetReadOnly(GetReadOnly() || !FEditorEnabled);
}

void TSpinEdit::SetMaxValue(int Value)
{
    FMaxValue = Value;
    RangeChanged();
}

void TSpinEdit::SetMinValue(int Value)
{
    FMinValue = Value;
    RangeChanged();
}

void TSpinEdit::ShowRange()
{
    if (!Peer())
        return;
    const bool IsFree = FMinValue >= FMaxValue;
    Peer()->Spin()->SetRange(IsFree ? 0 : FMinValue, IsFree ? 0 : FMaxValue);
}

void TSpinEdit::RangeChanged()
{
    ShowRange();
    // Of a form file the value itself may come first.
    if (!Is(TComponentState::csLoading))
        SetValue(FValue);
}

void TSpinEdit::Loaded()
{
    TCustomEdit::Loaded();
    SetValue(FValue);
}

void TSpinEdit::SetValue(int Value)
{
    if (!Is(TComponentState::csLoading))
        Value = Clamped(Value);
    const AnsiString Text = IntToStr(Value);
    if (FValue == Value && GetText() == Text)
        return;
    FValue = Value;
    if (Peer())
        Peer()->Spin()->SetValue(Value);
    TakeText(Text);
    if (!Is(TComponentState::csLoading))
        Change();
}

void TSpinEdit::SetText(const AnsiString& Value)
{
    if (IsTakingText()) {
        TCustomEdit::SetText(Value);
        return;
    }
    int Number = FMinValue;
    std::from_chars(Value.data(), Value.data() + Value.size(), Number);
    SetValue(Number);
}

void TSpinEdit::ApplyState()
{
    TCustomEdit::ApplyState();
    ShowRange();
    ISpinPeer* const Spin = Peer()->Spin();
    Spin->SetIncrement(FIncrement);
    Spin->SetValue(FValue);
    SetEditorEnabled(FEditorEnabled);
}

void TSpinEdit::PeerNotice(TPeerNotice Notice, std::int64_t)
{
    const bool HasChanged = Notice == TPeerNotice::ValueChanged || Notice == TPeerNotice::TextChanged;
    if (!HasChanged || !Peer() || Peer()->Spin()->GetValue() == FValue)
        return;
    FValue = Peer()->Spin()->GetValue();
    SetModified(true);
    TakeText(IntToStr(FValue));
    Change();
}

} // namespace vcl
