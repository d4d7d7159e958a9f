#include "vcl/controls/Label.h"

namespace vcl
{

namespace
{

char32_t FoldAscii(char32_t Key)
{
    return Key >= 'A' && Key <= 'Z' ? Key - 'A' + 'a' : Key;
}

} // namespace

TTextAlign TextAlignOf(TAlignment Alignment)
{
    switch (Alignment) {
    case TAlignment::taRightJustify:
        return TTextAlign::Right;
    case TAlignment::taCenter:
        return TTextAlign::Center;
    case TAlignment::taLeftJustify:
        break;
    }
    return TTextAlign::Left;
}

bool IsAccel(char32_t Key, const AnsiString& Text)
{
    for (std::size_t Index = 0; Index + 1 < Text.size(); ++Index) {
        if (Text[Index] != '&')
            continue;
        ++Index;
        if (Text[Index] != '&')
            return FoldAscii(static_cast<unsigned char>(Text[Index])) == FoldAscii(Key);
    }
    return false;
}

const TClass& TLabel::StaticClass()
{
    static const TClass Class = DefineClass<TLabel, TPeerControl>(
        "TLabel",
        {
            Publish("Align"),
            Published<&TLabel::GetAlignment, &TLabel::SetAlignment>("Alignment")
                .Default(TAlignment::taLeftJustify),
            Publish("Anchors"),
            Publish("AutoSize").Default(true),
            Publish("BiDiMode"),
            Publish("Caption"),
            Publish("Color"),
            Publish("Constraints"),
            Publish("Enabled"),
            Published<&TLabel::GetFocusControl, &TLabel::SetFocusControl>("FocusControl"),
            Publish("Font"),
            Publish("ParentBiDiMode"),
            Publish("ParentColor"),
            Publish("ParentFont"),
            Publish("ParentShowHint"),
            Publish("PopupMenu"),
            Published<&TLabel::GetShowAccelChar, &TLabel::SetShowAccelChar>("ShowAccelChar").Default(true),
            Publish("ShowHint"),
            Published<&TLabel::GetTransparent, &TLabel::SetTransparent>("Transparent").Default(false),
            Publish("Visible"),
            Published<&TLabel::GetWordWrap, &TLabel::SetWordWrap>("WordWrap").Default(false),
            Publish("OnClick"),
            Publish("OnDblClick"),
            Publish("OnMouseDown"),
            Publish("OnMouseMove"),
            Publish("OnMouseUp"),
        });
    return Class;
}

TLabel::TLabel(TComponent* Owner) : TPeerControl(Owner, TWindowKind::Label, {65, 17})
{
    SetAutoSize(true);
}

template <class T>
void TLabel::Change(T& Field, T Value)
{
    if (Field == Value)
        return;
    Field = Value;
    if (Peer()) {
        ApplyState();
        AdjustSize();
    }
}

void TLabel::SetAlignment(TAlignment Value)
{
    Change(FAlignment, Value);
}

void TLabel::SetFocusControl(TWinControl* Value)
{
    FFocusControl = Value;
    if (Value)
        Value->FreeNotification(this);
}

void TLabel::SetShowAccelChar(bool Value)
{
    Change(FShowAccelChar, Value);
}

void TLabel::SetTransparent(bool Value)
{
    Change(FTransparent, Value);
}

void TLabel::SetWordWrap(bool Value)
{
    Change(FWordWrap, Value);
}

void TLabel::ApplyState()
{
    ILabelPeer* const Label = Peer()->Label();
    Label->SetAlignment(TextAlignOf(FAlignment));
    Label->SetWordWrap(FWordWrap);
    Label->SetOpaque(!FTransparent && !GetParentColor());
    Label->SetShowAccelerator(FShowAccelChar);
}

void TLabel::Notification(TComponent* Component, TOperation Operation)
{
    TPeerControl::Notification(Component, Operation);
    if (Operation == TOperation::opRemove && Component == FFocusControl)
        FFocusControl = nullptr;
}

void TLabel::CMDialogChar(TMessage& Message)
{
    if (FFocusControl && GetEnabled() && FShowAccelChar && FFocusControl->CanFocus() &&
        IsAccel(static_cast<char32_t>(Message.WParam), GetCaption())) {
        FFocusControl->SetFocus();
        Message.Result = 1;
        return;
    }
    TPeerControl::CMDialogChar(Message);
}

} // namespace vcl
