#include "vcl/system/FormatDateTime.h"

#include <cstddef>

#include "vcl/system/DateTime.h"

namespace vcl
{

namespace
{

char UpperLetter(char Character)
{
    return Character >= 'a' && Character <= 'z' ? static_cast<char>(Character - 'a' + 'A') : Character;
}

bool IsLetter(char Character)
{
    return UpperLetter(Character) >= 'A' && UpperLetter(Character) <= 'Z';
}

bool IsQuote(char Character)
{
    return Character == '"' || Character == '\'';
}

/// Position after the quoted text that starts at Start; the end when the closing quote is missing.
std::size_t EndOfQuoted(std::string_view Format, std::size_t Start)
{
    const std::size_t Close = Format.find(Format[Start], Start + 1);
    return Close == std::string_view::npos ? Format.size() : Close + 1;
}

/// Length of the am/pm mark at Position, or 0: "am/pm", "ampm", "a/p" in any case.
std::size_t AmPmMarkAt(std::string_view Format, std::size_t Position)
{
    for (const std::string_view Mark : {"am/pm", "ampm", "a/p"})
        if (SameText(Format.substr(Position, Mark.size()), Mark))
            return Mark.size();
    return 0;
}

/// True when an am/pm mark stands between Position and the next hour.
bool HasAmPmAhead(std::string_view Format, std::size_t Position)
{
    while (Position < Format.size()) {
        if (IsQuote(Format[Position])) {
            Position = EndOfQuoted(Format, Position);
            continue;
        }
        if (UpperLetter(Format[Position]) == 'H')
            return false;
        if (AmPmMarkAt(Format, Position) != 0)
            return true;
        ++Position;
    }
    return false;
}

/// Writes one value; the settings' own formats are written by the same object, one level deeper.
class TDateTimeWriter
{
public:
    TDateTimeWriter(TDateTime Value, const TFormatSettings& Settings)
        : FSettings(Settings), FDate(DecodeDate(Value)), FTime(DecodeTime(Value)),
          FDayOfWeek(DayOfWeek(Value))
    {
    }

    const AnsiString& GetText() const { return FText; }

    void Write(std::string_view Format)
    {
        // A settings format that names itself ("c" as the short date) would never end.
        constexpr int DeepestLevel = 2;
        if (FLevel == DeepestLevel)
            return;
        ++FLevel;
        char LastLetter = ' ';
        for (std::size_t Position = 0; Position < Format.size();)
            Position = WriteElement(Format, Position, LastLetter);
        --FLevel;
    }

private:
    /// Writes what stands at Position and returns where the next element begins.
    std::size_t WriteElement(std::string_view Format, std::size_t Position, char& LastLetter)
    {
        const char Character = Format[Position];
        if (IsQuote(Character))
            return WriteQuoted(Format, Position);
        if (!IsLetter(Character)) {
            WriteOther(Character);
            return Position + 1;
        }
        char Letter = UpperLetter(Character);
        if (Letter == 'M' && LastLetter == 'H')
            Letter = 'N';
        LastLetter = Letter;
        if (Letter == 'A')
            return WriteAmPm(Format, Position);
        std::size_t End = Position;
        while (End < Format.size() && UpperLetter(Format[End]) == UpperLetter(Character))
            ++End;
        const int Length = static_cast<int>(End - Position);
        if (!WriteDatePart(Letter, Length) && !WriteTimePart(Letter, Length, Format, End))
            FText += Format.substr(Position, End - Position);
        return End;
    }

    std::size_t WriteQuoted(std::string_view Format, std::size_t Position)
    {
        const std::size_t End = EndOfQuoted(Format, Position);
        const bool IsClosed = End - Position >= 2 && Format[End - 1] == Format[Position];
        FText += Format.substr(Position + 1, End - Position - (IsClosed ? 2 : 1));
        return End;
    }

    void WriteOther(char Character)
    {
        if (Character == '/')
            FText += FSettings.DateSeparator;
        else if (Character == ':')
            FText += FSettings.TimeSeparator;
        else
            FText += Character;
    }

