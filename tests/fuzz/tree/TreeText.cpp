#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "KSTreeView/model/TreeStrings.h"
#include "vcl/classes/Stream.h"

namespace
{

vcl::AnsiString Saved(TKSTreeNodes& Nodes)
{
    vcl::TMemoryStream Stream;
    TKSTreeStrings(&Nodes).SaveTreeToStream(Stream);
    return {reinterpret_cast<const char*>(Stream.GetMemory()), static_cast<std::size_t>(Stream.GetSize())};
}

void Check(TKSTreeNodes& Nodes)
{
    int Count = 0;
    for (TKSTreeNode* Node = Nodes.GetFirstNode(); Node; Node = Node->GetNext(), ++Count)
        if (Node->GetLevel() != (Node->GetParent() ? Node->GetParent()->GetLevel() + 1 : 0))
            std::abort();
    if (Count != Nodes.GetCount() || Nodes.IsUpdating())
        std::abort();
    if (TKSTreeStrings(&Nodes).GetText() != Saved(Nodes))
        std::abort();
}

} // namespace

/// Any text is a tree, or an error after which the nodes read so far stand; both ways of reading end alike in
/// what is saved.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size)
{
    TKSTreeNodes Nodes;
    TKSTreeStrings Strings(&Nodes);
    vcl::TMemoryStream Stream;
    Stream.WriteBuffer(Data, static_cast<std::int64_t>(Size));
    Stream.SetPosition(0);
    try {
        Strings.LoadTreeFromStream(Stream);
    } catch (const EKSTreeViewError&) {
        // An answer, too.
    }
    Check(Nodes);
    Strings.Clear();
    try {
        Strings.SetText({reinterpret_cast<const char*>(Data), Size});
    } catch (const EKSTreeViewError&) {
        // An answer, too.
    }
    Check(Nodes);
    return 0;
}
