#pragma once

// A chart of a tree without a view.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "KSTreeView/layout/Chart.h"
#include "KSTreeView/model/FakeTree.h"

class TChartTest : public testing::Test
{
protected:
    void LayOut(treeview::TChartFrame Frame)
    {
        View.Arrange(Tree.Items(), Tree.Layout);
        View.Place(View.OriginFor(Frame));
    }
    TKSTreeNode* Node(const char* Text) { return Tree.Find(Text); }
    const vcl::TRect& Rect(const char* Text) { return Tree.Find(Text)->GetRect(); }

    TFakeTree Tree;
    treeview::TChart View;
};
