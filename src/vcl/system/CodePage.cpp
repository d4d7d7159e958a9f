#include "vcl/system/CodePage.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <iconv.h>
#include <memory>
#include <optional>

#include "vcl/system/Exception.h"

namespace vcl
{

namespace
{

constexpr char32_t Replacement = 0xFFFD;
constexpr char32_t LastCodePoint = 0x10FFFF;

std::atomic<TCodePage> DefaultCodePage = cpUtf8;

/// Windows-1252 from 0x80 to 0x9F; the rest is Latin-1.
constexpr std::array<char16_t, 32> Windows1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

bool IsSurrogate(char32_t CodePoint)
{
    return CodePoint >= 0xD800 && CodePoint <= 0xDFFF;
}

bool IsAscii(std::string_view Text)
{
    return std::all_of(Text.begin(), Text.end(),
                       [](char Byte) { return static_cast<unsigned char>(Byte) < 0x80; });
}

char32_t FromSingleByte(unsigned char Byte, TCodePage CodePage)
{
    return CodePage == cpWindows1252 && Byte >= 0x80 && Byte <= 0x9F ? Windows1252[Byte - 0x80U] : Byte;
}

std::optional<char> ToSingleByte(char32_t CodePoint, TCodePage CodePage)
{
    if (CodePoint < 0x80 || (CodePoint >= 0xA0 && CodePoint <= 0xFF) ||
        (CodePage == cpLatin1 && CodePoint < 0xA0))
        return static_cast<char>(CodePoint);
    if (CodePage == cpWindows1252) {
        const auto* const Found = std::find(Windows1252.begin(), Windows1252.end(), CodePoint);
        if (Found != Windows1252.end())
            return static_cast<char>(0x80 + (Found - Windows1252.begin()));
    }
    return std::nullopt;
}

AnsiString SingleBytesToUtf8(std::string_view Text, TCodePage CodePage)
{
    AnsiString Result;
    Result.reserve(Text.size());
    for (const char Byte : Text)
        AppendUtf8(Result, FromSingleByte(static_cast<unsigned char>(Byte), CodePage));
    return Result;
}

AnsiString Utf8ToSingleBytes(std::string_view Text, TCodePage CodePage)
{
    AnsiString Result;
    for (std::size_t Position = 0; Position < Text.size();)
        Result += ToSingleByte(DecodeUtf8(Text, Position), CodePage).value_or('?');
    return Result;
}

bool IsSingleByte(TCodePage CodePage)
{
    return CodePage == cpWindows1252 || CodePage == cpLatin1;
}

/// The name the system's converter knows a code page by.
AnsiString ConverterName(TCodePage CodePage)
{
    switch (static_cast<unsigned>(CodePage)) {
    case 20866:
        return "KOI8-R";
    case 21866:
        return "KOI8-U";
    case 20127:
        return "US-ASCII";
    case 51932:
        return "EUC-JP";
    case 51949:
        return "EUC-KR";
    case 54936:
        return "GB18030";
    default:
        return CodePage > 28590 && CodePage <= 28606 ? "ISO-8859-" + IntToStr(CodePage - 28590)
                                                     : "CP" + IntToStr(CodePage);
    }
}

/// The system's conversion between two encodings.
class TConverter
{
public:
    TConverter(const AnsiString& To, const AnsiString& From) : FHandle(iconv_open(To.c_str(), From.c_str()))
    {
    }
    TConverter(const TConverter&) = delete;
    TConverter& operator=(const TConverter&) = delete;
    ~TConverter()
    {
        if (IsOpen())
            iconv_close(FHandle);
    }

    bool IsOpen() const { return FHandle != reinterpret_cast<iconv_t>(-1); }

