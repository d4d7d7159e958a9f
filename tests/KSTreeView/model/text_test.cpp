#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "KSTreeView/model/FakeTree.h"
#include "KSTreeView/model/TreeStrings.h"
#include "KSTreeView/model/TreeText.h"

namespace
{

void Load(TFakeTree& Tree, const std::string& Text)
{
    vcl::TMemoryStream Stream;
    Stream.WriteBuffer(Text.data(), static_cast<std::int64_t>(Text.size()));
    Stream.SetPosition(0);
    TKSTreeStrings(&Tree.Items()).LoadTreeFromStream(Stream);
}

std::string Saved(TFakeTree& Tree)
{
    vcl::TMemoryStream Stream;
    TKSTreeStrings(&Tree.Items()).SaveTreeToStream(Stream);
    return {reinterpret_cast<const char*>(Stream.GetMemory()), static_cast<std::size_t>(Stream.GetSize())};
}

template <class TAction>
std::string ErrorOf(TAction&& Action)
{
    try {
        Action();
    } catch (const EKSTreeViewError& Error) {
        return Error.what();
    }
    return "";
}

TEST(Text, TabsAndBlanksIndentByOneLevelEach)
{
    TFakeTree Tree;
    Load(Tree, "B\r\n A\r\n\tA2\r\n\t X\r\nC\r\n");
    EXPECT_EQ(Tree.Outline(), "0B 1A 1A2 2X 0C");
    EXPECT_EQ(Saved(Tree), "B\r\n\tA\r\n\tA2\r\n\t\tX\r\nC\r\n") << "saved with tabs only";
}

TEST(Text, LinesEndWithAnyOfTheThreeBreaks)
{
    TFakeTree Tree;
    Load(Tree, "A\rB\nC\r\nD");
    EXPECT_EQ(Tree.Outline(), "0A 0B 0C 0D");
}

TEST(Text, AFirstLineIsATopLevelNodeHoweverDeepItIs)
{
    TFakeTree Tree;
    Load(Tree, "\t\t\tA\n\tB\nC");
    EXPECT_EQ(Tree.Outline(), "0A 1B 0C");
}

TEST(Text, AJumpOfTwoLevelsIsAnErrorAndWhatWasReadStays)
{
    TFakeTree Tree;
    Tree.Fill({"old"});
    EXPECT_EQ(ErrorOf([&] { Load(Tree, "A\n\tB\nC\n\t\tX\nD"); }), "Invalid level 2 with string X");
    EXPECT_EQ(Tree.Outline(), "0A 1B 0C");
    EXPECT_FALSE(Tree.Items().IsUpdating());
    EXPECT_EQ(Tree.Log.back(), "refresh");
}

TEST(Text, EmptyLinesAndControlCharactersAreTexts)
{
    TFakeTree Tree;
    Load(Tree, std::string("\n\x1A\n\tA\0B\n\x01", 9));
    ASSERT_EQ(Tree.Items().GetCount(), 4);
    EXPECT_EQ(Tree.Items()[0]->GetText(), "");
    EXPECT_EQ(Tree.Items()[1]->GetText(), "\x1A");
    EXPECT_EQ(Tree.Items()[2]->GetText(), std::string("A\0B", 3));
    EXPECT_EQ(Tree.Items()[3]->GetText(), "\x01");
}

TEST(Text, AnEmptyStreamIsAnEmptyTree)
{
    TFakeTree Tree;
    Tree.Fill({"old"});
    Load(Tree, "");
    EXPECT_EQ(Tree.Items().GetCount(), 0);
    EXPECT_EQ(Saved(Tree), "");
}

TEST(Text, ALineOfTenMegabytesIsOneNode)
{
    constexpr std::size_t Size = 10'000'000;
    TFakeTree Tree;
    Load(Tree, "A\n\t" + std::string(Size, 'x'));
    EXPECT_EQ(Tree.Items()[1]->GetText().size(), Size);
    EXPECT_EQ(ErrorOf([&] { Load(Tree, "A\n" + std::string(Size, '\t') + "x"); }),
              "Invalid level 10000000 with string x");
}

TEST(Text, AChainOf2000LevelsComesBack)
{
    std::string Text;
    for (std::size_t Level = 0; Level < 2000; ++Level)
        Text += std::string(Level, '\t') + std::to_string(Level) + "\r\n";
    TFakeTree Tree;
    Load(Tree, Text);
    EXPECT_EQ(Tree.Items()[1999]->GetLevel(), 1999);
    EXPECT_EQ(Saved(Tree), Text);
    TFakeTree Copy;
    TKSTreeStrings Strings(&Tree.Items());
    TKSTreeStrings Target(&Copy.Items());
    Target.Assign(&Strings);
    EXPECT_EQ(Saved(Copy), Text);
}

TEST(Text, LoadingRaisesNothingButOneRefresh)
{
    TFakeTree Tree;
    Load(Tree, "A\n\tB\n");
    EXPECT_THAT(Tree.Log, testing::ElementsAre("refresh"));
}

TEST(TreeStrings, AreOneLineANode)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1", "  A11", "B"});
    TKSTreeStrings Strings(&Tree.Items());
    EXPECT_EQ(Strings.GetCount(), 4);
    EXPECT_EQ(Strings[0], "A");
    EXPECT_EQ(Strings[2], "\t\tA11");
    EXPECT_EQ(Strings.GetText(), "A\r\n\tA1\r\n\t\tA11\r\nB\r\n");
    EXPECT_EQ(ErrorOf([&] { Strings.GetString(4); }), "Invalid Index");
    EXPECT_EQ(ErrorOf([&] { Strings.GetString(-1); }), "Invalid Index");
}

