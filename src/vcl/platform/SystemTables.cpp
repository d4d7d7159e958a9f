#include "vcl/platform/System.h"

namespace vcl
{

namespace
{

constexpr TColor Rgb(int Red, int Green, int Blue)
{
    return TColor(Red | Green << 8 | Blue << 16);
}

} // namespace

const std::array<TColor, SystemColorCount>& ClassicSystemColors()
{
    static const std::array<TColor, SystemColorCount> Colors = {
        Rgb(0xC8, 0xC8, 0xC8), // clScrollBar
        Rgb(0x3A, 0x6E, 0xA5), // clBackground
        Rgb(0x0A, 0x24, 0x6A), // clActiveCaption
        Rgb(0x80, 0x80, 0x80), // clInactiveCaption
        Rgb(0xC0, 0xC0, 0xC0), // clMenu
        Rgb(0xFF, 0xFF, 0xFF), // clWindow
        Rgb(0x00, 0x00, 0x00), // clWindowFrame
        Rgb(0x00, 0x00, 0x00), // clMenuText
        Rgb(0x00, 0x00, 0x00), // clWindowText
        Rgb(0xFF, 0xFF, 0xFF), // clCaptionText
        Rgb(0xC0, 0xC0, 0xC0), // clActiveBorder
        Rgb(0xC0, 0xC0, 0xC0), // clInactiveBorder
        Rgb(0x80, 0x80, 0x80), // clAppWorkSpace
        Rgb(0x00, 0x00, 0x80), // clHighlight
        Rgb(0xFF, 0xFF, 0xFF), // clHighlightText
        Rgb(0xC0, 0xC0, 0xC0), // clBtnFace
        Rgb(0x80, 0x80, 0x80), // clBtnShadow
        Rgb(0x80, 0x80, 0x80), // clGrayText
        Rgb(0x00, 0x00, 0x00), // clBtnText
        Rgb(0xC0, 0xC0, 0xC0), // clInactiveCaptionText
        Rgb(0xFF, 0xFF, 0xFF), // clBtnHighlight
        Rgb(0x00, 0x00, 0x00), // cl3DDkShadow
        Rgb(0xDF, 0xDF, 0xDF), // cl3DLight
        Rgb(0x00, 0x00, 0x00), // clInfoText
        Rgb(0xFF, 0xFF, 0xE1), // clInfoBk
    };
    return Colors;
}

TColor TClassicSystem::SystemColor(int Index)
{
    return Index >= 0 && Index < SystemColorCount ? ClassicSystemColors()[static_cast<std::size_t>(Index)]
                                                  : clBlack;
}

int TClassicSystem::Metric(TSystemMetric Metric)
{
    switch (Metric) {
    case TSystemMetric::VScrollBarWidth:
    case TSystemMetric::HScrollBarHeight:
        return 16;
    case TSystemMetric::BorderWidth:
        return 1;
    case TSystemMetric::EdgeWidth:
        return 2;
    case TSystemMetric::DragThreshold:
        return 4;
    case TSystemMetric::DoubleClickTime:
        return 500;
    case TSystemMetric::CaretBlinkTime:
        return 530;
    case TSystemMetric::WheelScrollLines:
        return 3;
    case TSystemMetric::ScreenWidth:
        return 1024;
    case TSystemMetric::ScreenHeight:
        return 768;
    }
    return 0;
}

} // namespace vcl
