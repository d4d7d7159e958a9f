#include "vcl/controls/SpeedButton.h"

#include <algorithm>

#include "vcl/controls/Label.h"

namespace vcl
{

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
            Published<&TSpeedButton::GetNumGlyphs, &TSpeedButton::SetNumGlyphs>("NumGlyphs").Default(1),
            Publish("ParentBiDiMode"),
            Publish("ParentFont"),
            Publish("ParentShowHint"),
            Publish("PopupMenu"),
            Publish("ShowHint"),
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
    FControlStyle.Exclude(TControlStyleFlag::csClickEvents);
    FGlyph->OnChange = [this](TObject*) {
        if (Peer())
            ApplyState();
    };
}

void TSpeedButton::SetDown(bool Value)
{
    if (FGroupIndex == 0)
        Value = false;
    if (Value == FDown || (FDown && !FAllowAllUp))
        return;
    FDown = Value;
    if (FDown)
        RaiseOthers();
    if (Peer())
        ApplyState();
}

void TSpeedButton::SetFlat(bool Value)
{
    FFlat = Value;
    if (Peer())
        ApplyState();
}

void TSpeedButton::SetGroupIndex(int Value)
{
    FGroupIndex = Value;
    if (Value == 0)
        FDown = false;
    if (Peer())
        ApplyState();
}

void TSpeedButton::SetNumGlyphs(int Value)
{
    FNumGlyphs = std::clamp(Value, 1, 4);
    if (Peer())
        ApplyState();
}

void TSpeedButton::ApplyState()
{
    IButtonPeer* const Button = Peer()->Button();
    FShownGlyph = TGlyph(*FGlyph, FNumGlyphs);
    Button->SetFlat(FFlat);
    Button->SetCheckable(FGroupIndex != 0);
    Button->SetCheckState(FDown ? TCheckState::Checked : TCheckState::Unchecked);
    Button->SetGlyph(FShownGlyph.Buffer());
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
        if (Peer())
            ApplyState();
    }
    Click();
}

void TSpeedButton::RaiseOthers()
{
    TWinControl* const Site = GetParent();
    for (int Index = 0; Site && Index < Site->GetControlCount(); ++Index) {
        TSpeedButton* const Other = As<TSpeedButton>(Site->GetControl(Index));
        if (!Other || Other == this || Other->FGroupIndex != FGroupIndex || !Other->FDown)
            continue;
        Other->FDown = false;
        if (Other->Peer())
            Other->ApplyState();
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
