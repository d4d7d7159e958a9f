#include <limits>

#include <gtest/gtest.h>

#include "support/Csv.h"
#include "support/Hex.h"
#include "vcl/system/FormatDateTime.h"

namespace vcl::tests
{

namespace
{

TFormatSettings DutchSettings()
{
    TFormatSettings Settings;
    Settings.DateSeparator = "-";
    Settings.TimeSeparator = ".";
    Settings.ShortDateFormat = "dd/mm/yyyy";
    Settings.LongDateFormat = "dddd d mmmm yyyy";
    Settings.ShortTimeFormat = "hh:nn";
    Settings.LongTimeFormat = "hh:nn:ss";
    Settings.TimeAMString = "vm";
    Settings.TimePMString = "nm";
    Settings.LongMonthNames = {"januari", "februari", "maart",     "april",   "mei",      "juni",
                               "juli",    "augustus", "september", "oktober", "november", "december"};
    Settings.ShortMonthNames = {"jan", "feb", "mrt", "apr", "mei", "jun",
                                "jul", "aug", "sep", "okt", "nov", "dec"};
    Settings.LongDayNames = {"zondag", "maandag", "dinsdag", "woensdag", "donderdag", "vrijdag", "zaterdag"};
    Settings.ShortDayNames = {"zo", "ma", "di", "wo", "do", "vr", "za"};
    return Settings;
}

void ExpectRows(const std::string& Table, const TFormatSettings& Settings)
{
    for (const TCsvRow& Row : ReadCsv("model/datetime/" + Table)) {
        const std::string& Documented = Row["documented"];
        const std::string& Expected = Documented.empty() ? Row["result"] : Documented;
        EXPECT_EQ(Expected, FormatDateTime(Row["format"], DoubleFromHex(Row["value_hex"]), Settings))
            << "line " << Row.GetLine() << ": " << Row["value"] << " \"" << Row["format"] << "\"";
    }
}

} // namespace

TEST(FormatDateTime, EveryReferenceRowGivesItsText)
{
    ExpectRows("format.csv", TFormatSettings());
}

TEST(FormatDateTime, NamesSeparatorsAndFormatsComeFromTheSettings)
{
    ExpectRows("format_alt.csv", DutchSettings());
}

TEST(FormatDateTime, DefaultSettingsCountWhenNoneAreGiven)
{
    const TFormatSettings Before = DefaultFormatSettings();
    DefaultFormatSettings() = DutchSettings();
    const AnsiString Text = FormatDateTime("dddd", 2.0) + " " + DateToStr(2.0) + " " + TimeToStr(2.75);
    DefaultFormatSettings() = Before;
    EXPECT_EQ("maandag 01-01-1900 18.00.00", Text);
}

TEST(FormatDateTime, AFormatThatNamesItselfEnds)
{
    TFormatSettings Settings;
    Settings.ShortDateFormat = "c|ddddd|d";
    EXPECT_EQ("||1", FormatDateTime("ddddd", 2.0, Settings));
}

TEST(FormatDateTime, ValuesThatAreNoDateGiveZerosAndNoMonthName)
{
    const double NotANumber = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ("00/0/0000  00", FormatDateTime("dd/m/yyyy mmm hh", NotANumber));
    EXPECT_EQ("12/31/9999", FormatDateTime("c", std::numeric_limits<double>::infinity()));
    EXPECT_EQ("0000-00-00", FormatDateTime("yyyy-mm-dd", -1e300));
}

TEST(FormatDateTime, BytesOfOtherAlphabetsStandForThemselves)
{
    EXPECT_EQ("1\xC2\xBA \xE6\x9C\x88", FormatDateTime("d\xC2\xBA \xE6\x9C\x88", 2.0));
}

} // namespace vcl::tests
