#pragma once

#include "vcl/streaming/Writer.h"

namespace vcl
{

/// Counts how deep the writer is, so that it writes nothing that a reader would refuse.
class TWriter::TDepth
{
public:
    explicit TDepth(TWriter& Writer) : FWriter(Writer)
    {
        if (FWriter.FDepth >= MaxFormDepth)
            throw EWriteError("The form is nested more than " + IntToStr(MaxFormDepth) + " levels deep");
        ++FWriter.FDepth;
    }
    ~TDepth() { --FWriter.FDepth; }
    TDepth(const TDepth&) = delete;
    TDepth& operator=(const TDepth&) = delete;

private:
    TWriter& FWriter;
};

/// Sets a variable for a scope.
template <class T>
class TSaved
{
public:
    TSaved(T& Variable, T Value) : FVariable(Variable), FOld(Variable) { Variable = Value; }
    ~TSaved() { FVariable = FOld; }
    TSaved(const TSaved&) = delete;
    TSaved& operator=(const TSaved&) = delete;

private:
    T& FVariable;
    T FOld;
};

} // namespace vcl
