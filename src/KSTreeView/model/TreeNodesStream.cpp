// The binary form of nodes: records of a node and of all below it, parents first.

#include <algorithm>
#include <array>
#include <bit>
#include <vector>

#include "KSTreeView/model/Coalesced.h"
#include "KSTreeView/model/TreeNodes.h"
#include "vcl/system/FirstFailure.h"

namespace
{

constexpr int InfoSize = 16;
using TInfoBytes = std::array<std::uint8_t, InfoSize>;

void StoreInt32(std::uint8_t* Bytes, std::int32_t Value)
{
    for (unsigned Index = 0; Index < 4; ++Index)
        Bytes[Index] = static_cast<std::uint8_t>(static_cast<std::uint32_t>(Value) >> (8 * Index));
}

std::int32_t LoadInt32(const std::uint8_t* Bytes)
{
    std::uint32_t Value = 0;
    for (unsigned Index = 0; Index < 4; ++Index)
        Value |= static_cast<std::uint32_t>(Bytes[Index]) << (8 * Index);
    return static_cast<std::int32_t>(Value);
}

TInfoBytes BytesOf(const TKSNodeInfo& Info)
{
    TInfoBytes Bytes{};
    StoreInt32(&Bytes[0], Info.ImageIndex);
    StoreInt32(&Bytes[4], Info.Data);
    StoreInt32(&Bytes[8], Info.IntData);
    StoreInt32(&Bytes[12], Info.Count);
    return Bytes;
}

/// What the record does not hold stays as it was in Info.
void ReadInfo(vcl::TStream& Stream, TKSNodeInfo& Info)
{
    const int Size = Stream.ReadInt32();
    if (Size < 0 || Size > InfoSize)
        throw vcl::EReadError("Stream read error");
    TInfoBytes Bytes = BytesOf(Info);
    Stream.ReadBuffer(Bytes.data(), Size);
    Info = {LoadInt32(&Bytes[0]), LoadInt32(&Bytes[4]), LoadInt32(&Bytes[8]), LoadInt32(&Bytes[12])};
}

} // namespace

void TKSTreeNode::ReadRecord(vcl::TStream& Stream, TKSNodeInfo& Info)
{
    ReadInfo(Stream, Info);
    FText = Stream.ReadCountedString();
    FStringData = Stream.ReadCountedString();
    FImageIndex = Info.ImageIndex;
    FData = reinterpret_cast<void*>(std::uintptr_t{static_cast<std::uint32_t>(Info.Data)});
    if (FOwner)
        FData = FOwner->WholePointer(FData);
    FIntData = Info.IntData;
}

void TKSTreeNode::WriteRecord(vcl::TStream& Stream, TKSNodeInfo& Info) const
{
    Info = {FImageIndex,
            static_cast<std::int32_t>(static_cast<std::uint32_t>(std::bit_cast<std::uintptr_t>(FData))),
            FIntData, FChildCount};
    Stream.WriteInt32(InfoSize);
    const TInfoBytes Bytes = BytesOf(Info);
    Stream.WriteBuffer(Bytes.data(), InfoSize);
    Stream.WriteCountedString(FText);
    Stream.WriteCountedString(FStringData);
}

void TKSTreeNode::ReadData(vcl::TStream& Stream, TKSNodeInfo& Info)
{
    struct TPending {
        TKSTreeNode* Parent;
        int Children;
    };
    ReadRecord(Stream, Info);
    if (!FOwner)
        return;
    const vcl::TAliveGuard Witness(FOwner->GetLiveness());
    const std::uint64_t Gone = FOwner->GetGoneSerial();
    TKSTreeNodes* const Nodes = FOwner;
    std::vector<TPending> Pending{{this, Info.Count}};
    while (!Pending.empty()) {
        TPending& Last = Pending.back();
        if (Last.Children <= 0) {
            Pending.pop_back();
            continue;
        }
        --Last.Children;
        TKSTreeNode* const Child = Nodes->AddChild(Last.Parent, {});
        if (!Witness.IsAlive() || Nodes->GetGoneSerial() != Gone)
            return; // a handler takes away what is being read
        Child->ReadRecord(Stream, Info);
        // The last child takes its parent's place: a chain needs no memory a level.
        if (Last.Children == 0)
            Last = {Child, Info.Count};
        else
            Pending.push_back({Child, Info.Count});
    }
}

void TKSTreeNode::WriteData(vcl::TStream& Stream, TKSNodeInfo& Info) const
{
    const TKSTreeNode* const End = NextOutside();
    for (const TKSTreeNode* Node = this; Node != End; Node = Node->GetNext())
        Node->WriteRecord(Stream, Info);
}

void TKSTreeNodes::ReadTopNodes(vcl::TStream& Stream)
{
    const vcl::TAliveGuard Witness(FLife);
    const std::uint64_t Gone = FGoneSerial;
    TKSNodeInfo Info;
    // A count that lies meets the end of the stream.
    for (int Left = Stream.ReadInt32(); Left > 0; --Left) {
        TKSTreeNode* const Node = Add(nullptr, {});
        if (Witness.IsAlive() && FGoneSerial == Gone)
            Node->ReadData(Stream, Info);
        if (!Witness.IsAlive() || FGoneSerial != Gone)
            return;
    }
}

void TKSTreeNodes::ReadData(vcl::TStream& Stream)
{
    const vcl::TAliveGuard Witness(FLife);
    // The empty chart is shown for a moment: a scrolled view goes back to its start.
    Clear();
    if (Witness.IsAlive())
        treeview::Coalesced(FHost, FLife, {}, [&] { ReadTopNodes(Stream); });
}

void TKSTreeNodes::WriteData(vcl::TStream& Stream) const
{
    Stream.WriteInt32(FTopCount);
    TKSNodeInfo Info;
    for (const TKSTreeNode* Node = FFirstNode; Node; Node = Node->FNextSibling)
        Node->WriteData(Stream, Info);
}

void TKSTreeNodes::Assign(const vcl::TPersistent* Source)
{
    const auto* const Nodes = vcl::As<TKSTreeNodes>(static_cast<const vcl::TObject*>(Source));
    if (!Nodes) {
        TPersistent::Assign(Source);
        return;
    }
    if (Nodes == this)
        return;
    vcl::TMemoryStream Stream;
    Nodes->WriteData(Stream);
    std::vector<void*> Pointers;
    for (const TKSTreeNode* Node = Nodes->FFirstNode; Node; Node = Node->GetNext())
        Pointers.push_back(Node->GetData());
    std::reverse(Pointers.begin(), Pointers.end());
    Stream.SetPosition(0);
    const vcl::TAliveGuard Witness(FLife);
    std::swap(FPointers, Pointers);
    vcl::TFirstFailure Failure;
    Failure.Try([&] { ReadData(Stream); });
    if (Witness.IsAlive())
        std::swap(FPointers, Pointers);
    Failure.Rethrow();
}

/// While nodes are copied: the pointer of which the stream holds the low half.
void* TKSTreeNodes::WholePointer(void* Low)
{
    if (FPointers.empty())
        return Low;
    void* const Whole = FPointers.back();
    FPointers.pop_back();
    const auto LowHalf = [](void* Pointer) {
        return static_cast<std::uint32_t>(std::bit_cast<std::uintptr_t>(Pointer));
    };
    return LowHalf(Whole) == LowHalf(Low) ? Whole : Low;
}