    std::size_t WriteAmPm(std::string_view Format, std::size_t Position)
    {
        const std::size_t Length = AmPmMarkAt(Format, Position);
        const bool IsMorning = FTime.Hour < 12;
        if (Length == 0)
            FText += Format[Position];
        else if (Length == 4)
            FText += IsMorning ? FSettings.TimeAMString : FSettings.TimePMString;
        else {
            const std::size_t Half = Length / 2;
            FText += Format.substr(IsMorning ? Position : Position + Half + 1, Half);
        }
        return Position + (Length == 0 ? 1 : Length);
    }

    bool WriteDatePart(char Letter, int Length)
    {
        switch (Letter) {
        case 'Y':
            Length <= 2 ? WriteNumber(FDate.Year % 100, 2) : WriteNumber(FDate.Year, 4);
            return true;
        case 'M':
            WriteMonth(Length);
            return true;
        case 'D':
            WriteDay(Length);
            return true;
        case 'C':
            WriteGeneral();
            return true;
        default:
            return false;
        }
    }

    bool WriteTimePart(char Letter, int Length, std::string_view Format, std::size_t End)
    {
        switch (Letter) {
        case 'H':
            WriteNumber(HasAmPmAhead(Format, End) ? (FTime.Hour + 11) % 12 + 1 : FTime.Hour,
                        Digits(Length, 2));
            return true;
        case 'N':
            WriteNumber(FTime.Minute, Digits(Length, 2));
            return true;
        case 'S':
            WriteNumber(FTime.Second, Digits(Length, 2));
            return true;
        case 'Z':
            WriteNumber(FTime.Millisecond, Digits(Length, 3));
            return true;
        case 'T':
            Write(Length == 1 ? FSettings.ShortTimeFormat : FSettings.LongTimeFormat);
            return true;
        default:
            return false;
        }
    }

    void WriteMonth(int Length)
    {
        if (Length <= 2)
            WriteNumber(FDate.Month, Length);
        else if (FDate.Month >= 1) {
            const auto& Names = Length == 3 ? FSettings.ShortMonthNames : FSettings.LongMonthNames;
            FText += Names[static_cast<std::size_t>(FDate.Month - 1)];
        }
    }

    void WriteDay(int Length)
    {
        if (Length <= 2)
            WriteNumber(FDate.Day, Length);
        else if (Length <= 4) {
            const auto& Names = Length == 3 ? FSettings.ShortDayNames : FSettings.LongDayNames;
            FText += Names[static_cast<std::size_t>(FDayOfWeek - 1)];
        } else
            Write(Length == 5 ? FSettings.ShortDateFormat : FSettings.LongDateFormat);
    }

    void WriteGeneral()
    {
        Write(FSettings.ShortDateFormat);
        if (FTime == TTimeParts{})
            return;
        FText += ' ';
        Write(FSettings.LongTimeFormat);
    }

    static int Digits(int Length, int Most) { return Length < Most ? Length : Most; }

    void WriteNumber(int Number, int LeastDigits)
    {
        const AnsiString Text = IntToStr(Number);
        if (Text.size() < static_cast<std::size_t>(LeastDigits))
            FText.append(static_cast<std::size_t>(LeastDigits) - Text.size(), '0');
        FText += Text;
    }

    const TFormatSettings& FSettings;
    const TDateParts FDate;
    const TTimeParts FTime;
    const int FDayOfWeek;
    AnsiString FText;
    int FLevel = 0;
};

} // namespace

TFormatSettings& DefaultFormatSettings()
{
    static TFormatSettings Settings;
    return Settings;
}

AnsiString FormatDateTime(std::string_view Format, TDateTime Value, const TFormatSettings& Settings)
{
    TDateTimeWriter Writer(Value, Settings);
    Writer.Write(Format.empty() ? "c" : Format);
    return Writer.GetText();
}

AnsiString DateToStr(TDateTime Value)
{
    return FormatDateTime("ddddd", Value);
}

AnsiString TimeToStr(TDateTime Value)
{
    return FormatDateTime("tt", Value);
}

} // namespace vcl
