#include "ControlFixture.h"

#include "vcl/forms/HintController.h"

namespace vcl::tests
{

namespace
{

/// A control that answers for its own hints.
class THinting : public TProbe
{
public:
    using TProbe::TProbe;
    std::function<int(THintInfo&)> OnHintShow;

    void WndProc(TMessage& Message) override
    {
        if (Message.Msg == CM_HINTSHOW && OnHintShow)
            Message.Result = OnHintShow(*reinterpret_cast<THintInfo*>(Message.LParam));
        else
            TProbe::WndProc(Message);
    }
};

class THintTest : public TControlTest
{
protected:
    THintTest() : FControl(Add<THinting>(10, 20, 100, 80))
    {
        FControl.SetHint("Short|A long hint");
        FControl.SetShowHint(true);
        ShowForm();
    }

    record::TWindow* HintWindow()
    {
        for (record::TWindow* Window : Windows().GetWindows())
            if (Window->GetStyle().Kind == TWindowKind::Hint && Window->IsVisible())
                return Window;
        return nullptr;
    }

    THinting& FControl;
};

} // namespace

TEST_F(THintTest, AHintShowsAfterItsPauseAndHidesAgain)
{
    Windows().MouseMove(WindowOf(FControl), {5, 5});
    Windows().Advance(499);
    EXPECT_EQ(HintWindow(), nullptr);
    Windows().Advance(1);
    ASSERT_NE(HintWindow(), nullptr);
    EXPECT_EQ(HintWindow()->GetText(), "Short");
    EXPECT_EQ(Application().GetHint(), "A long hint");
    Windows().Advance(2499);
    EXPECT_NE(HintWindow(), nullptr);
    Windows().Advance(1);
    EXPECT_EQ(HintWindow(), nullptr);
}

TEST_F(THintTest, TheSizeIsThatOfTheTextAndALittleRoom)
{
    Windows().MouseMove(WindowOf(FControl), {5, 5});
    Windows().Advance(500);
    ASSERT_NE(HintWindow(), nullptr);
    const TFontSpec& Font = FControl.GetFont()->GetSpec();
    const TPoint Pointer = Windows().GetCursorPos();
    EXPECT_EQ(HintWindow()->GetBounds(),
              Bounds(Pointer.X, Pointer.Y + 20, Platform().Text().TextWidth(Font, "Short") + 6,
                     Platform().Text().Metrics(Font).Height + 2 + 4));
}

TEST_F(THintTest, APressTakesTheHintAway)
{
    Windows().MouseMove(WindowOf(FControl), {5, 5});
    Windows().Advance(500);
    ASSERT_NE(HintWindow(), nullptr);
    Windows().MouseDown(WindowOf(FControl), {5, 5});
    EXPECT_EQ(HintWindow(), nullptr);
}

TEST_F(THintTest, TheNextHintComesSooner)
{
    TProbe& Other = Add<TProbe>(200, 20, 50, 50);
    Other.SetHint("Other");
    Other.SetShowHint(true);
    Windows().MouseMove(WindowOf(FControl), {5, 5});
    Windows().Advance(500);
    Windows().MouseMove(WindowOf(Other), {5, 5});
    EXPECT_EQ(HintWindow(), nullptr);
    Windows().Advance(50);
    ASSERT_NE(HintWindow(), nullptr);
    EXPECT_EQ(HintWindow()->GetText(), "Other");
}

TEST_F(THintTest, AControlMayChangeOrRefuseItsHint)
{
    FControl.OnHintShow = [](THintInfo& Info) {
        Info.HintStr = "at " + std::to_string(Info.CursorPos.X);
        return 0;
    };
    Windows().MouseMove(WindowOf(FControl), {42, 5});
    Windows().Advance(500);
    ASSERT_NE(HintWindow(), nullptr);
    EXPECT_EQ(HintWindow()->GetText(), "at 42");
    Windows().MouseMove(WindowOf(Form()), {390, 290});
    FControl.OnHintShow = [](THintInfo&) { return 1; };
    Windows().MouseMove(WindowOf(FControl), {42, 5});
    Windows().Advance(1000);
    EXPECT_EQ(HintWindow(), nullptr);
}

TEST_F(THintTest, APartOfAControlMayHaveAHintOfItsOwn)
{
    FControl.OnHintShow = [](THintInfo& Info) {
        Info.CursorRect = Info.CursorPos.X < 50 ? TRect{0, 0, 50, 80} : TRect{50, 0, 100, 80};
        Info.HintStr = Info.CursorPos.X < 50 ? "left" : "right";
        return 0;
    };
    Windows().MouseMove(WindowOf(FControl), {10, 5});
    Windows().Advance(500);
    ASSERT_NE(HintWindow(), nullptr);
    Windows().MouseMove(WindowOf(FControl), {20, 5});
    EXPECT_EQ(HintWindow()->GetText(), "left");
    Windows().MouseMove(WindowOf(FControl), {60, 5});
    Windows().Advance(50);
    ASSERT_NE(HintWindow(), nullptr);
    EXPECT_EQ(HintWindow()->GetText(), "right");
}

TEST_F(THintTest, AControlThatIsFreedTakesItsHintAlong)
{
    Windows().MouseMove(WindowOf(FControl), {5, 5});
    Windows().Advance(500);
    delete &FControl;
    EXPECT_EQ(HintWindow(), nullptr);
    Windows().Advance(5000);
}

TEST(Hints, HaveAShortPartAndALongOne)
{
    EXPECT_EQ(GetShortHint("a|b"), "a");
    EXPECT_EQ(GetLongHint("a|b"), "b");
    EXPECT_EQ(GetShortHint("a"), "a");
    EXPECT_EQ(GetLongHint("a"), "a");
    EXPECT_EQ(GetShortHint("|b"), "");
}

} // namespace vcl::tests
