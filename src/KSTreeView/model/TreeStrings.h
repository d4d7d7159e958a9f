#pragma once

#include "KSTreeView/model/TreeNodes.h"
#include "vcl/classes/Strings.h"

/// The nodes of a tree as a list of strings: a line a node in the order of GetNext, indented by a tab a
/// level. Blanks count like tabs when lines are read. The objects are the nodes' Data.
///
/// It owns nothing and must not outlive the collection.
class TKSTreeStrings : public vcl::TStrings
{
    VCL_CLASS
public:
    explicit TKSTreeStrings(TKSTreeNodes* Nodes) : FNodes(Nodes) {}

    TKSTreeNodes* GetNodes() const { return FNodes; }

    int GetCount() const override { return FNodes->GetCount(); }
    vcl::AnsiString GetString(int Index) const override;
    vcl::TObject* GetObject(int Index) const override;
    void SetObject(int Index, vcl::TObject* Object) override;
    /// Appends a line and returns the old Count. EKSTreeViewError "Invalid Level" when it is two or more
    /// levels deeper than the last node, or its place lies above the top. A line of the one character 26 is
    /// ignored.
    int Add(const vcl::AnsiString& Text) override;
    /// Before the node at Index, at its level, with Text as it is. EKSTreeViewError "Invalid Index" at Count.
    void Insert(int Index, const vcl::AnsiString& Text) override;
    void Delete(int Index) override;
    void Clear() override { FNodes->Clear(); }

    void LoadTreeFromStream(vcl::TStream& Stream) { FNodes->ReadText(Stream); }
    void SaveTreeToStream(vcl::TStream& Stream) const { FNodes->WriteText(Stream); }

protected:
    void SetUpdateState(bool IsUpdating) override;

private:
    TKSTreeNodes* FNodes;
};
