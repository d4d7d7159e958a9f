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
        "TPanel", {
                      Publish("Align"),
                      Published<&TPanel::GetAlignment, &TPanel::SetAlignment>("Alignment")
                          .Default(TAlignment::taCenter),
                      Publish("Anchors"),
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
                      Publish("Enabled"),
                      Publish("Font"),
                      Publish("ParentBiDiMode"),
                      Publish("ParentColor"),
                      Publish("ParentCtl3D"),
                      Publish("ParentFont"),
                      Publish("ParentShowHint"),
                      Publish("PopupMenu"),
                      Publish("ShowHint"),
                      Publish("TabOrder"),
                      Publish("TabStop"),
                      Publish("Visible"),
                      Publish("OnClick"),
                      Publish("OnDblClick"),
                      Publish("OnEnter"),
                      Publish("OnExit"),
                      Publish("OnMouseDown"),
                      Publish("OnMouseMove"),
                      Publish("OnMouseUp"),
                      Publish("OnResize"),
                  });
    return Class;
}

TPanel::TPanel(TComponent* Owner) : TCustomControl(Owner)
{
    FWidth = 185;
    FHeight = 41;
    FControlStyle.Include(TControlStyleFlag::csAcceptsControls);
    SetColor(clBtnFace);
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

void TPanel::CMTextChanged(TMessage& Message)
{
    TCustomControl::CMTextChanged(Message);
    Invalidate();
}

} // namespace vcl
