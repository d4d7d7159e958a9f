#include "ControlFixture.h"

#include "vcl/graphics/Bitmap.h"
#include "vcl/graphics/Colors.h"
#include "vcl/graphics/Surface.h"

namespace vcl::tests
{

TEST_F(TControlTest, ManyInvalidationsMakeOnePainting)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Probe.TakeNotes();
    Probe.Invalidate();
    Probe.Invalidate();
    Probe.InvalidateRect({5, 5, 10, 10});
    EXPECT_THAT(Probe.TakeNotes(), IsEmpty()) << "later, not now";
    Windows().ProcessMessages();
    EXPECT_THAT(Probe.TakeNotes(), ElementsAre("Paint 0,0,100,80"));
    EXPECT_THAT(Windows().TakeLog(), ElementsAre("present 2 0,0,100,80"));
}

TEST_F(TControlTest, OnlyWhatIsDamagedIsPaintedAndShown)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Probe.TakeNotes();
    Probe.InvalidateRect({5, 6, 15, 26}, false);
    Probe.InvalidateRect({90, 70, 200, 200});
    Windows().ProcessMessages();
    EXPECT_THAT(Probe.TakeNotes(), ElementsAre("Paint 5,6,95,74"));
    EXPECT_THAT(Windows().TakeLog(), ElementsAre("present 2 5,6,10,20", "present 2 90,70,10,10"));
}

TEST_F(TControlTest, UpdateAndRefreshPaintNow)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Probe.TakeNotes();
    Probe.Update();
    EXPECT_THAT(Probe.TakeNotes(), IsEmpty()) << "nothing is damaged";
    Probe.InvalidateRect({0, 0, 10, 10});
    Probe.Update();
    EXPECT_THAT(Probe.TakeNotes(), ElementsAre("Paint 0,0,10,10"));
    Probe.Refresh();
    EXPECT_THAT(Probe.TakeNotes(), ElementsAre("Paint 0,0,100,80"));
}

TEST_F(TControlTest, DamageIsErasedWithTheColourAlsoWithoutTheEraseFlag)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Probe.SetColor(clYellow);
    Probe.GetCanvas()->SetPixel(3, 3, clBlack);
    Probe.Update();
    EXPECT_EQ(Probe.GetCanvas()->GetPixel(3, 3), clYellow);
    Probe.GetCanvas()->SetPixel(3, 3, clBlack);
    Probe.GetCanvas()->SetPixel(30, 3, clBlack);
    Probe.InvalidateRect({0, 0, 10, 10}, false);
    Probe.Update();
    EXPECT_EQ(Probe.GetCanvas()->GetPixel(3, 3), clYellow);
    EXPECT_EQ(Probe.GetCanvas()->GetPixel(30, 3), clBlack) << "was not damaged";
}

TEST_F(TControlTest, DrawingOutsidePaintStaysAndItsRectangleGoesToTheScreen)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Probe.GetCanvas()->GetBrush()->SetColor(clRed);
    Probe.GetCanvas()->FillRect({10, 20, 30, 40});
    EXPECT_THAT(Windows().TakeLog(), ElementsAre("present 2 10,20,20,20"));
    EXPECT_EQ(Probe.GetCanvas()->GetPixel(10, 20), clRed);
    Probe.GetCanvas()->FillRect({90, 70, 500, 500});
    EXPECT_THAT(Windows().TakeLog(), ElementsAre("present 2 90,70,10,10")) << "clipped to the client area";
}

TEST_F(TControlTest, DrawingInPaintCannotReachWhatIsNotDamaged)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Probe.OnPaintProbe = [](TCanvas& Canvas) {
        Canvas.GetBrush()->SetColor(clBlue);
        Canvas.FillRect({0, 0, 100, 80});
    };
    Probe.InvalidateRect({10, 10, 20, 20});
    Probe.Update();
    EXPECT_EQ(Probe.GetCanvas()->GetPixel(10, 10), clBlue);
    EXPECT_EQ(Probe.GetCanvas()->GetPixel(20, 10), ColorToRGB(clBtnFace));
}

TEST_F(TControlTest, DrawingBeforeThereIsAHandleMakesOne)
{
    TProbe& Probe = AddProbe();
    Probe.GetCanvas()->SetPixel(1, 1, clRed);
    EXPECT_TRUE(Probe.HandleAllocated());
    EXPECT_EQ(Probe.GetCanvas()->GetPixel(1, 1), clRed);
}

TEST_F(TControlTest, WhatIsInvalidatedWhilePaintingIsPaintedNextTime)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    int Times = 0;
    Probe.OnPaintProbe = [&](TCanvas&) {
        if (++Times == 1)
            Probe.InvalidateRect({0, 0, 5, 5});
    };
    Probe.Refresh();
    EXPECT_EQ(Times, 1);
    Windows().ProcessMessages();
    EXPECT_EQ(Times, 2);
}

TEST_F(TControlTest, AHandlerThatPaintsWhileTheControlPaintsLeavesItsPensAndClipAlone)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    int Depth = 0;
    TColor After = clNone;
    Probe.OnPaintProbe = [&](TCanvas& Canvas) {
        Canvas.GetBrush()->SetColor(Depth == 0 ? clLime : clRed);
        if (Depth++ == 0) {
            Probe.InvalidateRect({50, 50, 60, 60});
            Probe.Update();
            After = Canvas.GetBrush()->GetColor();
        }
        Canvas.FillRect({0, 0, 100, 80});
    };
    Probe.InvalidateRect({0, 0, 10, 10});
    Probe.Update();
    EXPECT_EQ(After, clLime);
    EXPECT_EQ(Probe.GetCanvas()->GetPixel(0, 0), clLime);
    EXPECT_EQ(Probe.GetCanvas()->GetPixel(50, 50), clRed);
    EXPECT_NE(Probe.GetCanvas()->GetPixel(30, 30), clLime);
}

