#pragma once

#include <string>

#include "vcl/streaming/FormFile.h"

namespace ksform
{

/// Reads a whole file; raises an error of one line that names it.
void ReadWhole(const std::string& FileName, vcl::TMemoryStream& Stream);

/// Writes a whole file: first under another name beside it, so that after a failure nothing is left and an
/// older file stays as it was.
void WriteWhole(const std::string& FileName, const vcl::TMemoryStream& Stream);

/// The image of a form file, ready to be read from its position.
struct TFormImage {
    vcl::TStreamOriginalFormat Format = vcl::TStreamOriginalFormat::sofUnknown;
    vcl::TMemoryStream Image;
    /// For text: where the parts of the image come from.
    std::vector<vcl::TTextPosition> Positions;

    /// "FILE:LINE:COLUMN" in text, "FILE:OFFSET" in binary, for an offset in the image.
    std::string Place(const std::string& FileName, std::int64_t Offset) const;
};

/// One thing wrong with a file.
struct TProblem {
    std::int64_t Order = 0; // by which problems are sorted: a line or an offset
    std::string Text;       // place and reason

    bool operator<(const TProblem& Other) const { return Order < Other.Order; }
};

/// Loads a form file in any format. What is wrong with its syntax or structure goes to Problems; false when
/// nothing is left that could be read.
bool LoadForm(const std::string& FileName, TFormImage& Form, std::vector<TProblem>& Problems);

} // namespace ksform
