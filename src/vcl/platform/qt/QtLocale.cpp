#include <QLocale>

#include "vcl/platform/qt/QtConvert.h"
#include "vcl/platform/qt/QtSystem.h"
#include "vcl/system/FormatDateTime.h"

namespace vcl::qt
{

namespace
{

struct TLetters {
    const char* Theirs;
    const char* Ours;
};

/// Longer letters first, so that "MMMM" is not taken for four times "M".
constexpr TLetters Translations[] = {
    {"dddd", "dddd"}, {"ddd", "ddd"}, {"dd", "dd"},     {"d", "d"},     {"MMMM", "mmmm"}, {"MMM", "mmm"},
    {"MM", "mm"},     {"M", "m"},     {"yyyy", "yyyy"}, {"yy", "yy"},   {"HH", "hh"},     {"hh", "hh"},
    {"H", "h"},       {"h", "h"},     {"mm", "nn"},     {"m", "n"},     {"ss", "ss"},     {"s", "s"},
    {"zzz", "zzz"},   {"z", "z"},     {"AP", "ampm"},   {"ap", "ampm"}, {"A", "ampm"},    {"a", "ampm"},
    {"tttt", ""},     {"ttt", ""},    {"tt", ""},       {"t", ""},
};

/// A format in the locale's letters as one in ours; separators that ours has a letter for become it.
AnsiString TranslateFormat(const QString& Format)
{
    AnsiString Result;
    for (qsizetype Position = 0; Position < Format.size();) {
        const QStringView Rest = QStringView(Format).mid(Position);
        if (Rest.startsWith(QChar('\''))) {
            const qsizetype End = Rest.indexOf(QChar('\''), 1);
            const qsizetype Length = End < 0 ? Rest.size() : End + 1;
            // Two quotes are a quote itself.
            Result += Length == 2 ? AnsiString("\"'\"") : FromQt(Rest.left(Length).toString());
            Position += Length;
            continue;
        }
        const TLetters* Found = nullptr;
        for (const TLetters& Letters : Translations) {
            if (!Found && Rest.startsWith(QLatin1String(Letters.Theirs)))
                Found = &Letters;
        }
        Result += Found ? AnsiString(Found->Ours) : FromQt(QString(Rest.front()));
        Position += Found ? static_cast<qsizetype>(std::char_traits<char>::length(Found->Theirs)) : 1;
    }
    while (!Result.empty() && Result.back() == ' ')
        Result.pop_back();
    return Result;
}

/// The first character of Format that is neither a letter nor a blank nor quoted; Otherwise when there is
/// none.
AnsiString SeparatorOf(const QString& Format, const char* Otherwise)
{
    for (const QChar Character : Format) {
        if (Character == QChar('\''))
            break;
        if (!Character.isLetter() && !Character.isSpace())
            return FromQt(QString(Character));
    }
    return Otherwise;
}

void ReplaceAll(AnsiString& Text, const AnsiString& From, char To)
{
    for (std::size_t Found = Text.find(From); Found != AnsiString::npos; Found = Text.find(From, Found + 1))
        Text.replace(Found, From.size(), 1, To);
}

} // namespace

void ApplyLocale()
{
    const QLocale Locale;
    TFormatSettings& Settings = DefaultFormatSettings();
    const QString ShortDate = Locale.dateFormat(QLocale::ShortFormat);
    const QString ShortTime = Locale.timeFormat(QLocale::ShortFormat);
    Settings.DateSeparator = SeparatorOf(ShortDate, "/");
    Settings.TimeSeparator = SeparatorOf(ShortTime, ":");
    Settings.ShortDateFormat = TranslateFormat(ShortDate);
    Settings.LongDateFormat = TranslateFormat(Locale.dateFormat(QLocale::LongFormat));
    Settings.ShortTimeFormat = TranslateFormat(ShortTime);
    Settings.LongTimeFormat = TranslateFormat(Locale.timeFormat(QLocale::LongFormat));
    ReplaceAll(Settings.ShortDateFormat, Settings.DateSeparator, '/');
    ReplaceAll(Settings.ShortTimeFormat, Settings.TimeSeparator, ':');
    ReplaceAll(Settings.LongTimeFormat, Settings.TimeSeparator, ':');
    Settings.TimeAMString = FromQt(Locale.amText());
    Settings.TimePMString = FromQt(Locale.pmText());
    for (int Month = 1; Month <= 12; ++Month) {
        const auto Index = static_cast<std::size_t>(Month - 1);
        Settings.ShortMonthNames[Index] = FromQt(Locale.standaloneMonthName(Month, QLocale::ShortFormat));
        Settings.LongMonthNames[Index] = FromQt(Locale.standaloneMonthName(Month, QLocale::LongFormat));
    }
    // The locale counts Monday as 1 and Sunday as 7; our names begin with Sunday.
    for (int Day = 1; Day <= 7; ++Day) {
        const auto Index = static_cast<std::size_t>(Day % 7);
        Settings.ShortDayNames[Index] = FromQt(Locale.dayName(Day, QLocale::ShortFormat));
        Settings.LongDayNames[Index] = FromQt(Locale.dayName(Day, QLocale::LongFormat));
    }
}

} // namespace vcl::qt
