#pragma once

#include <cstdint>

#include "vcl/classes/Extended.h"
#include "vcl/classes/Stream.h"

namespace vcl
{

/// An error in the text of a form, with its place: both count from 1, columns in bytes.
class EFormParserError : public EParserError
{
public:
    EFormParserError(const AnsiString& Reason, int Line, int Column);
    ~EFormParserError() override;

    const AnsiString& GetReason() const { return FReason; }
    int GetLine() const { return FLine; }
    int GetColumn() const { return FColumn; }

private:
    AnsiString FReason;
    int FLine;
    int FColumn;
};

enum class TTokenKind { Symbol, String, WideText, Integer, Float, Special, End };

/// Splits the text of a form into tokens; one token is current.
class TParser
{
public:
    /// Reads all that is left of the stream. A byte order mark is skipped.
    explicit TParser(TStream& Stream);

    TTokenKind GetKind() const { return FKind; }
    int GetLine() const { return FTokenLine; }
    int GetColumn() const { return static_cast<int>(FTokenStart - FTokenLineStart) + 1; }
    /// Bytes before the current token.
    std::size_t GetTokenStart() const { return FTokenStart; }
    bool IsSpecial(char Character) const
    {
        return FKind == TTokenKind::Special && FText[FTokenStart] == Character;
    }
    /// A word, compared without regard to case.
    bool IsSymbol(std::string_view Word) const;

    /// The current token's content: the word, the string without its quotes, the digits.
    const AnsiString& GetString() const { return FString; }
    const WideString& GetWideString() const { return FWideString; }
    std::int64_t GetInteger() const { return FInteger; }
    const TExtended& GetFloat() const { return FFloat; }
    /// The letter after a floating point number in lower case (s, c or d), or 0.
    char GetFloatSuffix() const { return FSuffix; }

    void NextToken();
    /// Raises unless the current token is the character or word, then goes to the next.
    void Expect(char Character);
    void ExpectSymbol(std::string_view Word);
    /// The current word, which the next token follows.
    AnsiString TakeSymbol();
    /// The digits between the current "{" and its "}" as bytes.
    std::vector<std::uint8_t> TakeBinary();
    [[noreturn]] void Error(const AnsiString& Reason) const;
    [[noreturn]] void ErrorExpected(const AnsiString& What) const;

    /// After an error: goes to the next line that can begin a property or an object, or end one. The line of
    /// the current token counts when it lies below AfterLine.
    void Resynchronise(int AfterLine);

private:
    bool AtEnd() const { return FPosition >= FText.size(); }
    char Peek(std::size_t Ahead = 0) const;
    void SkipBlanks();
    void ReadSymbol();
    void ReadString();
    void ReadQuoted();
    void ReadCode();
    void ReadNumber();
    void ReadHexadecimal(bool Negative);
    void AppendUnit(char16_t Unit);
    bool LineCanBegin(std::size_t Start) const;
    void GoToLine(std::size_t Start);
    AnsiString Describe() const;
    [[noreturn]] void ErrorHere(const AnsiString& Reason) const;

    AnsiString FText;
    std::size_t FPosition = 0;
    int FLine = 1;
    std::size_t FLineStart = 0;
    TTokenKind FKind = TTokenKind::End;
    std::size_t FTokenStart = 0;
    int FTokenLine = 1;
    std::size_t FTokenLineStart = 0;
    AnsiString FString;
    WideString FWideString;
    bool FIsWide = false;
    std::int64_t FInteger = 0;
    TExtended FFloat;
    char FSuffix = 0;
};

} // namespace vcl