TEST_F(TControlTest, AnErrorInPaintIsHandedOnAndTheNextPaintingIsWhole)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    bool Fails = true;
    Probe.OnPaintProbe = [&](TCanvas& Canvas) {
        if (Fails)
            throw Exception("no paint");
        Canvas.GetBrush()->SetColor(clBlue);
        Canvas.FillRect({0, 0, 100, 80});
    };
    Probe.InvalidateRect({0, 0, 10, 10});
    Windows().ProcessMessages();
    EXPECT_THAT(FErrors, ElementsAre("no paint"));
    Fails = false;
    Probe.Refresh();
    EXPECT_EQ(Probe.GetCanvas()->GetPixel(99, 79), clBlue);
}

TEST_F(TControlTest, ScrollingMovesPixelsAndChildrenAndDamagesWhatComesIntoView)
{
    TProbe& Probe = AddProbe();
    TEdit& Edit = Probe.AddEdit();
    ShowForm();
    Probe.GetCanvas()->SetPixel(50, 40, clRed);
    Probe.TakeNotes();
    Probe.ScrollBy(0, -10);
    EXPECT_EQ(Probe.GetCanvas()->GetPixel(50, 30), clRed);
    EXPECT_EQ(Edit.GetTop(), -5);
    Windows().ProcessMessages();
    EXPECT_THAT(Probe.TakeNotes(), ElementsAre("Paint 0,70,100,10"));
}

TEST_F(TControlTest, DamageMovesAlongWhenScrolling)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Probe.TakeNotes();
    Probe.InvalidateRect({0, 40, 10, 50});
    Probe.ScrollBy(0, -10);
    Windows().TakeLog();
    Windows().ProcessMessages();
    EXPECT_THAT(Windows().TakeLog(), ElementsAre("present 2 0,30,10,10", "present 2 0,70,100,10"));
}

TEST_F(TControlTest, AnotherScaleRepaintsEverything)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Probe.TakeNotes();
    WindowOf(Probe).ChangeScale(1.5);
    Windows().ProcessMessages();
    EXPECT_THAT(Probe.TakeNotes(), ElementsAre("Paint 0,0,100,80"));
    EXPECT_EQ(Probe.GetCanvas()->GetSurface()->GetDeviceWidth(), 150);
}

TEST_F(TControlTest, PaintToDrawsTheControlItsChildrenAndNothingOutsideOfIt)
{
    TProbe& Probe = AddProbe();
    Probe.OnPaintProbe = [](TCanvas& Canvas) {
        Canvas.GetBrush()->SetColor(clBlue);
        Canvas.FillRect({-50, -50, 500, 500});
    };
    ShowForm();
    TBitmap Picture;
    Picture.SetSize(400, 300);
    Form().PaintTo(*Picture.GetCanvas(), 0, 0);
    EXPECT_EQ(Picture.GetCanvas()->GetPixel(10, 20), clBlue);
    EXPECT_EQ(Picture.GetCanvas()->GetPixel(109, 99), clBlue);
    EXPECT_EQ(Picture.GetCanvas()->GetPixel(110, 99), ColorToRGB(clBtnFace));
    EXPECT_EQ(Picture.GetCanvas()->GetPixel(9, 20), ColorToRGB(clBtnFace));
}

TEST_F(TControlTest, APaintingOfTheWindowInterruptsPaintToWithoutTakingItsTarget)
{
    TProbe& Probe = AddProbe();
    bool IsOnWindow = false;
    TProbe* Painted = nullptr;
    Probe.OnPaintProbe = [&](TCanvas& Canvas) {
        Canvas.GetBrush()->SetColor(clBlue);
        Canvas.FillRect({0, 0, 50, 80});
        if (Painted && !std::exchange(IsOnWindow, true)) {
            Painted->Refresh();
            IsOnWindow = false;
            Painted = nullptr;
        }
        Canvas.GetBrush()->SetColor(clRed);
        Canvas.FillRect({50, 0, 100, 80});
    };
    ShowForm();
    Painted = &Probe;
    TBitmap Picture;
    Picture.SetSize(400, 300);
    Form().PaintTo(*Picture.GetCanvas(), 0, 0);
    EXPECT_EQ(Picture.GetCanvas()->GetPixel(20, 30), clBlue);
    EXPECT_EQ(Picture.GetCanvas()->GetPixel(100, 30), clRed);
}

TEST_F(TControlTest, NewSystemColoursRepaintEveryWindow)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Probe.TakeNotes();
    Windows().TellSystemChange(TSystemChange::Colors);
    Windows().ProcessMessages();
    EXPECT_THAT(Probe.TakeNotes(), ElementsAre("Paint 0,0,100,80"));
    Windows().TellSystemChange(TSystemChange::Fonts);
    Windows().ProcessMessages();
    EXPECT_THAT(Probe.TakeNotes(), ElementsAre("Paint 0,0,100,80"));
}

} // namespace vcl::tests
