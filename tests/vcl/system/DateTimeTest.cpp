#include <cmath>
#include <functional>
#include <limits>
#include <map>

#include <gtest/gtest.h>

#include "support/Csv.h"
#include "support/Hex.h"
#include "vcl/system/DateTime.h"
#include "vcl/system/Exception.h"

namespace vcl::tests
{

namespace
{

using TArguments = std::vector<std::string>;

double DoubleOf(const std::string& Text)
{
    return DoubleFromHex(SplitAt(Text, ':').front());
}

int IntOf(const std::string& Text)
{
    return static_cast<int>(std::stoll(Text));
}

/// Numbers exactly, values with a colon to one unit in the last place.
void ExpectField(const std::string& Expected, const std::string& Actual, const std::string& Where)
{
    if (Expected.find(':') == std::string::npos) {
        EXPECT_EQ(Expected, Actual) << Where;
        return;
    }
    const double Wanted = DoubleOf(Expected);
    const double Got = DoubleOf(Actual);
    EXPECT_TRUE(Got == Wanted || Got == std::nextafter(Wanted, Got))
        << Where << ": " << Expected << " " << Got;
    EXPECT_EQ(std::signbit(Wanted), std::signbit(Got)) << Where;
}

std::string Shown(double Value)
{
    std::string Bytes(8, '\0');
    const auto Bits = std::bit_cast<std::uint64_t>(Value);
    for (unsigned Index = 0; Index < 8; ++Index)
        Bytes[Index] = static_cast<char>(Bits >> (56 - 8 * Index));
    return ToHex(Bytes) + ":" + std::to_string(Value);
}

std::string Shown(const std::optional<double>& Value)
{
    return Value ? "1;" + Shown(*Value) : "0";
}

std::string Shown(const TDateParts& Parts)
{
    return IntToStr(Parts.Year) + ";" + IntToStr(Parts.Month) + ";" + IntToStr(Parts.Day);
}

std::string Shown(const TTimeParts& Parts)
{
    return IntToStr(Parts.Hour) + ";" + IntToStr(Parts.Minute) + ";" + IntToStr(Parts.Second) + ";" +
           IntToStr(Parts.Millisecond);
}

std::string Shown(const TTimeStamp& Stamp)
{
    return IntToStr(Stamp.Time) + ";" + IntToStr(Stamp.Date);
}

const std::map<std::string, std::function<std::string(const TArguments&)>>& Operations()
{
    static const std::map<std::string, std::function<std::string(const TArguments&)>> Map = {
        {"EncodeDate",
         [](const TArguments& A) { return Shown(EncodeDate(IntOf(A[0]), IntOf(A[1]), IntOf(A[2]))); }},
        {"TryEncodeDate",
         [](const TArguments& A) { return Shown(TryEncodeDate(IntOf(A[0]), IntOf(A[1]), IntOf(A[2]))); }},
        {"EncodeTime",
         [](const TArguments& A) {
             return Shown(EncodeTime(IntOf(A[0]), IntOf(A[1]), IntOf(A[2]), IntOf(A[3])));
         }},
        {"TryEncodeTime",
         [](const TArguments& A) {
             return Shown(TryEncodeTime(IntOf(A[0]), IntOf(A[1]), IntOf(A[2]), IntOf(A[3])));
         }},
        {"DecodeDate", [](const TArguments& A) { return Shown(DecodeDate(DoubleOf(A[0]))); }},
        {"DecodeTime", [](const TArguments& A) { return Shown(DecodeTime(DoubleOf(A[0]))); }},
        {"DayOfWeek", [](const TArguments& A) { return IntToStr(DayOfWeek(DoubleOf(A[0]))); }},
        {"IncMonth", [](const TArguments& A) { return Shown(IncMonth(DoubleOf(A[0]), IntOf(A[1]))); }},
        {"DaysInAMonth",
         [](const TArguments& A) { return IntToStr(DaysInAMonth(IntOf(A[0]), IntOf(A[1]))); }},
        {"DaysInMonth", [](const TArguments& A) { return IntToStr(DaysInMonth(DoubleOf(A[0]))); }},
        {"IsLeapYear", [](const TArguments& A) { return IntToStr(IsLeapYear(IntOf(A[0])) ? 1 : 0); }},
        {"Trunc", [](const TArguments& A) { return IntToStr(Trunc(DoubleOf(A[0]))); }},
        {"Frac", [](const TArguments& A) { return Shown(Frac(DoubleOf(A[0]))); }},
        {"DateTimeToTimeStamp",
         [](const TArguments& A) { return Shown(DateTimeToTimeStamp(DoubleOf(A[0]))); }},
        {"TimeStampToDateTime",
         [](const TArguments& A) {
             return Shown(TimeStampToDateTime({IntOf(A[0]), IntOf(A[1])}));
         }},
    };
    return Map;
}

/// The result of the row's operation, or "exception " and the class.
std::string Perform(const TCsvRow& Row)
{
    try {
        return Operations().at(Row["op"])(SplitAt(Row["args"], ';'));
    } catch (const Exception& Error) {
        return std::string("exception ") + Error.ClassName();
    }
}

std::string ExpectedResult(const TCsvRow& Row)
{
    if (!Row["documented"].empty())
        return Row["documented"];
    return Row["exception"].empty() ? Row["result"] : "exception " + Row["exception"];
}

const double Infinity = std::numeric_limits<double>::infinity();
const double NotANumber = std::numeric_limits<double>::quiet_NaN();

class TStoppedClock : public ::testing::Test
{
protected:
    ~TStoppedClock() override { SetClock(nullptr); }
};

} // namespace

TEST(DateTime, EveryReferenceRowGivesItsResult)
{
    for (const TCsvRow& Row : ReadCsv("model/datetime/arith.csv")) {
        const std::string Where = "line " + IntToStr(Row.GetLine()) + ": " + Row["op"] + " " + Row["args"];
        const TArguments Expected = SplitAt(ExpectedResult(Row), ';');
        const TArguments Actual = SplitAt(Perform(Row), ';');
        ASSERT_EQ(Expected.size(), Actual.size()) << Where;
        for (std::size_t Index = 0; Index < Expected.size(); ++Index)
            ExpectField(Expected[Index], Actual[Index], Where);
    }
}

TEST(DateTime, EncodingADateAndDecodingItAreInverses)
{
    for (int Day = 1 - DateDelta; Day <= 2958465; Day += 97) {
        const TDateParts Parts = DecodeDate(Day);
        ASSERT_EQ(Day, EncodeDate(Parts.Year, Parts.Month, Parts.Day));
    }
}

TEST(DateTime, ValuesBeyondTheCalendarAreSafeEverywhere)
{
    for (const double Value : {Infinity, -Infinity, NotANumber, 1e300, -1e300, 1e18, -1e18, 5e-324}) {
        const int Day = DayOfWeek(Value);
        EXPECT_TRUE(Day >= 1 && Day <= 7) << Value;
        const TTimeParts Time = DecodeTime(Value);
        EXPECT_TRUE(Time.Hour >= 0 && Time.Hour < 24 && Time.Millisecond >= 0) << Value;
    }
    EXPECT_EQ((TDateParts{9999, 12, 31}), DecodeDate(Infinity));
    EXPECT_EQ((TDateParts{}), DecodeDate(-Infinity));
    EXPECT_EQ((TDateParts{}), DecodeDate(NotANumber));
    EXPECT_EQ((TTimeParts{}), DecodeTime(NotANumber));
    EXPECT_EQ((TTimeStamp{}), DateTimeToTimeStamp(NotANumber));
    EXPECT_EQ(0, Trunc(NotANumber));
    EXPECT_EQ(INT64_MAX, Trunc(Infinity));
    EXPECT_EQ(INT64_MIN, Trunc(-1e19));
    EXPECT_EQ(0.0, Frac(Infinity));
    EXPECT_TRUE(std::isnan(Frac(NotANumber)));
}

TEST(DateTime, OnlyTheYearsOneTo9999AreCalendarDates)
{
    EXPECT_TRUE(IsCalendarDate(EncodeDate(1, 1, 1)));
    EXPECT_TRUE(IsCalendarDate(2958465.99999));
    EXPECT_FALSE(IsCalendarDate(2958466.0));
    EXPECT_FALSE(IsCalendarDate(-693594.0));
    EXPECT_FALSE(IsCalendarDate(Infinity));
    EXPECT_FALSE(IsCalendarDate(NotANumber));
}

TEST(DateTime, AddingMonthsToNoDateOrToTooManyIsAnError)
{
    EXPECT_THROW(IncMonth(NotANumber), EConvertError);
    EXPECT_THROW(IncMonth(Infinity, -1), EConvertError);
    EXPECT_THROW(IncMonth(0.0, INT32_MAX), EConvertError);
    EXPECT_THROW(IncMonth(0.0, INT32_MIN), EConvertError);
    EXPECT_THROW(DaysInMonth(NotANumber), EConvertError);
    EXPECT_THROW(DaysInAMonth(2000, 13), EConvertError);
    EXPECT_THROW(DaysInAMonth(2000, 0), EConvertError);
}

TEST(DateTime, AddingAMonthKeepsATimeThatRoundsUpToMidnight)
{
    const TDateTime LastInstant = std::nextafter(EncodeDate(2024, 1, 31) + 1, 0);
    EXPECT_DOUBLE_EQ(EncodeDate(2024, 2, 29) + 1, IncMonth(LastInstant));
}

TEST(DateTime, NegativePartsAreNoDate)
{
    EXPECT_FALSE(TryEncodeDate(-1, 1, 1));
    EXPECT_FALSE(TryEncodeDate(2000, 257, 1));
    EXPECT_FALSE(TryEncodeTime(-1, 0, 0, 0));
    EXPECT_FALSE(TryEncodeTime(0, 0, 0, INT32_MIN));
}

TEST(DateTime, TheTimeOfANegativeDateCountsAwayFromZero)
{
    EXPECT_EQ(-1.25, ReplaceTime(-1.0, 0.25));
    EXPECT_EQ(-1.25, ReplaceTime(-1.75, -7.25));
    EXPECT_EQ(3.5, ReplaceTime(3.0, -2.5));
}

TEST_F(TStoppedClock, AnswersDateAndTimeUntilItIsTakenAway)
{
    SetClock([] { return 45000.75; });
    EXPECT_EQ(45000.75, Now());
    EXPECT_EQ(45000.0, Date());
    EXPECT_EQ(0.75, Time());
    SetClock(nullptr);
    EXPECT_GT(Now(), 45000.75);
}

TEST(DateTime, TheSystemsClockGivesTheLocalDay)
{
    const std::time_t Before = std::time(nullptr);
    const TDateTime Moment = Now();
    std::tm Local{};
    localtime_r(&Before, &Local);
    const TDateTime Expected = EncodeDate(Local.tm_year + 1900, Local.tm_mon + 1, Local.tm_mday) +
                               EncodeTime(Local.tm_hour, Local.tm_min, Local.tm_sec, 0);
    EXPECT_NEAR(Expected, Moment, 60.0 / SecsPerDay);
}

} // namespace vcl::tests
