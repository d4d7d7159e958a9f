// Exact conversion between extendeds and decimal text. Both ways work on whole numbers of any length, so
// every result is the correctly rounded one.

#include <algorithm>
#include <bit>
#include <vector>

#include "vcl/classes/Extended.h"

namespace vcl
{

namespace
{

/// A non-negative whole number of any size: 32-bit digits, the lowest first, without leading zeros.
class TNatural
{
public:
    TNatural() = default;
    explicit TNatural(std::uint64_t Value)
    {
        for (; Value != 0; Value >>= 32)
            FDigits.push_back(static_cast<std::uint32_t>(Value));
    }

    bool IsZero() const { return FDigits.empty(); }
    int BitCount() const
    {
        return FDigits.empty() ? 0 : static_cast<int>(FDigits.size()) * 32 - std::countl_zero(FDigits.back());
    }

    void MultiplyAdd(std::uint32_t Factor, std::uint32_t Addend)
    {
        std::uint64_t Carry = Addend;
        for (std::uint32_t& Digit : FDigits) {
            Carry += std::uint64_t{Digit} * Factor;
            Digit = static_cast<std::uint32_t>(Carry);
            Carry >>= 32;
        }
        if (Carry != 0)
            FDigits.push_back(static_cast<std::uint32_t>(Carry));
    }

    void MultiplyByPowerOfTen(int Power)
    {
        for (; Power >= 9; Power -= 9)
            MultiplyAdd(1000000000u, 0);
        for (; Power > 0; --Power)
            MultiplyAdd(10, 0);
    }

    void ShiftLeft(int Count)
    {
        if (IsZero())
            return;
        FDigits.insert(FDigits.begin(), static_cast<std::size_t>(Count / 32), 0u);
        if (Count % 32 != 0)
            MultiplyAdd(std::uint32_t{1} << (Count % 32), 0);
    }

    int Compare(const TNatural& Other) const
    {
        if (FDigits.size() != Other.FDigits.size())
            return FDigits.size() < Other.FDigits.size() ? -1 : 1;
        for (std::size_t Index = FDigits.size(); Index-- > 0;)
            if (FDigits[Index] != Other.FDigits[Index])
                return FDigits[Index] < Other.FDigits[Index] ? -1 : 1;
        return 0;
    }

