// Any bytes read as a form, or raise an error of the library; what was read can be written and read again.

#include <cstdlib>

#include "SampleComponents.h"
#include "vcl/streaming/FormFile.h"
#include "vcl/streaming/Reader.h"

using namespace vcl;

namespace
{

void Fill(TMemoryStream& Stream, const void* Bytes, std::size_t Size)
{
    Stream.WriteBuffer(Bytes, static_cast<std::int64_t>(Size));
    Stream.SetPosition(0);
}

/// Goes on after every error that can be gone on after.
std::unique_ptr<TComponent> ReadTolerantly(TStream& Stream)
{
    TReader Reader(Stream);
    Reader.OnError = [](TReader&, const Exception&, bool& Handled) { Handled = true; };
    return std::unique_ptr<TComponent>(Reader.ReadRootComponent());
}

void Read(const std::uint8_t* Data, std::size_t Size)
{
    TMemoryStream Input;
    Fill(Input, Data, Size);
    const std::unique_ptr<TComponent> Root = ReadTolerantly(Input);
    TMemoryStream Output;
    WriteComponent(Output, Root.get());
    Output.SetPosition(0);
    const std::unique_ptr<TComponent> Again = ReadTolerantly(Output);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size)
{
    static const bool IsRegistered = (tests::RegisterSampleClasses(), true);
    static_cast<void>(IsRegistered);
    try {
        Read(Data, Size);
    } catch (const Exception&) {
        // An answer, too.
    }
    try {
        TMemoryStream Input;
        TMemoryStream Text;
        Fill(Input, Data, Size);
        ObjectBinaryToText(Input, Text);
    } catch (const Exception&) {
    }
    try {
        TMemoryStream Input;
        Fill(Input, Data, Size);
        delete ReadForm(Input, nullptr);
    } catch (const Exception&) {
    }
    return 0;
}