    /// Appends to Result what can be converted and returns how many bytes of Text that was.
    std::size_t Convert(std::string_view Text, AnsiString& Result)
    {
        // The converter's interface is older than const; it does not write to its input.
        char* Input = const_cast<char*>(Text.data());
        std::size_t Left = Text.size();
        std::array<char, 1024> Buffer;
        bool IsMore = true;
        while (IsMore) {
            char* Output = Buffer.data();
            std::size_t Room = Buffer.size();
            const std::size_t Status = iconv(FHandle, &Input, &Left, &Output, &Room);
            IsMore = Status == static_cast<std::size_t>(-1) && errno == E2BIG;
            Result.append(Buffer.data(), Buffer.size() - Room);
        }
        return Text.size() - Left;
    }

private:
    iconv_t FHandle;
};

/// Text of a code page of the system as UTF-8; nothing when it is not valid there.
std::optional<AnsiString> SystemToUtf8(std::string_view Text, TCodePage CodePage)
{
    TConverter Converter("UTF-8", ConverterName(CodePage));
    AnsiString Result;
    if (!Converter.IsOpen() || Converter.Convert(Text, Result) != Text.size())
        return std::nullopt;
    return Result;
}

AnsiString Utf8ToSystem(std::string_view Text, TCodePage CodePage)
{
    TConverter Converter(ConverterName(CodePage), "UTF-8");
    AnsiString Result;
    for (std::size_t Position = 0; Position < Text.size();) {
        if (Converter.IsOpen())
            Position += Converter.Convert(Text.substr(Position), Result);
        if (Position < Text.size()) {
            DecodeUtf8(Text, Position);
            Result += '?';
        }
    }
    return Result;
}

} // namespace

TCodePage GetDefaultCodePage()
{
    return DefaultCodePage;
}

void SetDefaultCodePage(TCodePage CodePage)
{
    if (!IsCodePageSupported(CodePage))
        throw EConvertError("Code page " + IntToStr(CodePage) + " is not known on this system");
    DefaultCodePage = CodePage;
}

bool IsCodePageSupported(TCodePage CodePage)
{
    return CodePage == cpUtf8 || IsSingleByte(CodePage) ||
           TConverter("UTF-8", ConverterName(CodePage)).IsOpen();
}

bool IsValidUtf8(std::string_view Text)
{
    for (std::size_t Position = 0; Position < Text.size();) {
        const std::size_t Start = Position;
        // A replacement character of its own takes three bytes, a broken sequence one.
        if (DecodeUtf8(Text, Position) == Replacement && Position == Start + 1)
            return false;
    }
    return true;
}

bool IsValidText(std::string_view Text, TCodePage CodePage)
{
    if (CodePage == cpUtf8)
        return IsValidUtf8(Text);
    return IsSingleByte(CodePage) || SystemToUtf8(Text, CodePage).has_value();
}

char32_t DecodeUtf8(std::string_view Text, std::size_t& Position)
{
    const auto ByteAt = [&](std::size_t Index) { return static_cast<unsigned char>(Text[Index]); };
    const unsigned char Lead = ByteAt(Position++);
    if (Lead < 0x80)
        return Lead;
    const std::size_t Following = Lead >= 0xF0 ? 3 : Lead >= 0xE0 ? 2 : 1;
    if (Lead < 0xC2 || Lead > 0xF4 || Text.size() - Position < Following)
        return Replacement;
    char32_t CodePoint = Lead & (0x3FU >> Following);
    for (std::size_t Index = 0; Index < Following; ++Index) {
        const unsigned char Next = ByteAt(Position + Index);
        if ((Next & 0xC0U) != 0x80)
            return Replacement;
        CodePoint = CodePoint << 6U | (Next & 0x3FU);
    }
    constexpr std::array<char32_t, 4> Least = {0, 0x80, 0x800, 0x10000};
    if (CodePoint < Least[Following] || CodePoint > LastCodePoint || IsSurrogate(CodePoint))
        return Replacement;
    Position += Following;
    return CodePoint;
}

void AppendUtf8(AnsiString& Text, char32_t CodePoint)
{
    if (CodePoint > LastCodePoint || IsSurrogate(CodePoint))
        CodePoint = Replacement;
    const auto Following = [&](unsigned Shift) {
        Text += static_cast<char>(0x80U | (CodePoint >> Shift & 0x3FU));
    };
    if (CodePoint < 0x80)
        Text += static_cast<char>(CodePoint);
    else if (CodePoint < 0x800)
        Text += static_cast<char>(0xC0U | CodePoint >> 6U);
    else if (CodePoint < 0x10000)
        Text += static_cast<char>(0xE0U | CodePoint >> 12U);
    else
        Text += static_cast<char>(0xF0U | CodePoint >> 18U);
    if (CodePoint >= 0x10000)
        Following(12);
    if (CodePoint >= 0x800)
        Following(6);
    if (CodePoint >= 0x80)
        Following(0);
}

WideString Utf8ToWide(std::string_view Text)
{
    WideString Result;
    Result.reserve(Text.size());
    for (std::size_t Position = 0; Position < Text.size();) {
        const char32_t CodePoint = DecodeUtf8(Text, Position);
        if (CodePoint < 0x10000)
            Result += static_cast<char16_t>(CodePoint);
        else {
            Result += static_cast<char16_t>(0xD7C0 + (CodePoint >> 10U));
            Result += static_cast<char16_t>(0xDC00 + (CodePoint & 0x3FFU));
        }
    }
    return Result;
}

AnsiString WideToUtf8(std::u16string_view Text)
{
    AnsiString Result;
    Result.reserve(Text.size());
    for (std::size_t Index = 0; Index < Text.size(); ++Index) {
        const char32_t Unit = Text[Index];
        const char32_t Next = Index + 1 < Text.size() ? Text[Index + 1] : U'\0';
        if (Unit >= 0xD800 && Unit <= 0xDBFF && Next >= 0xDC00 && Next <= 0xDFFF) {
            AppendUtf8(Result, 0x10000 + ((Unit - 0xD800) << 10U) + (Next - 0xDC00));
            ++Index;
        } else
            AppendUtf8(Result, Unit);
    }
    return Result;
}

AnsiString AnsiToUtf8(std::string_view Text, TCodePage CodePage)
{
    if (IsSingleByte(CodePage))
        return SingleBytesToUtf8(Text, CodePage);
    if (CodePage == cpUtf8) {
        if (IsValidUtf8(Text))
            return AnsiString(Text);
    } else if (const std::optional<AnsiString> Converted = SystemToUtf8(Text, CodePage))
        return *Converted;
    return SingleBytesToUtf8(Text, cpWindows1252);
}

WideString AnsiToWide(std::string_view Text, TCodePage CodePage)
{
    return Utf8ToWide(AnsiToUtf8(Text, CodePage));
}

AnsiString Utf8ToAnsi(std::string_view Text, TCodePage CodePage)
{
    if (IsAscii(Text))
        return AnsiString(Text);
    if (IsSingleByte(CodePage))
        return Utf8ToSingleBytes(Text, CodePage);
    return CodePage == cpUtf8 ? AnsiString(Text) : Utf8ToSystem(Text, CodePage);
}

AnsiString WideToAnsi(std::u16string_view Text, TCodePage CodePage)
{
    return Utf8ToAnsi(WideToUtf8(Text), CodePage);
}

} // namespace vcl
