#include <map>
#include <random>

#include "KSTreeView/layout/ChartFixture.h"

using treeview::TChartFrame;
using treeview::TChartMetrics;

namespace
{

/// The rules as they are told, recursion and all.
struct TPlainLayout {
    explicit TPlainLayout(const TChartMetrics& Of) : Metrics(Of) {}
    struct TPlace {
        int Offset = 0;
        int Left = 0;
        int Right = 0;
        int Width() const { return Right - Left; }
    };
    void Arrange(const TKSTreeNode& Node)
    {
        MaxLevel = std::max(MaxLevel, Node.GetLevel());
        TPlace& Place = Places[&Node];
        if (!Node.GetHasChildren() || !Node.GetExpanded() || !Node.GetFirstChild()) {
            Place.Left = -Metrics.NodeWidth / 2;
            Place.Right = -Place.Left;
            return;
        }
        int Sum = 0;
        int Count = 0;
        for (auto* Child = Node.GetFirstChild(); Child; Child = Child->GetNextSibling(), ++Count) {
            Arrange(*Child);
            Sum += Places[Child].Width();
        }
        PutInARow(Node.GetFirstChild(), -((Sum + Metrics.HorzSpacing * (Count - 1)) / 2));
        const TPlace First = Places[Node.GetFirstChild()];
        const TPlace Last = Places[Node.GetLastChild()];
        Place.Left = First.Offset - First.Width() / 2;
        Place.Right = Last.Offset + Last.Width() / 2;
    }
    void Arrange(const TKSTreeNodes& Nodes)
    {
        for (auto* Top = Nodes.GetFirstNode(); Top; Top = Top->GetNextSibling())
            Arrange(*Top);
        PutInARow(Nodes.GetFirstNode(), 0);
        const TPlace First = Places[Nodes.GetFirstNode()];
        const TPlace Last = Places[Nodes.GetLastTopNode()];
        Total.Width = Last.Width() / 2 + Last.Offset - (First.Offset - First.Width() / 2);
        Total.Height = (MaxLevel + 1) * (Metrics.NodeHeight + Metrics.VertSpacing) - Metrics.VertSpacing;
    }
    vcl::TPoint OriginFor(const TChartFrame& Frame) const
    {
        vcl::TPoint Origin{Metrics.HorzSpacing - Frame.ScrollX, Metrics.VertSpacing - Frame.ScrollY};
        if (Frame.IsPaper)
            Origin = {};
        if (Frame.Width >= 2 * Metrics.HorzSpacing + Total.Width)
            Origin.X = (Frame.Width - Total.Width) / 2;
        if (Frame.Height >= 2 * Metrics.VertSpacing + Total.Height)
            Origin.Y = (Frame.Height - Total.Height) / 2;
        return Origin;
    }

    TChartMetrics Metrics;
    std::map<const TKSTreeNode*, TPlace> Places;
    vcl::TSize Total;
    int MaxLevel = 0;

private:
    void PutInARow(const TKSTreeNode* Node, int X)
    {
        for (; Node; Node = Node->GetNextSibling()) {
            Places[Node].Offset = Places[Node].Width() / 2 + X;
            X += Places[Node].Width() + Metrics.HorzSpacing;
        }
    }
};

class RandomChart : public TChartTest
{
protected:
    int Pick(int Below) { return static_cast<int>(Random() % static_cast<unsigned>(Below)); }
    void Grow(int Count)
    {
        Tree.Items().Clear();
        Tree.Layout = {5 + Pick(60), 5 + Pick(30), Pick(30), Pick(30), 2 + Pick(19)};
        Tree.Items().BeginUpdate();
        std::vector<TKSTreeNode*> Nodes(1, nullptr);
        for (int Index = 0; Index < Count; ++Index)
            Nodes.push_back(Tree.Items().AddChild(Nodes[Random() % Nodes.size()], std::to_string(Index)));
        for (TKSTreeNode* Each : Nodes)
            if (Each && Pick(4) > 0)
                Each->Expand(false);
        Tree.Items().EndUpdate();
    }
    /// A box and all that is drawn around it.
    vcl::TRect Reach(const TKSTreeNode& Node)
    {
        vcl::TRect Box = Node.GetRect();
        if (Node.GetExpanded() && Node.GetFirstChild()) {
            Box.Left = std::min(Box.Left, Node.GetFirstChild()->GetCenter());
            Box.Right = std::max(Box.Right, Node.GetLastChild()->GetCenter());
        }
        Box.Left = std::min(Box.Left, Node.ButtonRect().Left);
        Box.Right = std::max(Box.Right + 2, Node.ButtonRect().Right + 1);
        Box.Top -= Tree.Layout.VertSpacing / 2 + 1;
        Box.Bottom += std::max(Tree.Layout.VertSpacing / 2 + 1, Tree.Layout.ButtonSize) + 2;
        return Box;
    }

