#include <random>

#include "KSTimeView/view/ViewFixture.h"

namespace
{

class TPartialRepaint : public TTimeViewTest
{
protected:
    std::vector<std::uint32_t> Pixels()
    {
        const vcl::TPixelBuffer Buffer = Window().GetOwner()->WindowPixels();
        std::vector<std::uint32_t> Result;
        for (int Y = 0; Y < Buffer.Height; ++Y)
            Result.insert(Result.end(), Buffer.Pixels + Y * Buffer.Stride,
                          Buffer.Pixels + Y * Buffer.Stride + Buffer.Width);
        return Result;
    }

    void ChangeSomething(std::mt19937& Random)
    {
        const double Start = static_cast<double>(Random() % (5 * 48)) / 2 - 12;
        const double End = Start + static_cast<double>(Random() % 40 + 1) / 2;
        TKSTimeViewItems& Items = *View().GetItems();
        TKSTimeViewItem* const Item =
            Items.GetCount() == 0
                ? Add(Start, End, false, "First")
                : Items[static_cast<int>(Random() % static_cast<unsigned>(Items.GetCount()))];
        switch (Random() % 9) {
        case 0:
        case 1:
        case 2:
            Add(Start, End, Random() % 6 == 0, "Some text");
            break;
        case 3:
            Item->MoveTo(Monday + Start / 24);
            break;
        case 4:
            Item->SetDuration(static_cast<double>(Random() % 20 + 1) / 48);
            break;
        case 5:
            View().SetSelectedItem(Item);
            break;
        case 6:
            Item->SetAllDay(Random() % 3 == 0);
            break;
        case 7:
            Item->Delete();
            break;
        case 8:
            View().SetVScrollPosition(static_cast<int>(Random() % 600));
            break;
        }
    }
};

TEST_F(TPartialRepaint, LooksLikePaintingEverythingAfterAnyChange)
{
    View().SetDaysCount(4);
    Show(500, 400);
    for (unsigned Seed = 0; Seed < 20; ++Seed) {
        std::mt19937 Random(Seed);
        View().GetItems()->Clear();
        View().SetOptions(Seed % 2 == 0 ? TKSTVOptions()
                                        : View().GetOptions() + TKSTVOptions{TKSTVOption::tvoShowDaysGapCover,
                                                                             TKSTVOption::tvoItemsAboveMark});
        for (int Step = 0; Step < 40; ++Step) {
            ChangeSomething(Random);
            if (Step % 3 != 0)
                continue;
            Settle();
            const std::vector<std::uint32_t> Partly = Pixels();
            View().Refresh();
            ASSERT_TRUE(Partly == Pixels()) << "seed " << Seed << ", step " << Step;
        }
    }
}

TEST_F(TPartialRepaint, AChangeOfOneTimedItemLeavesOtherDaysAlone)
{
    View().SetDaysCount(4);
    Show(450, 400);
    TKSTimeViewItem* const Item = Add(34, 35);
    Add(58, 59);
    Settle();
    View().GetCanvas()->GetBrush()->SetColor(vcl::clRed);
    View().GetCanvas()->FillRect({200, 100, 400, 380}); // drawn outside painting: it stays until painted over
    Item->SetDuration(0.25);
    Settle();
    EXPECT_NE(View().GetCanvas()->GetPixel(220, 300), vcl::clRed) << "the item's day";
    EXPECT_EQ(View().GetCanvas()->GetPixel(320, 300), vcl::clRed) << "another day";
}

} // namespace
