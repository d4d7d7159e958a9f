#include <algorithm>
#include <cstdint>
#include <random>

#include <gtest/gtest.h>

#include "support/JsonLines.h"
#include "support/SequenceCase.h"
#include "vcl/classes/List.h"

namespace vcl::tests
{

namespace
{

/// The cases show pointers as small numbers, 0 for null.
int* PointerTo(std::intptr_t Number)
{
    static int Targets[100];
    return Number == 0 ? nullptr : &Targets[Number];
}

std::intptr_t NumberOf(const int* Pointer)
{
    return Pointer ? Pointer - PointerTo(1) + 1 : 0;
}

int IntAt(const TJson& Arguments, std::size_t Index)
{
    return Arguments[Index].get<int>();
}

int* PointerAt(const TJson& Arguments, std::size_t Index)
{
    return PointerTo(Arguments[Index].get<int>());
}

TListAssignOp OperatorOf(const std::string& Name)
{
    static const std::map<std::string, TListAssignOp> Operators = {
        {"copy", TListAssignOp::laCopy},
        {"and", TListAssignOp::laAnd},
        {"or", TListAssignOp::laOr},
        {"xor", TListAssignOp::laXor},
        {"srcunique", TListAssignOp::laSrcUnique},
        {"destunique", TListAssignOp::laDestUnique}};
    return Operators.at(Name);
}

void Fill(TList<int>& List, const std::vector<int>& Numbers)
{
    for (const int Number : Numbers)
        List.Add(PointerTo(Number));
}

TJson Shown(const TList<int>& List)
{
    TJson Numbers = TJson::array();
    for (const int* Item : List)
        Numbers.push_back(NumberOf(Item));
    return Numbers;
}

TOperations OperationsOn(TList<int>& List)
{
    const auto Without = [](const std::function<void(const TJson&)>& Action) {
        return [Action](const TJson& A) -> TJson {
            Action(A);
            return nullptr;
        };
    };
    return {
        {"Add", [&](const TJson& A) -> TJson { return List.Add(PointerAt(A, 1)); }},
        {"Insert", Without([&](const TJson& A) { List.Insert(IntAt(A, 1), PointerAt(A, 2)); })},
        {"Delete", Without([&](const TJson& A) { List.Delete(IntAt(A, 1)); })},
        {"Remove", [&](const TJson& A) -> TJson { return List.Remove(PointerAt(A, 1)); }},
        {"Extract", [&](const TJson& A) -> TJson { return NumberOf(List.Extract(PointerAt(A, 1))); }},
        {"Exchange", Without([&](const TJson& A) { List.Exchange(IntAt(A, 1), IntAt(A, 2)); })},
        {"Move", Without([&](const TJson& A) { List.Move(IntAt(A, 1), IntAt(A, 2)); })},
        {"IndexOf", [&](const TJson& A) -> TJson { return List.IndexOf(PointerAt(A, 1)); }},
        {"Items", [&](const TJson& A) -> TJson { return NumberOf(List[IntAt(A, 1)]); }},
        {"SetItems", Without([&](const TJson& A) { List.SetItem(IntAt(A, 1), PointerAt(A, 2)); })},
        {"First", [&](const TJson&) -> TJson { return NumberOf(List.First()); }},
        {"Last", [&](const TJson&) -> TJson { return NumberOf(List.Last()); }},
        {"Clear", Without([&](const TJson&) { List.Clear(); })},
        {"Pack", Without([&](const TJson&) { List.Pack(); })},
        {"Count", [&](const TJson&) -> TJson { return List.GetCount(); }},
        {"SetCount", Without([&](const TJson& A) { List.SetCount(IntAt(A, 1)); })},
        {"SetCapacity",
         [&](const TJson& A) -> TJson {
             List.SetCapacity(IntAt(A, 1));
             return List.GetCapacity();
         }},
        {"Sort", Without([&](const TJson&) {
             List.Sort([](const int* Left, const int* Right) {
                 return static_cast<int>(NumberOf(Left) - NumberOf(Right));
             });
         })},
        {"Assign", Without([&](const TJson& A) {
             TList<int> Source;
             Fill(Source, A[1].get<std::vector<int>>());
             List.Assign(Source, OperatorOf(A[2]));
         })},
    };
}

/// Items that compare equal can be told apart by where they came from.
struct TCard {
    int Key;
    int Origin;
};

} // namespace

TEST(List, EveryReferenceSequenceGivesItsResults)
{
    for (const TJson& Case : ReadJsonLines("model/lists/tlist.jsonl")) {
        TList<int> List;
        ExpectSequence(Case, OperationsOn(List));
        EXPECT_EQ(ExpectedOf(Case)["final"], Shown(List)) << Case["id"];
    }
}

TEST(List, AnIndexErrorNamesTheIndex)
{
    TList<int> List;
    try {
        List.GetItem(-3);
        FAIL();
    } catch (const EListError& Error) {
        EXPECT_STREQ("List index out of bounds (-3)", Error.what());
    }
}

TEST(List, AssignKeepsThisListsOrderAndTakesNothingTwice)
{
    TList<int> List;
    Fill(List, {3, 1, 3});
    TList<int> Source;
    Fill(Source, {5, 1, 5, 4});
    List.Assign(Source, TListAssignOp::laOr);
    EXPECT_EQ((TJson{3, 1, 3, 5, 4}), Shown(List));
    List.Assign(List, TListAssignOp::laXor);
    EXPECT_EQ(0, List.GetCount());
}

TEST(List, AssignTakesTwoOtherLists)
{
    TList<int> Left;
    Fill(Left, {1, 2, 3});
    TList<int> Right;
    Fill(Right, {3, 4});
    TList<int> List;
    Fill(List, {9});
    List.Assign(Left, TListAssignOp::laXor, Right);
    EXPECT_EQ((TJson{1, 2, 4}), Shown(List));
    Right.Assign(Left, TListAssignOp::laSrcUnique, Right);
    EXPECT_EQ((TJson{1, 2}), Shown(Right));
}

TEST(ListSort, OrdersAnyInputAndKeepsEveryElement)
{
    std::mt19937 Random(20);
    for (int Count = 0; Count < 200; Count += 7) {
        std::vector<int> Numbers(static_cast<std::size_t>(Count));
        for (int& Number : Numbers)
            Number = static_cast<int>(Random() % 30) + 1;
        TList<int> List;
        Fill(List, Numbers);
        List.Sort([](const int* Left, const int* Right) {
            return static_cast<int>(NumberOf(Left) - NumberOf(Right));
        });
        std::sort(Numbers.begin(), Numbers.end());
        EXPECT_EQ(TJson(Numbers), Shown(List));
    }
}

TEST(ListSort, EqualElementsEndWhereAPivotInTheMiddlePutsThem)
{
    std::vector<TCard> Cards = {{1, 0}, {1, 1}, {1, 2}, {0, 3}, {1, 4}};
    TList<TCard> List;
    for (TCard& Card : Cards)
        List.Add(&Card);
    List.Sort([](const TCard* Left, const TCard* Right) { return Left->Key - Right->Key; });
    std::vector<int> Origins;
    for (const TCard* Card : List)
        Origins.push_back(Card->Origin);
    EXPECT_EQ((std::vector<int>{3, 4, 2, 0, 1}), Origins);
}

TEST(ListSort, AComparisonThatContradictsItselfLosesNothing)
{
    std::mt19937 Random(7);
    for (int Round = 0; Round < 50; ++Round) {
        std::vector<int> Numbers(60);
        for (std::size_t Index = 0; Index < Numbers.size(); ++Index)
            Numbers[Index] = static_cast<int>(Index) + 1;
        TList<int> List;
        Fill(List, Numbers);
        List.Sort([&](const int*, const int*) { return static_cast<int>(Random() % 3) - 1; });
        std::vector<int> After = Shown(List).get<std::vector<int>>();
        std::sort(After.begin(), After.end());
        EXPECT_EQ(Numbers, After);
    }
}

TEST(ListSort, AComparisonThatAlwaysSaysTheSameEnds)
{
    for (const int Answer : {-1, 0, 1}) {
        TList<int> List;
        Fill(List, {1, 2, 3, 4, 5, 6, 7});
        List.Sort([&](const int*, const int*) { return Answer; });
        EXPECT_EQ(7, List.GetCount());
    }
}

TEST(ListSort, AComparisonThatChangesTheListLeavesItAsItMadeIt)
{
    TList<int> List;
    Fill(List, {3, 2, 1});
    List.Sort([&](const int* Left, const int* Right) {
        List.Clear();
        return static_cast<int>(NumberOf(Left) - NumberOf(Right));
    });
    EXPECT_EQ(0, List.GetCount());
}

TEST(ListSort, AnExceptionLeavesTheOldOrder)
{
    TList<int> List;
    Fill(List, {3, 2, 1});
    EXPECT_THROW(List.Sort([](const int*, const int*) -> int { throw EAbort("stop"); }), EAbort);
    EXPECT_EQ((TJson{3, 2, 1}), Shown(List));
}

TEST(ListSort, AHundredThousandInReverseOrderNeedLittleStack)
{
    std::vector<int> Numbers(100000);
    TList<int> List;
    for (auto Place = Numbers.rbegin(); Place != Numbers.rend(); ++Place)
        List.Add(&*Place);
    List.Sort([](const int* Left, const int* Right) { return Left < Right ? -1 : Left > Right ? 1 : 0; });
    EXPECT_EQ(&Numbers.front(), List.First());
    EXPECT_EQ(&Numbers.back(), List.Last());
}

} // namespace vcl::tests
