#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "vcl/system/AnsiString.h"
#include "vcl/system/Exception.h"
#include "vcl/system/Types.h"

namespace vcl
{

/// What is wrong with a canvas script. The message begins with the line: "line 3: unknown operation 'x'".
class EScriptError : public Exception
{
public:
    EScriptError(int Line, const AnsiString& Reason);
    ~EScriptError() override;
    const char* ClassName() const noexcept override { return "EScriptError"; }
    /// Counted from 1; 0 when the script as a whole is meant.
    int GetLine() const { return FLine; }

private:
    int FLine;
};

/// A word as it may stand in a message: in quotes, cut when long, without control characters.
AnsiString QuotedWord(std::string_view Word);

/// The words of one line, taken one after the other. Every taker raises EScriptError when the next word is
/// missing or does not fit.
class TScriptLine
{
public:
    TScriptLine(int Number, std::string_view Text);

    int GetNumber() const { return FNumber; }
    bool IsEmpty() const { return FWords.empty(); }
    bool HasMore() const { return FNext < FWords.size(); }
    std::size_t WordsLeft() const { return FWords.size() - FNext; }

    std::string_view TakeWord();
    int TakeInt();
    /// Six hexadecimal digits, RRGGBB.
    std::uint32_t TakeColor();
    std::uint8_t TakeByte();
    TPoint TakePoint();
    TRect TakeRect();
    /// All remaining words as points.
    std::vector<TPoint> TakePoints();
    /// Raises when words are left over.
    void ExpectEnd() const;
    [[noreturn]] void Fail(const AnsiString& Reason) const;

private:
    int FNumber;
    std::vector<std::string_view> FWords;
    std::size_t FNext = 0;
};

} // namespace vcl
