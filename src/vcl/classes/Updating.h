#pragma once

#include <utility>

#include "vcl/system/Liveness.h"

namespace vcl
{

/// Runs Action between BeginUpdate and EndUpdate of Updated. EndUpdate also comes when Action raises, and not
/// when Action has freed Updated.
template <class T, class TAction>
void WhileUpdating(T& Updated, TAction&& Action)
{
    const TAliveGuard Guard(Updated);
    Updated.BeginUpdate();
    try {
        std::forward<TAction>(Action)();
    } catch (...) {
        if (Guard.IsAlive())
            Updated.EndUpdate();
        throw;
    }
    if (Guard.IsAlive())
        Updated.EndUpdate();
}

} // namespace vcl
