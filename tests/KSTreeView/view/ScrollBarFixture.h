#pragma once

// A tree view so small that its chart scrolls.

#include "KSTreeView/view/TreeViewFixture.h"
#include "vcl/graphics/ScrollInfo.h"

class TScrollBarTest : public TTreeViewTest
{
protected:
    TScrollBarTest() : TTreeViewTest(200, 100) {}
    /// A chart that scrolls both ways.
    void ShowLarge()
    {
        Show("A\n B\n  C\n   D\nE\nF\nG\nH\n");
        Tree->FullExpand();
        ASSERT_GT(Horz().GetMaxPosition(), 100);
        ASSERT_GT(Vert().GetMaxPosition(), 100);
    }
    TKSTVScrollBar& Horz() { return *Tree->GetHorzScrollBar(); }
    TKSTVScrollBar& Vert() { return *Tree->GetVertScrollBar(); }
    TKSTVScrollBar& Bar(vcl::TScrollBarKind Kind)
    {
        return Kind == vcl::TScrollBarKind::sbHorizontal ? Horz() : Vert();
    }
    /// What the window's own bar shows.
    vcl::TScrollInfo Info(vcl::TScrollBarKind Kind)
    {
        vcl::TScrollInfo Result;
        Tree->GetScrollInfo(Kind, Result);
        return Result;
    }
    void Send(vcl::TScrollBarKind Kind, unsigned Request, int Position = 0)
    {
        Windows().Scroll(WindowOf(*Tree), Kind, Request, Position);
    }
};
