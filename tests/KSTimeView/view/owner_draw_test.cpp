#include "KSTimeView/view/PaintingFixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

/// A view with one timed and one all-day item, and a handler for each part that notes its call.
class TOwnerDrawing : public TTimeViewPaintingTest
{
protected:
    using TOption = TKSTVCustomDrawOption;

    TOwnerDrawing()
    {
        Show(300, 400);
        FTimed = Add(1, 2, false, "Lunch");
        FAllDay = Add(0, 24, true, "Holiday");
    }

    void AssignAll()
    {
        View().OnDrawRuler = [this](vcl::TObject* Sender, vcl::TCanvas* Canvas, const vcl::TRect&, int) {
            Note("ruler", Sender, Canvas);
        };
        View().OnDrawDay = [this](vcl::TObject* Sender, vcl::TCanvas* Canvas, TKSTimeviewDay* Drawn,
                                  const vcl::TRect&, int) {
            EXPECT_EQ(Drawn, &Day(0));
            Note("day", Sender, Canvas);
        };
        View().OnDrawTopSpace = [this](vcl::TObject* Sender, vcl::TCanvas* Canvas, TKSTimeviewDay* Drawn,
                                       const vcl::TRect&) {
            EXPECT_EQ(Drawn, &Day(0));
            Note("top", Sender, Canvas);
        };
        View().OnDrawCaption = [this](vcl::TObject* Sender, vcl::TCanvas* Canvas, const vcl::TRect&,
                                      TKSTimeviewDay* Drawn) {
            EXPECT_EQ(Drawn, &Day(0));
            Note("caption", Sender, Canvas);
        };
        View().OnDrawItem = [this](vcl::TObject* Sender, vcl::TCanvas* Canvas, TKSTimeViewItem* Item,
                                   const vcl::TRect& Rect) {
            EXPECT_EQ(Rect, Day(0).GetItemRect(Item));
            Note("item " + Item->GetCaption(), Sender, Canvas);
        };
    }
    /// The handlers called, with these options.
    TLines CallsWith(TKSTVCustomDrawOptions Options)
    {
        View().SetCustomDrawOptions(Options);
        Settle();
        FLog.clear();
        FPainted = Painting();
        return FLog;
    }

    TKSTimeViewItem* FTimed;
    TKSTimeViewItem* FAllDay;
    TLines FPainted;

private:
    void Note(const std::string& Part, vcl::TObject* Sender, vcl::TCanvas* Canvas)
    {
        EXPECT_EQ(Sender, FView);
        EXPECT_EQ(Canvas, View().GetCanvas());
        FLog.push_back(Part);
    }

    TLines FLog;
};

TEST_F(TOwnerDrawing, EachOptionAloneReplacesItsPart)
{
    AssignAll();
    EXPECT_THAT(CallsWith({}), IsEmpty());
    EXPECT_THAT(CallsWith({TOption::cdoCaptions}), ElementsAre("caption"));
    EXPECT_THAT(CallsWith({TOption::cdoItems}), ElementsAre("item Lunch", "item Holiday"));
    EXPECT_THAT(CallsWith({TOption::cdoDays}), ElementsAre("day", "top"));
    EXPECT_THAT(CallsWith({TOption::cdoRuler}), ElementsAre("ruler"));
    EXPECT_THAT(CallsWith({TOption::cdoTopSpace}), IsEmpty());
    EXPECT_THAT(CallsWith({TOption::cdoCaptions, TOption::cdoItems, TOption::cdoDays, TOption::cdoRuler,
                           TOption::cdoTopSpace}),
                ElementsAre("ruler", "day", "item Lunch", "top", "item Holiday", "caption"));
}

TEST_F(TOwnerDrawing, OptionsWithoutHandlersChangeNothing)
{
    const TLines Plain = Painting();
    CallsWith(
        {TOption::cdoCaptions, TOption::cdoItems, TOption::cdoDays, TOption::cdoRuler, TOption::cdoTopSpace});
    EXPECT_EQ(FPainted, Plain);
}

TEST_F(TOwnerDrawing, HandlersWithoutOptionsChangeNothing)
{
    const TLines Plain = Painting();
    AssignAll();
    CallsWith({});
    EXPECT_EQ(FPainted, Plain);
    CallsWith({TOption::cdoTopSpace});
    EXPECT_EQ(FPainted, Plain);
}

TEST_F(TOwnerDrawing, WhatTheProgramDrawsIsLeftOutAndNothingElse)
{
    AssignAll();
    const auto WithoutMatching = [](const TLines& Lines, auto&& Belongs) {
        TLines Result;
        for (const std::string& Line : Lines)
            if (!Belongs(Line))
                Result.push_back(Line);
        return Result;
    };
    CallsWith({});
    const TLines Plain = FPainted;
    CallsWith({TOption::cdoItems});
    EXPECT_EQ(FPainted, WithoutMatching(Plain, [](const std::string& Line) {
                  return Line.starts_with("rect") || Line.find("Lunch") != std::string::npos ||
                         Line.find("Holiday") != std::string::npos;
              }));
    CallsWith({TOption::cdoDays});
    EXPECT_EQ(FPainted, WithoutMatching(Plain, [](const std::string& Line) {
                  return Line.starts_with("fill 50,22,") || Line.starts_with("line 50,22 ") ||
                         Line.starts_with("line 51,61 ");
              }));
    CallsWith({TOption::cdoCaptions});
    EXPECT_EQ(FPainted.size() + 7, Plain.size()) << "panel, four edges, line and text";
    EXPECT_THAT(Matching(FPainted, "text", "January"), IsEmpty());
}

TEST_F(TOwnerDrawing, ItemsAreDrawnWithTheirFillAndABlackPen)
{
    FTimed->SetColor(vcl::clYellow);
    FAllDay->SetAllDayColor(vcl::clLime);
    View().SetAllDayItemSelectionColor(vcl::clFuchsia);
    View().SetItemSelectionColor(vcl::clRed);
    std::vector<vcl::TColor> Fills;
    View().OnDrawItem = [&](vcl::TObject*, vcl::TCanvas* Canvas, TKSTimeViewItem*, const vcl::TRect&) {
        Fills.push_back(Canvas->GetBrush()->GetColor());
        EXPECT_EQ(Canvas->GetBrush()->GetStyle(), vcl::TBrushStyle::bsSolid);
        EXPECT_EQ(Canvas->GetPen()->GetColor(), vcl::clBlack);
        EXPECT_EQ(Canvas->GetPen()->GetStyle(), vcl::TPenStyle::psSolid);
        EXPECT_EQ(Canvas->GetPen()->GetWidth(), 0);
    };
    View().SetCustomDrawOptions({TOption::cdoItems});
    Painting();
    EXPECT_THAT(Fills, ElementsAre(vcl::clYellow, vcl::clLime));
    View().SetSelectedItem(FAllDay);
    Fills.clear();
    Painting();
    EXPECT_THAT(Fills, ElementsAre(vcl::clYellow, vcl::clFuchsia));
    View().SetSelectedItem(FTimed);
    Fills.clear();
    EXPECT_THAT(Matching(Painting(), "rect"), IsEmpty()) << "the bars are the program's too";
    EXPECT_THAT(Fills, ElementsAre(vcl::clYellow, vcl::clLime)) << "a timed item keeps its colour";
}

TEST_F(TOwnerDrawing, ItemsThatAreNotInSightAreStillTheProgramsToDraw)
{
    AssignAll();
    FTimed->MoveTo(Monday + 0.9);
    EXPECT_THAT(CallsWith({TOption::cdoItems}), ElementsAre("item Lunch", "item Holiday"));
}

} // namespace
