#include <algorithm>

#include "vcl/classes/Strings.h"

namespace vcl
{

namespace
{

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view LineEnds = "\r\n";

/// Where a line ends and where the next one begins.
struct TLineEnd {
    std::size_t End;
    std::size_t Next;
};

bool IsAnyLineBreak(std::string_view LineBreak)
{
    return LineBreak.empty() || LineBreak == "\r\n" || LineBreak == "\r" || LineBreak == "\n";
}

TLineEnd EndOfLine(std::string_view Text, std::size_t Start, std::string_view LineBreak)
{
    const bool IsAny = IsAnyLineBreak(LineBreak);
    const std::size_t End = IsAny ? Text.find_first_of(LineEnds, Start) : Text.find(LineBreak, Start);
    if (End == std::string_view::npos)
        return {Text.size(), Text.size()};
    if (!IsAny)
        return {End, End + LineBreak.size()};
    return {End, End + (Text.substr(End, 2) == "\r\n" ? 2U : 1U)};
}

bool IsBlank(char Character)
{
    return static_cast<unsigned char>(Character) <= ' ';
}

AnsiString Quoted(std::string_view Text, char QuoteChar)
{
    AnsiString Result(1, QuoteChar);
    for (const char Character : Text) {
        if (Character == QuoteChar)
            Result += QuoteChar;
        Result += Character;
    }
    return Result + QuoteChar;
}

/// Reads a delimited text from left to right.
class TDelimitedReader
{
public:
    TDelimitedReader(std::string_view Text, char Delimiter, char QuoteChar, bool IsStrict)
        : FText(Text), FDelimiter(Delimiter), FQuoteChar(QuoteChar), FStrict(IsStrict)
    {
    }

    bool IsAtEnd() const { return FPosition >= FText.size(); }
    bool IsAtDelimiter() const { return !IsAtEnd() && FText[FPosition] == FDelimiter; }
    bool IsAtLastCharacter() const { return FPosition + 1 == FText.size(); }
    void SkipCharacter() { ++FPosition; }

    void SkipBlanks()
    {
        while (!FStrict && !IsAtEnd() && IsBlank(FText[FPosition]))
            ++FPosition;
    }

    AnsiString ReadItem()
    {
        return FQuoteChar != '\0' && FText[FPosition] == FQuoteChar ? ReadQuoted() : ReadPlain();
    }

private:
    AnsiString ReadPlain()
    {
        const std::size_t Start = FPosition;
        while (!IsAtEnd() && !IsAtDelimiter() && (FStrict || !IsBlank(FText[FPosition])))
            ++FPosition;
        return AnsiString(FText.substr(Start, FPosition - Start));
    }

    /// A doubled quote stands for one; a missing closing quote ends the text.
    AnsiString ReadQuoted()
    {
        AnsiString Result;
        while (++FPosition < FText.size()) {
            if (FText[FPosition] == FQuoteChar &&
                FText.substr(FPosition + 1, 1) != std::string_view(&FQuoteChar, 1))
                break;
            if (FText[FPosition] == FQuoteChar)
                ++FPosition;
            Result += FText[FPosition];
        }
        if (!IsAtEnd())
            ++FPosition;
        return Result;
    }

    std::string_view FText;
    char FDelimiter;
    char FQuoteChar;
    bool FStrict;
    std::size_t FPosition = 0;
};

} // namespace

AnsiString TStrings::GetText() const
{
    AnsiString Result;
    const int Count = GetCount();
    for (int Index = 0; Index < Count; ++Index) {
        Result += GetString(Index);
        if (FTrailingLineBreak || Index + 1 < Count)
            Result += FLineBreak;
    }
    return Result;
}

void TStrings::SetText(std::string_view Text)
{
    // The text may be that of one of the strings.
    const AnsiString Copy(Text);
    Update([&] {
        Clear();
        for (std::size_t Start = 0; Start < Copy.size();) {
            const TLineEnd Line = EndOfLine(Copy, Start, FLineBreak);
            Add(Copy.substr(Start, Line.End - Start));
            Start = Line.Next;
        }
    });
}

AnsiString TStrings::Joined(char Delimiter, char QuoteChar, bool IsStrict) const
{
    const auto NeedsQuotes = [&](char Character) {
        return Character == QuoteChar || Character == Delimiter || (!IsStrict && IsBlank(Character));
    };
    AnsiString Result;
    const int Count = GetCount();
    for (int Index = 0; Index < Count; ++Index) {
        const AnsiString Text = GetString(Index);
        if (Index > 0)
            Result += Delimiter;
        // A single empty string must differ from an empty list.
        const bool IsQuoted = QuoteChar != '\0' && (std::any_of(Text.begin(), Text.end(), NeedsQuotes) ||
                                                    (Text.empty() && Count == 1));
        Result += IsQuoted ? Quoted(Text, QuoteChar) : Text;
    }
    return Result;
}

void TStrings::Split(std::string_view Text, char Delimiter, char QuoteChar, bool IsStrict)
{
    const AnsiString Copy(Text);
    TDelimitedReader Reader(Copy, Delimiter, QuoteChar, IsStrict);
    Update([&] {
        Clear();
        Reader.SkipBlanks();
        while (!Reader.IsAtEnd()) {
            Add(Reader.ReadItem());
            Reader.SkipBlanks();
            if (!Reader.IsAtDelimiter())
                continue;
            if (Reader.IsAtLastCharacter())
                Add({});
            Reader.SkipCharacter();
            Reader.SkipBlanks();
        }
    });
}

AnsiString TStrings::GetCommaText() const
{
    return Joined(',', '"', false);
}

void TStrings::SetCommaText(std::string_view Text)
{
    Split(Text, ',', '"', false);
}

AnsiString TStrings::GetDelimitedText() const
{
    return Joined(FDelimiter, FQuoteChar, FStrictDelimiter);
}

void TStrings::SetDelimitedText(std::string_view Text)
{
    Split(Text, FDelimiter, FQuoteChar, FStrictDelimiter);
}

void TStrings::LoadFromStream(TStream& Stream)
{
    const AnsiString Text = ReadToEnd(Stream);
    FHasByteOrderMark = Text.starts_with(ByteOrderMark);
    SetText(std::string_view(Text).substr(FHasByteOrderMark ? ByteOrderMark.size() : 0));
}

void TStrings::SaveToStream(TStream& Stream) const
{
    const AnsiString Text = GetText();
    if (FHasByteOrderMark)
        Stream.WriteBuffer(ByteOrderMark.data(), static_cast<std::int64_t>(ByteOrderMark.size()));
    Stream.WriteBuffer(Text.data(), static_cast<std::int64_t>(Text.size()));
}

void TStrings::LoadFromFile(const AnsiString& FileName)
{
    TFileStream Stream(FileName, fmOpenRead);
    LoadFromStream(Stream);
}

void TStrings::SaveToFile(const AnsiString& FileName) const
{
    TFileStream Stream(FileName, fmCreate);
    SaveToStream(Stream);
}

} // namespace vcl
