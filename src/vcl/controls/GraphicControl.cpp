#include "vcl/controls/GraphicControl.h"

namespace vcl
{

const TClass& TGraphicControl::StaticClass()
{
    static const TClass Class = DefineClass<TGraphicControl, TControl>("TGraphicControl");
    return Class;
}

TGraphicControl::TGraphicControl(TComponent* Owner) : TControl(Owner), FCanvas(std::make_unique<TCanvas>())
{
}

TGraphicControl::~TGraphicControl() = default;

void TGraphicControl::PaintOn(TCanvas& ParentCanvas, TPoint Origin, const TRegion* ParentClip)
{
    TAliveGuard Guard(*this);
    TRegion Clip(vcl::Bounds(Origin.X, Origin.Y, GetWidth(), GetHeight()));
    if (ParentClip)
        Clip.Intersect(*ParentClip);
    FCanvas->SetOrigin(Origin);
    FCanvas->SetPainter(ParentCanvas.GetPainter());
    FCanvas->SetSystemClip(&Clip);
    FCanvas->GetFont()->Assign(GetFont());
    FCanvas->GetBrush()->SetColor(GetColor());
    Paint();
    if (Guard.IsAlive())
        FCanvas->SetPainter(nullptr);
}

} // namespace vcl
