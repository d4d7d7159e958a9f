#pragma once

#include <memory>
#include <string>

#include "SampleTree.h"
#include "support/JsonLines.h"
#include "vcl/streaming/FormFile.h"

namespace vcl::tests
{

inline void Fill(TMemoryStream& Stream, std::string_view Bytes)
{
    Stream.WriteBuffer(Bytes.data(), static_cast<std::int64_t>(Bytes.size()));
    Stream.SetPosition(0);
}

inline std::string Content(const TMemoryStream& Stream)
{
    return {Stream.GetBytes().begin(), Stream.GetBytes().end()};
}

inline std::string TextToImage(std::string_view Text)
{
    TMemoryStream Input;
    TMemoryStream Output;
    Fill(Input, Text);
    ObjectTextToBinary(Input, Output);
    return Content(Output);
}

inline std::string ImageToText(std::string_view Image)
{
    TMemoryStream Input;
    TMemoryStream Output;
    Fill(Input, Image);
    ObjectBinaryToText(Input, Output);
    return Content(Output);
}

inline std::unique_ptr<TComponent> ReadImage(std::string_view Image, TComponent* Root = nullptr)
{
    TMemoryStream Stream;
    Fill(Stream, Image);
    TComponent* const Read = ReadComponent(Stream, Root);
    return std::unique_ptr<TComponent>(Root ? nullptr : Read);
}

inline std::string WriteImage(TComponent& Root, TComponent* Ancestor = nullptr)
{
    TMemoryStream Stream;
    WriteComponent(Stream, &Root, Ancestor);
    return Content(Stream);
}

/// The class of the exception an action raises, or "" when it raises none.
template <class TAction>
std::string Raised(const TAction& Action)
{
    try {
        Action();
    } catch (const Exception& Error) {
        return Error.ClassName();
    }
    return "";
}

} // namespace vcl::tests
