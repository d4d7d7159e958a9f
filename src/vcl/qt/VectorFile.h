#pragma once

#include <functional>

#include "vcl/controls/WinControl.h"

class QPrinter;

namespace vcl
{

/// Draws on a canvas whose 0, 0 is the page's top left corner. 96 units make an inch.
using TDrawing = std::function<void(TCanvas&)>;

// Each writes what Draw draws into a file. EFCreateError names the file and the reason when it cannot be
// written; then, and when Draw raises, a file of that name is left as it was. EInvalidOperation for an empty
// page.

/// A document of one page; text stays text.
void SavePdf(const AnsiString& FileName, TSize Page, const TDrawing& Draw);
void SaveSvg(const AnsiString& FileName, TSize Page, const TDrawing& Draw);
/// The same drawing as pixels on white, at Scale device pixels a unit.
void SavePng(const AnsiString& FileName, TSize Page, const TDrawing& Draw, double Scale = 1.0);

/// What Print prints.
struct TPrintJob {
    struct TPages {
        TSize Size;
        int Count = 0;
    };

    AnsiString Title;
    /// The size of the pages to be drawn, in units, and their number, for paper of a size in units. Pages
    /// larger than the paper are made smaller; smaller ones are centred.
    std::function<TPages(TSize Paper)> Arrange;
    /// Page counts from 0.
    std::function<void(TCanvas& Canvas, TSize Size, int Page)> DrawPage;
};

/// Asks for a printer over Parent (null: over the program) and prints. False when the dialog was cancelled.
/// EInvalidOperation when the printer does not begin.
bool Print(TWinControl* Parent, const TPrintJob& Job);

/// Prints the pages that the printer's range asks for, without asking.
void PrintPages(QPrinter& Printer, const TPrintJob& Job);

} // namespace vcl
