#include "vcl/controls/SpeedButton.h"

#include "vcl/controls/Label.h"

namespace vcl
{

const TTypeInfo& TypeTraits<TButtonLayout>::Info()
{
    static const TTypeInfo Type =
        EnumerationType("TButtonLayout", {"blGlyphLeft", "blGlyphRight", "blGlyphTop", "blGlyphBottom"});
    return Type;
}

const TClass& TSpeedButton::StaticClass()
{
    static const TClass Class = DefineClass<TSpeedButton, TPeerControl>(
        "TSpeedButton",
        {
            Published<&TSpeedButton::GetAllowAllUp, &TSpeedButton::SetAllowAllUp>("AllowAllUp")
                .Default(false),
            Publish("Anchors"),
            Publish("BiDiMode"),
            Publish("Constraints"),
            // Before Down: only a member of a group can be down.
            Published<&TSpeedButton::GetGroupIndex, &TSpeedButton::SetGroupIndex>("GroupIndex").Default(0),
            Published<&TSpeedButton::GetDown, &TSpeedButton::SetDown>("Down").Default(false),
            Publish("Caption"),
            Publish("Enabled"),
            Published<&TSpeedButton::GetFlat, &TSpeedButton::SetFlat>("Flat").Default(false),
            Publish("Font"),
            Published<&TSpeedButton::GetGlyph, &TSpeedButton::SetGlyph>("Glyph"),
            Published<&TSpeedButton::GetLayout, &TSpeedButton::SetLayout>("Layout").Default(
                TButtonLayout::blGlyphLeft),
            Published<&TSpeedButton::GetMargin, &TSpeedButton::SetMargin>("Margin").Default(-1),
            Published<&TSpeedButton::GetNumGlyphs, &TSpeedButton::SetNumGlyphs>("NumGlyphs").Default(1),
            Publish("ParentBiDiMode"),
            Publish("ParentFont"),
            Publish("ParentShowHint"),
            Publish("PopupMenu"),
            Publish("ShowHint"),
            Published<&TSpeedButton::GetSpacing, &TSpeedButton::SetSpacing>("Spacing").Default(4),
            Published<&TSpeedButton::GetTransparent, &TSpeedButton::SetTransparent>("Transparent")
                .Default(true),
            Publish("Visible"),
            Publish("OnClick"),
            Publish("OnDblClick"),
            Publish("OnMouseDown"),
            Publish("OnMouseMove"),
            Publish("OnMouseUp"),
        });
    return Class;
}

TSpeedButton::TSpeedButton(TComponent* Owner)
    : TPeerControl(Owner, TWindowKind::ToolButton, {23, 22}), FGlyph(std::make_unique<TBitmap>())
{
    FControlStyle.Exclude(TControlStyleFlag::csClickEvents).Exclude(TControlStyleFlag::csSetCaption);
    FGlyph->OnChange = [this](TObject*) { ShowGlyph(); };
}

void TSpeedButton::SetAllowAllUp(bool Value)
{
    if (FAllowAllUp == Value)
        return;
    FAllowAllUp = Value;
    UpdateGroup();
}

void TSpeedButton::SetDown(bool Value)
{
    const bool IsLoading = Is(TComponentState::csLoading);
    if (FGroupIndex == 0 && !IsLoading)
        Value = false;
    if (Value == FDown || (FDown && !FAllowAllUp && !IsLoading))
        return;
    FDown = Value;
    ShowDown();
    if (FDown)
        UpdateGroup();
}

void TSpeedButton::SetFlat(bool Value)
{
    FFlat = Value;
    if (Peer())
        Peer()->Button()->SetFlat(Value);
}

void TSpeedButton::SetGlyph(const TBitmap* Value)
{
    FGlyph->Assign(Value);
    const int Height = FGlyph->GetHeight();
    if (Is(TComponentState::csLoading) || Height == 0 || FGlyph->GetWidth() % Height != 0)
        return;
    const int Count = FGlyph->GetWidth() / Height;
    SetNumGlyphs(Count <= 4 ? Count : 1);
}

void TSpeedButton::SetGroupIndex(int Value)
{
    if (FGroupIndex == Value)
        return;
    FGroupIndex = Value;
    if (Value == 0 && !Is(TComponentState::csLoading))
        FDown = false;
    ShowDown();
    UpdateGroup();
}

void TSpeedButton::SetNumGlyphs(int Value)
{
    Value = std::clamp(Value, 1, 4);
    if (FNumGlyphs == Value)
        return;
    FNumGlyphs = Value;
    ShowGlyph();
}

void TSpeedButton::Loaded()
{
    TPeerControl::Loaded();
    if (FGroupIndex == 0)
        FDown = false;
    ShowDown();
    if (FDown)
        UpdateGroup();
}

void TSpeedButton::ApplyState()
{
    Peer()->Button()->SetFlat(FFlat);
    ShowDown();
    ShowGlyph();
}

void TSpeedButton::ShowDown()
{
    if (!Peer())
        return;
    Peer()->Button()->SetCheckable(FGroupIndex != 0);
    Peer()->Button()->SetCheckState(FDown ? TCheckState::Checked : TCheckState::Unchecked);
    if (FNumGlyphs == 4)
        ShowGlyph();
}

void TSpeedButton::ShowGlyph()
{
    if (!Peer())
        return;
    constexpr int DisabledGlyph = 1;
    constexpr int DownGlyph = 3;
    int Index = 0;
    if (!GetEnabled() && FNumGlyphs > DisabledGlyph)
        Index = DisabledGlyph;
    else if (FDown && FNumGlyphs > DownGlyph)
        Index = DownGlyph;
    const TGlyph Glyph(*FGlyph, FNumGlyphs, Index);
    Peer()->Button()->SetGlyph(Glyph.Buffer());
}

void TSpeedButton::CMEnabledChanged(TMessage& Message)
{
    TAliveGuard Guard(*this);
    TPeerControl::CMEnabledChanged(Message);
    if (Guard.IsAlive())
        ShowGlyph();
}

void TSpeedButton::PeerNotice(TPeerNotice Notice, std::int64_t)
{
    if (Notice == TPeerNotice::Clicked)
        Press();
}

void TSpeedButton::Press()
{
    if (FGroupIndex != 0) {
        SetDown(!FDown);
        // The platform toggled the button already: show what the group allows.
        ShowDown();
    }
    Click();
}

/// The others of the group go up when this button is down, and allow all to be up when it does.
void TSpeedButton::UpdateGroup()
{
    TWinControl* const Site = GetParent();
    if (FGroupIndex == 0 || !Site)
        return;
    for (int Index = 0; Index < Site->GetControlCount(); ++Index) {
        TSpeedButton* const Other = As<TSpeedButton>(Site->GetControl(Index));
        if (!Other || Other == this || Other->FGroupIndex != FGroupIndex)
            continue;
        Other->FAllowAllUp = FAllowAllUp;
        if (!FDown || !Other->FDown)
            continue;
        Other->FDown = false;
        Other->ShowDown();
    }
}

void TSpeedButton::CMDialogChar(TMessage& Message)
{
    if (GetEnabled() && GetShowing() && IsAccel(static_cast<char32_t>(Message.WParam), GetCaption())) {
        Message.Result = 1;
        Press();
        return;
    }
    TPeerControl::CMDialogChar(Message);
}

} // namespace vcl
