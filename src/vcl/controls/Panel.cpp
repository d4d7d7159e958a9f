#include "vcl/controls/Panel.h"

#include "vcl/graphics/DrawText.h"
#include "vcl/system/Rects.h"

namespace vcl
{

const TTypeInfo& TypeTraits<TPanelBevel>::Info()
{
    static const TTypeInfo Type =
        EnumerationType("TPanelBevel", {"bvNone", "bvLowered", "bvRaised", "bvSpace"});
    return Type;
}

const TClass& TPanel::StaticClass()
{
    static const TClass Class = DefineClass<TPanel, TCustomControl>(
        "TPanel",
        {
            Publish("Align"),
            Published<&TPanel::GetAlignment, &TPanel::SetAlignment>("Alignment")
                .Default(TAlignment::taCenter),
            Publish("Anchors"),
            Publish("AutoSize"),
            Published<&TPanel::GetBevelInner, &TPanel::SetBevelInner>("BevelInner")
                .Default(TPanelBevel::bvNone),
            Published<&TPanel::GetBevelOuter, &TPanel::SetBevelOuter>("BevelOuter")
                .Default(TPanelBevel::bvRaised),
            Published<&TPanel::GetBevelWidth, &TPanel::SetBevelWidth>("BevelWidth").Default(1),
            Publish("BiDiMode"),
            Published<&TPanel::GetBorderWidth, &TPanel::SetBorderWidth>("BorderWidth").Default(0),
            Published<&TPanel::GetBorderStyle, &TPanel::SetBorderStyle>("BorderStyle")
                .Default(TBorderStyle::bsNone),
            Publish("Caption"),
            Publish("Color").Default(clBtnFace),
            Publish("Constraints"),
            Publish("Ctl3D"),
            Publish("UseDockManager").Default(true),
            Publish("DockSite"),
            Publish("DragCursor"),
            Publish("DragKind"),
            Publish("DragMode"),
            Publish("Enabled"),
            Published<&TPanel::GetFullRepaint, &TPanel::SetFullRepaint>("FullRepaint").Default(true),
            Publish("Font"),
            Published<&TPanel::GetLocked, &TPanel::SetLocked>("Locked").Default(false),
            Publish("ParentBiDiMode"),
            Published<&TPanel::GetParentBackground, &TPanel::SetParentBackground>("ParentBackground")
                .Default(true),
            Publish("ParentColor").Default(false),
            Publish("ParentCtl3D"),
            Publish("ParentFont"),
            Publish("ParentShowHint"),
            Publish("PopupMenu"),
            Publish("ShowHint"),
            Publish("TabOrder"),
            Publish("TabStop"),
            Publish("Visible"),
            Publish("OnCanResize"),
            Publish("OnClick"),
            Publish("OnConstrainedResize"),
            Publish("OnDockDrop"),
            Publish("OnDockOver"),
            Publish("OnDblClick"),
            Publish("OnDragDrop"),
            Publish("OnDragOver"),
            Publish("OnEndDock"),
            Publish("OnEndDrag"),
            Publish("OnEnter"),
            Publish("OnExit"),
            Publish("OnGetSiteInfo"),
            Publish("OnMouseDown"),
            Publish("OnMouseMove"),
            Publish("OnMouseUp"),
            Publish("OnResize"),
            Publish("OnStartDock"),
            Publish("OnStartDrag"),
            Publish("OnUnDock"),
        });
    return Class;
}

TPanel::TPanel(TComponent* Owner) : TCustomControl(Owner)
{
    FWidth = 185;
    FHeight = 41;
    FControlStyle.Include(TControlStyleFlag::csAcceptsControls);
    SetColor(clBtnFace);
    SetUseDockManager(true);
}

void TPanel::CreateParams(TCreateParams& Params)
{
    TCustomControl::CreateParams(Params);
    if (FBorderStyle == TBorderStyle::bsSingle) {
        if (GetCtl3D())
            Params.ExStyle |= WS_EX_CLIENTEDGE;
        else
            Params.Style |= WS_BORDER;
    }
}

void TPanel::SetBorderStyle(TBorderStyle Value)
{
    if (FBorderStyle == Value)
        return;
    FBorderStyle = Value;
    RecreateWnd();
}

void TPanel::AdjustClientRect(TRect& Rect)
{
    TCustomControl::AdjustClientRect(Rect);
    int Inset = FBorderWidth;
    if (FBevelInner != TPanelBevel::bvNone)
        Inset += FBevelWidth;
    if (FBevelOuter != TPanelBevel::bvNone)
        Inset += FBevelWidth;
    InflateRect(Rect, -Inset, -Inset);
}

void TPanel::Paint()
{
    TRect Rect = GetClientRect();
    PaintBevel(Rect, FBevelOuter);
    InflateRect(Rect, -FBorderWidth, -FBorderWidth);
    PaintBevel(Rect, FBevelInner);
    unsigned Flags = DT_EXPANDTABS | DT_VCENTER | DT_SINGLELINE;
    if (FAlignment == TAlignment::taCenter)
        Flags |= DT_CENTER;
    else if (FAlignment == TAlignment::taRightJustify)
        Flags |= DT_RIGHT;
    TCanvas& Canvas = *GetCanvas();
    Canvas.GetBrush()->SetStyle(TBrushStyle::bsClear);
    Canvas.SetFont(GetFont());
    if (!GetEnabled())
        Canvas.GetFont()->SetColor(clGrayText);
    DrawText(Canvas, GetCaption(), Rect, DrawTextBiDiModeFlags(Flags));
}

void TPanel::PaintBevel(TRect& Rect, TPanelBevel Bevel)
{
    if (Bevel == TPanelBevel::bvNone)
        return;
    TCanvas& Canvas = *GetCanvas();
    for (int Ring = 0; Ring < FBevelWidth && Bevel != TPanelBevel::bvSpace; ++Ring) {
        const TRect R{Rect.Left + Ring, Rect.Top + Ring, Rect.Right - Ring, Rect.Bottom - Ring};
        if (R.Width() < 1 || R.Height() < 1)
            break;
        const bool IsRaised = Bevel == TPanelBevel::bvRaised;
        Canvas.GetPen()->SetColor(IsRaised ? clBtnHighlight : clBtnShadow);
        Canvas.MoveTo(R.Left, R.Bottom - 1);
        Canvas.LineTo(R.Left, R.Top);
        Canvas.LineTo(R.Right - 1, R.Top);
        Canvas.GetPen()->SetColor(IsRaised ? clBtnShadow : clBtnHighlight);
        Canvas.LineTo(R.Right - 1, R.Bottom - 1);
        Canvas.LineTo(R.Left - 1, R.Bottom - 1);
    }
    InflateRect(Rect, -FBevelWidth, -FBevelWidth);
}

void TPanel::CMCtl3DChanged(TMessage& Message)
{
    TAliveGuard Guard(*this);
    TCustomControl::CMCtl3DChanged(Message);
    if (Guard.IsAlive() && FBorderStyle == TBorderStyle::bsSingle)
        RecreateWnd();
}

void TPanel::CMTextChanged(TMessage& Message)
{
    TCustomControl::CMTextChanged(Message);
    Invalidate();
}

} // namespace vcl
