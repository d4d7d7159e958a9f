#include <gmock/gmock.h>

#include "examples/gallery/Specimen.h"
#include "gallery/inspector/ValueText.h"
#include "vcl/system/DateTime.h"

using gallery::TextToValue;
using gallery::ValueToText;
using vcl::EPropertyError;

namespace
{

/// The text that a text becomes when it is read and written again.
vcl::AnsiString Again(const vcl::TTypeInfo& Type, std::string_view Text)
{
    return ValueToText(Type, TextToValue(Type, Text));
}

template <class T>
const vcl::TTypeInfo& Info()
{
    return vcl::TypeTraits<T>::Info();
}

const vcl::TTypeInfo& Shades()
{
    return *vcl::FindProperty(TSpecimen::StaticClass(), "Shades")->Type;
}

} // namespace

TEST(ValueText, NumbersAreReadWithBlanksAroundThemAndWrittenPlainly)
{
    EXPECT_EQ(Again(Info<int>(), " -12 "), "-12");
    EXPECT_EQ(Again(Info<int>(), "$10"), "16");
    EXPECT_EQ(Again(Info<std::int64_t>(), "9000000000"), "9000000000");
    EXPECT_EQ(Again(Info<double>(), "2.50"), "2.5");
    EXPECT_EQ(Again(Info<float>(), "0.1"), "0.1");
}

TEST(ValueText, ANumberOutsideTheRangeOrFollowedByOtherTextIsRefused)
{
    EXPECT_THROW(TextToValue(Info<std::uint8_t>(), "256"), EPropertyError);
    EXPECT_THROW(TextToValue(Info<std::uint8_t>(), "-1"), EPropertyError);
    EXPECT_THROW(TextToValue(Info<int>(), "12x"), EPropertyError);
    EXPECT_THROW(TextToValue(Info<int>(), ""), EPropertyError);
    EXPECT_THROW(TextToValue(Info<double>(), "1,5"), EPropertyError);
    EXPECT_THROW(TextToValue(Info<double>(), "1E999999"), EPropertyError);
}

TEST(ValueText, NamesAreReadInAnyCaseAndWrittenAsDeclared)
{
    EXPECT_EQ(Again(Info<TShade>(), "SHDARK"), "shDark");
    EXPECT_EQ(Again(Info<bool>(), "true"), "True");
    EXPECT_THROW(TextToValue(Info<TShade>(), "shBlack"), EPropertyError);
    EXPECT_THROW(TextToValue(Info<bool>(), "2"), EPropertyError);
}

TEST(ValueText, ASetListsItsMembersInTheirOrderInBrackets)
{
    EXPECT_EQ(Again(Shades(), "[]"), "[]");
    EXPECT_EQ(Again(Shades(), " [ shDark,shLight ] "), "[shLight, shDark]");
    for (const char* const Text : {"shDark", "[shDark", "[shBlack]", "[shDark,]", "[,shDark]", "["})
        EXPECT_THROW(TextToValue(Shades(), Text), EPropertyError) << Text;
}

TEST(ValueText, AColourHasANameOrEightHexadecimalDigits)
{
    EXPECT_EQ(Again(Info<vcl::TColor>(), "clred"), "clRed");
    EXPECT_EQ(Again(Info<vcl::TColor>(), "255"), "clRed");
    EXPECT_EQ(Again(Info<vcl::TColor>(), "$00123456"), "$00123456");
    EXPECT_EQ(Again(Info<vcl::TColor>(), "$80000005"), "clWindow");
    EXPECT_THROW(TextToValue(Info<vcl::TColor>(), "reddish"), EPropertyError);
    EXPECT_THROW(TextToValue(Info<vcl::TColor>(), "$123456789"), EPropertyError);
}

TEST(ValueText, DatesAndTimesAreWrittenAsSuchAndAlsoReadAsNumbers)
{
    EXPECT_EQ(Again(vcl::DateType(), "2026-03-18"), "2026-03-18");
    EXPECT_EQ(Again(vcl::DateType(), "1"), "1899-12-31");
    EXPECT_EQ(Again(vcl::DateType(), "-1"), "1899-12-29");
    EXPECT_EQ(Again(vcl::TimeType(), "09:30:05"), "09:30:05");
    EXPECT_EQ(Again(vcl::DateTimeType(), "2026-03-18 23:59:59"), "2026-03-18 23:59:59");
    EXPECT_EQ(Again(vcl::DateTimeType(), "2026-03-18"), "2026-03-18 00:00:00");
    for (const char* const Text : {"2026-02-30", "2026-3", "18.3.2026", "2026-03-18-1"})
        EXPECT_THROW(TextToValue(vcl::DateType(), Text), EPropertyError) << Text;
    EXPECT_THROW(TextToValue(vcl::TimeType(), "24:00:00"), EPropertyError);
}

TEST(ValueText, ACharacterThatCannotBeSeenIsANumber)
{
    EXPECT_EQ(Again(Info<char>(), "*"), "*");
    EXPECT_EQ(Again(Info<char>(), "#0"), "#0");
    EXPECT_EQ(Again(Info<char>(), "#42"), "*");
    EXPECT_EQ(Again(Info<char>(), "#"), "#35");
    EXPECT_THROW(TextToValue(Info<char>(), "#256"), EPropertyError);
    EXPECT_THROW(TextToValue(Info<char>(), "ab"), EPropertyError);
    EXPECT_THROW(TextToValue(Info<char>(), ""), EPropertyError);
}

TEST(ValueText, TextKeepsItsBlanksAndWideTextItsLetters)
{
    EXPECT_EQ(Again(Info<vcl::AnsiString>(), " a "), " a ");
    EXPECT_EQ(Again(Info<vcl::WideString>(), "Zo\xC3\xAB"), "Zo\xC3\xAB");
}

TEST(ValueText, TheMessageNamesTheTextAndWhatWasExpected)
{
    try {
        TextToValue(Info<std::uint8_t>(), "300");
        FAIL() << "300 is no byte";
    } catch (const EPropertyError& Error) {
        EXPECT_STREQ(Error.what(), "\"300\" is not between 0 and 255");
    }
}
