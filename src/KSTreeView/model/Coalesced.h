#pragma once

#include <utility>

#include "KSTreeView/model/TreeHost.h"
#include "vcl/system/FirstFailure.h"
#include "vcl/system/Liveness.h"

namespace treeview
{

/// What deleting nodes may raise.
inline constexpr TTreeEvents DeletionEvents{TTreeEvent::Deletion, TTreeEvent::Collapsing,
                                            TTreeEvent::Collapsed, TTreeEvent::Changing, TTreeEvent::Change};
/// What expanding and collapsing may raise.
inline constexpr TTreeEvents ExpansionEvents{TTreeEvent::Expanding,  TTreeEvent::Expanded,
                                             TTreeEvent::Collapsing, TTreeEvent::Collapsed,
                                             TTreeEvent::Changing,   TTreeEvent::Change};

/// Runs Action with all its refreshing and drawing made one refresh at the end, if nobody can tell: while
/// none of Events, and no event of painting, has a handler. Otherwise just runs it.
template <class TAction>
void Coalesced(ITreeHost* Host, const vcl::TLiveness& Life, TTreeEvents Events, TAction&& Action)
{
    const TTreeEvents All = Events + TTreeEvents{TTreeEvent::GetImageIndex, TTreeEvent::DrawNode};
    if (!Host || Host->IsAnyAssigned(All)) {
        std::forward<TAction>(Action)();
        return;
    }
    const vcl::TAliveGuard Witness(Life);
    vcl::TFirstFailure Failure;
    Host->BeginCoalescing();
    Failure.Try(std::forward<TAction>(Action));
    if (Witness.IsAlive())
        Failure.Try([&] { Host->EndCoalescing(); });
    Failure.Rethrow();
}

} // namespace treeview
