#include "vcl/controls/Label.h"

#include "vcl/controls/CharacterCase.h"

namespace vcl
{

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
    std::size_t Index = 0;
    while (Index < Text.size()) {
        if (NextCodePoint(Text, Index) != '&' || Index >= Text.size())
            continue;
        const char32_t Marked = NextCodePoint(Text, Index);
        if (Marked != '&')
            return FoldCase(Marked) == FoldCase(Key);
    }
    return false;
}

const TTypeInfo& TypeTraits<TTextLayout>::Info()
{
    static const TTypeInfo Type = EnumerationType("TTextLayout", {"tlTop", "tlCenter", "tlBottom"});
    return Type;
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
            // What the parent gives it may be anything, so an own colour is always written.
            Publish("Color").NoDefault(),
            Publish("Constraints"),
            Publish("DragCursor"),
            Publish("DragKind"),
            Publish("DragMode"),
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
            Published<&TLabel::GetLayout, &TLabel::SetLayout>("Layout").Default(TTextLayout::tlTop),
            Publish("Visible"),
            Published<&TLabel::GetWordWrap, &TLabel::SetWordWrap>("WordWrap").Default(false),
            Publish("OnClick"),
            Publish("OnDblClick"),
            Publish("OnDragDrop"),
            Publish("OnDragOver"),
            Publish("OnEndDock"),
            Publish("OnEndDrag"),
            Publish("OnMouseDown"),
            Publish("OnMouseMove"),
            Publish("OnMouseUp"),
            Publish("OnStartDock"),
            Publish("OnStartDrag"),
        });
    return Class;
}

TLabel::TLabel(TComponent* Owner) : TPeerControl(Owner, TWindowKind::Label, {65, 17})
{
    SetAutoSize(true);
}

void TLabel::StateChanged()
{
    if (!Peer())
        return;
    ApplyState();
    AdjustSize();
}

void TLabel::AdjustSize()
{
    const int Right = GetLeft() + GetWidth();
    TAliveGuard Guard(*this);
    TPeerControl::AdjustSize();
    // Text that is flush right grows to the left.
    if (Guard.IsAlive() && GetAutoSize() && FAlignment == TAlignment::taRightJustify && !FWordWrap && Peer())
        SetLeft(Right - GetWidth());
}

bool TLabel::CanAutoSize(int& NewWidth, int& NewHeight)
{
    const int Width = NewWidth;
    if (!TPeerControl::CanAutoSize(NewWidth, NewHeight))
        return false;
    // Wrapped text has the width it is given.
    if (FWordWrap)
        NewWidth = Width;
    return true;
}

void TLabel::WndProc(TMessage& Message)
{
    TAliveGuard Guard(*this);
    const unsigned Msg = Message.Msg;
    TPeerControl::WndProc(Message);
    // Only a colour of the label's own is painted.
    if ((Msg == CM_COLORCHANGED || Msg == CM_PARENTCOLORCHANGED) && Guard.IsAlive() && Peer())
        Peer()->Label()->SetOpaque(!FTransparent && !GetParentColor());
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
        Message.Result = 1;
        FFocusControl->SetFocus();
        return;
    }
    TPeerControl::CMDialogChar(Message);
}

} // namespace vcl
