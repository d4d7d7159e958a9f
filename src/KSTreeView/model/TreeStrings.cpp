#include "KSTreeView/model/TreeStrings.h"

#include "KSTreeView/model/TreeText.h"

namespace
{

/// Ends old text files.
constexpr const char* EndOfFileLine = "\x1A";

} // namespace

const vcl::TClass& TKSTreeStrings::StaticClass()
{
    static const vcl::TClass Class = vcl::DefineClass<TKSTreeStrings, vcl::TStrings>("TKSTreeStrings");
    return Class;
}

vcl::AnsiString TKSTreeStrings::GetString(int Index) const
{
    const TKSTreeNode* const Node = FNodes->GetNodeFromIndex(Index);
    return treeview::FormatTreeLine(Node->GetLevel(), Node->GetText());
}

vcl::TObject* TKSTreeStrings::GetObject(int Index) const
{
    return static_cast<vcl::TObject*>(FNodes->GetNodeFromIndex(Index)->GetData());
}

void TKSTreeStrings::SetObject(int Index, vcl::TObject* Object)
{
    FNodes->GetNodeFromIndex(Index)->SetData(Object);
}

int TKSTreeStrings::Add(const vcl::AnsiString& Text)
{
    const int Index = GetCount();
    if (Text == EndOfFileLine)
        return Index;
    const treeview::TTreeLine Line = treeview::ParseTreeLine(Text);
    TKSTreeNode* Previous = Index > 0 ? FNodes->GetNodeFromIndex(Index - 1) : nullptr;
    const int OldLevel = Previous ? Previous->GetLevel() : 0;
    if (Line.Level > OldLevel || !Previous) {
        if (Line.Level - OldLevel > 1)
            throw EKSTreeViewError("Invalid Level");
    } else {
        for (int Level = OldLevel; Level >= Line.Level; --Level) {
            Previous = Previous->GetParent();
            if (!Previous && Level - Line.Level > 0)
                throw EKSTreeViewError("Invalid Level");
        }
    }
    TKSTreeNode* const Node = FNodes->AddChild(Previous, vcl::AnsiString(Line.Text));
    if (Node && FNodes->GetCount() == Index + 1)
        FNodes->RememberIndex(Node, Index);
    return Index;
}

void TKSTreeStrings::Insert(int Index, const vcl::AnsiString& Text)
{
    TKSTreeNode* const Node = FNodes->Insert(FNodes->GetNodeFromIndex(Index), Text);
    if (Node)
        FNodes->RememberIndex(Node, Index);
}

void TKSTreeStrings::Delete(int Index)
{
    FNodes->GetNodeFromIndex(Index)->Delete();
}

void TKSTreeStrings::SetUpdateState(bool IsUpdating)
{
    if (treeview::ITreeHost* const Host = IsUpdating ? nullptr : FNodes->GetHost())
        Host->RefreshView();
}
