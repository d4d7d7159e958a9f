#include "vcl/graphics/Canvas.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "vcl/graphics/Bitmap.h"
#include "vcl/graphics/DrawText.h"
#include "vcl/graphics/Edge.h"
#include "vcl/graphics/FrameControl.h"
#include "vcl/graphics/RecordingPainter.h"
#include "vcl/system/Exception.h"

namespace vcl::tests
{

namespace
{

using testing::ElementsAre;

/// A canvas whose operations are kept as text; its font has cells of 9 x 17.
class Canvas : public testing::Test
{
protected:
    Canvas() { Out.GetFont()->SetHeight(-15); }

    std::vector<AnsiString> Take()
    {
        const std::vector<AnsiString> Lines = Recorder.GetLines();
        Recorder.Clear();
        return Lines;
    }

    TRecordingPainter Recorder{TRect{0, 0, 200, 100}};
    TCanvas Out{&Recorder};
};

const std::string FontAndColor = " font=\"Arial\" -15 color=000000";

} // namespace

TEST_F(Canvas, LinesStartAtThePenPositionAndMoveIt)
{
    Out.MoveTo(1, 2);
    Out.LineTo(10, 2);
    Out.LineTo(10, 20);
    EXPECT_EQ(Out.GetPenPos(), (TPoint{10, 20}));
    EXPECT_THAT(Take(), ElementsAre("line 1,2 10,2 pen=000000", "line 10,2 10,20 pen=000000"));
}

TEST_F(Canvas, FiguresAreRecordedWithEverythingThatDecidesTheirLooks)
{
    Out.GetPen()->SetColor(clRed);
    Out.GetPen()->SetWidth(3);
    Out.GetBrush()->SetColor(clBtnFace);
    Out.Rectangle(1, 2, 3, 4);
    Out.Ellipse(1, 2, 3, 4);
    Out.RoundRect(1, 2, 30, 40, 5, 6);
    Out.GetPen()->SetStyle(TPenStyle::psClear);
    Out.GetPen()->SetMode(TPenMode::pmXor);
    Out.GetBrush()->SetStyle(TBrushStyle::bsDiagCross);
    const TPoint Triangle[] = {{0, 0}, {9, 0}, {0, 9}};
    Out.SetFillMode(TFillMode::fmWinding);
    Out.Polygon(Triangle);
    Out.Pie(0, 0, 9, 9, 1, 2, 3, 4);
    EXPECT_THAT(
        Take(),
        ElementsAre("rect 1,2,3,4 pen=FF0000:3 brush=C0C0C0", "ellipse 1,2,3,4 pen=FF0000:3 brush=C0C0C0",
                    "roundrect 1,2,30,40 corner=5,6 pen=FF0000:3 brush=C0C0C0",
                    "polygon 0,0 9,0 0,9 pen=none brush=diagcross:C0C0C0 back=none mode=xor winding",
                    "pie 0,0,9,9 from=1,2 to=3,4 pen=none brush=diagcross:C0C0C0 back=none mode=xor"));
}

TEST_F(Canvas, TheBrushAloneFillsFramesAndInversionNeedsNoTool)
{
    Out.GetBrush()->SetColor(clInfoBk);
    Out.FillRect({0, 0, 5, 5});
    Out.FrameRect({0, 0, 5, 5});
    Out.InvertRect({0, 0, 5, 5});
    Out.DrawFocusRect({0, 0, 5, 5});
    Out.SetPixel(7, 8, clLime);
    EXPECT_THAT(Take(), ElementsAre("fill 0,0,5,5 brush=FFFFE1", "frame 0,0,5,5 brush=FFFFE1",
                                    "invert 0,0,5,5", "focus 0,0,5,5", "pixel 7,8 color=00FF00"));
}

TEST_F(Canvas, ASolidBrushMakesTextAndGapsOpaqueAndAnyOtherTransparent)
{
    Out.GetPen()->SetStyle(TPenStyle::psDash);
    Out.GetBrush()->SetColor(clYellow);
    Out.TextOut(1, 2, "ab");
    Out.LineTo(9, 2);
    Out.GetBrush()->SetStyle(TBrushStyle::bsClear);
    Out.TextOut(1, 2, "ab");
    Out.LineTo(9, 2);
    EXPECT_THAT(Take(), ElementsAre("text 1,2 \"ab\"" + FontAndColor + " back=FFFF00",
                                    "line 19,2 9,2 pen=dash:000000 back=FFFF00",
                                    "text 1,2 \"ab\"" + FontAndColor + " back=none",
                                    "line 19,2 9,2 pen=dash:000000 back=none"));
}

TEST_F(Canvas, ABackgroundModeLastsUntilTheBrushChanges)
{
    Out.SetBkMode(TBackgroundMode::bmTransparent);
    EXPECT_EQ(Out.GetBkMode(), TBackgroundMode::bmTransparent);
    Out.GetBrush()->SetColor(clWhite);
    EXPECT_EQ(Out.GetBkMode(), TBackgroundMode::bmTransparent);
    Out.GetBrush()->SetColor(clRed);
    EXPECT_EQ(Out.GetBkMode(), TBackgroundMode::bmOpaque);
}

TEST_F(Canvas, TextMovesThePenToItsEndAndIsMeasuredInTheCanvassFont)
{
    Out.TextOut(10, 5, "abc");
    EXPECT_EQ(Out.GetPenPos(), (TPoint{37, 5}));
    EXPECT_EQ(Out.TextExtent("abc"), (TSize{27, 17}));
    EXPECT_EQ(Out.TextWidth(""), 0);
    EXPECT_EQ(Out.TextHeight(""), 17);
}

TEST_F(Canvas, TextThatIsNotValidInTheCodePageIsDrawnAsWindows1252)
{
    Out.GetBrush()->SetStyle(TBrushStyle::bsClear);
    Out.TextOut(0, 0, "caf\xE9\tx");
    EXPECT_THAT(Take(), ElementsAre("text 0,0 \"caf\u00E9 x\"" + FontAndColor + " back=none"));
}

TEST_F(Canvas, TextInARectangleIsClippedToItAndFillsItWithASolidBrush)
{
    Out.TextRect({10, 10, 30, 20}, 8, 9, "abcdef");
    EXPECT_THAT(Take(), ElementsAre("clip 10,10,30,20", "fill 10,10,30,20 brush=FFFFFF",
                                    "text 8,9 \"abcdef\"" + FontAndColor + " back=FFFFFF", "clip none"));
}

TEST_F(Canvas, TheOriginMovesDrawingClipsAndAnswers)
{
    Out.SetOrigin({100, 50});
    Out.FillRect({0, 0, 5, 5});
    const TRegion Region(TRect{1, 1, 4, 4});
    Out.SelectClipRegion(&Region);
    EXPECT_EQ(Out.GetClipRect(), (TRect{1, 1, 4, 4}));
    EXPECT_EQ(Out.GetClipRegion(), Region);
    EXPECT_THAT(Take(), ElementsAre("fill 100,50,105,55 brush=FFFFFF", "clip 101,51,104,54"));
}

TEST_F(Canvas, CoordinatesBeyondTheRangeSaturate)
{
    Out.SetOrigin({INT32_MAX, INT32_MIN});
    Out.FillRect({1, -1, 2, 2});
    EXPECT_THAT(Take(), ElementsAre("fill 2147483647,-2147483648,2147483647,-2147483646 brush=FFFFFF"));
}

TEST_F(Canvas, WhatTheSystemClipExcludesStaysExcluded)
{
    const TRegion Damage(TRect{10, 10, 50, 50});
    const TRegion Wish(TRect{0, 0, 20, 20});
    Out.SetSystemClip(&Damage);
    Out.SelectClipRegion(&Wish);
    EXPECT_EQ(Out.GetClipRect(), (TRect{10, 10, 20, 20}));
    Out.SelectClipRegion(nullptr);
    EXPECT_EQ(Out.GetClipRect(), (TRect{10, 10, 50, 50}));
    Out.SetSystemClip(nullptr);
    EXPECT_THAT(Take(), ElementsAre("clip 10,10,50,50", "clip 10,10,20,20", "clip 10,10,50,50", "clip none"));
}

TEST_F(Canvas, IsClippedOutAsksTheRegionNotItsBounds)
{
    TRegion Region(TRect{0, 0, 10, 10});
    Region.Union(TRect{90, 0, 100, 10});
    Out.SelectClipRegion(&Region);
    EXPECT_TRUE(Out.IsClippedOut({20, 0, 80, 10}));
    EXPECT_FALSE(Out.IsClippedOut({20, 0, 91, 10}));
    EXPECT_TRUE(Out.IsClippedOut({500, 500, 600, 600}));
    EXPECT_TRUE(Out.IsClippedOut({5, 5, 5, 9}));
}

TEST_F(Canvas, SavedStatesComeBackWholeAndInOneStep)
{
    const int Outer = Out.SaveState();
    Out.GetPen()->SetColor(clRed);
    Out.GetBrush()->SetColor(clBlue);
    Out.GetFont()->SetName("Courier New");
    Out.SetBkMode(TBackgroundMode::bmTransparent);
    Out.MoveTo(3, 4);
    Out.SetOrigin({5, 6});
    Out.IntersectClipRect({0, 0, 10, 10});
    Out.SaveState();
    Out.IntersectClipRect({0, 0, 2, 2});
    Out.RestoreState(Outer);
    EXPECT_EQ(Out.GetPen()->GetColor(), clBlack);
    EXPECT_EQ(Out.GetBrush()->GetColor(), clWhite);
    EXPECT_EQ(Out.GetFont()->GetName(), "Arial");
    EXPECT_EQ(Out.GetBkMode(), TBackgroundMode::bmOpaque);
    EXPECT_EQ(Out.GetPenPos(), (TPoint{0, 0}));
    EXPECT_EQ(Out.GetOrigin(), (TPoint{0, 0}));
    EXPECT_EQ(Out.GetClipRegion(), std::nullopt);
    Out.RestoreState();
    Out.RestoreState(5);
    EXPECT_EQ(Out.SaveState(), 1);
    EXPECT_THAT(Take(), ElementsAre("clip 5,6,15,16", "clip 5,6,7,8", "clip none"));
}

TEST_F(Canvas, WithoutAPainterDrawingIsRefused)
{
    TCanvas Detached;
    EXPECT_THROW(Detached.FillRect({0, 0, 1, 1}), EInvalidOperation);
    Detached.SetPainter(&Recorder);
    Detached.FillRect({0, 0, 1, 1});
    EXPECT_EQ(Take().size(), 1u);
}

TEST_F(Canvas, AnAttachedPainterGetsTheClipThatWasSelectedBefore)
{
    TCanvas Detached;
    const TRegion Region(TRect{1, 2, 3, 4});
    Detached.SelectClipRegion(&Region);
    Detached.SetPainter(&Recorder);
    EXPECT_THAT(Take(), ElementsAre("clip 1,2,3,4"));
}

TEST_F(Canvas, APatternIsReadFromTheBrushsBitmapWhenPainting)
{
    TBitmap Tile(2, 1);
    Tile.GetCanvas()->SetPixel(0, 0, clRed);
    Out.GetBrush()->SetBitmap(&Tile);
    const TBrushState State = Out.GetDrawState().Brush;
    EXPECT_EQ(State.Style, TBrushStyle::bsPattern);
    EXPECT_EQ(State.Pattern[0], 0xFF0000u);
    EXPECT_EQ(State.Pattern[1], 0xFFFFFFu);
    EXPECT_EQ(State.Pattern[62], 0xFF0000u);
    EXPECT_EQ(Out.GetBkMode(), TBackgroundMode::bmTransparent);
    Tile.SetMonochrome(true);
    Out.FrameRect({0, 0, 9, 9});
    EXPECT_THAT(Take(), ElementsAre("frame 0,0,9,9 brush=mono:FFFFFFFFFFFFFFFF:000000:FFFFFF"));
    Tile.GetCanvas()->SetPixel(0, 0, clBlack);
    Out.FrameRect({0, 0, 9, 9});
    EXPECT_THAT(Take(), ElementsAre("frame 0,0,9,9 brush=mono:5555555555555555:000000:FFFFFF"));
}

TEST_F(Canvas, PicturesCopyFromABitmapWithOrWithoutItsTransparentColour)
{
    TBitmap Picture(4, 2);
    Out.Draw(10, 20, &Picture);
    Picture.SetTransparent(true);
    Out.StretchDraw({0, 0, 8, 8}, &Picture);
    Out.CopyRect({1, 1, 3, 2}, *Picture.GetCanvas(), {0, 0, 2, 1});
    Out.Draw(0, 0, nullptr);
    TBitmap Empty;
    Out.Draw(0, 0, &Empty);
    const std::vector<AnsiString> Lines = Take();
    ASSERT_EQ(Lines.size(), 3u);
    EXPECT_THAT(Lines[0], testing::StartsWith("copy 10,20,14,22 from 0,0,4,2 of 4x2 pixels="));
    EXPECT_THAT(Lines[1], testing::StartsWith("maskedcopy 0,0,8,8 from 0,0,4,2 of 4x2 pixels="));
    EXPECT_THAT(Lines[2], testing::StartsWith("copy 1,1,3,2 from 0,0,2,1 of 4x2 pixels="));
}

TEST_F(Canvas, RecordedCopiesDifferWhenTheirPixelsDo)
{
    TBitmap Picture(4, 2);
    Out.Draw(0, 0, &Picture);
    const std::vector<AnsiString> Before = Take();
    Picture.GetCanvas()->SetPixel(3, 1, clRed);
    Out.Draw(0, 0, &Picture);
    EXPECT_NE(Take(), Before);
}

TEST_F(Canvas, EdgesAndControlsUseSystemColoursAndTheOrigin)
{
    TBitmap Bitmap(20, 20);
    TCanvas* const Pixels = Bitmap.GetCanvas();
    Pixels->SetOrigin({5, 5});
    TRect Rect{0, 0, 10, 10};
    EXPECT_TRUE(Pixels->DrawEdge(Rect, BDR_SUNKENOUTER, BF_RECT | BF_ADJUST));
    EXPECT_EQ(Rect, (TRect{1, 1, 9, 9}));
    EXPECT_FALSE(Pixels->DrawEdge(Rect, BDR_SUNKENOUTER | BDR_RAISEDOUTER, BF_RECT));
    EXPECT_EQ(Pixels->GetPixel(0, 0), TColor(0x808080));
    EXPECT_TRUE(Pixels->DrawFrameControl({0, 0, 10, 10}, DFC_BUTTON, DFCS_BUTTONPUSH));
    EXPECT_EQ(Pixels->GetPixel(5, 5), TColor(0xC0C0C0));
    EXPECT_FALSE(Pixels->DrawFrameControl({0, 0, 10, 10}, 99, 0));
}

TEST_F(Canvas, ItTellsBeforeAndAfterEachDrawing)
{
    std::string Calls;
    Out.OnChanging = [&](TObject*) { Calls += "<"; };
    Out.OnChange = [&](TObject*) { Calls += ">"; };
    Out.FillRect({0, 0, 1, 1});
    EXPECT_EQ(Calls, "<>");
}

TEST_F(Canvas, DrawTextClipsOnlyWhatSticksOut)
{
    Out.GetBrush()->SetStyle(TBrushStyle::bsClear);
    TRect Rect{10, 10, 37, 27};
    DrawText(Out, "abc", Rect, DT_LEFT);
    DrawText(Out, "abcd", Rect, DT_LEFT);
    DrawText(Out, "abcd", Rect, DT_LEFT | DT_NOCLIP);
    EXPECT_THAT(Take(), ElementsAre("text 10,10 \"abc\"" + FontAndColor + " back=none", "clip 10,10,37,27",
                                    "text 10,10 \"abcd\"" + FontAndColor + " back=none", "clip none",
                                    "text 10,10 \"abcd\"" + FontAndColor + " back=none"));
}

TEST_F(Canvas, DrawTextKeepsTheClipThatWasThere)
{
    const TRegion Region(TRect{0, 0, 30, 30});
    Out.SelectClipRegion(&Region);
    TRect Rect{10, 10, 37, 27};
    DrawText(Out, "abcd", Rect, DT_LEFT);
    EXPECT_EQ(Out.GetClipRegion(), Region);
    Take();
    TRect Hidden{40, 40, 41, 41};
    EXPECT_EQ(DrawText(Out, "abcd", Hidden, DT_LEFT), 17);
    EXPECT_TRUE(Take().empty());
}

TEST_F(Canvas, DrawTextUnderlinesThePrefixedCharacterBelowTheBaseline)
{
    Out.GetBrush()->SetStyle(TBrushStyle::bsClear);
    Out.GetFont()->SetColor(clRed);
    TRect Rect{0, 0, 100, 17};
    DrawText(Out, "E&xit", Rect, DT_LEFT);
    DrawText(Out, "E&xit", Rect, DT_PREFIXONLY);
    EXPECT_THAT(Take(), ElementsAre("text 0,0 \"Exit\" font=\"Arial\" -15 color=FF0000 back=none",
                                    "fill 9,13,18,14 brush=FF0000", "fill 9,13,18,14 brush=FF0000"));
}

TEST_F(Canvas, DrawTextMarksRightToLeftReading)
{
    Out.GetBrush()->SetStyle(TBrushStyle::bsClear);
    TRect Rect{0, 0, 100, 17};
    DrawText(Out, "abc", Rect, DT_RIGHT | DT_RTLREADING);
    EXPECT_THAT(Take(), ElementsAre("text 73,0 \"abc\"" + FontAndColor + " back=none rtl"));
}

TEST_F(Canvas, DrawTextComputesModifiesAndTakesTabLengthsFromItsFlags)
{
    TRect Rect{5, 5, 50, 6};
    EXPECT_EQ(DrawText(Out, "one two", Rect, DT_CALCRECT | DT_WORDBREAK), 34);
    EXPECT_EQ(Rect, (TRect{5, 5, 41, 39}));
    AnsiString Caption = "one two three";
    TRect Narrow{0, 0, 63, 17};
    TDrawTextParams Params;
    DrawTextEx(Out, Caption, Narrow, DT_SINGLELINE | DT_END_ELLIPSIS | DT_MODIFYSTRING, &Params);
    EXPECT_EQ(Caption, "one ...");
    Take();
    TRect Tabs{0, 0, 500, 17};
    DrawText(Out, "a\tb", Tabs, DT_EXPANDTABS | DT_TABSTOP | 4u << 8);
    EXPECT_THAT(Take(), ElementsAre("text 0,0 \"a\"" + FontAndColor + " back=FFFFFF",
                                    "text 36,0 \"b\"" + FontAndColor + " back=FFFFFF"));
}

TEST_F(Canvas, DrawTextOfAHugeCaptionHandsOnOnlyWhatCanBeSeen)
{
    const AnsiString Huge(10'000'000, 'x');
    TRect Rect{0, 0, 100, 34};
    DrawText(Out, Huge, Rect, DT_WORDBREAK | DT_EDITCONTROL | DT_END_ELLIPSIS);
    DrawText(Out, Huge, Rect, DT_SINGLELINE);
    EXPECT_LT(Recorder.GetText().size(), 2000u);
}

} // namespace vcl::tests
