#include "KSTreeView/painting/NodePainter.h"

#include "vcl/graphics/DrawText.h"
#include "vcl/graphics/ImageList.h"

namespace treeview
{

namespace
{

/// Between an image and the edges of its corner.
constexpr int ImageMargin = 5;
/// Between a button's edge and the ends of its plus or minus.
constexpr int SignMargin = 2;

} // namespace

void TNodePainter::TakePen(vcl::TColor Color, vcl::TPenStyle Style)
{
    FCanvas.GetPen()->SetColor(Color);
    FCanvas.GetPen()->SetStyle(Style);
}

void TNodePainter::Line(int FromX, int FromY, int ToX, int ToY)
{
    FCanvas.MoveTo(FromX, FromY);
    FCanvas.LineTo(ToX, ToY);
}

vcl::TColor TNodePainter::FillOf(const TKSTreeNode& Node) const
{
    if (Node.GetSelected()) {
        if (FState.HasFocus || FState.Edited == &Node)
            return FLook.SelectedNodeColor;
        if (!FLook.HideSelection)
            return FLook.HiddenSelectedNodeColor;
    }
    return Node.GetUseTreeColor() ? FLook.NodeColor : Node.GetColor();
}

void TNodePainter::DrawBox(const TKSTreeNode& Node)
{
    TakePen(FLook.NodePenColor, vcl::TPenStyle::psSolid);
    FCanvas.GetBrush()->SetColor(FillOf(Node));
    FCanvas.Rectangle(Node.GetRect());
    if (FLook.NodeStyle == TKSTVNodeStyle::nsShadowed)
        DrawShadow(Node.GetRect());
    if (FState.Font)
        FCanvas.SetFont(FState.Font);
    if (FState.IsPaper || !Node.GetEdited())
        DrawCaption(Node);
}

void TNodePainter::DrawShadow(const vcl::TRect& Box)
{
    FCanvas.GetPen()->SetColor(vcl::clBlack);
    for (int Offset : {1, 0}) {
        FCanvas.MoveTo(Box.Right + Offset, Box.Top + Offset);
        FCanvas.LineTo(Box.Right + Offset, Box.Bottom + Offset);
        FCanvas.LineTo(Box.Left + Offset, Box.Bottom + Offset);
    }
}

void TNodePainter::DrawCaption(const TKSTreeNode& Node)
{
    vcl::TRect Rect = Node.DisplayRect(true);
    const unsigned Reading = FLook.RightToLeft ? vcl::DT_RTLREADING : 0;
    vcl::DrawText(FCanvas, Node.GetText(), Rect, vcl::DT_CENTER | vcl::DT_END_ELLIPSIS | Reading);
}

void TNodePainter::DrawImage(const TKSTreeNode& Node)
{
    if (Node.GetImageIndex() == -1 || !FState.Images)
        return;
    const vcl::TRect& Box = Node.GetRect();
    const int X = FLook.NodeImageSide == TKSTVNodeImageSide::nisLeft
                      ? Box.Left + ImageMargin
                      : Box.Right - FState.Images->GetWidth() - ImageMargin;
    const int Y = Box.Bottom - FState.Images->GetHeight() - ImageMargin;
    FState.Images->Draw(&FCanvas, X, Y, Node.GetImageIndex(), FState.IsEnabled);
}

void TNodePainter::DrawButton(const TKSTreeNode& Node)
{
    if (!Node.GetHasChildren() || !FLook.ShowButtons)
        return;
    const vcl::TRect Button = Node.ButtonRect();
    TakePen(FLook.NodePenColor, vcl::TPenStyle::psSolid);
    FCanvas.GetBrush()->SetColor(FLook.ButtonColor);
    FCanvas.Rectangle(Button);
    const int MiddleY = (Button.Top + Button.Bottom) / 2;
    Line(Button.Left + SignMargin, MiddleY, Button.Right - SignMargin, MiddleY);
    if (!Node.GetExpanded()) {
        const int MiddleX = (Button.Right + Button.Left) / 2;
        Line(MiddleX, Button.Top + SignMargin, MiddleX, Button.Bottom - SignMargin);
    }
    if (FLook.NodeStyle != TKSTVNodeStyle::nsShadowed)
        return;
    TakePen(vcl::clBlack, vcl::TPenStyle::psSolid);
    FCanvas.MoveTo(Button.Right, Button.Top + FMetrics.ButtonSize);
    FCanvas.LineTo(Button.Right, Button.Bottom);
    FCanvas.LineTo(Button.Left + 1, Button.Bottom);
}

void TNodePainter::DrawLines(const TKSTreeNode& Node)
{
    if (!FLook.ShowLines)
        return;
    TakePen(FLook.LineColor, FLook.LineStyle);
    const vcl::TRect& Box = Node.GetRect();
    const int Center = Node.GetCenter();
    const int HalfGap = FMetrics.VertSpacing / 2;
    if (Node.GetParent() || FLook.ShowRoot)
        Line(Center, Box.Top, Center, Box.Top - HalfGap - 1);
    if (!Node.GetHasChildren() || !Node.GetFirstChild() || !Node.GetExpanded())
        return;
    const int MiddleY = Box.Bottom + HalfGap;
    Line(Center, Box.Bottom + (FLook.ShowButtons ? FMetrics.ButtonSize : 0), Center, MiddleY + 1);
    Line(Node.GetFirstChild()->GetCenter(), MiddleY, Node.GetLastChild()->GetCenter(), MiddleY);
}

void TNodePainter::DrawRootLine(const TKSTreeNodes& Nodes, vcl::TPoint Origin)
{
    if (!FLook.ShowLines || !FLook.ShowRoot || !Nodes.GetFirstNode())
        return;
    TakePen(FLook.LineColor, FLook.LineStyle);
    const int Y = Origin.Y - FMetrics.VertSpacing / 2;
    Line(Nodes.GetFirstNode()->GetXOffset() + Origin.X, Y, Nodes.GetLastTopNode()->GetXOffset() + Origin.X,
         Y);
}

} // namespace treeview
