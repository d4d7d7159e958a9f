#pragma once

#include <utility>

#include "vcl/system/Exception.h"

/// A handler that runs an action the first time it is called.
template <class TAction>
auto Once(TAction Action)
{
    return [Action, Done = false](auto&&...) mutable {
        if (!std::exchange(Done, true))
            Action();
    };
}

/// A handler that fails, or what one does to fail.
[[noreturn]] inline void Fail()
{
    throw vcl::Exception("no");
}
