#include <gtest/gtest.h>

#include "vcl/system/CodePage.h"
#include "vcl/system/Exception.h"

namespace vcl::tests
{

namespace
{

constexpr auto cpCyrillic = static_cast<TCodePage>(1251);
constexpr auto cpJapanese = static_cast<TCodePage>(932);
constexpr auto cpUnknown = static_cast<TCodePage>(4711);

class TDefaultCodePage : public ::testing::Test
{
protected:
    ~TDefaultCodePage() override { SetDefaultCodePage(cpUtf8); }
};

} // namespace

TEST(CodePage, Utf8TakesEveryShortestFormUpToTheLastCodePoint)
{
    for (const char* Text : {"", "plain", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF",
                             "\xEE\x80\x80", "\xEF\xBF\xBD", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"})
        EXPECT_TRUE(IsValidUtf8(Text)) << Text;
    EXPECT_TRUE(IsValidUtf8(std::string_view("a\0b", 3)));
}

TEST(CodePage, Utf8RefusesLongFormsSurrogatesAndFragments)
{
    for (const char* Text :
         {"\x80", "a\xBF", "\xC0\x80", "\xC1\xBF", "\xC3", "\xC3(", "\xE0\x9F\xBF", "\xE2\x82",
          "\xED\xA0\x80", "\xED\xBF\xBF", "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80",
          "\xF0\x90\x80", "\xFF", "\xEF\xBF\xBD\xEF"})
        EXPECT_FALSE(IsValidUtf8(Text)) << Text;
}

TEST(CodePage, DecodingABrokenSequenceTakesOneByteAtATime)
{
    std::size_t Position = 0;
    const std::string_view Text = "\xE2\x82z";
    EXPECT_EQ(U'\xFFFD', DecodeUtf8(Text, Position));
    EXPECT_EQ(1U, Position);
    EXPECT_EQ(U'\xFFFD', DecodeUtf8(Text, Position));
    EXPECT_EQ(U'z', DecodeUtf8(Text, Position));
    EXPECT_EQ(3U, Position);
}

TEST(CodePage, EveryCodePointSurvivesTheWayToWideAndBack)
{
    for (char32_t CodePoint = 0; CodePoint <= 0x10FFFF; CodePoint += 7) {
        if (CodePoint >= 0xD800 && CodePoint <= 0xDFFF)
            continue;
        AnsiString Text;
        AppendUtf8(Text, CodePoint);
        ASSERT_TRUE(IsValidUtf8(Text));
        std::size_t Position = 0;
        ASSERT_EQ(CodePoint, DecodeUtf8(Text, Position));
        ASSERT_EQ(Text.size(), Position);
        ASSERT_EQ(Text, WideToUtf8(Utf8ToWide(Text)));
    }
    EXPECT_EQ(u"\xD83D\xDE00", Utf8ToWide("\xF0\x9F\x98\x80"));
}

TEST(CodePage, LoneSurrogatesBecomeTheReplacementCharacter)
{
    EXPECT_EQ("\xEF\xBF\xBD", WideToUtf8(std::u16string(1, char16_t{0xD800})));
    EXPECT_EQ("\xEF\xBF\xBDx", WideToUtf8(std::u16string{char16_t{0xDC00}, u'x'}));
    AnsiString Text;
    AppendUtf8(Text, 0x110000);
    EXPECT_EQ("\xEF\xBF\xBD", Text);
}

TEST(CodePage, TextThatIsNotValidIsReadWholeAsWindows1252)
{
    EXPECT_EQ("Gr\xC3\xBC\xC3\x9F", AnsiToUtf8("Gr\xC3\xBC\xC3\x9F"));
    EXPECT_EQ("Gr\xC3\xBC\xC3\x9F", AnsiToUtf8("Gr\xFC\xDF"));
    // One wrong byte, and the valid sequence before it is read as two characters as well.
    EXPECT_EQ("\xC3\x83\xC2\xBC\xC3\x9F", AnsiToUtf8("\xC3\xBC\xDF"));
    EXPECT_EQ("\xE2\x82\xAC\xC2\x81", AnsiToUtf8("\x80\x81"));
}

TEST(CodePage, EveryByteOfASingleByteCodePageComesBack)
{
    for (const TCodePage CodePage : {cpWindows1252, cpLatin1})
        for (int Byte = 0; Byte < 256; ++Byte) {
            const AnsiString Text(1, static_cast<char>(Byte));
            EXPECT_TRUE(IsValidText(Text, CodePage));
            EXPECT_EQ(Text, Utf8ToAnsi(AnsiToUtf8(Text, CodePage), CodePage)) << Byte;
        }
}

TEST(CodePage, ACharacterTheCodePageLacksBecomesAQuestionMark)
{
    EXPECT_EQ("\x80?", Utf8ToAnsi("\xE2\x82\xAC\xD0\x96", cpWindows1252));
    EXPECT_EQ("??", Utf8ToAnsi("\xE2\x82\xAC\xD0\x96", cpLatin1));
    EXPECT_EQ("a?\xC6z", Utf8ToAnsi("a\xE2\x98\x83\xD0\x96z", cpCyrillic));
    EXPECT_EQ("\xC6", WideToAnsi(u"\x0416", cpCyrillic));
}

TEST(CodePage, CodePagesOfTheSystemConvertBothWays)
{
    EXPECT_EQ("\xD0\x96", AnsiToUtf8("\xC6", cpCyrillic));
    EXPECT_EQ(u"\x3042", AnsiToWide("\x82\xA0", cpJapanese));
    EXPECT_EQ("\x82\xA0", Utf8ToAnsi("\xE3\x81\x82", cpJapanese));
    EXPECT_FALSE(IsValidText("\x82", cpJapanese));
    EXPECT_EQ("\xE2\x80\x9A", AnsiToUtf8("\x82", cpJapanese));
}

TEST(CodePage, TextLongerThanTheConvertersBufferComesThroughWhole)
{
    AnsiString Text;
    AnsiString Expected;
    for (int Index = 0; Index < 5000; ++Index) {
        Text += '\xC6';
        Expected += "\xD0\x96";
    }
    EXPECT_EQ(Expected, AnsiToUtf8(Text, cpCyrillic));
    EXPECT_EQ(Text, Utf8ToAnsi(Expected, cpCyrillic));
}

TEST_F(TDefaultCodePage, ChangesWhatTextMeans)
{
    EXPECT_EQ(cpUtf8, GetDefaultCodePage());
    SetDefaultCodePage(cpCyrillic);
    EXPECT_EQ("\xD0\x96", AnsiToUtf8("\xC6"));
    EXPECT_EQ("\xC6", Utf8ToAnsi("\xD0\x96"));
    EXPECT_TRUE(AnsiSameText("\xC6", "\xE6"));
}

TEST_F(TDefaultCodePage, AnUnknownOneIsAnErrorAndChangesNothing)
{
    EXPECT_FALSE(IsCodePageSupported(cpUnknown));
    EXPECT_THROW(SetDefaultCodePage(cpUnknown), EConvertError);
    EXPECT_EQ(cpUtf8, GetDefaultCodePage());
}

TEST(AnsiCompareText, FoldsLettersOfOtherAlphabets)
{
    EXPECT_TRUE(AnsiSameText("\xC3\x84RGER", "\xC3\xA4rger"));
    EXPECT_TRUE(AnsiSameText("\xCE\x91\xCE\xA9", "\xCE\xB1\xCF\x89"));
    EXPECT_TRUE(AnsiSameText("\xD0\x96\xD0\x81", "\xD0\xB6\xD1\x91"));
    EXPECT_TRUE(AnsiSameText("\xC5\x81\xC3\xB3\x44\xC5\xB9", "\xC5\x82\xC3\x93\x64\xC5\xBA"));
    EXPECT_FALSE(AnsiSameText("\xC3\x84", "\xC3\xB6"));
    EXPECT_FALSE(AnsiSameText("\xC3\x97", "\xC3\xB7")); // multiplication and division signs are no letters
}

TEST(AnsiCompareText, OrdersPlainTextWithoutRegardToCase)
{
    EXPECT_LT(AnsiCompareText("apple", "Banana"), 0);
    EXPECT_GT(AnsiCompareText("b", "A"), 0);
    EXPECT_EQ(0, AnsiCompareText("", ""));
    EXPECT_LT(AnsiCompareText("\xC3\xA4", "\xC3\x84x"), 0);
}

TEST(CompareText, FoldsPlainLettersOnly)
{
    EXPECT_TRUE(SameText("TKSTimeView", "tkstimeVIEW"));
    EXPECT_FALSE(SameText("ab", "abc"));
    EXPECT_LT(CompareText("ab", "ABC"), 0);
    EXPECT_GT(CompareText("\xE4", "z"), 0);
    EXPECT_EQ("ABC\xE4", UpperCase("aBc\xE4"));
    EXPECT_EQ("abc1", LowerCase("AbC1"));
}

} // namespace vcl::tests
