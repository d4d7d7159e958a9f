#include "vcl/controls/StatusBar.h"

#include "vcl/controls/Label.h"

namespace vcl
{

const TTypeInfo& TypeTraits<TStatusPanelBevel>::Info()
{
    static const TTypeInfo Type = EnumerationType("TStatusPanelBevel", {"pbNone", "pbLowered", "pbRaised"});
    return Type;
}

const TClass& TStatusPanel::StaticClass()
{
    static const TClass Class = DefineClass<TStatusPanel, TCollectionItem>(
        "TStatusPanel", {
                            Published<&TStatusPanel::GetAlignment, &TStatusPanel::SetAlignment>("Alignment")
                                .Default(TAlignment::taLeftJustify),
                            Published<&TStatusPanel::GetBevel, &TStatusPanel::SetBevel>("Bevel").Default(
                                TStatusPanelBevel::pbLowered),
                            Published<&TStatusPanel::GetText, &TStatusPanel::SetText>("Text"),
                            Published<&TStatusPanel::GetWidth, &TStatusPanel::SetWidth>("Width").NoDefault(),
                        });
    return Class;
}

void TStatusPanel::Assign(const TPersistent* Source)
{
    const TStatusPanel* const Other = As<TStatusPanel>(Source);
    if (!Other) {
        TCollectionItem::Assign(Source);
        return;
    }
    FText = Other->FText;
    FWidth = Other->FWidth;
    FAlignment = Other->FAlignment;
    FBevel = Other->FBevel;
    Changed(false);
}

AnsiString TStatusPanel::GetDisplayName() const
{
    return FText.empty() ? TCollectionItem::GetDisplayName() : FText;
}

const TClass& TStatusPanels::StaticClass()
{
    static const TClass Class = DefineClass<TStatusPanels, TOwnedCollection>("TStatusPanels");
    return Class;
}

TStatusPanels::TStatusPanels(TStatusBar* StatusBar)
    : TOwnedCollection(StatusBar, TStatusPanel::StaticClass()), FStatusBar(StatusBar)
{
}

void TStatusPanels::Update(TCollectionItem*)
{
    FStatusBar->PanelsChanged();
}

const TClass& TStatusBar::StaticClass()
{
    static const TClass Class = DefineClass<TStatusBar, TPeerControl>(
        "TStatusBar",
        {
            Published<&TStatusBar::GetAutoHint, &TStatusBar::SetAutoHint>("AutoHint").Default(false),
            Publish("Align").Default(TAlign::alBottom),
            Publish("Anchors"),
            Publish("BiDiMode"),
            Publish("Color").Default(clBtnFace),
            Publish("Constraints"),
            Publish("DragCursor"),
            Publish("DragKind"),
            Publish("DragMode"),
            Publish("Enabled"),
            Publish("Font").Stored<&TStatusBar::IsOwnFontStored>(),
            Published<&TStatusBar::GetPanels, &TStatusBar::SetPanels>("Panels"),
            Publish("ParentBiDiMode"),
            Publish("ParentColor").Default(false),
            Publish("ParentFont").Default(false),
            Publish("ParentShowHint"),
            Publish("PopupMenu"),
            Publish("ShowHint"),
            Published<&TStatusBar::GetSimplePanel, &TStatusBar::SetSimplePanel>("SimplePanel").Default(false),
            Published<&TStatusBar::GetSimpleText, &TStatusBar::SetSimpleText>("SimpleText"),
            Published<&TStatusBar::GetSizeGrip, &TStatusBar::SetSizeGrip>("SizeGrip").Default(true),
            Published<&TStatusBar::GetUseSystemFont, &TStatusBar::SetUseSystemFont>("UseSystemFont")
                .Default(true),
            Publish("Visible"),
            Publish("OnClick"),
            Publish("OnDblClick"),
            Publish("OnDragDrop"),
            Publish("OnDragOver"),
            Publish("OnEndDock"),
            Publish("OnEndDrag"),
            Publish("OnMouseDown"),
            Publish("OnMouseMove"),
            Publish("OnMouseUp"),
            Publish("OnResize"),
            Publish("OnStartDock"),
            Publish("OnStartDrag"),
        });
    return Class;
}

TStatusBar::TStatusBar(TComponent* Owner)
    : TPeerControl(Owner, TWindowKind::StatusBar, {150, 22}), FPanels(std::make_unique<TStatusPanels>(this))
{
    FControlStyle.Exclude(TControlStyleFlag::csSetCaption);
    SetColor(clBtnFace);
    SetParentFont(false);
    SetAlign(TAlign::alBottom);
}

TStatusBar::~TStatusBar() = default;

void TStatusBar::SetSimplePanel(bool Value)
{
    FSimplePanel = Value;
    PanelsChanged();
}

void TStatusBar::SetSimpleText(const AnsiString& Value)
{
    FSimpleText = Value;
    PanelsChanged();
}

void TStatusBar::SetSizeGrip(bool Value)
{
    FSizeGrip = Value;
    PanelsChanged();
}

void TStatusBar::PanelsChanged()
{
    // The panels go last.
    if (Peer() && !Is(TComponentState::csDestroying))
        ApplyState();
}

void TStatusBar::ApplyState()
{
    IStatusBarPeer* const Bar = Peer()->StatusBar();
    std::vector<TStatusPanelSpec> Specs;
    for (int Index = 0; Index < FPanels->GetCount(); ++Index) {
        const TStatusPanel& Panel = *FPanels->GetItem(Index);
        TStatusPanelSpec Spec;
        Spec.Text = Panel.GetText();
        Spec.Width = Panel.GetWidth();
        Spec.Alignment = TextAlignOf(Panel.GetAlignment());
        Spec.Bevel = static_cast<int>(Panel.GetBevel());
        Specs.push_back(std::move(Spec));
    }
    Bar->SetPanels(Specs);
    Bar->SetSimple(FSimplePanel, FSimpleText);
    Bar->SetSizeGrip(FSizeGrip);
}

} // namespace vcl
