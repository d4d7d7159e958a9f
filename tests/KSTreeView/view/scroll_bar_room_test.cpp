#include "KSTreeView/view/ScrollBarFixture.h"

#include "vcl/platform/System.h"

using testing::ElementsAre;
using vcl::TScrollBarKind;

namespace
{

/// Bars of two different thicknesses, so that nobody can take one for the other.
class TUnevenSystem final : public vcl::TClassicSystem
{
public:
    int Metric(vcl::TSystemMetric Which) override
    {
        if (Which == vcl::TSystemMetric::VScrollBarWidth)
            return 20;
        return Which == vcl::TSystemMetric::HScrollBarHeight ? 10 : TClassicSystem::Metric(Which);
    }
};

/// The recording platform with another system; current for the length of a block.
class TUnevenPlatform final : public vcl::IPlatform
{
public:
    explicit TUnevenPlatform(vcl::IPlatform& Base) : FBase(Base) { vcl::SetPlatform(this); }
    ~TUnevenPlatform() override { vcl::SetPlatform(&FBase); }
    vcl::ITextEngine& Text() override { return FBase.Text(); }
    vcl::ISystem& System() override { return FSystem; }
    vcl::IImageCodec& Images() override { return FBase.Images(); }
    vcl::IWindowSystem& Windows() override { return FBase.Windows(); }

private:
    vcl::IPlatform& FBase;
    TUnevenSystem FSystem;
};

class TreeScrollBarRoom : public TScrollBarTest
{
};

TEST_F(TreeScrollBarRoom, WithoutBarsAnAssumedOneTakesItsThickness)
{
    Show("A\n");
    const TUnevenPlatform Uneven(Platform);
    for (const bool Assume : {false, true}) {
        EXPECT_EQ(Horz().ControlSize(true, Assume), 200) << "the room as it is";
        EXPECT_EQ(Vert().ControlSize(true, Assume), 100);
    }
    EXPECT_EQ(Horz().ControlSize(false, false), 200);
    EXPECT_EQ(Horz().ControlSize(false, true), 180) << "beside a vertical bar";
    EXPECT_EQ(Vert().ControlSize(false, false), 100);
    EXPECT_EQ(Vert().ControlSize(false, true), 90) << "above a horizontal bar";
}

TEST_F(TreeScrollBarRoom, WithBarsOneThatIsToGoGivesItsThicknessBack)
{
    ShowLarge();
    ASSERT_EQ(Tree->GetClientRect(), (vcl::TRect{0, 0, 184, 84}));
    const TUnevenPlatform Uneven(Platform);
    for (const bool Assume : {false, true}) {
        EXPECT_EQ(Horz().ControlSize(true, Assume), 184) << "the room as it is";
        EXPECT_EQ(Vert().ControlSize(true, Assume), 84);
    }
    EXPECT_EQ(Horz().ControlSize(false, true), 184);
    EXPECT_EQ(Horz().ControlSize(false, false), 204);
    EXPECT_EQ(Vert().ControlSize(false, true), 84);
    EXPECT_EQ(Vert().ControlSize(false, false), 94);
}

TEST_F(TreeScrollBarRoom, ABarIsNeededWhenTheRangeIsLongerThanTheRoomWithoutTheOther)
{
    Show("A\n");
    Vert().SetRange(100);
    EXPECT_FALSE(Vert().NeedsScrollBarVisible());
    Vert().SetRange(101);
    EXPECT_TRUE(Vert().NeedsScrollBarVisible());
    ASSERT_EQ(Tree->GetClientWidth(), 184);
    Horz().SetRange(200);
    EXPECT_FALSE(Horz().NeedsScrollBarVisible()) << "200 were there without the vertical bar";
}

TEST_F(TreeScrollBarRoom, ResizeHandlersThatAskForAnUpdateDuringOneGetNone)
{
    Show("");
    Vert().SetRange(500);
    ASSERT_EQ(Vert().GetMaxPosition(), 400);
    Tree->OnResize = [this](vcl::TObject*) {
        Tree->UpdateScrollBars();
        Log.push_back("vertical " + std::to_string(Vert().GetMaxPosition()));
    };
    Horz().SetRange(500);
    EXPECT_THAT(Log, ElementsAre("vertical 400")) << "its turn comes after the horizontal one";
    EXPECT_EQ(Vert().GetMaxPosition(), 416);
    EXPECT_EQ(Horz().GetMaxPosition(), 500 - 184);
}

TEST_F(TreeScrollBarRoom, AResizedViewWhoseBarsAreNotVisibleLeavesTheWindowsBarsAlone)
{
    Show("");
    Horz().SetVisible(false);
    Vert().SetVisible(false);
    int Resizes = 0;
    Tree->SetScrollInfo(TScrollBarKind::sbHorizontal, {vcl::SIF_ALL, 0, 100, 10, 5, 0});
    Tree->OnResize = [&](vcl::TObject*) { ++Resizes; };
    Tree->SetWidth(250);
    EXPECT_EQ(Resizes, 1);
    EXPECT_EQ(Info(TScrollBarKind::sbHorizontal).Max, 100) << "what the program set";
    EXPECT_EQ(Info(TScrollBarKind::sbHorizontal).Pos, 5);
    EXPECT_EQ(Horz().GetMaxPosition(), 0);
}

TEST_F(TreeScrollBarRoom, OneVisibleBarIsEnoughForAResizedViewToUpdateBoth)
{
    for (const bool IsHorizontal : {false, true}) {
        Show("");
        Horz().SetVisible(IsHorizontal);
        Vert().SetVisible(!IsHorizontal);
        Tree->SetScrollInfo(TScrollBarKind::sbHorizontal, {vcl::SIF_ALL, 0, 100, 10, 5, 0});
        Tree->SetWidth(Tree->GetWidth() + 20);
        EXPECT_EQ(Info(TScrollBarKind::sbHorizontal).Max, 0);
    }
}

} // namespace
