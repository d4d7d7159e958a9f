#include "KSTreeView/model/TreeText.h"

#include "KSTreeView/model/TreeNodes.h"
#include "vcl/classes/StringList.h"
#include "vcl/classes/Updating.h"

namespace treeview
{

TTreeLine ParseTreeLine(std::string_view Line)
{
    const std::size_t Start = std::min(Line.find_first_not_of("\t "), Line.size());
    return {static_cast<int>(Start), Line.substr(Start)};
}

vcl::AnsiString FormatTreeLine(int Level, std::string_view Text)
{
    vcl::AnsiString Line(static_cast<std::size_t>(std::max(Level, 0)), '\t');
    Line += Text;
    return Line;
}

} // namespace treeview

namespace
{

/// Text is handed to the stream in pieces of about this size.
constexpr std::size_t ChunkSize = 65536;

[[noreturn]] void RaiseLevelError(const treeview::TTreeLine& Line)
{
    throw EKSTreeViewError("Invalid level " + vcl::IntToStr(Line.Level) + " with string " +
                           vcl::AnsiString(Line.Text));
}

} // namespace

void TKSTreeNodes::ReadText(vcl::TStream& Stream)
{
    vcl::TStringList Lines;
    Lines.LoadFromStream(Stream);
    vcl::WhileUpdating(*this, [&] {
        const vcl::TAliveGuard Witness(*this);
        Clear();
        if (Witness.IsAlive())
            ReadLines(Lines);
    });
}

void TKSTreeNodes::ReadLines(const vcl::TStringList& Lines)
{
    TKSTreeNode* Node = nullptr;
    for (int Index = 0; Index < Lines.GetCount(); ++Index) {
        const vcl::AnsiString Text = Lines.GetString(Index);
        const treeview::TTreeLine Line = treeview::ParseTreeLine(Text);
        TKSTreeNode* Parent = nullptr;
        if (Node) {
            if (Node->FLevel < Line.Level - 1)
                RaiseLevelError(Line);
            Parent = Node;
            while (Parent && Parent->FLevel >= Line.Level)
                Parent = Parent->FParent;
        }
        Node = AddChild(Parent, vcl::AnsiString(Line.Text));
    }
}

void TKSTreeNodes::WriteText(vcl::TStream& Stream) const
{
    vcl::AnsiString Chunk;
    for (const TKSTreeNode* Node = FFirstNode; Node; Node = Node->GetNext()) {
        Chunk.append(static_cast<std::size_t>(Node->FLevel), '\t');
        Chunk += Node->FText;
        Chunk += "\r\n";
        if (Chunk.size() < ChunkSize)
            continue;
        Stream.WriteBuffer(Chunk.data(), static_cast<std::int64_t>(Chunk.size()));
        Chunk.clear();
    }
    Stream.WriteBuffer(Chunk.data(), static_cast<std::int64_t>(Chunk.size()));
}
