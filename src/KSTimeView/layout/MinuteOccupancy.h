#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace timeview
{

/// Which columns are taken in which whole minutes of one day: a segment tree over the minutes whose nodes
/// hold sets of columns.
///
/// Taking and asking touch O(log minutes) nodes; a question then costs one word for each 64 columns that are
/// full in a row, not one step for each column.
class TMinuteOccupancy
{
public:
    TMinuteOccupancy();

    /// Column is taken in every minute First..Last (0..1439, First not above Last).
    void Take(int First, int Last, int Column);

    /// Columns that are taken in at least one of the minutes asked for.
    class TTaken
    {
    public:
        /// The lowest column from From on that is not taken; there always is one.
        int FirstFreeFrom(int From) const;

    private:
        friend class TMinuteOccupancy;
        static constexpr int MaxNodes = 64;

        const TMinuteOccupancy* FOwner = nullptr;
        std::array<std::uint32_t, MaxNodes> FSets{};
        int FCount = 0;
        int FFullWords = 0;
    };
    /// Valid until the next Take.
    TTaken TakenIn(int First, int Last) const;

private:
    static constexpr int LeafCount = 2048;
    static constexpr int NodeCount = 2 * LeafCount;

    // A node has two sets: the columns that are taken in all its minutes, and those taken in some.
    enum TKind { All = 0, Some = 1 };
    static std::uint32_t SetOf(int Node, TKind Kind) { return static_cast<std::uint32_t>(2 * Node + Kind); }

    void Include(std::uint32_t Set, int Column);
    void AddTo(TTaken& Taken, std::uint32_t Set) const;
    void Widen(int Words);
    std::uint64_t Word(std::uint32_t Set, int Index) const
    {
        return FWords[static_cast<std::size_t>(Set) * static_cast<std::size_t>(FWidth) +
                      static_cast<std::size_t>(Index)];
    }

    int FWidth = 1; // words a set has
    std::vector<std::uint64_t> FWords;
    std::vector<int> FFullWords; // leading words of a set that are all ones
};

} // namespace timeview
