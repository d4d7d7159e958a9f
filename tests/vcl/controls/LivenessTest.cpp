#include "ControlFixture.h"

#include "vcl/platform/VirtualKeys.h"

namespace vcl::tests
{

namespace
{

/// Frees the probe in the given place, lets a user do everything, and looks whether anything was still
/// called.
class TFreeingTest : public TControlTest, public ::testing::WithParamInterface<const char*>
{
};

} // namespace

TEST_P(TFreeingTest, AHandlerMayFreeTheControl)
{
    TProbe* Probe = &AddProbe();
    Probe->SetBars(true, true);
    Add<TProbe>(300, 200, 10, 10).SetTabOrder(0);
    ShowForm();
    bool IsFreed = false;
    Probe->When(GetParam(), [&] {
        delete std::exchange(Probe, nullptr);
        IsFreed = true;
    });
    const auto Alive = [&](auto Action) {
        if (Probe)
            Action(*Probe);
    };
    Alive([&](TProbe& Control) { Control.SetFocus(); });
    Alive([&](TProbe& Control) { Windows().MouseMove(WindowOf(Control), {1, 1}); });
    Alive([&](TProbe& Control) { Windows().MouseDoubleClick(WindowOf(Control), {5, 5}); });
    Alive([&](TProbe& Control) {
        Windows().MouseMove(WindowOf(Form()), {390, 290});
        static_cast<void>(Control);
    });
    Alive([&](TProbe& Control) {
        Control.SetFocus();
        Windows().KeyPress('A');
    });
    Alive([&](TProbe& Control) {
        Windows().Scroll(WindowOf(Control), TScrollBarKind::sbVertical, SB_LINEDOWN);
    });
    Alive([&](TProbe& Control) {
        Windows().Scroll(WindowOf(Control), TScrollBarKind::sbHorizontal, SB_LINEDOWN);
    });
    Alive([&](TProbe& Control) {
        Control.SetTimer(1, 10);
        Windows().Advance(10);
    });
    Alive([&](TProbe& Control) { Control.SetBounds(0, 0, 40, 40); });
    Alive([&](TProbe& Control) { Control.Refresh(); });
    Alive([&](TProbe& Control) {
        TProbe& Other = Add<TProbe>(300, 200, 10, 10);
        static_cast<void>(Control);
        Other.SetFocus();
    });
    EXPECT_TRUE(IsFreed) << "the place was not reached";
    EXPECT_THAT(FErrors, IsEmpty());
    Windows().ProcessMessages();
    EXPECT_EQ(Windows().GetTimerCount(), 0u);
    EXPECT_EQ(Windows().GetCaptured(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Places, TFreeingTest,
                         ::testing::Values("MouseEnter", "MouseMove", "MouseDown", "Click", "DblClick",
                                           "MouseUp", "MouseLeave", "KeyDown", "KeyPress", "KeyUp", "VScroll",
                                           "HScroll", "Timer", "Size", "Resize", "Paint", "Exit", "Enter"),
                         [](const auto& Info) { return std::string(Info.param); });

TEST_F(TControlTest, EventHandlersMayFreeTheirControl)
{
    for (const bool Down : {true, false}) {
        TProbe* const Probe = &AddProbe();
        ShowForm();
        if (Down)
            Probe->OnMouseDown = [Probe](TObject*, TMouseButton, TShiftState, int, int) { delete Probe; };
        else
            Probe->OnClick = [Probe](TObject*) { delete Probe; };
        Windows().MouseClick(WindowOf(*Probe), {5, 5});
        EXPECT_EQ(Form().GetControlCount(), 0);
    }
    EXPECT_THAT(FErrors, IsEmpty());
}

TEST_F(TControlTest, AnEditMayBeFreedByItsOwnKey)
{
    TProbe& Probe = AddProbe();
    TEdit* const Edit = &Probe.AddEdit();
    ShowForm();
    Edit->SetFocus();
    Edit->OnKeyDown = [Edit](TObject*, std::uint16_t&, TShiftState) { delete Edit; };
    Windows().KeyPress('A');
    EXPECT_EQ(Probe.GetControlCount(), 0);
}

TEST_F(TControlTest, FreeingAParentFreesItsChildrenAndTheirWindows)
{
    TProbe& Probe = AddProbe();
    Probe.AddEdit();
    ShowForm();
    delete &Probe;
    EXPECT_THAT(Windows().TakeLog(), ElementsAre("hide 2", "hide 3", "release 3", "release 2"));
    EXPECT_EQ(Windows().GetWindows().size(), 1u);
}

TEST_F(TControlTest, AnExceptionInAHandlerEndsAtTheApplication)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Probe.OnClick = [](TObject*) { throw Exception("from a click"); };
    Windows().MouseClick(WindowOf(Probe), {5, 5});
    EXPECT_THAT(FErrors, ElementsAre("from a click"));
}

TEST_F(TControlTest, AnExceptionOfAHandlerThatFreedItsControlHasNoSender)
{
    TProbe* const Probe = &AddProbe();
    ShowForm();
    TObject* Sender = Probe;
    Application().OnException = [&](TObject* From, const std::exception&) { Sender = From; };
    Probe->OnClick = [Probe](TObject*) {
        delete Probe;
        throw Exception("last words");
    };
    Windows().MouseClick(WindowOf(*Probe), {5, 5});
    EXPECT_EQ(Sender, nullptr);
}

TEST_F(TControlTest, AnAbortIsSilent)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Probe.OnClick = [](TObject*) { throw EAbort("quiet"); };
    Windows().MouseClick(WindowOf(Probe), {5, 5});
    EXPECT_THAT(FErrors, IsEmpty());
}

TEST_F(TControlTest, WithoutAHandlerTheUserIsTold)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Application().OnException = nullptr;
    Probe.OnClick = [](TObject*) { throw Exception("tell me"); };
    Windows().MouseClick(WindowOf(Probe), {5, 5});
    EXPECT_THAT(Windows().TakeLog(), ElementsAre("message tell me"));
}

TEST(Liveness, AWeakReferenceTurnsNull)
{
    struct TObjectWithLife {
        TLiveness Life;
        const TLiveness& GetLiveness() const { return Life; }
    };
    auto Object = std::make_unique<TObjectWithLife>();
    const TWeak<TObjectWithLife> Reference = Object.get();
    const TWeak<TObjectWithLife> Copy = Reference;
    EXPECT_EQ(Copy.Get(), Object.get());
    Object.reset();
    EXPECT_EQ(Reference.Get(), nullptr);
    EXPECT_EQ(Copy.Get(), nullptr);
}

} // namespace vcl::tests
