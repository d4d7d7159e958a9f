#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "vcl/platform/VirtualKeys.h"
#include "vcl/platform/record/RecordPlatform.h"

namespace vcl::tests
{

namespace
{

using ::testing::ElementsAre;

/// An owner that notes its messages and hands them back to the window.
class TOwner final : public IWindowOwner
{
public:
    void WindowMessage(TMessage& Message) noexcept override
    {
        Messages.push_back(Message.Msg);
        if (Message.Msg == CN_COMMAND)
            Notice = Message;
        if (Window && Message.Msg < CM_BASE)
            Window->DefaultMessage(Message);
    }
    void WindowUpdate() noexcept override { ++Updates; }
    TPixelBuffer WindowPixels() noexcept override { return {}; }
    void WindowScaleChanged() noexcept override {}
    void WindowDestroyed() noexcept override { [[maybe_unused]] IWindow* const Gone = Window.release(); }

    record::TWindow& Make(record::TWindowSystem& System, TWindowKind Kind, IWindow* Parent = nullptr)
    {
        Window = System.CreateWindow(*this, {Kind, 0, 0}, Parent, {0, 0, 100, 40}, nullptr);
        Window->SetVisible(true);
        Messages.clear();
        return static_cast<record::TWindow&>(*Window);
    }

    TWindowPtr Window;
    std::vector<unsigned> Messages;
    TMessage Notice;
    int Updates = 0;
};

class TRecordTest : public ::testing::Test
{
protected:
    TRecordTest() { SetPlatform(&FPlatform); }
    ~TRecordTest() override
    {
        FOwner.Window.reset();
        SetPlatform(nullptr);
    }

    record::TWindowSystem& Windows() { return FPlatform.Windows(); }

