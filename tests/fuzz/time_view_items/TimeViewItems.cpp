// The items stream of the time view from untrusted bytes: whatever was read is laid out, hit and drawn from
// without trouble, and a stream that was read whole is written again unchanged.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "KSTimeView/model/FakeView.h"

namespace
{

/// Days before, at and after what most streams hold, and one that the placeholder times of loading lie on.
void LayOut(TFakeView& View)
{
    View.Items().ReattachToDays();
    View.Days().CalcDisplay();
    for (TKSTimeviewDay* Day : View.Days()) {
        const vcl::TRect Rect = Day->GetItemsRect();
        Day->GetItemAt(Rect.Left, Rect.Top);
        if (Day->GetColumnCount() < 1)
            std::abort();
        for (const TKSTimeViewItem* Item : *Day)
            if (Day->GetColumn(Item) < 0 || Day->GetColumn(Item) >= Day->GetColumnCount())
                std::abort();
    }
}

std::vector<std::uint8_t> Written(const TKSTimeViewItems& Items)
{
    vcl::TMemoryStream Stream;
    Items.WriteData(Stream);
    return Stream.GetBytes();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size)
{
    vcl::TMemoryStream Stream;
    Stream.WriteBuffer(Data, static_cast<std::int64_t>(Size));
    Stream.SetPosition(0);
    TFakeView View(7);
    View.Days().AddDatesRange(-1, 2);
    try {
        View.Items().ReadData(Stream);
    } catch (const vcl::EReadError&) {
        // The stream was cut short or lied about its size; what was read stays.
    }
    LayOut(View);

    const std::vector<std::uint8_t> Once = Written(View.Items());
    TFakeView Other;
    Other.Items().Assign(&View.Items());
    if (Written(Other.Items()) != Once)
        std::abort();
    View.Days().SetDateRange(TFakeView::Monday + 3, 31);
    LayOut(View);
    return 0;
}
