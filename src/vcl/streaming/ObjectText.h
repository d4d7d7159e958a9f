#pragma once

#include <functional>
#include <vector>

#include "vcl/streaming/Parser.h"

namespace vcl
{

/// Where in the text a place in the binary image comes from.
struct TTextPosition {
    std::int64_t Offset = 0; // in the image
    int Line = 0;
    int Column = 0;
};

/// What a caller wants to know of, or decide about, a conversion from text.
struct TObjectTextOptions {
    /// Returning true goes on after the error: what it spoilt is left out. Without it the error is raised.
    std::function<bool(const EFormParserError&)> OnError;
    /// Filled, when given, with the places of objects and properties in the order of the image.
    std::vector<TTextPosition>* Positions = nullptr;
};

/// Converts the form text at Input's position to a binary image. Errors raise EParserError (as
/// EFormParserError); Output is then untouched. Input's position ends behind the form's last word.
void ObjectTextToBinary(TStream& Input, TStream& Output, const TObjectTextOptions& Options = {});

/// Converts the binary image at Input's position to text: lines end in CR LF, long strings are broken,
/// numbers keep every bit. Damaged images raise EReadError.
void ObjectBinaryToText(TStream& Input, TStream& Output);

/// The same with a resource header before the image. The name in the header is the root's class.
void ObjectTextToResource(TStream& Input, TStream& Output);
void ObjectResourceToText(TStream& Input, TStream& Output);

/// Writes a resource header for an image of Size bytes; reads one and leaves the position at the image, whose
/// size it gives (EInvalidImage when it is none).
void WriteResourceHeader(TStream& Stream, const AnsiString& ResourceName, std::int64_t Size);
std::int64_t ReadResourceHeader(TStream& Stream);

} // namespace vcl
