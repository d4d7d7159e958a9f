#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "KSTreeView/layout/Chart.h"
#include "vcl/classes/Stream.h"

/// Any bytes are nodes, or a read error after which those read so far stand in order; what was read whole is
/// written and read again as it is.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size)
{
    TKSTreeNodes Nodes;
    vcl::TMemoryStream Stream;
    Stream.WriteBuffer(Data, static_cast<std::int64_t>(Size));
    Stream.SetPosition(0);
    try {
        Nodes.ReadData(Stream);
    } catch (const vcl::EReadError&) {
        // An answer, too.
    }
    int Count = 0;
    for (TKSTreeNode* Node = Nodes.GetFirstNode(); Node; Node = Node->GetNext(), ++Count) {
        const int Level = Node->GetParent() ? Node->GetParent()->GetLevel() + 1 : 0;
        if (Node->GetLevel() != Level)
            std::abort();
    }
    if (Count != Nodes.GetCount() || Nodes.IsUpdating())
        std::abort();
    TKSTreeNodes Copy;
    Copy.Assign(&Nodes);
    vcl::TMemoryStream First;
    vcl::TMemoryStream Second;
    Nodes.WriteData(First);
    Copy.WriteData(Second);
    if (First.GetBytes() != Second.GetBytes())
        std::abort();
    for (TKSTreeNode* Node = Nodes.GetFirstNode(); Node; Node = Node->GetNextSibling())
        Node->Expand(true);
    treeview::TChart Chart;
    Chart.Arrange(Nodes, {});
    Chart.Place(Chart.OriginFor({400, 300}));
    if (Chart.GetShown().size() != static_cast<std::size_t>(Count))
        std::abort();
    return 0;
}
