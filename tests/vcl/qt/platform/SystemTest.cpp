#include <gtest/gtest.h>

#include <QLocale>
#include <QPalette>

#include <cmath>

#include "vcl/platform/qt/QtSystem.h"
#include "vcl/qt/platform/QtTest.h"
#include "vcl/system/FormatDateTime.h"

namespace vcl
{

namespace
{

QPalette DarkPalette()
{
    QPalette Palette(QColor(0x35, 0x35, 0x35), QColor(0x2B, 0x2B, 0x2B));
    Palette.setColor(QPalette::WindowText, Qt::white);
    Palette.setColor(QPalette::Text, Qt::white);
    Palette.setColor(QPalette::Base, QColor(0x24, 0x24, 0x24));
    return Palette;
}

QPalette LightPalette()
{
    QPalette Palette(QColor(0xEF, 0xEF, 0xEF));
    Palette.setColor(QPalette::Base, Qt::white);
    Palette.setColor(QPalette::Text, Qt::black);
    Palette.setColor(QPalette::WindowText, Qt::black);
    return Palette;
}

double Luminance(TColor Color)
{
    const auto Channel = [Color](int Shift) {
        const double Value = ((static_cast<int>(Color) >> Shift) & 0xFF) / 255.0;
        return Value <= 0.03928 ? Value / 12.92 : std::pow((Value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * Channel(0) + 0.7152 * Channel(8) + 0.0722 * Channel(16);
}

double Contrast(TColor Left, TColor Right)
{
    const double A = Luminance(Left);
    const double B = Luminance(Right);
    return (std::max(A, B) + 0.05) / (std::min(A, B) + 0.05);
}

struct TColors {
    explicit TColors(const QPalette& Palette) : Table(qt::SystemColorsOf(Palette)) {}
    TColor operator[](TColor Color) const { return Table[static_cast<std::size_t>(SystemColorIndex(Color))]; }
    std::array<TColor, SystemColorCount> Table;
};

} // namespace

TEST(QtSystemColors, WindowsAndTextTakeThePalettesRoles)
{
    QPalette Palette = LightPalette();
    Palette.setColor(QPalette::Base, QColor(1, 2, 3));
    Palette.setColor(QPalette::Text, QColor(4, 5, 6));
    Palette.setColor(QPalette::Highlight, QColor(7, 8, 9));
    const TColors Colors(Palette);
    EXPECT_EQ(Colors[clWindow], 0x030201);
    EXPECT_EQ(Colors[clWindowText], 0x060504);
    EXPECT_EQ(Colors[clHighlight], 0x090807);
    EXPECT_EQ(Colors[clBtnFace], 0xEFEFEF);
}

TEST(QtSystemColors, ThinLinesAndTextStandOutOnLightAndDarkPalettes)
{
    for (const QPalette& Palette : {LightPalette(), DarkPalette()}) {
        const TColors Colors(Palette);
        for (const TColor Ground : {clWindow, clBtnFace}) {
            EXPECT_GE(Contrast(Colors[clWindowText], Colors[Ground]), 7) << int(Ground);
            EXPECT_GE(Contrast(Colors[clBtnShadow], Colors[Ground]), 1.7) << int(Ground);
        }
        EXPECT_GT(Luminance(Colors[clBtnHighlight]), Luminance(Colors[clBtnFace]));
        EXPECT_GT(Luminance(Colors[cl3DLight]), Luminance(Colors[clBtnFace]));
        EXPECT_LT(Luminance(Colors[cl3DDkShadow]), Luminance(Colors[clBtnFace]));
    }
}

TEST(QtSystem, ColorsFollowThePaletteWhenTold)
{
    const QPalette Before = QApplication::palette();
    qt::TSystem System;
    QPalette Changed = Before;
    Changed.setColor(QPalette::Base, QColor(0x11, 0x22, 0x33));
    QApplication::setPalette(Changed);
    System.PaletteChanged();
    EXPECT_EQ(System.SystemColor(SystemColorIndex(clWindow)), 0x332211);
    QApplication::setPalette(Before);
}

TEST(QtSystem, TheClassicTablesCanBeUsedInstead)
{
    qt::TSystem System;
    System.UseClassic(true);
    EXPECT_EQ(System.SystemColor(SystemColorIndex(clBtnFace)), 0xC0C0C0);
    EXPECT_EQ(System.Metric(TSystemMetric::VScrollBarWidth), 16);
    EXPECT_EQ(System.DefaultFontName(), "Arial");
    System.UseClassic(false);
    EXPECT_NE(System.DefaultFontHeight(), 0);
}

TEST(QtSystem, AnUnknownColorIsBlack)
{
    qt::TSystem System;
    EXPECT_EQ(System.SystemColor(-1), clBlack);
    EXPECT_EQ(System.SystemColor(SystemColorCount), clBlack);
}

class QtLocaleFormats : public ::testing::Test
{
protected:
    void TearDown() override
    {
        QLocale::setDefault(FBefore);
        DefaultFormatSettings() = FSettings;
    }

    const TFormatSettings& Apply(QLocale::Language Language, QLocale::Country Country)
    {
        QLocale::setDefault(QLocale(Language, Country));
        qt::ApplyLocale();
        return DefaultFormatSettings();
    }

    /// 5 March 2003, a Wednesday, 14:07:09.
    const TDateTime Moment = 37685 + (14 * 3600 + 7 * 60 + 9) / 86400.0;

private:
    QLocale FBefore;
    TFormatSettings FSettings = DefaultFormatSettings();
};

TEST_F(QtLocaleFormats, GermanDatesUseDotsAndGermanNames)
{
    const TFormatSettings& Settings = Apply(QLocale::German, QLocale::Germany);
    EXPECT_EQ(Settings.DateSeparator, ".");
    EXPECT_EQ(Settings.LongDayNames[0], "Sonntag");
    EXPECT_EQ(Settings.LongMonthNames[2], "M\xC3\xA4rz");
    EXPECT_EQ(FormatDateTime("ddddd", Moment), "05.03.03");
    EXPECT_EQ(FormatDateTime("t", Moment), "14:07");
}

TEST_F(QtLocaleFormats, AmericanTimesHaveTheHalfOfTheDay)
{
    const TFormatSettings& Settings = Apply(QLocale::English, QLocale::UnitedStates);
    EXPECT_EQ(Settings.DateSeparator, "/");
    EXPECT_EQ(Settings.ShortDayNames[6], "Sat");
    EXPECT_EQ(FormatDateTime("ddddd", Moment), "3/5/03");
    EXPECT_EQ(FormatDateTime("dddddd", Moment), "Wednesday, March 5, 2003");
    EXPECT_EQ(FormatDateTime("t", Moment).substr(0, 4), "2:07");
    EXPECT_EQ(Settings.TimePMString, "PM");
}

TEST_F(QtLocaleFormats, QuotedWordsOfALocaleStayWords)
{
    Apply(QLocale::Spanish, QLocale::Spain);
    EXPECT_EQ(FormatDateTime("dddddd", Moment), "mi\xC3\xA9rcoles, 5 de marzo de 2003");
}

} // namespace vcl
