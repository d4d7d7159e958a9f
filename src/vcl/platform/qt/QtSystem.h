#pragma once

#include <QPalette>

#include <array>
#include <mutex>

#include "vcl/platform/System.h"

namespace vcl::qt
{

/// The system colours that go with a palette, in index order. Edges are derived from the window's colour and
/// the text on it, so they show on light and dark palettes alike.
std::array<TColor, SystemColorCount> SystemColorsOf(const QPalette& Palette);

/// Colours, metrics and fonts of the running application, followed live. Colours may be asked for by any
/// thread.
class TSystem final : public ISystem
{
public:
    TSystem();

    TColor SystemColor(int Index) override;
    int Metric(TSystemMetric Metric) override;
    AnsiString DefaultFontName() override;
    int DefaultFontHeight() override;

    /// Answers from the fixed classic tables instead, for tests and pictures that must not depend on the
    /// machine.
    void UseClassic(bool Classic) { FUseClassic = Classic; }
    bool UsesClassic() const { return FUseClassic; }

    /// Reads the palette anew. The platform calls it when the palette has changed.
    void PaletteChanged();

private:
    TClassicSystem FClassic;
    bool FUseClassic = false;
    std::mutex FMutex;
    std::array<TColor, SystemColorCount> FColors;
};

/// Month and day names, separators and formats of the user's locale into the settings used where a program
/// gives none.
void ApplyLocale();

} // namespace vcl::qt
