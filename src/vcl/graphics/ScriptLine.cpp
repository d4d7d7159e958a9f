#include "vcl/graphics/ScriptLine.h"

#include <charconv>

namespace vcl
{

namespace
{

constexpr std::string_view Blanks = " \t\r\v\f";

AnsiString MessageAt(int Line, const AnsiString& Reason)
{
    return Line > 0 ? "line " + std::to_string(Line) + ": " + Reason : Reason;
}

} // namespace

AnsiString QuotedWord(std::string_view Word)
{
    constexpr std::size_t Longest = 40;
    AnsiString Result = "'";
    for (const char Letter : Word.substr(0, Longest))
        Result += static_cast<unsigned char>(Letter) < 0x20 || Letter == 0x7F ? '?' : Letter;
    return Result + (Word.size() > Longest ? "...'" : "'");
}

EScriptError::EScriptError(int Line, const AnsiString& Reason)
    : Exception(MessageAt(Line, Reason)), FLine(Line)
{
}

EScriptError::~EScriptError() = default;

TScriptLine::TScriptLine(int Number, std::string_view Text) : FNumber(Number)
{
    std::size_t Start = Text.find_first_not_of(Blanks);
    while (Start != std::string_view::npos) {
        const std::size_t End = std::min(Text.find_first_of(Blanks, Start), Text.size());
        FWords.push_back(Text.substr(Start, End - Start));
        Start = Text.find_first_not_of(Blanks, End);
    }
    if (!FWords.empty() && FWords.front().starts_with('#'))
        FWords.clear();
}

void TScriptLine::Fail(const AnsiString& Reason) const
{
    throw EScriptError(FNumber, Reason);
}

std::string_view TScriptLine::TakeWord()
{
    if (!HasMore())
        Fail("too few words");
    return FWords[FNext++];
}

int TScriptLine::TakeInt()
{
    const std::string_view Word = TakeWord();
    int Value = 0;
    const auto [End, Error] = std::from_chars(Word.data(), Word.data() + Word.size(), Value);
    if (Error != std::errc() || End != Word.data() + Word.size())
        Fail(QuotedWord(Word) + " is not an integer");
    return Value;
}

std::uint32_t TScriptLine::TakeColor()
{
    const std::string_view Word = TakeWord();
    std::uint32_t Value = 0;
    const auto [End, Error] = std::from_chars(Word.data(), Word.data() + Word.size(), Value, 16);
    if (Word.size() != 6 || Error != std::errc() || End != Word.data() + Word.size())
        Fail(QuotedWord(Word) + " is not a colour RRGGBB");
    return Value;
}

std::uint8_t TScriptLine::TakeByte()
{
    const std::string_view Word = TakeWord();
    std::uint8_t Value = 0;
    const auto [End, Error] = std::from_chars(Word.data(), Word.data() + Word.size(), Value, 16);
    if (Error != std::errc() || End != Word.data() + Word.size())
        Fail(QuotedWord(Word) + " is not a hexadecimal byte");
    return Value;
}

TPoint TScriptLine::TakePoint()
{
    const int X = TakeInt();
    return {X, TakeInt()};
}

TRect TScriptLine::TakeRect()
{
    const TPoint First = TakePoint();
    const TPoint Last = TakePoint();
    return {First.X, First.Y, Last.X, Last.Y};
}

std::vector<TPoint> TScriptLine::TakePoints()
{
    std::vector<TPoint> Result;
    Result.reserve(WordsLeft() / 2);
    while (HasMore())
        Result.push_back(TakePoint());
    return Result;
}

void TScriptLine::ExpectEnd() const
{
    if (HasMore())
        Fail("too many words, from " + QuotedWord(FWords[FNext]) + " on");
}

} // namespace vcl