    /// Other must not be greater.
    void Subtract(const TNatural& Other)
    {
        std::int64_t Borrow = 0;
        for (std::size_t Index = 0; Index < FDigits.size(); ++Index) {
            const std::int64_t Digit = Index < Other.FDigits.size() ? Other.FDigits[Index] : 0;
            std::int64_t Difference = std::int64_t{FDigits[Index]} - Digit - Borrow;
            Borrow = Difference < 0 ? 1 : 0;
            Difference += Borrow << 32;
            FDigits[Index] = static_cast<std::uint32_t>(Difference);
        }
        while (!FDigits.empty() && FDigits.back() == 0)
            FDigits.pop_back();
    }

private:
    std::vector<std::uint32_t> FDigits;
};

/// Sign, digits and power of a decimal number: 0.DDD... * 10^Point.
struct TDecimal {
    bool Negative = false;
    AnsiString Digits;
    int Point = 0;
};

constexpr int MaxDigits = 800;
constexpr int MaxPower = 6000;

bool ScanExponent(std::string_view Text, std::size_t& Index, int& Power)
{
    if (Index == Text.size() || (Text[Index] != 'e' && Text[Index] != 'E'))
        return true;
    ++Index;
    bool Negative = false;
    if (Index < Text.size() && (Text[Index] == '+' || Text[Index] == '-'))
        Negative = Text[Index++] == '-';
    const std::size_t Start = Index;
    int Value = 0;
    for (; Index < Text.size() && Text[Index] >= '0' && Text[Index] <= '9'; ++Index)
        Value = std::min(Value * 10 + (Text[Index] - '0'), 1000000);
    Power = Negative ? -Value : Value;
    return Index > Start;
}

bool ScanDecimal(std::string_view Text, TDecimal& Result)
{
    std::size_t Index = 0;
    if (Index < Text.size() && (Text[Index] == '-' || Text[Index] == '+'))
        Result.Negative = Text[Index++] == '-';
    bool AnyDigit = false;
    bool AfterPoint = false;
    bool Dropped = false;
    std::int64_t Point = 0;
    for (; Index < Text.size(); ++Index) {
        const char Character = Text[Index];
        if (Character == '.' && !AfterPoint)
            AfterPoint = true;
        else if (Character >= '0' && Character <= '9') {
            AnyDigit = true;
            if (Character == '0' && Result.Digits.empty())
                Point -= AfterPoint ? 1 : 0;
            else {
                Point += AfterPoint ? 0 : 1;
                if (Result.Digits.size() < MaxDigits)
                    Result.Digits += Character;
                else
                    Dropped = Dropped || Character != '0';
            }
        } else
            break;
    }
    // What lies beyond the digits kept can only decide whether the value is above a half.
    if (Dropped)
        Result.Digits += '1';
    int Power = 0;
    if (!AnyDigit || !ScanExponent(Text, Index, Power) || Index != Text.size())
        return false;
    Result.Point = static_cast<int>(std::clamp<std::int64_t>(Point + Power, -10 * MaxPower, 10 * MaxPower));
    return true;
}

/// The quotient Top / Bottom as an extended.
TExtended Quotient(bool Negative, TNatural Top, TNatural Bottom)
{
    // Scaled so that the quotient has 64 bits, or fewer below the smallest normal number.
    int TopBit = Top.BitCount() - Bottom.BitCount();
    {
        TNatural Left = Top;
        TNatural Right = Bottom;
        TopBit >= 0 ? Right.ShiftLeft(TopBit) : Left.ShiftLeft(-TopBit);
        if (Left.Compare(Right) < 0)
            --TopBit;
    }
    int LowBit = std::max(TopBit - 63, -16382 - 63);
    LowBit <= 0 ? Top.ShiftLeft(-LowBit) : Bottom.ShiftLeft(LowBit);
    // Long division in binary: the remainder moves up one bit a step, the divisor stays.
    Bottom.ShiftLeft(63);
    std::uint64_t Bits = 0;
    for (int Step = 0; Step < 64; ++Step) {
        Bits <<= 1;
        if (Top.Compare(Bottom) >= 0) {
            Top.Subtract(Bottom);
            Bits |= 1;
        }
        Top.ShiftLeft(1);
    }
    const int Half = Top.Compare(Bottom);
    if (Half > 0 || (Half == 0 && (Bits & 1) != 0))
        if (++Bits == 0) {
            Bits = std::uint64_t{1} << 63;
            ++LowBit;
        }
    if (LowBit + 63 > 16383)
        return TExtended::FromParts(Negative, 0x7FFF, std::uint64_t{1} << 63);
    const bool IsNormal = (Bits >> 63) != 0;
    return TExtended::FromParts(Negative, IsNormal ? LowBit + 63 + 16383 : 0, Bits);
}

/// Digits and decimal point of a finite value that is not zero, rounded to Count significant digits.
TDecimal RoundedDigits(const TExtended& Value, int Count)
{
    const int Power = (Value.Exponent() == 0 ? 1 : Value.Exponent()) - 16383 - 63;
    TNatural Top(Value.Significand());
    TNatural Bottom(1);
    Power >= 0 ? Top.ShiftLeft(Power) : Bottom.ShiftLeft(-Power);
    // An estimate of the decimal exponent, corrected below; 1233 / 4096 is a little over the logarithm of
    // two.
    int Point = ((Top.BitCount() - Bottom.BitCount()) * 1233 >> 12) + 1;
    Point >= 0 ? Bottom.MultiplyByPowerOfTen(Point) : Top.MultiplyByPowerOfTen(-Point);
    while (Top.Compare(Bottom) >= 0) {
        Bottom.MultiplyAdd(10, 0);
        ++Point;
    }
    for (;;) {
        TNatural Next = Top;
        Next.MultiplyAdd(10, 0);
        if (Next.Compare(Bottom) >= 0)
            break;
        Top = std::move(Next);
        --Point;
    }
    TDecimal Result{Value.IsNegative(), "", Point};
    for (int Index = 0; Index < Count; ++Index) {
        Top.MultiplyAdd(10, 0);
        char Digit = '0';
        for (; Top.Compare(Bottom) >= 0; ++Digit)
            Top.Subtract(Bottom);
        Result.Digits += Digit;
    }
    Top.ShiftLeft(1);
    const int Half = Top.Compare(Bottom);
    if (Half > 0 || (Half == 0 && (Result.Digits.back() - '0') % 2 != 0)) {
        std::size_t Index = Result.Digits.size();
        while (Index > 0 && Result.Digits[Index - 1] == '9')
            Result.Digits[--Index] = '0';
        if (Index > 0)
            ++Result.Digits[Index - 1];
        else {
            Result.Digits.insert(Result.Digits.begin(), '1');
            Result.Digits.pop_back();
            ++Result.Point;
        }
    }
    return Result;
}

AnsiString Spell(TDecimal Value)
{
    while (Value.Digits.size() > 1 && Value.Digits.back() == '0')
        Value.Digits.pop_back();
    const AnsiString Sign = Value.Negative ? "-" : "";
    const int Count = static_cast<int>(Value.Digits.size());
    if (Value.Point < -3 || Value.Point > 16) {
        const AnsiString Fraction = Count > 1 ? Value.Digits.substr(1) : "0";
        return Sign + Value.Digits[0] + "." + Fraction + "E" + IntToStr(Value.Point - 1);
    }
    if (Value.Point <= 0)
        return Sign + "0." + AnsiString(static_cast<std::size_t>(-Value.Point), '0') + Value.Digits;
    if (Value.Point >= Count)
        return Sign + Value.Digits + AnsiString(static_cast<std::size_t>(Value.Point - Count), '0') + ".0";
    const std::size_t Point = static_cast<std::size_t>(Value.Point);
    return Sign + Value.Digits.substr(0, Point) + "." + Value.Digits.substr(Point);
}

} // namespace

AnsiString TExtended::ToText() const
{
    if (!IsFinite())
        return (Significand() << 1) != 0 ? "NAN" : IsNegative() ? "-INF" : "INF";
    if (IsZero())
        return IsNegative() ? "-0.0" : "0.0";
    for (int Count : {15, 17, 18, 19, 20}) {
        AnsiString Text = Spell(RoundedDigits(*this, Count));
        TExtended Back;
        if (Parse(Text, Back) && Back == *this)
            return Text;
    }
    return Spell(RoundedDigits(*this, 21));
}

bool TExtended::Parse(std::string_view Text, TExtended& Result)
{
    TDecimal Decimal;
    if (!ScanDecimal(Text, Decimal))
        return false;
    if (Decimal.Digits.empty() || Decimal.Point < -MaxPower) {
        Result = FromParts(Decimal.Negative, 0, 0);
        return true;
    }
    if (Decimal.Point > MaxPower) {
        Result = FromParts(Decimal.Negative, 0x7FFF, std::uint64_t{1} << 63);
        return true;
    }
    TNatural Top;
    for (char Digit : Decimal.Digits)
        Top.MultiplyAdd(10, static_cast<std::uint32_t>(Digit - '0'));
    TNatural Bottom(1);
    const int Power = Decimal.Point - static_cast<int>(Decimal.Digits.size());
    Power >= 0 ? Top.MultiplyByPowerOfTen(Power) : Bottom.MultiplyByPowerOfTen(-Power);
    Result = Quotient(Decimal.Negative, std::move(Top), std::move(Bottom));
    return true;
}

} // namespace vcl
