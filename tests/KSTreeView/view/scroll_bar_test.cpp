#include "KSTreeView/view/ScrollBarFixture.h"

#include "vcl/streaming/FormFile.h"

using testing::ElementsAre;
using vcl::TScrollBarKind;

namespace
{

class TreeScrollBar : public TScrollBarTest
{
};

TEST_F(TreeScrollBar, TheWindowsBarsSayWhatIsSeenOfWhat)
{
    ShowLarge();
    for (const TScrollBarKind Kind : {TScrollBarKind::sbHorizontal, TScrollBarKind::sbVertical}) {
        const bool IsHorizontal = Kind == TScrollBarKind::sbHorizontal;
        const int Client = IsHorizontal ? Tree->GetClientWidth() : Tree->GetClientHeight();
        EXPECT_EQ(Info(Kind).Min, 0);
        EXPECT_EQ(Info(Kind).Max, Bar(Kind).GetRange());
        EXPECT_EQ(Info(Kind).Page, static_cast<unsigned>(Client + 1));
        EXPECT_EQ(Info(Kind).Pos, 0);
        Bar(Kind).SetPosition(Bar(Kind).GetMaxPosition());
        EXPECT_EQ(Info(Kind).Pos, Bar(Kind).GetMaxPosition());
    }
    // A larger window: there is less to scroll, and the position follows.
    Tree->SetBounds(10, 10, 230, 120);
    for (const TScrollBarKind Kind : {TScrollBarKind::sbHorizontal, TScrollBarKind::sbVertical}) {
        EXPECT_EQ(Bar(Kind).GetPosition(), Bar(Kind).GetMaxPosition());
        EXPECT_EQ(Info(Kind).Pos, Bar(Kind).GetPosition());
    }
}

TEST_F(TreeScrollBar, WithNothingToScrollTheWindowsBarHides)
{
    Show("A\n");
    for (const TScrollBarKind Kind : {TScrollBarKind::sbHorizontal, TScrollBarKind::sbVertical}) {
        EXPECT_EQ(Info(Kind).Min, 0);
        EXPECT_EQ(Info(Kind).Max, 0);
        EXPECT_FALSE(WindowOf(*Tree).GetScrollBar(Kind).Visible);
        EXPECT_TRUE(WindowOf(*Tree).GetScrollBar(Kind).Enabled);
    }
}

TEST_F(TreeScrollBar, ChangesItsWindowOnlyWhenThePositionChanges)
{
    ShowLarge();
    auto* const Child = vcl::New<vcl::TButton>(Form);
    Child->SetBounds(30, 40, 20, 10);
    Child->SetParent(Tree);
    const auto Place = [&] { return vcl::TPoint{Child->GetLeft(), Child->GetTop()}; };
    Horz().SetPosition(25);
    EXPECT_EQ(Place(), (vcl::TPoint{5, 40}));
    Vert().SetPosition(10);
    EXPECT_EQ(Place(), (vcl::TPoint{5, 30}));
    Horz().SetPosition(25);
    Vert().SetPosition(10);
    EXPECT_EQ(Place(), (vcl::TPoint{5, 30}));
    Horz().SetPosition(20);
    EXPECT_EQ(Place(), (vcl::TPoint{10, 30}));
    Vert().SetPosition(-100);
    EXPECT_EQ(Place(), (vcl::TPoint{10, 40})) << "by as much as it really moved";
}

TEST_F(TreeScrollBar, WithoutTrackingTheChartMovesWhenTheThumbIsReleased)
{
    ShowLarge();
    Horz().SetTracking(false);
    Send(TScrollBarKind::sbHorizontal, vcl::SB_THUMBTRACK, 50);
    EXPECT_EQ(Horz().GetPosition(), 0);
    Send(TScrollBarKind::sbHorizontal, vcl::SB_THUMBPOSITION, 50);
    EXPECT_EQ(Horz().GetPosition(), 50);
}

TEST_F(TreeScrollBar, TheVerticalOneAnswersTheSameRequests)
{
    ShowLarge();
    const auto Sent = [this](unsigned Request, int Position = 0) {
        Send(TScrollBarKind::sbVertical, Request, Position);
        EXPECT_EQ(Horz().GetPosition(), 0);
        return Vert().GetPosition();
    };
    Vert().SetIncrement(11);
    EXPECT_EQ(Sent(vcl::SB_LINEDOWN), 11);
    EXPECT_EQ(Sent(vcl::SB_LINEUP), 0);
    EXPECT_EQ(Sent(vcl::SB_PAGEDOWN), Tree->GetClientHeight());
    EXPECT_EQ(Sent(vcl::SB_PAGEUP), 0);
    EXPECT_EQ(Sent(vcl::SB_THUMBPOSITION, 7), 7);
    EXPECT_EQ(Sent(vcl::SB_THUMBTRACK, 8), 8);
    Vert().SetTracking(false);
    EXPECT_EQ(Sent(vcl::SB_THUMBTRACK, 9), 8);
    EXPECT_EQ(Sent(vcl::SB_BOTTOM), Vert().GetMaxPosition());
    EXPECT_EQ(Sent(vcl::SB_TOP), 0);
}

TEST_F(TreeScrollBar, PositionsMayNeedMoreThan16Bits)
{
    Tree->SetNodeWidth(100'000);
    Show("A\n");
    Send(TScrollBarKind::sbHorizontal, vcl::SB_THUMBPOSITION, 70'000);
    EXPECT_EQ(Horz().GetPosition(), 70'000);
    EXPECT_EQ(Node("A")->GetRect().Left, 20 - 70'000);
}

TEST_F(TreeScrollBar, TakesVisiblePositionAndIncrementOfAnotherAndNothingElse)
{
    Show("A\nB\nC\n");
    TKSTVScrollBar* const Source = vcl::New<TProbeTree>(Form)->GetVertScrollBar();
    Source->SetTracking(false);
    Source->SetRange(1000);
    Source->SetPosition(500);
    ASSERT_EQ(Source->GetPosition(), 500);
    Horz().Assign(Source);
    EXPECT_EQ(Horz().GetPosition(), 60) << "its own end";
    EXPECT_TRUE(Horz().GetTracking());
    EXPECT_EQ(Horz().GetRange(), 260);
    EXPECT_EQ(Horz().GetKind(), TScrollBarKind::sbHorizontal);
    EXPECT_TRUE(Horz().GetVisible());
    Source->SetVisible(false);
    Horz().Assign(Source);
    EXPECT_FALSE(Horz().GetVisible());
    EXPECT_EQ(Horz().GetMaxPosition(), 0);
}

/// Publishes what the class leaves to descendants.
class TScrolledTree : public TKSTreeView
{
    VCL_CLASS
public:
    using TKSTreeView::TKSTreeView;
    void SetHorzScrollBar(const TKSTVScrollBar* Value) { GetHorzScrollBar()->Assign(Value); }
};

const vcl::TClass& TScrolledTree::StaticClass()
{
    using T = TScrolledTree;
    static const vcl::TClass Class = vcl::DefineClass<TScrolledTree, TKSTreeView>(
        "TScrolledTree", {
                             vcl::Published<&T::GetHorzScrollBar, &T::SetHorzScrollBar>("HorzScrollBar"),
                         });
    return Class;
}

class TreeScrollBarFromForm : public TScrollBarTest
{
protected:
    /// A view read from a form file that says this about its horizontal bar.
    TScrolledTree* Read(const std::string& Lines)
    {
        vcl::RegisterClasses({&TScrolledTree::StaticClass()});
        const std::string Text = "object TScrolledTree\n" + Lines + "end\n";
        vcl::TMemoryStream Stream;
        Stream.WriteBuffer(Text.data(), static_cast<std::int64_t>(Text.size()));
        Stream.SetPosition(0);
        auto* const Scrolled = vcl::New<TScrolledTree>(Form);
        vcl::ReadForm(Stream, Scrolled);
        return Scrolled;
    }
};

TEST_F(TreeScrollBarFromForm, ThePositionIsStoredAsItIs)
{
    for (const char* Range : {"", "  HorzScrollBar.Range = 300\n"}) {
        const TKSTVScrollBar& Bar =
            *Read(Range + std::string("  HorzScrollBar.Position = 500\n"))->GetHorzScrollBar();
        EXPECT_EQ(Bar.GetPosition(), 500);
        EXPECT_LT(Bar.GetMaxPosition(), 500);
    }
}

TEST_F(TreeScrollBarFromForm, TheChartIsShownThereAsFarAsItGoes)
{
    for (const int Position : {150, 500}) {
        TScrolledTree* const Scrolled = Read(
            "  HorzScrollBar.Range = 1000\n  HorzScrollBar.Position = " + std::to_string(Position) + "\n");
        for (int Index = 0; Index < 5; ++Index)
            Scrolled->GetItems()->Add(nullptr, "A");
        Scrolled->SetParent(Form);
        Form->Show();
        Windows().ProcessMessages();
        const TKSTVScrollBar& Bar = *Scrolled->GetHorzScrollBar();
        ASSERT_EQ(Bar.GetMaxPosition(), 420 - Scrolled->GetClientWidth());
        EXPECT_EQ(Bar.GetPosition(), std::min(Position, Bar.GetMaxPosition()));
        EXPECT_EQ(Scrolled->GetItems()->GetFirstNode()->GetRect().Left, 20 - Bar.GetPosition());
    }
}

} // namespace
