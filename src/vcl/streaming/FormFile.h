#pragma once

#include "vcl/classes/Component.h"
#include "vcl/streaming/ObjectText.h"

namespace vcl
{

class TReader;

enum class TStreamOriginalFormat { sofUnknown, sofBinary, sofText, sofResource };

/// What the bytes at the stream's position look like; the position does not move. Empty streams and those
/// that begin with none of the signatures are unknown.
TStreamOriginalFormat TestStreamFormat(TStream& Stream);

/// Moves the stream to the binary image at its position: past a resource header, or with text into Converted,
/// which then holds the image. Answers the stream to read the image from. Raises EReadError for unknown data.
TStream& OpenFormImage(TStream& Stream, TMemoryStream& Converted, const TObjectTextOptions& Options = {});

/// Reads a form in any of the three formats into Root or, with null, into a new instance that the caller
/// owns. Prepare may set the reader's events.
TComponent* ReadForm(TStream& Stream, TComponent* Root, const std::function<void(TReader&)>& Prepare = {});
/// The same from a file; errors name it.
TComponent* ReadFormFile(const AnsiString& FileName, TComponent* Root,
                         const std::function<void(TReader&)>& Prepare = {});

/// One component with its children as a binary image.
TComponent* ReadComponent(TStream& Stream, TComponent* Instance = nullptr);
void WriteComponent(TStream& Stream, TComponent* Instance, TComponent* Ancestor = nullptr);

} // namespace vcl