    record::TPlatform FPlatform;
    TOwner FOwner;
};

} // namespace

TEST_F(TRecordTest, TimersKeepTheirOrderAndMayStopThemselves)
{
    std::vector<int> Ticks;
    TTimerHandle Once = 0;
    Once = Windows().StartTimer(30, [&] {
        Ticks.push_back(30);
        Windows().StopTimer(Once);
    });
    Windows().StartTimer(20, [&] { Ticks.push_back(20); });
    Windows().Advance(70);
    EXPECT_THAT(Ticks, ElementsAre(20, 30, 20, 20));
    EXPECT_EQ(Windows().Now(), 70u);
}

TEST_F(TRecordTest, PostedCallsRunInOrderAndMayPostMore)
{
    std::vector<int> Order;
    Windows().Post([&] {
        Order.push_back(1);
        Windows().Post([&] { Order.push_back(3); });
    });
    Windows().Post([&] { Order.push_back(2); });
    EXPECT_TRUE(Order.empty());
    Windows().ProcessMessages();
    EXPECT_THAT(Order, ElementsAre(1, 2, 3));
}

TEST_F(TRecordTest, ALoopThatHasNothingToWaitForEnds)
{
    Windows().RunUntil([] { return false; });
    EXPECT_THAT(Windows().TakeLog(), ElementsAre("loop ended: nothing to wait for"));
}

TEST_F(TRecordTest, RequestedUpdatesComeOnceAndOnlyWhenShown)
{
    record::TWindow& Window = FOwner.Make(Windows(), TWindowKind::Client);
    Window.RequestUpdate();
    Window.RequestUpdate();
    Windows().ProcessMessages();
    EXPECT_EQ(FOwner.Updates, 1);
    Window.SetVisible(false);
    Window.RequestUpdate();
    Windows().ProcessMessages();
    EXPECT_EQ(FOwner.Updates, 1);
}

TEST_F(TRecordTest, AnEditTakesTextWhereItsCaretIs)
{
    record::TWindow& Window = FOwner.Make(Windows(), TWindowKind::Edit);
    Window.SetFocus();
    Windows().Type("m\xC3\xB6re");
    Windows().KeyPress(VK_LEFT);
    Windows().KeyPress(VK_BACK);
    Windows().KeyPress(VK_HOME);
    Windows().KeyPress(VK_DELETE);
    EXPECT_EQ(Window.GetText(), "\xC3\xB6"
                                "e");
    EXPECT_EQ(Window.GetEdit()->GetSelStart(), 0);
    EXPECT_TRUE(Window.GetEdit()->IsModified());
}

TEST_F(TRecordTest, AnEditKeepsItsLimitAndItsReadOnlyState)
{
    record::TWindow& Window = FOwner.Make(Windows(), TWindowKind::Edit);
    Window.GetEdit()->SetMaxLength(3);
    Window.SetFocus();
    Windows().Type("abcdef");
    EXPECT_EQ(Window.GetText(), "abc");
    Window.GetEdit()->SetSelection(0, -1);
    Window.GetEdit()->ReplaceSelection("xyz1");
    EXPECT_EQ(Window.GetText(), "xyz");
    Window.GetEdit()->SetReadOnly(true);
    Windows().Type("q");
    Windows().KeyPress(VK_BACK);
    EXPECT_EQ(Window.GetText(), "xyz");
}

TEST_F(TRecordTest, ACheckBoxTogglesBeforeItTells)
{
    record::TWindow& Window = FOwner.Make(Windows(), TWindowKind::CheckBox);
    Windows().MouseClick(Window, {5, 5});
    EXPECT_EQ(FOwner.Notice.Msg, CN_COMMAND);
    EXPECT_EQ(Window.GetButton()->GetCheckState(), TCheckState::Checked);
    Window.GetButton()->SetTriState(true);
    Windows().MouseClick(Window, {5, 5});
    Windows().MouseClick(Window, {5, 5});
    EXPECT_EQ(Window.GetButton()->GetCheckState(), TCheckState::Grayed);
}

TEST_F(TRecordTest, AListTellsWhatTheUserChoosesAndNotWhatTheProgramSets)
{
    record::TWindow& Window = FOwner.Make(Windows(), TWindowKind::ListBox);
    const std::vector<AnsiString> Items{"a", "b", "c"};
    Window.GetList()->SetItems(Items);
    Window.GetList()->SetItemIndex(1);
    EXPECT_TRUE(FOwner.Messages.empty());
    Windows().MouseClick(Window, {5, 2 * 16 + 1});
    EXPECT_EQ(FOwner.Notice.WParam, static_cast<std::uint64_t>(TPeerNotice::ItemSelected));
    EXPECT_EQ(FOwner.Notice.LParam, 2);
    Window.GetList()->DeleteItem(0);
    EXPECT_EQ(Window.GetList()->GetItemIndex(), 1);
}

TEST_F(TRecordTest, ASpinEditStaysInItsRange)
{
    record::TWindow& Window = FOwner.Make(Windows(), TWindowKind::SpinEdit);
    Window.GetSpin()->SetRange(0, 10);
    Window.GetSpin()->SetIncrement(4);
    Window.SetFocus();
    for (int Times = 0; Times < 5; ++Times)
        Windows().KeyPress(VK_UP);
    EXPECT_EQ(Window.GetSpin()->GetValue(), 10);
    EXPECT_EQ(Window.GetText(), "10");
}

TEST_F(TRecordTest, TheWindowUnderAPointIsTheDeepestVisibleOne)
{
    record::TWindow& Outer = FOwner.Make(Windows(), TWindowKind::Form);
    TOwner ChildOwner;
    record::TWindow& Child = ChildOwner.Make(Windows(), TWindowKind::Client, &Outer);
    Child.SetBounds({10, 10, 20, 20});
    EXPECT_EQ(Windows().WindowAt({12, 12}), &Child);
    EXPECT_EQ(Windows().WindowAt({5, 5}), &Outer);
    EXPECT_EQ(Windows().WindowAt({500, 5}), nullptr);
    Child.SetVisible(false);
    EXPECT_EQ(Windows().WindowAt({12, 12}), &Outer);
}

TEST_F(TRecordTest, EndingThePlatformDestroysTheWindowsOfOwnersThatStay)
{
    TOwner Owner;
    {
        record::TWindowSystem Other;
        Owner.Make(Other, TWindowKind::Client);
    }
    EXPECT_EQ(Owner.Window, nullptr);
}

} // namespace vcl::tests
