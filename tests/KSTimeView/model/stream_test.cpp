#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "KSTimeView/model/FakeView.h"
#include "vcl/streaming/Filer.h"

using testing::ElementsAre;

namespace
{

constexpr double Monday = TFakeView::Monday;

std::vector<std::uint8_t> Saved(const TKSTimeViewItems& Items)
{
    vcl::TMemoryStream Stream;
    Items.WriteData(Stream);
    return Stream.GetBytes();
}

void Load(TKSTimeViewItems& Items, const std::vector<std::uint8_t>& Bytes)
{
    vcl::TMemoryStream Stream;
    Stream.WriteBuffer(Bytes.data(), static_cast<std::int64_t>(Bytes.size()));
    Stream.SetPosition(0);
    Items.ReadData(Stream);
}

/// Two items, the first with every field away from its initial value.
void Fill(TFakeView& View)
{
    TKSTimeViewItem* const Item =
        View.Items().AddObject("ab", 1.5, 0.25, true, reinterpret_cast<void*>(std::uintptr_t{0x01020304}));
    Item->SetColor(vcl::clLime);
    Item->SetImageIndex(5);
    Item->SetAllDayColor(vcl::clRed);
    Item->SetShowReminder(true);
    Item->SetPrivateItem(true);
    Item->SetUserFlag(77);
    Item->SetUserText("z");
    View.Add(10, 12);
}

TEST(ItemsStream, AnEmptyCollectionIsEightBytes)
{
    TFakeView View;
    EXPECT_THAT(Saved(View.Items()), ElementsAre(100, 0, 0, 0, 0, 0, 0, 0));
}

TEST(ItemsStream, ARecordHasItsFieldsInOrder)
{
    TFakeView View;
    Fill(View);
    View.Items()[1]->Delete();
    EXPECT_THAT(Saved(View.Items()), ElementsAre(100, 0, 0, 0, 1, 0, 0, 0,     // version, count
                                                 100, 0, 0, 0,                 // version
                                                 2, 0, 0, 0, 'a', 'b',         // caption
                                                 0, 0, 0, 0, 0, 0, 0xF8, 0x3F, // start 1.5
                                                 0, 0, 0, 0, 0, 0, 0xD0, 0x3F, // end 0.25
                                                 0x00, 0xFF, 0x00, 0x00,       // colour
                                                 5, 0, 0, 0,                   // image index
                                                 1,                            // all-day
                                                 0xFF, 0x00, 0x00, 0x00,       // all-day colour
                                                 1, 1,                         // reminder, private
                                                 4, 3, 2, 1,                   // data
                                                 77,                           // user flag
                                                 1, 0, 0, 0, 'z'));            // user text
}

TEST(ItemsStream, SystemColoursAndNoImageKeepTheirHighBits)
{
    TFakeView View;
    View.Items().Add("", 0, 0, false);
    const std::vector<std::uint8_t> Bytes = Saved(View.Items());
    ASSERT_EQ(Bytes.size(), 8u + 48u);
    EXPECT_THAT(std::vector<std::uint8_t>(Bytes.begin() + 32, Bytes.begin() + 45),
                ElementsAre(5, 0, 0, 0x80, 0xFF, 0xFF, 0xFF, 0xFF, 0, 0x0F, 0, 0, 0x80));
}

TEST(ItemsStream, WhatIsLoadedIsSavedUnchanged)
{
    TFakeView View;
    Fill(View);
    const std::vector<std::uint8_t> Bytes = Saved(View.Items());
    TFakeView Other;
    Other.Add(1, 2);
    Load(Other.Items(), Bytes);
    EXPECT_EQ(Saved(Other.Items()), Bytes);
    EXPECT_EQ(Other.Items()[0]->GetEndTime(), 0.25) << "no rule for times applies";
    EXPECT_EQ(Other.Items()[0]->GetUserFlag(), 77);
}

TEST(ItemsStream, LoadedItemsAreOnNoDayUntilTheyAreAttached)
{
    TFakeView View;
    View.Add(10, 12);
    const std::vector<std::uint8_t> Bytes = Saved(View.Items());
    Load(View.Items(), Bytes);
    EXPECT_EQ(View.Day(0)->GetCount(), 0);
    View.Items().ReattachToDays();
    EXPECT_EQ(View.Day(0)->GetCount(), 1);
}

TEST(ItemsStream, VersionsAreIgnored)
{
    TFakeView View;
    View.Add(10, 12);
    std::vector<std::uint8_t> Bytes = Saved(View.Items());
    Bytes[0] = 7;
    Bytes[8] = 200;
    Load(View.Items(), Bytes);
    EXPECT_EQ(View.Items()[0]->GetStartTime(), Monday + 10.0 / 24);
}

TEST(ItemsStream, ACountOfZeroOrLessReadsNoItems)
{
    TFakeView View;
    View.Add(10, 12);
    Load(View.Items(), {100, 0, 0, 0, 0xFF, 0xFF, 0xFF, 0xFF});
    EXPECT_EQ(View.Items().GetCount(), 0);
    Load(View.Items(), {100, 0, 0, 0, 0, 0, 0, 0x80});
    EXPECT_EQ(View.Items().GetCount(), 0);
}

TEST(ItemsStream, CutShortAnywhereItKeepsWhatWasReadAndRaisesTheReadError)
{
    TFakeView Source;
    Fill(Source);
    const std::vector<std::uint8_t> Bytes = Saved(Source.Items());
    const std::size_t FirstEnd = Bytes.size() - 48;
    for (std::size_t Size = 0; Size < Bytes.size(); ++Size) {
        TFakeView View;
        View.Add(1, 2);
        const std::vector<std::uint8_t> Short(Bytes.begin(),
                                              Bytes.begin() + static_cast<std::ptrdiff_t>(Size));
        EXPECT_THROW(Load(View.Items(), Short), vcl::EReadError) << Size;
        EXPECT_FALSE(View.Items().IsUpdating());
        // The record that was cut short stays too, as far as it went.
        EXPECT_EQ(View.Items().GetCount(), Size < 8 ? 0 : Size < FirstEnd ? 1 : 2) << Size;
        if (Size >= FirstEnd) {
            EXPECT_TRUE(View.Items()[0]->IsEqual(*Source.Items()[0]));
            EXPECT_EQ(View.Items()[0]->GetUserText(), "z");
        }
    }
}

TEST(ItemsStream, CountsAndLengthsThatLieFailAtTheEndOfTheStream)
{
    TFakeView View;
    EXPECT_THROW(Load(View.Items(), {100, 0, 0, 0, 0xFF, 0xFF, 0xFF, 0x7F}), vcl::EReadError);
    EXPECT_EQ(View.Items().GetCount(), 1);
    for (const std::uint8_t High : {0x7F, 0xFF})
        EXPECT_THROW(
            Load(View.Items(), {100, 0, 0, 0, 1, 0, 0, 0, 100, 0, 0, 0, 0xFF, 0xFF, 0xFF, High, 'a'}),
            vcl::EReadError);
    EXPECT_EQ(View.Items()[0]->GetCaption(), "");
}

TEST(ItemsStream, AssignCopiesAnotherCollectionAndRepaintsOnce)
{
    TFakeView Source;
    Fill(Source);
    TFakeView View;
    View.Add(1, 2);
    View.Log.clear();
    View.Items().Assign(&Source.Items());
    EXPECT_EQ(Saved(View.Items()), Saved(Source.Items()));
    EXPECT_EQ(View.Day(0)->GetCount(), 0);
    EXPECT_THAT(View.Log, ElementsAre("deleting ", "repaint"));
    View.Items().Assign(&View.Items());
    EXPECT_EQ(Saved(View.Items()), Saved(Source.Items()));
}

TEST(ItemsStream, DataKeepsItsLow32BitsAndACopyAllOfThem)
{
    void* const Long = reinterpret_cast<void*>(std::uintptr_t{0x1122334455667788});
    TFakeView Source;
    Source.Add(1, 2);
    Source.Items().AddObject("", 1, 2, false, Long);
    TFakeView View;
    View.Items().Assign(&Source.Items());
    EXPECT_EQ(View.Items()[0]->GetData(), nullptr);
    EXPECT_EQ(View.Items()[1]->GetData(), Long);
    vcl::TMemoryStream Stream;
    Source.Items().WriteData(Stream);
    Stream.SetPosition(0);
    View.Items().ReadData(Stream);
    EXPECT_EQ(View.Items()[1]->GetData(), reinterpret_cast<void*>(std::uintptr_t{0x55667788}));
}

TEST(ItemsStream, AssignFromSomethingElseFailsAsForAnyPersistent)
{
    TFakeView View;
    TKSTimeViewItem Item(nullptr);
    EXPECT_THROW(View.Items().Assign(&Item), vcl::EConvertError);
}

/// Notes whether there was data to write.
class TNotingFiler final : public vcl::TFiler
{
public:
    explicit TNotingFiler(vcl::TPersistent* Ancestor) { FAncestor = Ancestor; }
    void DefineProperty(const char*, const TReaderProc&, const TWriterProc&, bool) override { ADD_FAILURE(); }
    void DefineBinaryProperty(const char* Name, const TStreamProc& ReadData, const TStreamProc& WriteData,
                              bool Has) override
    {
        EXPECT_STREQ(Name, "Data");
        HasData = Has;
        Write = WriteData;
        Read = ReadData;
    }

