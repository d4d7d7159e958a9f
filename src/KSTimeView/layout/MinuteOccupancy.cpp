#include "KSTimeView/layout/MinuteOccupancy.h"

#include <algorithm>
#include <bit>

namespace timeview
{

namespace
{

constexpr int WordBits = 64;
constexpr std::uint64_t FullWord = ~std::uint64_t{0};

} // namespace

TMinuteOccupancy::TMinuteOccupancy()
    : FWords(std::size_t{2} * NodeCount), FFullWords(std::size_t{2} * NodeCount)
{
}

void TMinuteOccupancy::Widen(int Words)
{
    int Width = FWidth;
    while (Width < Words)
        Width *= 2;
    std::vector<std::uint64_t> Wider(std::size_t{2} * NodeCount * static_cast<std::size_t>(Width));
    for (std::size_t Set = 0; Set < std::size_t{2} * NodeCount; ++Set)
        std::copy_n(FWords.begin() + static_cast<std::ptrdiff_t>(Set) * FWidth, FWidth,
                    Wider.begin() + static_cast<std::ptrdiff_t>(Set) * Width);
    FWords = std::move(Wider);
    FWidth = Width;
}

void TMinuteOccupancy::Include(std::uint32_t Set, int Column)
{
    const std::size_t Base = static_cast<std::size_t>(Set) * static_cast<std::size_t>(FWidth);
    FWords[Base + static_cast<std::size_t>(Column / WordBits)] |= std::uint64_t{1} << (Column % WordBits);
    int& Full = FFullWords[Set];
    while (Full < FWidth && FWords[Base + static_cast<std::size_t>(Full)] == FullWord)
        ++Full;
}

void TMinuteOccupancy::Take(int First, int Last, int Column)
{
    if (Column / WordBits >= FWidth)
        Widen(Column / WordBits + 1);
    // The nodes that together are exactly the range.
    for (int Left = First + LeafCount, Right = Last + LeafCount + 1; Left < Right; Left /= 2, Right /= 2) {
        if (Left % 2 == 1) {
            Include(SetOf(Left, All), Column);
            Include(SetOf(Left++, Some), Column);
        }
        if (Right % 2 == 1) {
            Include(SetOf(--Right, All), Column);
            Include(SetOf(Right, Some), Column);
        }
    }
    // Everything above them lies above the first or the last minute.
    int Left = First + LeafCount;
    int Right = Last + LeafCount;
    for (; Left != Right; Left /= 2, Right /= 2) {
        Include(SetOf(Left, Some), Column);
        Include(SetOf(Right, Some), Column);
    }
    for (; Left >= 1; Left /= 2)
        Include(SetOf(Left, Some), Column);
}

void TMinuteOccupancy::AddTo(TTaken& Taken, std::uint32_t Set) const
{
    Taken.FSets[static_cast<std::size_t>(Taken.FCount++)] = Set;
    Taken.FFullWords = std::max(Taken.FFullWords, FFullWords[Set]);
}

TMinuteOccupancy::TTaken TMinuteOccupancy::TakenIn(int First, int Last) const
{
    TTaken Taken;
    Taken.FOwner = this;
    for (int Left = First + LeafCount, Right = Last + LeafCount + 1; Left < Right; Left /= 2, Right /= 2) {
        if (Left % 2 == 1)
            AddTo(Taken, SetOf(Left++, Some));
        if (Right % 2 == 1)
            AddTo(Taken, SetOf(--Right, Some));
    }
    int Left = First + LeafCount;
    int Right = Last + LeafCount;
    for (; Left != Right; Left /= 2, Right /= 2) {
        AddTo(Taken, SetOf(Left, All));
        AddTo(Taken, SetOf(Right, All));
    }
    for (; Left >= 1; Left /= 2)
        AddTo(Taken, SetOf(Left, All));
    return Taken;
}

int TMinuteOccupancy::TTaken::FirstFreeFrom(int From) const
{
    std::uint64_t Below = (std::uint64_t{1} << (From % WordBits)) - 1;
    int Index = From / WordBits;
    if (Index < FFullWords) {
        Index = FFullWords;
        Below = 0;
    }
    for (; Index < FOwner->FWidth; ++Index, Below = 0) {
        std::uint64_t Word = Below;
        for (int Set = 0; Set < FCount; ++Set)
            Word |= FOwner->Word(FSets[static_cast<std::size_t>(Set)], Index);
        if (Word != FullWord)
            return Index * WordBits + std::countr_one(Word);
    }
    return std::max(From, FOwner->FWidth * WordBits);
}

} // namespace timeview
