#pragma once

#include <utility>

#include "vcl/system/FirstFailure.h"
#include "vcl/system/Liveness.h"

namespace vcl
{

/// Runs Action between BeginUpdate and EndUpdate of Updated. EndUpdate also comes when Action raises, and not
/// when Action has freed Updated.
template <class T, class TAction>
void WhileUpdating(T& Updated, TAction&& Action)
{
    const TAliveGuard Guard(Updated);
    TFirstFailure Failure;
    Updated.BeginUpdate();
    Failure.Try(std::forward<TAction>(Action));
    if (Guard.IsAlive())
        Failure.Try([&] { Updated.EndUpdate(); });
    Failure.Rethrow();
}

} // namespace vcl
