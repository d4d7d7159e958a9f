#pragma once

#include "vcl/streaming/Reader.h"

namespace vcl
{

/// Counts how deep the reader is inside the data, and refuses to go too deep.
class TReader::TDepth
{
public:
    explicit TDepth(TReader& Reader) : FReader(Reader)
    {
        if (FReader.FDepth >= MaxFormDepth)
            throw EReadError("The form is nested more than " + IntToStr(MaxFormDepth) + " levels deep");
        ++FReader.FDepth;
    }
    ~TDepth() { --FReader.FDepth; }
    TDepth(const TDepth&) = delete;
    TDepth& operator=(const TDepth&) = delete;

private:
    TReader& FReader;
};

} // namespace vcl
