#pragma once

#include <cstdint>
#include <initializer_list>

namespace vcl
{

/// A set of the values of an enumeration with at most 32 members: the member's ordinal is its bit.
template <class TEnum>
class TSet
{
public:
    constexpr TSet() = default;
    constexpr TSet(std::initializer_list<TEnum> Members)
    {
        for (TEnum Member : Members)
            Include(Member);
    }

    static constexpr TSet FromBits(std::uint32_t Bits)
    {
        TSet Result;
        Result.FBits = Bits;
        return Result;
    }

    constexpr std::uint32_t Bits() const { return FBits; }
    constexpr bool Contains(TEnum Member) const { return (FBits & Bit(Member)) != 0; }
    constexpr bool IsEmpty() const { return FBits == 0; }
    constexpr TSet& Include(TEnum Member)
    {
        FBits |= Bit(Member);
        return *this;
    }
    constexpr TSet& Exclude(TEnum Member)
    {
        FBits &= ~Bit(Member);
        return *this;
    }

    friend constexpr TSet operator+(TSet Left, TSet Right) { return FromBits(Left.FBits | Right.FBits); }
    friend constexpr TSet operator*(TSet Left, TSet Right) { return FromBits(Left.FBits & Right.FBits); }
    friend constexpr TSet operator-(TSet Left, TSet Right) { return FromBits(Left.FBits & ~Right.FBits); }
    constexpr bool operator==(const TSet&) const = default;

private:
    static constexpr std::uint32_t Bit(TEnum Member)
    {
        return std::uint32_t{1} << static_cast<unsigned>(Member);
    }

    std::uint32_t FBits = 0;
};

} // namespace vcl
