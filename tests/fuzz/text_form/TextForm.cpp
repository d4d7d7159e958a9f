// Any bytes convert to a form's image, or raise an error of the library; the image's own text gives it again.

#include <cstdlib>

#include "SampleComponents.h"
#include "vcl/streaming/FormFile.h"

using namespace vcl;

namespace
{

void Convert(TMemoryStream& Text)
{
    TMemoryStream Image;
    ObjectTextToBinary(Text, Image);
    Image.SetPosition(0);
    TMemoryStream Usual;
    ObjectBinaryToText(Image, Usual);
    Usual.SetPosition(0);
    TMemoryStream Again;
    ObjectTextToBinary(Usual, Again);
    if (Again.GetBytes() != Image.GetBytes())
        std::abort();
    Image.SetPosition(0);
    delete ReadComponent(Image);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size)
{
    static const bool IsRegistered = (tests::RegisterSampleClasses(), true);
    static_cast<void>(IsRegistered);
    TMemoryStream Text;
    Text.WriteBuffer(Data, static_cast<std::int64_t>(Size));
    try {
        Text.SetPosition(0);
        Convert(Text);
    } catch (const Exception&) {
        // An answer, too.
    }
    try {
        // Going on after errors always comes to an end.
        Text.SetPosition(0);
        TMemoryStream Image;
        TObjectTextOptions Options;
        Options.OnError = [](const EFormParserError&) { return true; };
        ObjectTextToBinary(Text, Image, Options);
    } catch (const Exception&) {
    }
    return 0;
}
