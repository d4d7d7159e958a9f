#include "KSTimeView/layout/ColumnPacker.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace
{

using timeview::TColumnPacker;

constexpr double Day = 36526;

struct TTimes {
    double Start;
    double End;
};

TTimes Minutes(double Start, double End)
{
    return {Day + Start / 1440, Day + End / 1440};
}

std::vector<int> Pack(const std::vector<TTimes>& Items, double Date = Day)
{
    TColumnPacker Packer(Date, static_cast<int>(Items.size()));
    std::vector<int> Columns;
    for (const TTimes& Item : Items)
        Columns.push_back(Packer.Place(Item.Start, Item.End));
    return Columns;
}

/// The rule word by word: each item against all earlier ones, column by column.
std::vector<int> PackByComparing(const std::vector<TTimes>& Items)
{
    std::vector<int> Columns;
    for (std::size_t Item = 0; Item < Items.size(); ++Item) {
        int Column = 0;
        const auto IsTaken = [&] {
            for (std::size_t Earlier = 0; Earlier < Item; ++Earlier)
                if (Columns[Earlier] == Column && Items[Item].Start + 1.0 / 1440 < Items[Earlier].End &&
                    Items[Item].End - 1.0 / 1440 > Items[Earlier].Start)
                    return true;
            return false;
        };
        while (IsTaken())
            ++Column;
        Columns.push_back(Column);
    }
    return Columns;
}

TEST(ColumnPacker, AnItemThatOnlyTouchesTheFirstReturnsToItsColumn)
{
    EXPECT_EQ(Pack({Minutes(540, 600), Minutes(570, 660), Minutes(600, 630)}), (std::vector{0, 1, 0}));
}

TEST(ColumnPacker, ItemsThatShareOneMinuteShareAColumnAndItemsThatShareTwoDoNot)
{
    EXPECT_EQ(Pack({Minutes(540, 600), Minutes(599, 660)}), (std::vector{0, 0}));
    EXPECT_EQ(Pack({Minutes(540, 600), Minutes(598, 660)}), (std::vector{0, 1}));
}

TEST(ColumnPacker, TheOrderOfArrivalDecidesTheColumnNotTheTime)
{
    EXPECT_EQ(Pack({Minutes(570, 660), Minutes(540, 600), Minutes(655, 700)}), (std::vector{0, 1, 1}));
    EXPECT_EQ(Pack({Minutes(540, 600), Minutes(570, 660), Minutes(655, 700)}), (std::vector{0, 1, 0}));
}

TEST(ColumnPacker, AnItemThatEndsBeforeItStartsOverlapsOnlyWhatSpansBothItsTimes)
{
    EXPECT_EQ(Pack({Minutes(540, 720), Minutes(660, 600), Minutes(500, 400), Minutes(600, 660)}),
              (std::vector{0, 1, 0, 1}));
}

TEST(ColumnPacker, TimesThatAreNoNumbersOverlapNothing)
{
    const double NaN = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(Pack({Minutes(540, 720), {NaN, Day + 0.5}, {Day, NaN}, {NaN, NaN}, Minutes(540, 720)}),
              (std::vector{0, 0, 0, 0, 1}));
}

TEST(ColumnPacker, InfiniteItemsOverlapEverythingTheirTimesReach)
{
    const double Infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(Pack({{-Infinity, Infinity}, Minutes(540, 600), {-Infinity, Infinity}, {Infinity, -Infinity}}),
              (std::vector{0, 1, 2, 0}));
}

/// Random items in one of several characters, compared with the rule word by word.
void ExpectRandomItemsPackedByTheRule(int Seed, int Count, const std::vector<double>& Lengths, double Grid)
{
    std::mt19937 Random(static_cast<unsigned>(Seed));
    std::uniform_real_distribution<double> Start(-300, 1700);
    std::vector<TTimes> Items;
    for (int Index = 0; Index < Count; ++Index) {
        const double Begin = Grid > 0 ? std::round(Start(Random) / Grid) * Grid : Start(Random);
        const double Length = Lengths[Random() % Lengths.size()];
        Items.push_back(Minutes(Begin, Begin + Length));
    }
    EXPECT_EQ(Pack(Items), PackByComparing(Items)) << "seed " << Seed << ", grid " << Grid;
}

TEST(ColumnPacker, PacksManyRandomItemsExactlyAsTheRuleDoes)
{
    for (int Seed = 0; Seed < 12; ++Seed) {
        ExpectRandomItemsPackedByTheRule(Seed, 400, {15, 30, 60, 90, 120}, 15);
        ExpectRandomItemsPackedByTheRule(Seed, 400, {5, 7, 61, 240}, 1);
        ExpectRandomItemsPackedByTheRule(Seed, 400, {0.3, 1, 1.9, 2, 2.1, 3.7, 30.5, 100.25}, 0);
        ExpectRandomItemsPackedByTheRule(Seed, 300, {-60, -1, 0, 0.5, 1, 2, 45, 2000}, 0.5);
        ExpectRandomItemsPackedByTheRule(Seed, 40, {15, 30, 60, 500}, 5);
    }
}

TEST(ColumnPacker, PacksHundredsOfColumnsExactlyAsTheRuleDoes)
{
    std::mt19937 Random(7);
    std::vector<TTimes> Items;
    for (int Index = 0; Index < 600; ++Index)
        Items.push_back(
            Minutes(static_cast<double>(Random() % 200), 700 + static_cast<double>(Random() % 300)));
    for (int Index = 0; Index < 400; ++Index)
        Items.push_back(Minutes(static_cast<double>(Random() % 1440), static_cast<double>(Random() % 1440)));
    EXPECT_EQ(Pack(Items), PackByComparing(Items));
}

TEST(ColumnPacker, PacksDatesSoFarAwayThatMinutesVanishExactlyAsTheRuleDoes)
{
    std::mt19937 Random(3);
    for (const double Date : {1e9, 1e12, 1e16, 1e300, -1e12, std::numeric_limits<double>::infinity()}) {
        std::vector<TTimes> Items;
        for (int Index = 0; Index < 80; ++Index)
            Items.push_back({Date + (Random() % 1000) / 1000.0, Date + (Random() % 1000) / 500.0});
        EXPECT_EQ(Pack(Items, Date), PackByComparing(Items)) << Date;
    }
}

TEST(ColumnPacker, CountsTheColumnsItUsed)
{
    TColumnPacker Packer(Day, 3);
    EXPECT_EQ(Packer.ColumnCount(), 0);
    Packer.Place(Day + 0.4, Day + 0.5);
    Packer.Place(Day + 0.4, Day + 0.5);
    Packer.Place(Day + 0.6, Day + 0.7);
    EXPECT_EQ(Packer.ColumnCount(), 2);
}

} // namespace
