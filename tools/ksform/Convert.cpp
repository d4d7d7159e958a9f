#include "ksform/Files.h"
#include "ksform/Verbs.h"
#include "vcl/streaming/Reader.h"

namespace ksform
{

using namespace vcl;

namespace
{

AnsiString RootClassName(TMemoryStream& Image)
{
    // The name stands behind the signature and an object prefix.
    const std::int64_t Start = Image.GetPosition();
    Image.SetPosition(Start + 4);
    TReader Reader(Image);
    if ((static_cast<unsigned>(Reader.NextValue()) & 0xF0u) == 0xF0u &&
        (static_cast<unsigned>(Reader.ReadValue()) & 2u) != 0)
        Reader.ReadInt64();
    const AnsiString Name = Reader.ReadStr();
    Image.SetPosition(Start);
    return Name;
}

void WriteResource(TMemoryStream& Image, TMemoryStream& Output)
{
    WriteResourceHeader(Output, RootClassName(Image), Image.Remaining());
    Output.CopyFrom(Image, Image.Remaining());
}

} // namespace

int RunConvert(const TArguments& Arguments)
{
    bool ToResource = false;
    TArguments Names;
    for (const std::string& Argument : Arguments) {
        if (Argument == "--resource")
            ToResource = true;
        else if (Argument.size() > 1 && Argument.front() == '-')
            throw EUsage("there is no option " + Argument);
        else
            Names.push_back(Argument);
    }
    if (Names.size() != 2)
        throw EUsage("two file names are needed, IN and OUT");
    TFormImage Form;
    std::vector<TProblem> Problems;
    const bool IsReadable = LoadForm(Names[0], Form, Problems);
    if (!Problems.empty() || !IsReadable)
        throw EReadError(Problems.front().Text);
    TMemoryStream Output;
    if (ToResource)
        WriteResource(Form.Image, Output);
    else if (Form.Format == TStreamOriginalFormat::sofText)
        Output.CopyFrom(Form.Image, 0);
    else
        ObjectBinaryToText(Form.Image, Output);
    WriteWhole(Names[1], Output);
    return Success;
}

} // namespace ksform
