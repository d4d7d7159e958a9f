#pragma once

// Node streams put together by hand, and streams that end where a test wants.

#include <initializer_list>
#include <string>

#include "KSTreeView/model/TreeNodes.h"

namespace treeview::tests
{

inline void Int(vcl::TStream& Stream, std::initializer_list<int> Values)
{
    for (const int Value : Values)
        Stream.WriteInt32(Value);
}

/// One record: info, text and string data.
inline void Record(vcl::TStream& Stream, const std::string& Text, int Count, int InfoSize = 16)
{
    Int(Stream, {InfoSize});
    Int(Stream, {-1, 0, 0, Count});
    Stream.WriteCountedString(Text);
    Stream.WriteCountedString("");
}

/// Replaces the nodes by what the stream holds, from its start.
inline void Read(TKSTreeNodes& Nodes, vcl::TMemoryStream& Stream)
{
    Stream.SetPosition(0);
    Nodes.ReadData(Stream);
}

/// Takes so many bytes and no more, as a full disk does.
class TFullStream final : public vcl::TMemoryStream
{
public:
    explicit TFullStream(std::int64_t Room) : FRoom(Room) {}
    std::int64_t Write(const void* Buffer, std::int64_t Count) override
    {
        return TMemoryStream::Write(Buffer, std::min(Count, FRoom - GetSize()));
    }

private:
    std::int64_t FRoom;
};

} // namespace treeview::tests