TEST(TreeStrings, ObjectsAreTheNodesData)
{
    TFakeTree Tree;
    Tree.Fill({"A"});
    TKSTreeStrings Strings(&Tree.Items());
    Strings.SetObject(0, &Tree.Items());
    EXPECT_EQ(Tree.Find("A")->GetData(), &Tree.Items());
    EXPECT_EQ(Strings.GetObject(0), &Tree.Items());
    EXPECT_EQ(Strings.IndexOfObject(&Tree.Items()), 0);
    EXPECT_EQ(ErrorOf([&] { Strings.GetObject(1); }), "Invalid Index");
    EXPECT_EQ(ErrorOf([&] { Strings.SetObject(1, nullptr); }), "Invalid Index");
}

TEST(TreeStrings, AddReadsTheLevelAndAnswersTheOldCount)
{
    TFakeTree Tree;
    TKSTreeStrings Strings(&Tree.Items());
    EXPECT_EQ(Strings.Add("A"), 0);
    EXPECT_EQ(Strings.Add("\tA1"), 1);
    EXPECT_EQ(Strings.Add(" \tA11"), 2);
    EXPECT_EQ(Strings.Add(" A2"), 3);
    EXPECT_EQ(Strings.Add("B"), 4);
    EXPECT_EQ(Tree.Outline(), "0A 1A1 2A11 1A2 0B");
}

TEST(TreeStrings, AddIgnoresALineOfTheOneCharacter26)
{
    TFakeTree Tree;
    TKSTreeStrings Strings(&Tree.Items());
    EXPECT_EQ(Strings.Add("\x1A"), 0);
    EXPECT_EQ(Strings.GetCount(), 0);
    Strings.SetText("A\r\n\x1A");
    EXPECT_EQ(Tree.Outline(), "0A");
    EXPECT_EQ(Strings.Add("\t\x1A"), 1);
    EXPECT_EQ(Strings.GetCount(), 2) << "only alone";
}

TEST(TreeStrings, AddRefusesJumps)
{
    TFakeTree Tree;
    TKSTreeStrings Strings(&Tree.Items());
    EXPECT_EQ(ErrorOf([&] { Strings.Add("\t\tA"); }), "Invalid Level") << "a first line of level 2";
    EXPECT_EQ(Strings.GetCount(), 0);
    Strings.Add("\tA");
    EXPECT_EQ(Tree.Outline(), "0A") << "a first line of level 1 stands at the top";
    EXPECT_EQ(ErrorOf([&] { Strings.Add("\t\tB"); }), "Invalid Level");
    Strings.Add("\tB");
    EXPECT_EQ(ErrorOf([&] { Strings.Add("   C"); }), "Invalid Level");
    EXPECT_EQ(Tree.Outline(), "0A 1B");
}

TEST(TreeStrings, InsertTakesTheStringAsItIs)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1"});
    TKSTreeStrings Strings(&Tree.Items());
    Strings.Insert(1, "\tX");
    EXPECT_EQ(Tree.Outline(), "0A 1\tX 1A1");
    EXPECT_EQ(Strings[1], "\t\tX");
    EXPECT_EQ(ErrorOf([&] { Strings.Insert(3, "Y"); }), "Invalid Index");
}

TEST(TreeStrings, DeleteTakesTheSubtreeAndClearEverything)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1", "B"});
    TKSTreeStrings Strings(&Tree.Items());
    Strings.Delete(0);
    EXPECT_EQ(Tree.Outline(), "0B");
    EXPECT_EQ(ErrorOf([&] { Strings.Delete(1); }), "Invalid Index");
    Strings.Clear();
    EXPECT_EQ(Strings.GetCount(), 0);
}

TEST(TreeStrings, TheEndOfAnUpdateRefreshes)
{
    TFakeTree Tree;
    TKSTreeStrings Strings(&Tree.Items());
    Strings.BeginUpdate();
    EXPECT_EQ(Tree.Refreshes, 0);
    Strings.EndUpdate();
    EXPECT_EQ(Tree.Refreshes, 1);
}

TEST(TreeStrings, AMillionIndexesAreReachedInTurn)
{
    // At quadratic time it would not come to an end.
    constexpr int Count = 1'000'000;
    TFakeTree Tree;
    TKSTreeStrings Strings(&Tree.Items());
    Tree.Items().BeginUpdate();
    for (int Index = 0; Index < Count; ++Index)
        Strings.Add(Index % 10 == 0 ? "A" : "\tB");
    Tree.Items().EndUpdate();
    EXPECT_EQ(Strings.GetText().size(), Count / 10 * (3u + 9u * 4u));
    for (int Index = Count - 1; Index >= 0; --Index)
        ASSERT_EQ(Strings.GetString(Index), Index % 10 == 0 ? "A" : "\tB");
    Tree.Items().BeginUpdate();
    for (int Index = Count - 1; Index >= 0; --Index)
        Strings.Delete(Index);
    Tree.Items().EndUpdate();
    EXPECT_EQ(Strings.GetCount(), 0);
}

} // namespace
