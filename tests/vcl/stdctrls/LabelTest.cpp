#include "StandardFixture.h"

#include "vcl/controls/Edit.h"
#include "vcl/controls/Label.h"
#include "vcl/controls/Panel.h"
#include "vcl/controls/StatusBar.h"

namespace vcl::tests
{

class TLabelTest : public TStandardTest
{
protected:
    static record::TLabel& Peer(TLabel& Label) { return *WindowOf(Label).GetLabel(); }
};

TEST_F(TLabelTest, TheAccessKeyOfALabelFocusesItsPartner)
{
    TEdit& First = Add<TEdit>();
    TEdit& Partner = Add<TEdit>();
    TLabel& Label = Add<TLabel>();
    Label.SetCaption("&Name");
    Label.SetFocusControl(&Partner);
    ShowForm();
    First.SetFocus();
    Windows().KeyPress('N', MK_ALT);
    EXPECT_TRUE(Partner.Focused());
    First.SetFocus();
    Label.SetShowAccelChar(false);
    Windows().KeyPress('N', MK_ALT);
    EXPECT_TRUE(First.Focused());
}

TEST_F(TLabelTest, APartnerThatDiesIsForgotten)
{
    TLabel& Label = Add<TLabel>();
    TEdit* const Partner = New<TEdit>(nullptr);
    Label.SetFocusControl(Partner);
    delete Partner;
    EXPECT_EQ(Label.GetFocusControl(), nullptr);
    TEdit& Sibling = Add<TEdit>();
    Label.SetFocusControl(&Sibling);
    delete &Sibling;
    EXPECT_EQ(Label.GetFocusControl(), nullptr);
}

TEST_F(TLabelTest, AutoSizeFollowsTheTextAndKeepsAFlushRightEdge)
{
    TLabel& Label = Add<TLabel>();
    Label.SetCaption("text");
    ShowForm();
    const int Narrow = Label.GetWidth();
    Label.SetCaption("longer text");
    EXPECT_GT(Label.GetWidth(), Narrow);
    EXPECT_EQ(Label.GetLeft(), 10);
    Label.SetAlignment(TAlignment::taRightJustify);
    const int Right = Label.GetLeft() + Label.GetWidth();
    Label.SetCaption("x");
    EXPECT_EQ(Label.GetLeft() + Label.GetWidth(), Right);
    const int Width = Label.GetWidth();
    Label.SetAutoSize(false);
    Label.SetCaption("no longer followed");
    EXPECT_EQ(Label.GetWidth(), Width);
}

TEST_F(TLabelTest, WrappedTextKeepsItsWidth)
{
    TLabel& Label = Add<TLabel>();
    Label.SetWordWrap(true);
    ShowForm();
    Label.SetCaption("rather long text that is wider than the label was made");
    EXPECT_EQ(Label.GetWidth(), 100);
    EXPECT_TRUE(Peer(Label).IsWordWrap());
}

TEST_F(TLabelTest, TheBackgroundIsFilledOnlyWithAColourOfItsOwn)
{
    TLabel& Label = Add<TLabel>();
    ShowForm();
    EXPECT_FALSE(Peer(Label).IsOpaque());
    Label.SetColor(clYellow);
    EXPECT_TRUE(Peer(Label).IsOpaque());
    EXPECT_EQ(WindowOf(Label).GetBackground(), clYellow);
    Label.SetTransparent(true);
    EXPECT_FALSE(Peer(Label).IsOpaque());
    Label.SetTransparent(false);
    Label.SetParentColor(true);
    EXPECT_FALSE(Peer(Label).IsOpaque());
}

TEST_F(TLabelTest, AccessKeysAreFoundBehindASingleAmpersand)
{
    EXPECT_TRUE(IsAccel('o', "&Open"));
    EXPECT_TRUE(IsAccel('O', "l&o"));
    EXPECT_TRUE(IsAccel('o', "A && &o"));
    EXPECT_FALSE(IsAccel('o', "A &&o"));
    EXPECT_FALSE(IsAccel('o', "Open&"));
    EXPECT_TRUE(IsAccel(U'\u0436', "&\xD0\x96"));
    EXPECT_FALSE(IsAccel(U'\u0416', "&\xD0\x97"));
}

class TPanelTest : public TStandardTest
{
};

TEST_F(TPanelTest, BevelsAndBordersLeaveTheChildrenLessRoom)
{
    TPanel& Panel = Add<TPanel>();
    Panel.SetBounds(0, 0, 100, 60);
    TEdit* const Inside = New<TEdit>(&Form());
    Inside->SetParent(&Panel);
    Inside->SetAlign(TAlign::alClient);
    ShowForm();
    EXPECT_EQ(Inside->GetBoundsRect(), (TRect{1, 1, 99, 59}));
    Panel.SetBevelInner(TPanelBevel::bvLowered);
    Panel.SetBevelWidth(2);
    Panel.SetBorderWidth(3);
    EXPECT_EQ(Inside->GetBoundsRect(), (TRect{7, 7, 93, 53}));
    Panel.SetBevelWidth(0);
    Panel.SetBorderWidth(-4);
    EXPECT_EQ(Inside->GetBoundsRect(), (TRect{2, 2, 98, 58}));
}

TEST_F(TPanelTest, ABevelWiderThanThePanelIsPaintedInNoTime)
{
    TPanel& Panel = Add<TPanel>();
    Panel.SetBevelWidth(2000000000);
    ShowForm();
    Panel.Repaint();
    EXPECT_EQ(Panel.GetBevelWidth(), 2000000000);
}

TEST_F(TPanelTest, ABorderIsPartOfTheWindow)
{
    TPanel& Panel = Add<TPanel>();
    Panel.SetBorderStyle(TBorderStyle::bsSingle);
    ShowForm();
    EXPECT_EQ(Panel.GetClientWidth(), 96);
    Panel.SetCtl3D(false);
    EXPECT_EQ(Panel.GetClientWidth(), 98);
}

class TStatusBarTest : public TStandardTest
{
};

TEST_F(TStatusBarTest, PanelsReachTheWindowAndSurviveANewOne)
{
    auto& Bar = Add<TRemade<TStatusBar>>();
    Bar.GetPanels()->Add()->SetText("first");
    ShowForm();
    TStatusPanel* const Panel = Bar.GetPanels()->Add();
    Panel->SetText("second");
    Panel->SetWidth(70);
    Panel->SetAlignment(TAlignment::taCenter);
    Panel->SetBevel(TStatusPanelBevel::pbRaised);
    Bar.SetSizeGrip(false);
    Bar.RecreateWnd();
    record::TStatusBar& Peer = *WindowOf(Bar).GetStatusBar();
    EXPECT_THAT(Peer.GetPanels(), ElementsAre(TStatusPanelSpec{"first", 50, TTextAlign::Left, 1},
                                              TStatusPanelSpec{"second", 70, TTextAlign::Center, 2}));
    EXPECT_FALSE(Peer.HasSizeGrip());
    Bar.SetSimpleText("simple");
    Bar.SetSimplePanel(true);
    EXPECT_TRUE(Peer.IsSimple());
    EXPECT_EQ(Peer.GetSimpleText(), "simple");
    Bar.GetPanels()->Delete(0);
    EXPECT_EQ(Peer.GetPanels().size(), 1u);
}

TEST_F(TStatusBarTest, ItStandsAtTheBottomInItsFullWidth)
{
    TStatusBar& Bar = Add<TStatusBar>();
    ShowForm();
    EXPECT_EQ(Bar.GetBoundsRect(), (TRect{0, 280, 400, 300}));
}

} // namespace vcl::tests
