#include "vcl/controls/Program.h"

#include <cstdio>
#include <exception>

namespace vcl
{

namespace
{

class TNoApplication final : public IProgram
{
public:
    void HandleException(TObject*) override
    {
        try {
            throw;
        } catch (const std::exception& Error) {
            std::fprintf(stderr, "%s\n", Error.what());
        } catch (...) {
            std::fputs("unknown exception\n", stderr);
        }
    }
    void HintMouseMessage(TControl*, const TMessage&) override {}
    void ControlDestroyed(TControl*) override {}
    TCursor GetScreenCursor() const override { return crDefault; }
};

IProgram* Current = nullptr;

} // namespace

IProgram& Program()
{
    static TNoApplication None;
    return Current ? *Current : None;
}

void SetProgram(IProgram* Next)
{
    Current = Next;
}

} // namespace vcl
