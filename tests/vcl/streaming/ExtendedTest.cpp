#include <bit>
#include <cmath>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "vcl/classes/Extended.h"

namespace vcl::tests
{

namespace
{

TExtended Parsed(const char* Text)
{
    TExtended Result;
    EXPECT_TRUE(TExtended::Parse(Text, Result)) << Text;
    return Result;
}

double RandomDouble(std::mt19937_64& Random)
{
    for (;;)
        if (const double Value = std::bit_cast<double>(Random()); std::isfinite(Value))
            return Value;
}

} // namespace

TEST(Extended, HoldsEveryDoubleExactly)
{
    std::mt19937_64 Random(1);
    for (int Count = 0; Count < 20000; ++Count) {
        const double Value = RandomDouble(Random);
        EXPECT_EQ(TExtended(Value).ToDouble(), Value);
    }
    using TLimits = std::numeric_limits<double>;
    for (double Value :
         {0.0, 1.0, -1.0, TLimits::min(), TLimits::denorm_min(), TLimits::max(), TLimits::infinity()})
        EXPECT_EQ(TExtended(Value).ToDouble(), Value);
    EXPECT_TRUE(std::signbit(TExtended(-0.0).ToDouble()));
    EXPECT_TRUE(std::isnan(TExtended(TLimits::quiet_NaN()).ToDouble()));
}

TEST(Extended, RoundsToDoubleWithHalvesToEven)
{
    const std::uint64_t One = std::uint64_t{1} << 63;
    EXPECT_EQ(TExtended::FromParts(false, 16383, One | 0x400).ToDouble(), 1.0);
    EXPECT_EQ(TExtended::FromParts(false, 16383, One | 0x401).ToDouble(), std::nextafter(1.0, 2.0));
    EXPECT_EQ(TExtended::FromParts(false, 16383, One | 0xC00).ToDouble(), 1.0 + 0x1p-51);
    EXPECT_EQ(TExtended::FromParts(false, 16383 - 1075, One).ToDouble(), 0.0);
    EXPECT_EQ(TExtended::FromParts(false, 16383 - 1075, One | 1).ToDouble(), 0x1p-1074);
    EXPECT_EQ(TExtended::FromParts(true, 16383 + 1024, One).ToDouble(), -HUGE_VAL);
}

TEST(Extended, ParsesToTheNearestValue)
{
    EXPECT_EQ(Parsed("0.5"), TExtended(0.5));
    EXPECT_EQ(Parsed("-12e-1").ToDouble(), -1.2);
    EXPECT_EQ(Parsed("3."), TExtended(3.0));
    EXPECT_EQ(Parsed("0.1").Significand(), 0xCCCCCCCCCCCCCCCDULL);
    // Exactly half way between two significands of 64 bits, and a little above.
    EXPECT_EQ(Parsed("18446744073709551617"),
              TExtended::FromParts(false, 16383 + 64, std::uint64_t{1} << 63));
    EXPECT_EQ(Parsed("18446744073709551617.0000001").Significand(), (std::uint64_t{1} << 63) + 1);
    EXPECT_EQ(Parsed("1E5000").Exponent(), 0x7FFF);
    EXPECT_TRUE(Parsed("1E-6000").IsZero());
    EXPECT_TRUE(Parsed("0E999999999").IsZero());
    EXPECT_EQ(Parsed("3.6451995318824746025E-4951"), TExtended::FromParts(false, 0, 1));
}

TEST(Extended, RefusesWhatIsNoNumber)
{
    TExtended Result;
    for (const char* Text : {"", "-", ".", "1e", "1e+", "1.2.3", " 1", "1 ", "0x10", "nan", "--1"})
        EXPECT_FALSE(TExtended::Parse(Text, Result)) << Text;
}

TEST(Extended, TextComesBackAsTheSameBytes)
{
    std::mt19937_64 Random(2);
    for (int Count = 0; Count < 100; ++Count) {
        const std::uint64_t Bits = Random() | std::uint64_t{1} << 63;
        const TExtended Value =
            TExtended::FromParts((Random() & 1) != 0, static_cast<int>(Random() % 0x7FFF + 0), Bits);
        if (Value.Exponent() == 0)
            continue;
        EXPECT_EQ(Parsed(Value.ToText().c_str()), Value) << Value.ToText();
    }
}

TEST(Extended, TextIsShortAndPositionalWhileReadable)
{
    const auto Text = [](const char* Number) { return Parsed(Number).ToText(); };
    EXPECT_EQ(Text("0"), "0.0");
    EXPECT_EQ(Text("1.5"), "1.5");
    EXPECT_EQ(Text("-0.001"), "-0.001");
    EXPECT_EQ(Text("1000000.5"), "1000000.5");
    EXPECT_EQ(Text("36526.25"), "36526.25");
    EXPECT_EQ(Text("1e100"), "1.0E100");
    EXPECT_EQ(Text("1.25e-9"), "1.25E-9");
    EXPECT_EQ(TExtended(0.1).ToText(), "0.10000000000000000555");
}

TEST(Extended, CurrencyKeepsTenThousandths)
{
    for (std::int64_t Scaled :
         {std::int64_t{0}, std::int64_t{1}, std::int64_t{-1}, std::int64_t{199900}, INT64_MAX, -INT64_MAX})
        EXPECT_EQ(TExtended(TCurrency{Scaled}).ToCurrency().Scaled, Scaled);
    EXPECT_EQ(Parsed("0.00004").ToCurrency().Scaled, 0);
    EXPECT_EQ(Parsed("-0.00006").ToCurrency().Scaled, -1);
    EXPECT_EQ(Parsed("0.5").ToCurrency().Scaled, 5000);
    EXPECT_EQ(Parsed("1e30").ToCurrency().Scaled, INT64_MAX);
}

TEST(Extended, HoldsEvery64BitInteger)
{
    EXPECT_EQ(TExtended::FromInt64(0), TExtended());
    EXPECT_EQ(TExtended::FromInt64(-5), TExtended(-5.0));
    EXPECT_EQ(TExtended::FromInt64(INT64_MIN), TExtended(-0x1p63));
    EXPECT_EQ(TExtended::FromInt64(INT64_MAX), Parsed("9223372036854775807"));
}

} // namespace vcl::tests
