#include "vcl/streaming/Parser.h"

#include "vcl/system/CodePage.h"

namespace vcl
{

namespace
{

bool IsLetter(char Character)
{
    return (Character >= 'a' && Character <= 'z') || (Character >= 'A' && Character <= 'Z') ||
           Character == '_';
}

bool IsDigit(char Character)
{
    return Character >= '0' && Character <= '9';
}

int HexValue(char Character)
{
    if (IsDigit(Character))
        return Character - '0';
    const char Lower = static_cast<char>(Character | 0x20);
    return Lower >= 'a' && Lower <= 'f' ? Lower - 'a' + 10 : -1;
}

} // namespace

EFormParserError::EFormParserError(const AnsiString& Reason, int Line, int Column)
    : EParserError(Reason + " (line " + IntToStr(Line) + ", column " + IntToStr(Column) + ")"),
      FReason(Reason), FLine(Line), FColumn(Column)
{
}

EFormParserError::~EFormParserError() = default;

TParser::TParser(TStream& Stream)
{
    FText.resize(static_cast<std::size_t>(Stream.Remaining()));
    Stream.ReadBuffer(FText.data(), static_cast<std::int64_t>(FText.size()));
    if (FText.compare(0, 3, "\xEF\xBB\xBF") == 0)
        FPosition = FLineStart = 3;
}

void TParser::Error(const AnsiString& Reason) const
{
    throw EFormParserError(Reason, GetLine(), GetColumn());
}

void TParser::ErrorHere(const AnsiString& Reason) const
{
    throw EFormParserError(Reason, FLine, static_cast<int>(FPosition - FLineStart) + 1);
}

AnsiString TParser::Describe() const
{
    switch (FKind) {
    case TTokenKind::End:
        return "the text ends";
    case TTokenKind::String:
    case TTokenKind::WideText:
        return "there is a string";
    default:
        return "there is " + FText.substr(FTokenStart, std::min<std::size_t>(FPosition - FTokenStart, 40));
    }
}

void TParser::ErrorExpected(const AnsiString& What) const
{
    Error(What + " expected, but " + Describe());
}

bool TParser::IsSymbol(std::string_view Word) const
{
    return FKind == TTokenKind::Symbol && SameText(FString, Word);
}

void TParser::Expect(char Character)
{
    if (!IsSpecial(Character))
        ErrorExpected(AnsiString("\"") + Character + "\"");
    NextToken();
}

void TParser::ExpectSymbol(std::string_view Word)
{
    if (!IsSymbol(Word))
        ErrorExpected("\"" + AnsiString(Word) + "\"");
    NextToken();
}

AnsiString TParser::TakeSymbol()
{
    if (FKind != TTokenKind::Symbol)
        ErrorExpected("a name");
    AnsiString Symbol = FString;
    NextToken();
    return Symbol;
}

char TParser::Peek(std::size_t Ahead) const
{
    return FPosition + Ahead < FText.size() ? FText[FPosition + Ahead] : '\0';
}

void TParser::SkipBlanks()
{
    for (; !AtEnd(); ++FPosition) {
        const char Character = FText[FPosition];
        // CR LF, CR and LF each end one line.
        if (Character == '\n' || (Character == '\r' && Peek(1) != '\n')) {
            ++FLine;
            FLineStart = FPosition + 1;
        } else if (Character != ' ' && Character != '\t' && Character != '\r' && Character != '\f' &&
                   Character != '\v')
            return;
    }
}

void TParser::NextToken()
{
    SkipBlanks();
    FTokenStart = FPosition;
    FTokenLine = FLine;
    FTokenLineStart = FLineStart;
    const char Character = Peek();
    if (AtEnd())
        FKind = TTokenKind::End;
    else if (IsLetter(Character))
        ReadSymbol();
    else if (Character == '\'' || Character == '#')
        ReadString();
    else if (IsDigit(Character) || Character == '$' ||
             (Character == '-' && (IsDigit(Peek(1)) || Peek(1) == '$')))
        ReadNumber();
    else {
        FKind = TTokenKind::Special;
        ++FPosition;
    }
}

void TParser::ReadSymbol()
{
    while (IsLetter(Peek()) || IsDigit(Peek()))
        ++FPosition;
    FKind = TTokenKind::Symbol;
    FString = FText.substr(FTokenStart, FPosition - FTokenStart);
}

void TParser::ReadString()
{
    FString.clear();
    FWideString.clear();
    FIsWide = false;
    while (Peek() == '\'' || Peek() == '#')
        Peek() == '#' ? ReadCode() : ReadQuoted();
    FKind = FIsWide ? TTokenKind::WideText : TTokenKind::String;
}

void TParser::AppendUnit(char16_t Unit)
{
    if (Unit < 0x80 && !FIsWide) {
        FString += static_cast<char>(Unit);
        return;
    }
    if (!FIsWide)
        FWideString = AnsiToWide(FString);
    FIsWide = true;
    FWideString += Unit;
}

void TParser::ReadQuoted()
{
    // Bytes above 127 stay as they are unless a code in the same string makes it a wide one.
    AnsiString Piece;
    for (++FPosition;; ++FPosition) {
        if (AtEnd() || Peek() == '\n' || Peek() == '\r')
            Error("The string is not closed on its line");
        if (Peek() == '\'') {
            if (Peek(1) != '\'')
                break;
            ++FPosition;
        }
        Piece += Peek();
    }
    ++FPosition;
    if (FIsWide)
        FWideString += AnsiToWide(Piece);
    else
        FString += Piece;
}

void TParser::ReadCode()
{
    ++FPosition;
    int Base = 10;
    if (Peek() == '$') {
        Base = 16;
        ++FPosition;
    }
    int Code = 0;
    bool AnyDigit = false;
    for (; Base == 16 ? HexValue(Peek()) >= 0 : IsDigit(Peek()); ++FPosition) {
        Code = Code * Base + HexValue(Peek());
        AnyDigit = true;
        if (Code > 0xFFFF)
            ErrorHere("A character code is at most 65535");
    }
    if (!AnyDigit)
        ErrorHere("A character code needs digits");
    AppendUnit(static_cast<char16_t>(Code));
}

void TParser::ReadHexadecimal(bool Negative)
{
    ++FPosition;
    std::uint64_t Value = 0;
    const std::size_t Start = FPosition;
    for (; HexValue(Peek()) >= 0; ++FPosition) {
        if (Value >> 60 != 0)
            Error("The number is too large");
        Value = Value << 4 | static_cast<std::uint64_t>(HexValue(Peek()));
    }
    if (FPosition == Start)
        Error("A hexadecimal number needs digits");
    FKind = TTokenKind::Integer;
    FInteger = static_cast<std::int64_t>(Negative ? ~Value + 1 : Value);
}

void TParser::ReadNumber()
{
    const bool Negative = Peek() == '-';
    if (Negative)
        ++FPosition;
    if (Peek() == '$')
        return ReadHexadecimal(Negative);
    std::uint64_t Value = 0;
    bool Overflow = false;
    for (; IsDigit(Peek()); ++FPosition) {
        const auto Digit = static_cast<std::uint64_t>(Peek() - '0');
        Overflow = Overflow || Value > (UINT64_MAX - Digit) / 10;
        Value = Value * 10 + Digit;
    }
    bool IsFloat = false;
    if (Peek() == '.') {
        IsFloat = true;
        for (++FPosition; IsDigit(Peek()); ++FPosition) {
        }
    }
    if (Peek() == 'e' || Peek() == 'E') {
        IsFloat = true;
        ++FPosition;
        if (Peek() == '+' || Peek() == '-')
            ++FPosition;
        if (!IsDigit(Peek()))
            Error("An exponent needs digits");
        while (IsDigit(Peek()))
            ++FPosition;
    }
    const std::string_view Digits = std::string_view(FText).substr(FTokenStart, FPosition - FTokenStart);
    const char Suffix = static_cast<char>(Peek() | 0x20);
    FSuffix = 0;
    if ((Suffix == 's' || Suffix == 'c' || Suffix == 'd') && !IsLetter(Peek(1)) && !IsDigit(Peek(1))) {
        FSuffix = Suffix;
        IsFloat = true;
        ++FPosition;
    }
    if (IsLetter(Peek()))
        ErrorHere("A number ends in a letter");
    if (IsFloat) {
        FKind = TTokenKind::Float;
        if (!TExtended::Parse(Digits, FFloat))
            Error("This is not a number");
        return;
    }
    const std::uint64_t Limit = static_cast<std::uint64_t>(INT64_MAX) + (Negative ? 1 : 0);
    if (Overflow || Value > Limit)
        Error("The number is too large");
    FKind = TTokenKind::Integer;
    FInteger = static_cast<std::int64_t>(Negative ? ~Value + 1 : Value);
}

std::vector<std::uint8_t> TParser::TakeBinary()
{
    if (!IsSpecial('{'))
        ErrorExpected("\"{\"");
    std::vector<std::uint8_t> Bytes;
    for (;;) {
        SkipBlanks();
        if (Peek() == '}' && !AtEnd())
            break;
        const int High = HexValue(Peek());
        if (AtEnd() || High < 0)
            ErrorHere("Hexadecimal digits or \"}\" expected");
        ++FPosition;
        const int Low = HexValue(Peek());
        if (Low < 0)
            ErrorHere("Binary data needs an even number of hexadecimal digits");
        ++FPosition;
        Bytes.push_back(static_cast<std::uint8_t>(High << 4 | Low));
    }
    ++FPosition;
    NextToken();
    return Bytes;
}

bool TParser::LineCanBegin(std::size_t Start) const
{
    std::size_t Index = Start;
    const auto At = [this, &Index] { return Index < FText.size() ? FText[Index] : '\0'; };
    while (At() == ' ' || At() == '\t')
        ++Index;
    const std::size_t WordStart = Index;
    if (!IsLetter(At()))
        return false;
    while (IsLetter(At()) || IsDigit(At()) || At() == '.')
        ++Index;
    const std::string_view Word = std::string_view(FText).substr(WordStart, Index - WordStart);
    for (const char* Keyword : {"end", "object", "inherited", "inline"})
        if (SameText(Word, Keyword))
            return true;
    while (At() == ' ' || At() == '\t')
        ++Index;
    return At() == '=';
}

void TParser::GoToLine(std::size_t Start)
{
    FPosition = Start;
    FLineStart = Start;
    NextToken();
}

void TParser::Resynchronise(int AfterLine)
{
    // An error inside a token leaves the position in it, perhaps on a later line than the token's start.
    if (FTokenLine > AfterLine && LineCanBegin(FTokenLineStart)) {
        FLine = FTokenLine;
        return GoToLine(FTokenLineStart);
    }
    while (!AtEnd()) {
        const char Character = FText[FPosition++];
        if (Character != '\n' && !(Character == '\r' && Peek() != '\n'))
            continue;
        ++FLine;
        FLineStart = FPosition;
        if (LineCanBegin(FPosition))
            return GoToLine(FPosition);
    }
    NextToken();
}

} // namespace vcl
