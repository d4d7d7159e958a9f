#include <gtest/gtest.h>

#include "support/Hex.h"
#include "support/JsonLines.h"
#include "support/SequenceCase.h"
#include "support/StringsInTests.h"
#include "support/TemporaryFolder.h"

namespace vcl::tests
{

namespace
{

/// The cases show objects as small numbers, 0 for null.
TObject* ObjectOf(int Number)
{
    static TObject Objects[100];
    return Number == 0 ? nullptr : &Objects[Number];
}

TJson NumberOf(const TObject* Object)
{
    return Object ? TJson(Object - ObjectOf(1) + 1) : TJson(0);
}

int IntAt(const TJson& Arguments, std::size_t Index)
{
    return Arguments[Index].get<int>();
}

std::string TextAt(const TJson& Arguments, std::size_t Index)
{
    return Arguments[Index].get<std::string>();
}

bool FlagAt(const TJson& Arguments, std::size_t Index)
{
    return Arguments[Index].get<bool>();
}

void Fill(TStrings& Strings, const TJson& Texts)
{
    for (const TJson& Text : Texts)
        Strings.Add(Text.get<std::string>());
}

TJson Shown(const TStrings& Strings)
{
    TJson Texts = TJson::array();
    for (int Index = 0; Index < Strings.GetCount(); ++Index)
        Texts.push_back(Strings[Index]);
    return Texts;
}

TDuplicates DuplicatesOf(const std::string& Name)
{
    return Name == "accept"  ? TDuplicates::dupAccept
           : Name == "error" ? TDuplicates::dupError
                             : TDuplicates::dupIgnore;
}

TJson Load(TStrings& Strings, const TJson& Arguments)
{
    TMemoryStream Stream;
    const std::string Bytes = FromHex(TextAt(Arguments, 1));
    Stream.WriteBuffer(Bytes.data(), static_cast<std::int64_t>(Bytes.size()));
    Stream.SetPosition(Arguments.size() > 2 ? IntAt(Arguments, 2) : 0);
    Strings.LoadFromStream(Stream);
    return {{"position", Stream.GetPosition()}};
}

TJson Saved(const TStrings& Strings)
{
    TMemoryStream Stream;
    Strings.SaveToStream(Stream);
    return ToHex(std::string(Stream.GetBytes().begin(), Stream.GetBytes().end()));
}

std::function<TJson(const TJson&)> WithoutResult(const std::function<void(const TJson&)>& Action)
{
    return [Action](const TJson& Arguments) -> TJson {
        Action(Arguments);
        return nullptr;
    };
}

void AddEditing(TOperations& Operations, TStrings& List)
{
    Operations["Add"] = [&](const TJson& A) -> TJson { return List.Add(TextAt(A, 1)); };
    Operations["Append"] = WithoutResult([&](const TJson& A) { List.Append(TextAt(A, 1)); });
    Operations["AddObject"] = [&](const TJson& A) -> TJson {
        return List.AddObject(TextAt(A, 1), ObjectOf(IntAt(A, 2)));
    };
    Operations["Objects"] = [&](const TJson& A) { return NumberOf(List.GetObject(IntAt(A, 1))); };
    Operations["IndexOfObject"] = [&](const TJson& A) -> TJson {
        return List.IndexOfObject(ObjectOf(IntAt(A, 1)));
    };
    Operations["InsertObject"] = WithoutResult(
        [&](const TJson& A) { List.InsertObject(IntAt(A, 1), TextAt(A, 2), ObjectOf(IntAt(A, 3))); });
    Operations["Insert"] = WithoutResult([&](const TJson& A) { List.Insert(IntAt(A, 1), TextAt(A, 2)); });
    Operations["Delete"] = WithoutResult([&](const TJson& A) { List.Delete(IntAt(A, 1)); });
    Operations["Clear"] = WithoutResult([&](const TJson&) { List.Clear(); });
    Operations["Exchange"] = WithoutResult([&](const TJson& A) { List.Exchange(IntAt(A, 1), IntAt(A, 2)); });
    Operations["Move"] = WithoutResult([&](const TJson& A) { List.Move(IntAt(A, 1), IntAt(A, 2)); });
    Operations["Strings"] = [&](const TJson& A) -> TJson { return List[IntAt(A, 1)]; };
    Operations["SetStrings"] =
        WithoutResult([&](const TJson& A) { List.SetString(IntAt(A, 1), TextAt(A, 2)); });
    Operations["Count"] = [&](const TJson&) -> TJson { return List.GetCount(); };
    Operations["IndexOf"] = [&](const TJson& A) -> TJson { return List.IndexOf(TextAt(A, 1)); };
    Operations["Equals"] = [&](const TJson& A) -> TJson {
        TStringList Other;
        Fill(Other, A[1]);
        return List.Equals(Other);
    };
    Operations["AddStrings"] = WithoutResult([&](const TJson& A) {
        TStringList Other;
        Fill(Other, A[1]);
        List.AddStrings(Other);
    });
    Operations["Assign"] = WithoutResult([&](const TJson& A) {
        TStringList Other;
        Fill(Other, A[1]);
        List.Assign(&Other);
    });
}

void AddNamesAndValues(TOperations& Operations, TStrings& List)
{
    Operations["IndexOfName"] = [&](const TJson& A) -> TJson { return List.IndexOfName(TextAt(A, 1)); };
    Operations["Names"] = [&](const TJson& A) -> TJson { return List.GetName(IntAt(A, 1)); };
    Operations["Values"] = [&](const TJson& A) -> TJson { return List.GetValue(TextAt(A, 1)); };
    Operations["SetValues"] =
        WithoutResult([&](const TJson& A) { List.SetValue(TextAt(A, 1), TextAt(A, 2)); });
    Operations["ValueFromIndex"] = [&](const TJson& A) -> TJson {
        return List.GetValueFromIndex(IntAt(A, 1));
    };
    Operations["SetValueFromIndex"] =
        WithoutResult([&](const TJson& A) { List.SetValueFromIndex(IntAt(A, 1), TextAt(A, 2)); });
    Operations["SetNameValueSeparator"] =
        WithoutResult([&](const TJson& A) { List.SetNameValueSeparator(TextAt(A, 1)[0]); });
}

void AddTexts(TOperations& Operations, TStrings& List)
{
    Operations["SetText"] = WithoutResult([&](const TJson& A) { List.SetText(TextAt(A, 1)); });
    Operations["Text"] = [&](const TJson&) -> TJson { return List.GetText(); };
    Operations["CommaText"] = [&](const TJson&) -> TJson { return List.GetCommaText(); };
    Operations["SetCommaText"] = WithoutResult([&](const TJson& A) { List.SetCommaText(TextAt(A, 1)); });
    Operations["DelimitedText"] = [&](const TJson&) -> TJson { return List.GetDelimitedText(); };
    Operations["SetDelimitedText"] =
        WithoutResult([&](const TJson& A) { List.SetDelimitedText(TextAt(A, 1)); });
    Operations["SetDelimiter"] = WithoutResult([&](const TJson& A) { List.SetDelimiter(TextAt(A, 1)[0]); });
    Operations["SetQuoteChar"] = WithoutResult([&](const TJson& A) { List.SetQuoteChar(TextAt(A, 1)[0]); });
    Operations["SetStrictDelimiter"] =
        WithoutResult([&](const TJson& A) { List.SetStrictDelimiter(FlagAt(A, 1)); });
    Operations["SetLineBreak"] = WithoutResult([&](const TJson& A) { List.SetLineBreak(TextAt(A, 1)); });
    Operations["SetTrailingLineBreak"] =
        WithoutResult([&](const TJson& A) { List.SetTrailingLineBreak(FlagAt(A, 1)); });
    Operations["LoadFromStream"] = [&](const TJson& A) { return Load(List, A); };
    Operations["SaveToStream"] = [&](const TJson&) { return Saved(List); };
}

void AddSorting(TOperations& Operations, TStringList& List)
{
    Operations["SetSorted"] = WithoutResult([&](const TJson& A) { List.SetSorted(FlagAt(A, 1)); });
    Operations["SetCaseSensitive"] =
        WithoutResult([&](const TJson& A) { List.SetCaseSensitive(FlagAt(A, 1)); });
    Operations["SetDuplicates"] =
        WithoutResult([&](const TJson& A) { List.SetDuplicates(DuplicatesOf(TextAt(A, 1))); });
    Operations["Sort"] = WithoutResult([&](const TJson&) { List.Sort(); });
    Operations["Find"] = [&](const TJson& A) -> TJson {
        int Index = 0;
        const bool IsFound = List.Find(TextAt(A, 1), Index);
        return TJson::array({IsFound, Index});
    };
}

TOperations OperationsOn(TStrings& List)
{
    TOperations Operations;
    AddEditing(Operations, List);
    AddNamesAndValues(Operations, List);
    AddTexts(Operations, List);
    return Operations;
}

/// Text in 16-bit units is not read: bytes are kept as they are.
bool IsOutsideTheRules(const TJson& Case)
{
    return Case["id"] == "sl-d-056";
}

/// Sorting and case belong to TStringList alone.
bool NeedsStringList(const TJson& Case)
{
    for (const TJson& Operation : Case["ops"])
        for (const char* Name : {"SetSorted", "SetCaseSensitive", "SetDuplicates", "Sort", "Find"})
            if (Operation[0] == Name)
                return true;
    return false;
}

} // namespace

TEST(StringList, EveryReferenceSequenceGivesItsResults)
{
    for (const TJson& Case : ReadJsonLines("model/strings/stringlist.jsonl")) {
        if (IsOutsideTheRules(Case))
            continue;
        TStringList List;
        TOperations Operations = OperationsOn(List);
        AddSorting(Operations, List);
        ExpectSequence(Case, Operations);
        EXPECT_EQ(ExpectedOf(Case)["final"], Shown(List)) << Case["id"];
    }
}

TEST(Strings, ADescendantWithItsOwnStorageGivesTheSameResults)
{
    int Count = 0;
    for (const TJson& Case : ReadJsonLines("model/strings/stringlist.jsonl")) {
        if (IsOutsideTheRules(Case) || NeedsStringList(Case))
            continue;
        TLinkedStrings List;
        ExpectSequence(Case, OperationsOn(List));
        EXPECT_EQ(ExpectedOf(Case)["final"], Shown(List)) << Case["id"];
        ++Count;
    }
    EXPECT_GT(Count, 280);
}

TEST(Strings, ADescendantWithTheLeastItMustImplementKeepsNoObjects)
{
    TReversedStrings List;
    List.SetText("a\nb\nc");
    List.AddObject("d", &List);
    List.Exchange(0, 3);
    List.Move(1, 2);
    EXPECT_EQ("d,c,b,a", List.GetCommaText());
    EXPECT_EQ(nullptr, List.GetObject(3));
    EXPECT_EQ(-1, List.IndexOfObject(&List));
    EXPECT_THROW(List.GetObject(4), EStringListError);
    EXPECT_THROW(List.SetObject(-1, nullptr), EStringListError);
}

TEST(Strings, AssignTakesStringsObjectsAndSeparatorsFromAnyDescendant)
{
    TLinkedStrings Source;
    Source.AddObject("a:1", &Source);
    Source.SetNameValueSeparator(':');
    TStringList List;
    List.Add("old");
    List.Assign(&Source);
    EXPECT_EQ("a:1\r\n", List.GetText());
    EXPECT_EQ(&Source, List.GetObject(0));
    EXPECT_EQ("1", List.GetValue("a"));
    List.Assign(&List);
    EXPECT_EQ(1, List.GetCount());
    List.AddStrings(List);
    EXPECT_EQ(2, List.GetCount());
}

TEST(Strings, AssigningSomethingElseIsAnError)
{
    TStringList List;
    TPersistent Other;
    EXPECT_THROW(List.Assign(&Other), EConvertError);
    EXPECT_THROW(List.Assign(nullptr), EConvertError);
}

TEST(Strings, AMoveThatCannotEndHasTakenTheStringOut)
{
    TStringList List;
    List.SetCommaText("a,b,c");
    EXPECT_THROW(List.Move(0, 3), EStringListError);
    EXPECT_EQ("b,c", List.GetCommaText());
    EXPECT_THROW(List.Move(2, 0), EStringListError);
    EXPECT_EQ("b,c", List.GetCommaText());
    List.SetSorted(true);
    EXPECT_THROW(List.Move(0, 1), EStringListError);
    EXPECT_EQ("c", List.GetCommaText());
}

TEST(Strings, NamesCompareWithoutRegardToCaseInEveryAlphabet)
{
    TStringList List;
    List.Add("STRA\xC3\x9F"
             "E \xC3\x84=1");
    EXPECT_EQ("1", List.GetValue("stra\xC3\x9F"
                                 "e \xC3\xA4"));
}

TEST(Strings, TextOfOneOfTheStringsMayBeTheNewText)
{
    TStringList List;
    List.Add("x\ny");
    List.SetText(List.GetString(0));
    EXPECT_EQ("x,y", List.GetCommaText());
}

TEST(Strings, AByteOrderMarkIsLeftOutAndWrittenAgain)
{
    TStringList List;
    EXPECT_EQ((TJson{{"position", 5}}), Load(List, {"LoadFromStream", "EFBBBF610A"}));
    EXPECT_EQ("a", List[0]);
    EXPECT_EQ("EFBBBF610D0A", Saved(List));
    Load(List, {"LoadFromStream", "62"});
    EXPECT_EQ("620D0A", Saved(List));
}

TEST(Strings, AFileHoldsTheText)
{
    const TTemporaryFolder Folder;
    TStringList List;
    List.SetCommaText("one,two");
    List.SaveToFile(Folder.File("list.txt"));
    TLinkedStrings Copy;
    Copy.LoadFromFile(Folder.File("list.txt"));
    EXPECT_TRUE(Copy.Equals(List));
    EXPECT_THROW(Copy.LoadFromFile(Folder.File("none.txt")), EFOpenError);
    EXPECT_EQ(2, Copy.GetCount());
}

TEST(StringList, TellsOfEachChangeAndOnceOfManyInABlock)
{
    TStringList List;
    int Changing = 0;
    int Changed = 0;
    List.OnChanging = [&](TObject*) { ++Changing; };
    List.OnChange = [&](TObject*) { ++Changed; };
    List.Add("b");
    List.Add("a");
    EXPECT_EQ(2, Changed);
    List.BeginUpdate();
    List.Sort();
    List.Delete(0);
    List.Clear();
    EXPECT_EQ(2, Changed);
    EXPECT_EQ(3, Changing);
    List.EndUpdate();
    EXPECT_EQ(3, Changed);
    List.SetText("x\ny\nz");
    EXPECT_EQ(4, Changed);
    EXPECT_EQ(4, Changing);
}

TEST(StringList, AHandlerThatClearsTheListMakesTheIndexWrong)
{
    TStringList List;
    List.SetCommaText("a,b,c");
    List.OnChanging = [&](TObject*) {
        List.OnChanging = nullptr;
        List.Clear();
    };
    EXPECT_THROW(List.Delete(2), EStringListError);
    EXPECT_EQ(0, List.GetCount());
}

TEST(StringList, SortsByAnOrderOfTheCallersOwn)
{
    TStringList List;
    List.SetCommaText("ccc,a,bb");
    List.CustomSort([](const TStringList& Strings, int Index1, int Index2) {
        return static_cast<int>(Strings[Index1].size()) - static_cast<int>(Strings[Index2].size());
    });
    EXPECT_EQ("a,bb,ccc", List.GetCommaText());
}

TEST(StringList, ASortedListIsSortedAnewWhenCaseBeginsToCount)
{
    TStringList List;
    List.SetCommaText("b,a,C");
    List.SetSorted(true);
    EXPECT_EQ("a,b,C", List.GetCommaText());
    List.SetCaseSensitive(true);
    EXPECT_EQ("C,a,b", List.GetCommaText());
    EXPECT_EQ(-1, List.IndexOf("c"));
}

} // namespace vcl::tests
