#include "KSTimeView/view/PaintingFixture.h"

using testing::ElementsAre;

namespace
{

class TClockPainting : public TTimeViewPaintingTest
{
protected:
    TLines Clock(const vcl::TRect& Rect, int Hour, int Minute)
    {
        vcl::TRecordingPainter Recorder({-100, -100, 100, 100});
        vcl::TCanvas Canvas(&Recorder);
        View().DrawClock(&Canvas, Rect, (Hour * 60 + Minute) / 1440.0);
        return Recorder.GetLines();
    }
};

TEST_F(TClockPainting, AClockHasTwelveTicksAndTwoHands)
{
    vcl::TRecordingPainter Recorder({0, 0, 100, 100});
    vcl::TCanvas Canvas(&Recorder);
    View().DrawClock(&Canvas, {0, 0, 21, 21}, 15.0 / 24);
    const TLines& Lines = Recorder.GetLines();
    ASSERT_EQ(Lines.size(), 15u);
    EXPECT_EQ(Lines[0], "ellipse 0,0,21,21 pen=000000 brush=000000");
    EXPECT_EQ(Lines[1], "line 19,10 18,10 pen=FFFFFF");
    EXPECT_EQ(Lines[4], "line 10,1 10,2 pen=FFFFFF");
    EXPECT_EQ(Lines[13], "line 10,10 10,1 pen=FFFFFF") << "the minute hand points up";
    EXPECT_EQ(Lines[14], "line 10,10 17,10 pen=FFFFFF") << "the hour hand points to the three";
    Recorder.Clear();
    View().DrawClock(&Canvas, {0, 0, 21, 21}, (9 * 60 + 15) / 1440.0);
    EXPECT_EQ(Recorder.GetLines()[13], "line 10,10 19,10 pen=FFFFFF") << "a quarter past points right";
    EXPECT_EQ(Recorder.GetLines()[14], "line 10,10 3,9 pen=FFFFFF");
}

TEST_F(TClockPainting, HalvesOfAnOddRectangleGoTowardsZero)
{
    EXPECT_THAT(
        Clock({-7, -4, 30, 22}, 22, 50),
        ElementsAre("ellipse -7,-4,30,22 pen=000000 brush=000000", "line 28,9 27,9 pen=FFFFFF",
                    "line 26,1 25,1 pen=FFFFFF", "line 20,-6 19,-5 pen=FFFFFF", "line 11,-8 11,-7 pen=FFFFFF",
                    "line 3,-6 3,-5 pen=FFFFFF", "line -4,1 -3,1 pen=FFFFFF", "line -6,9 -5,9 pen=FFFFFF",
                    "line -4,17 -3,17 pen=FFFFFF", "line 2,24 3,23 pen=FFFFFF", "line 11,26 11,25 pen=FFFFFF",
                    "line 20,24 19,23 pen=FFFFFF", "line 26,18 25,17 pen=FFFFFF", "line 11,9 -4,0 pen=FFFFFF",
                    "line 11,9 2,-3 pen=FFFFFF"));
    EXPECT_EQ(Clock({-12, -9, 3, 2}, 12, 20)[13], "line -4,-3 1,0 pen=FFFFFF");
    EXPECT_EQ(Clock({-12, -9, 3, 2}, 12, 20)[14], "line -4,-3 -3,-7 pen=FFFFFF");
}

TEST_F(TClockPainting, TheAfternoonLooksLikeTheMorning)
{
    EXPECT_EQ(Clock({0, 0, 40, 40}, 16, 25), Clock({0, 0, 40, 40}, 4, 25));
    EXPECT_EQ(Clock({0, 0, 40, 40}, 12, 0), Clock({0, 0, 40, 40}, 0, 0));
    EXPECT_NE(Clock({0, 0, 40, 40}, 11, 0), Clock({0, 0, 40, 40}, 0, 0));
}

} // namespace
