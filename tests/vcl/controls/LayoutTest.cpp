#include "ControlFixture.h"

namespace vcl::tests
{

using enum TAnchorKind;

TEST_F(TControlTest, AlignedControlsTakeTopBottomLeftRightThenTheRest)
{
    TProbe& Client = Add<TProbe>(0, 0, 1, 1);
    TProbe& Left = Add<TProbe>(0, 0, 30, 1);
    TProbe& Bottom = Add<TProbe>(0, 0, 1, 40);
    TProbe& Top = Add<TProbe>(0, 0, 1, 20);
    TProbe& Right = Add<TProbe>(0, 0, 50, 1);
    Client.SetAlign(TAlign::alClient);
    Left.SetAlign(TAlign::alLeft);
    Bottom.SetAlign(TAlign::alBottom);
    Top.SetAlign(TAlign::alTop);
    Right.SetAlign(TAlign::alRight);
    ShowForm();
    EXPECT_EQ(Top.GetBoundsRect(), Bounds(0, 0, 400, 20));
    EXPECT_EQ(Bottom.GetBoundsRect(), Bounds(0, 260, 400, 40));
    EXPECT_EQ(Left.GetBoundsRect(), Bounds(0, 20, 30, 240));
    EXPECT_EQ(Right.GetBoundsRect(), Bounds(350, 20, 50, 240));
    EXPECT_EQ(Client.GetBoundsRect(), Bounds(30, 20, 320, 240));
}

TEST_F(TControlTest, NothingIsAlignedBeforeThereIsAHandle)
{
    TProbe& Top = Add<TProbe>(5, 5, 10, 20);
    Top.SetAlign(TAlign::alTop);
    EXPECT_EQ(Top.GetBoundsRect(), Bounds(5, 5, 10, 20));
    ShowForm();
    EXPECT_EQ(Top.GetBoundsRect(), Bounds(0, 0, 400, 20));
}

TEST_F(TControlTest, HiddenControlsTakeNoPlaceAndComeBackInOrder)
{
    TProbe& Upper = Add<TProbe>(0, 0, 1, 20);
    TProbe& Lower = Add<TProbe>(0, 20, 1, 30);
    Upper.SetAlign(TAlign::alTop);
    Lower.SetAlign(TAlign::alTop);
    ShowForm();
    EXPECT_EQ(Lower.GetTop(), 20);
    Upper.SetVisible(false);
    EXPECT_EQ(Lower.GetTop(), 0);
}

TEST_F(TControlTest, TheMovedControlStandsFirstAmongThoseAtTheSamePlace)
{
    TProbe& Upper = Add<TProbe>(0, 0, 1, 20);
    TProbe& Lower = Add<TProbe>(0, 20, 1, 30);
    Upper.SetAlign(TAlign::alTop);
    Lower.SetAlign(TAlign::alTop);
    ShowForm();
    Lower.SetTop(0);
    EXPECT_EQ(Lower.GetTop(), 0);
    EXPECT_EQ(Upper.GetTop(), 30);
}

TEST_F(TControlTest, ABarThatChangesToAnotherKindOfSideKeepsItsThickness)
{
    TProbe& Bar = Add<TProbe>(0, 0, 1, 25);
    Bar.SetAlign(TAlign::alTop);
    ShowForm();
    Bar.SetAlign(TAlign::alLeft);
    EXPECT_EQ(Bar.GetBoundsRect(), Bounds(0, 0, 25, 300));
}

TEST_F(TControlTest, AnchorsKeepTheDistanceFromTheirSides)
{
    TProbe& Right = Add<TProbe>(300, 10, 50, 20);
    TProbe& Wide = Add<TProbe>(10, 50, 380, 20);
    TProbe& Corner = Add<TProbe>(340, 270, 50, 20);
    TProbe& Free = Add<TProbe>(180, 100, 40, 20);
    Right.SetAnchors({akTop, akRight});
    Wide.SetAnchors({akLeft, akTop, akRight});
    Corner.SetAnchors({akRight, akBottom});
    Free.SetAnchors({});
    ShowForm();
    Form().SetClientSize({500, 360});
    EXPECT_EQ(Right.GetBoundsRect(), Bounds(400, 10, 50, 20));
    EXPECT_EQ(Wide.GetBoundsRect(), Bounds(10, 50, 480, 20));
    EXPECT_EQ(Corner.GetBoundsRect(), Bounds(440, 330, 50, 20));
    EXPECT_EQ(Free.GetBoundsRect(), Bounds(230, 122, 40, 20))
        << "its middle keeps its share: 110 of 300 is 132 of 360";
}

TEST_F(TControlTest, AnchorsDoNotDriftOverManyResizes)
{
    TProbe& Wide = Add<TProbe>(10, 50, 380, 20);
    Wide.SetAnchors({akLeft, akTop, akRight});
    ShowForm();
    for (const int Width : {401, 5, 777, 400})
        Form().SetClientSize({Width, 300});
    EXPECT_EQ(Wide.GetBoundsRect(), Bounds(10, 50, 380, 20));
}

TEST_F(TControlTest, MovingAnAnchoredControlGivesItNewDistances)
{
    TProbe& Right = Add<TProbe>(300, 10, 50, 20);
    Right.SetAnchors({akTop, akRight});
    ShowForm();
    Right.SetLeft(340);
    Form().SetClientSize({410, 300});
    EXPECT_EQ(Right.GetLeft(), 350);
}

TEST_F(TControlTest, AlignmentBringsItsAnchorsAndOnlyOtherAnchorsAreStored)
{
    TProbe& Probe = AddProbe();
    EXPECT_FALSE(Probe.IsAnchorsStored());
    Probe.SetAlign(TAlign::alTop);
    EXPECT_EQ(Probe.GetAnchors(), (TAnchors{akLeft, akTop, akRight}));
    EXPECT_FALSE(Probe.IsAnchorsStored());
    Probe.SetAnchors({akTop});
    EXPECT_TRUE(Probe.IsAnchorsStored());
    Probe.SetAlign(TAlign::alNone);
    EXPECT_EQ(Probe.GetAnchors(), (TAnchors{akTop})) << "anchors of one's own stay";
}

TEST_F(TControlTest, ConstraintsLimitEverySize)
{
    TProbe& Probe = AddProbe();
    Probe.GetConstraints()->SetMinWidth(50);
    Probe.GetConstraints()->SetMaxHeight(60);
    EXPECT_EQ(Probe.GetHeight(), 60) << "at once";
    Probe.SetBounds(0, 0, 10, 100);
    EXPECT_EQ(Probe.GetBoundsRect(), Bounds(0, 0, 50, 60));
    Probe.GetConstraints()->SetMaxWidth(40);
    EXPECT_EQ(Probe.GetConstraints()->GetMinWidth(), 40) << "limits do not cross";
    EXPECT_EQ(Probe.GetWidth(), 40);
}

TEST_F(TControlTest, HandlersMayRefuseOrChangeASize)
{
    TProbe& Probe = AddProbe();
    Probe.OnCanResize = [](TObject*, int& Width, int&, bool& Resize) {
        Resize = Width != 77;
        if (Width == 88)
            Width = 90;
    };
    Probe.SetWidth(77);
    EXPECT_EQ(Probe.GetWidth(), 100);
    Probe.SetWidth(88);
    EXPECT_EQ(Probe.GetWidth(), 90);
    Probe.OnConstrainedResize = [](TObject*, int&, int& MinHeight, int&, int&) { MinHeight = 33; };
    Probe.SetHeight(5);
    EXPECT_EQ(Probe.GetHeight(), 33);
}

TEST_F(TControlTest, NegativeSizesBecomeZero)
{
    TProbe& Probe = AddProbe();
    Probe.SetBounds(5, 5, -10, -1);
    EXPECT_EQ(Probe.GetBoundsRect(), Bounds(5, 5, 0, 0));
}

TEST_F(TControlTest, AlignmentWaitsWhileDisabled)
{
    TProbe& Top = Add<TProbe>(5, 5, 10, 20);
    ShowForm();
    Form().DisableAlign();
    Top.SetAlign(TAlign::alTop);
    EXPECT_EQ(Top.GetWidth(), 10);
    Form().EnableAlign();
    EXPECT_EQ(Top.GetWidth(), 400);
}

TEST_F(TControlTest, AnErrorInAResizeHandlerDoesNotEndAligning)
{
    TProbe& Top = Add<TProbe>(5, 5, 10, 20);
    Top.SetAlign(TAlign::alTop);
    ShowForm();
    Top.OnResize = [](TObject*) { throw Exception("no resize"); };
    EXPECT_THROW(Form().SetClientSize({500, 300}), Exception);
    Top.OnResize = nullptr;
    Form().SetClientSize({600, 300});
    EXPECT_EQ(Top.GetWidth(), 600);
}

TEST_F(TControlTest, ScalingKeepsNeighboursTouching)
{
    TProbe& Left = Add<TProbe>(0, 0, 33, 21);
    TProbe& Right = Add<TProbe>(33, 0, 33, 21);
    Form().ScaleControls(5, 4);
    EXPECT_EQ(Left.GetLeft() + Left.GetWidth(), Right.GetLeft());
    EXPECT_EQ(Left.GetBoundsRect(), Bounds(0, 0, 41, 26));
}

} // namespace vcl::tests