    bool HasData = false;
    TStreamProc Write;
    TStreamProc Read;
};

bool HasData(TKSTimeViewItems& Items, TKSTimeViewItems* Ancestor)
{
    TNotingFiler Filer(Ancestor);
    Items.DefineProperties(Filer);
    return Filer.HasData;
}

TEST(ItemsStream, TheFormFileHasDataWhenThereAreItems)
{
    TFakeView View;
    EXPECT_FALSE(HasData(View.Items(), nullptr));
    View.Add(10, 12);
    EXPECT_TRUE(HasData(View.Items(), nullptr));
}

TEST(ItemsStream, TheFormFileHasDataWhenItemsDifferFromTheAncestors)
{
    TFakeView View;
    TFakeView Ancestor;
    EXPECT_FALSE(HasData(View.Items(), &Ancestor.Items()));
    Ancestor.Add(10, 12);
    EXPECT_TRUE(HasData(View.Items(), &Ancestor.Items()));
    View.Add(10, 12);
    EXPECT_FALSE(HasData(View.Items(), &Ancestor.Items()));
    View.Items()[0]->SetUserText("not compared");
    EXPECT_FALSE(HasData(View.Items(), &Ancestor.Items()));
    View.Items()[0]->SetCaption("compared");
    EXPECT_TRUE(HasData(View.Items(), &Ancestor.Items()));
}

TEST(ItemsStream, TheFormFilesDataIsTheStreamFormat)
{
    TFakeView View;
    Fill(View);
    TNotingFiler Filer(nullptr);
    View.Items().DefineProperties(Filer);
    vcl::TMemoryStream Stream;
    Filer.Write(Stream);
    EXPECT_EQ(Stream.GetBytes(), Saved(View.Items()));
    Stream.SetPosition(0);
    Filer.Read(Stream);
    EXPECT_EQ(Saved(View.Items()), Stream.GetBytes());
}

} // namespace
