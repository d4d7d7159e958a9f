#include <filesystem>
#include <fstream>

#include "KSTimeView/view/ViewFixture.h"
#include "support/TemporaryFolder.h"

using testing::ElementsAre;

namespace
{

using TTimeViewSaving = TTimeViewTest;

TEST_F(TTimeViewSaving, SavedWithoutItemsAViewIsEightBytes)
{
    vcl::TMemoryStream Stream;
    View().SaveToStream(Stream);
    EXPECT_THAT(Stream.GetBytes(), ElementsAre(100, 0, 0, 0, 0, 0, 0, 0));
}

TEST_F(TTimeViewSaving, SavingReplacesALongerFile)
{
    const vcl::tests::TTemporaryFolder Folder;
    const std::string Name = Folder.File("items");
    std::ofstream(Name) << std::string(500, 'x');
    View().SaveToFile(Name);
    EXPECT_EQ(std::filesystem::file_size(Name), 8u);
    Add(1, 2, false, "Lunch");
    View().SaveToFile(Name);
    EXPECT_EQ(std::filesystem::file_size(Name), 8u + 48u + 5u);
    View().LoadFromFile(Name);
    View().GetItems()->Clear();
    View().SaveToFile(Name);
    EXPECT_EQ(std::filesystem::file_size(Name), 8u) << "loading closed the file";
}

TEST_F(TTimeViewSaving, LoadedItemsAreAttachedAndLaidOut)
{
    Show();
    Add(9, 10, false, "One");
    Add(9, 10, false, "Two");
    Add(0, 24, true, "Three");
    Add(0, 24, true, "Four");
    vcl::TMemoryStream Stream;
    View().SaveToStream(Stream);
    View().GetItems()->Clear();
    ASSERT_EQ(View().GetTopSpace(), 40);
    Stream.SetPosition(0);
    View().LoadFromStream(Stream);
    EXPECT_EQ(Day(0).GetColumnCount(), 2);
    EXPECT_EQ(View().GetTopSpace(), 60);
    EXPECT_EQ(Day(0).GetItem(3)->GetAllDayRow(), 1);
}

} // namespace
