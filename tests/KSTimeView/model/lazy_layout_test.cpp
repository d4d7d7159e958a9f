#include <gtest/gtest.h>

#include <random>
#include <sstream>

#include "KSTimeView/model/FakeView.h"

namespace
{

/// Two views, one that lays out at every CalcDisplay and one that lays out when a result is read, get the
/// same random operations; at random moments everything that can be read must be the same.
class TPair
{
public:
    explicit TPair(unsigned Seed) : FRandom(Seed), FEager(4, true), FLazy(4, false) {}

    void Step()
    {
        const unsigned Operation = FRandom() % 22;
        const unsigned Arguments = FRandom();
        std::ostringstream Name;
        Name << Operation << '/' << Arguments << ' ';
        FHistory += Name.str();
        Apply(FEager, Operation, Arguments);
        Apply(FLazy, Operation, Arguments);
        if (FRandom() % 4 == 0) {
            ASSERT_EQ(Describe(FEager), Describe(FLazy)) << FHistory;
        }
    }

private:
    static double Time(std::mt19937& Random) { return TFakeView::Monday - 1 + (Random() % (7 * 48)) / 48.0; }

    static TKSTimeViewItem* Item(TFakeView& View, std::mt19937& Random)
    {
        const unsigned Place = Random();
        const int Count = View.Items().GetCount();
        return Count == 0 ? View.Add(9, 10)
                          : View.Items()[static_cast<int>(Place % static_cast<unsigned>(Count))];
    }

    static void Apply(TFakeView& View, unsigned Operation, unsigned Arguments)
    {
        std::mt19937 Random(Arguments);
        TKSTimeViewItem Source(nullptr);
        vcl::TMemoryStream Stream;
        const double Start = Time(Random);
        const double End = Start + (Random() % 100) / 48.0;
        switch (Operation) {
        case 0:
        case 1:
        case 2:
        case 3:
        case 4:
            View.Items().Add("", Start, End, Random() % 5 == 0);
            break;
        case 5:
            Item(View, Random)->SetStartTime(Start);
            break;
        case 6:
            Item(View, Random)->SetEndTime(End);
            break;
        case 7:
            Item(View, Random)->MoveTo(Start);
            break;
        case 8:
            Item(View, Random)->SetAllDay(Random() % 2 == 0);
            break;
        case 9:
            Item(View, Random)->Delete();
            break;
        case 10:
            Source.SetStartEnd(Start, End);
            Item(View, Random)->Assign(&Source);
            break;
        case 11:
            Item(View, Random)->Assign(Item(View, Random));
            break;
        case 12:
            if (Random() % 4 == 0)
                View.Items().BeginUpdate();
            break;
        case 13:
            while (View.Items().IsUpdating())
                View.Items().EndUpdate();
            break;
        case 14:
            View.Days().AddDate(TFakeView::Monday - 3 + Random() % 12);
            break;
        case 15:
            View.Days().DeleteDate(TFakeView::Monday - 3 + Random() % 12);
            break;
        case 16:
            View.Days().SetDateRange(TFakeView::Monday + Random() % 2, 3 + static_cast<int>(Random() % 2));
            break;
        case 17:
            View.Layout.ClientWidth = static_cast<int>(Random() % 900);
            if (Random() % 2 == 0)
                View.Days().CalcDisplay();
            break;
        case 18:
            View.Layout.RulerMarkHeight = static_cast<int>(Random() % 30);
            View.Layout.ShowRuler = Random() % 2 == 0;
            break;
        case 19:
            Item(View, Random)->SetDragOutside(Random() % 2 == 0);
            break;
        case 20:
            Item(View, Random)->DeleteFromDays();
            if (Random() % 2 == 0)
                View.Items().ReattachToDays();
            break;
        case 21:
            if (Random() % 3 == 0) {
                View.Items().WriteData(Stream);
                Stream.SetPosition(0);
                View.Items().ReadData(Stream);
                View.Items().ReattachToDays();
                View.Days().CalcDisplay();
            } else {
                View.Day(0)->CalcItemsDisplay();
            }
            break;
        }
    }

    static std::string Describe(TFakeView& View)
    {
        std::ostringstream Text;
        Text << "top " << View.Days().GetTopSpace() << '\n';
        for (TKSTimeviewDay* Day : View.Days()) {
            Text << Day->GetDate() << ": " << Day->GetLeft() << '+' << Day->GetWidth() << ", "
                 << Day->GetColumnCount() << " columns, " << Day->GetAllDayCount() << " all-day\n";
            for (TKSTimeViewItem* Item : View.Items()) {
                const vcl::TRect Rect = Day->GetItemRect(Item);
                Text << ' ' << Rect.Left << ',' << Rect.Top << ',' << Rect.Right << ',' << Rect.Bottom;
            }
            Text << '\n';
        }
        for (const TKSTimeViewItem* Item : View.Items()) {
            Text << Item->GetAllDayRow() << ':';
            for (int Slot = 0; Slot < 8; ++Slot)
                Text << ' ' << Item->GetColumn(Slot);
            Text << '\n';
        }
        return Text.str();
    }

    std::mt19937 FRandom;
    TFakeView FEager;
    TFakeView FLazy;
    std::string FHistory;
};

TEST(LazyLayout, CannotBeToldFromAnEagerOneOverRandomOperations)
{
    for (unsigned Seed = 0; Seed < 300; ++Seed) {
        TPair Pair(Seed);
        for (int Step = 0; Step < 120 && !testing::Test::HasFatalFailure(); ++Step)
            Pair.Step();
        if (testing::Test::HasFatalFailure())
            return;
    }
}

TEST(LazyLayout, WaitsUntilAResultIsRead)
{
    TFakeView View;
    const std::uint32_t Before = (View.Days().GetTopSpace(), View.Days().GetLayoutSerial());
    for (int Index = 0; Index < 100; ++Index)
        View.Add(9, 10);
    EXPECT_EQ(View.Days().GetLayoutSerial(), Before);
    EXPECT_EQ(View.Day(0)->GetColumnCount(), 100);
    EXPECT_EQ(View.Days().GetLayoutSerial(), Before + 1);
}

} // namespace