    std::mt19937 Random{7};
};

TEST_F(RandomChart, IsLaidOutAsTheRulesSay)
{
    for (int Round = 0; Round < 120; ++Round) {
        SCOPED_TRACE(Round);
        Grow(1 + Pick(40));
        TPlainLayout Plain(Tree.Layout);
        Plain.Arrange(Tree.Items());
        const TChartFrame Frame{Pick(1500), Pick(500), Pick(500), Pick(200), Pick(4) == 0};
        LayOut(Frame);
        ASSERT_EQ(View.GetTotal(), Plain.Total);
        ASSERT_EQ(View.GetMaxLevel(), Plain.MaxLevel);
        ASSERT_EQ(View.GetOrigin(), Plain.OriginFor(Frame));
        std::map<const TKSTreeNode*, int> Centers{{nullptr, View.GetOrigin().X}};
        std::size_t Shown = 0;
        for (auto* Each = Tree.Items().GetFirstNode(); Each; Each = Each->GetNextVisible(), ++Shown) {
            ASSERT_EQ(View.GetShown()[Shown], Each);
            ASSERT_EQ(Each->GetXOffset(), Plain.Places[Each].Offset);
            ASSERT_EQ(Each->GetLeftExtent(), Plain.Places[Each].Left);
            ASSERT_EQ(Each->GetRightExtent(), Plain.Places[Each].Right);
            Centers[Each] = Centers[Each->GetParent()] + Plain.Places[Each].Offset;
            ASSERT_EQ(Each->GetRect(),
                      vcl::Bounds(Centers[Each] - Tree.Layout.NodeWidth / 2,
                                  (Tree.Layout.NodeHeight + Tree.Layout.VertSpacing) * Each->GetLevel() +
                                      View.GetOrigin().Y,
                                  Tree.Layout.NodeWidth, Tree.Layout.NodeHeight));
        }
        ASSERT_EQ(View.GetShown().size(), Shown);
    }
}

TEST_F(RandomChart, AnAreaFindsWhatTouchesIt)
{
    for (int Round = 0; Round < 60; ++Round) {
        Grow(120);
        LayOut({300, 200, Pick(500), Pick(200)});
        for (int Trial = 0; Trial < 20; ++Trial) {
            const vcl::TRect Area =
                vcl::Bounds(Pick(900) - 300, Pick(600) - 200, 1 + Pick(100), 1 + Pick(100));
            std::vector<TKSTreeNode*> Found;
            View.Find(Area, 0, Found);
            for (TKSTreeNode* Each : View.GetShown()) {
                const vcl::TRect Box = Reach(*Each);
                const bool Touches = Box.Left < Area.Right && Box.Right > Area.Left &&
                                     Box.Top < Area.Bottom && Box.Bottom > Area.Top;
                if (Touches) {
                    ASSERT_THAT(Found, testing::Contains(Each)) << Each->GetText();
                }
            }
        }
    }
}

} // namespace
