#include "vcl/streaming/Writer.h"

#include <unordered_map>

#include "vcl/classes/Collection.h"
#include "vcl/streaming/WriterDepth.h"

namespace vcl
{

namespace
{

constexpr std::uint8_t PrefixMark = 0xF0;
constexpr std::uint8_t PrefixInherited = 1;
constexpr std::uint8_t PrefixChildPosition = 2;
constexpr std::uint8_t PrefixInline = 4;

} // namespace

/// The children of one component while they are written, beside those its ancestor has.
struct TWriter::TChildren {
    std::vector<TComponent*> Ancestors;
    std::unordered_map<AnsiString, TComponent*> ByName;
    bool HasAncestor = false;
    std::size_t AncestorPosition = 0;
    int ChildPosition = 0;

    void Load(TComponent& Ancestor, TComponent* RootAncestor)
    {
        HasAncestor = true;
        Ancestor.GetChildren([this](TComponent* Child) { Ancestors.push_back(Child); }, RootAncestor);
        for (TComponent* Child : Ancestors)
            ByName.try_emplace(LowerCase(Child->GetName()), Child);
    }

    TComponent* Find(const AnsiString& Name) const
    {
        const auto Found = ByName.find(LowerCase(Name));
        return Name.empty() || Found == ByName.end() ? nullptr : Found->second;
    }
};

TWriter::TWriter(TStream& Stream) : FStream(Stream)
{
}

TWriter::~TWriter() = default;

void TWriter::WriteSignature()
{
    WriteBytes("TPF0", 4);
}

void TWriter::WriteDescendent(TComponent* Root, TComponent* Ancestor)
{
    FRoot = Root;
    FLookupRoot = Root;
    FRootAncestor = Ancestor;
    FAncestor = Ancestor;
    FChildren = nullptr;
    WriteSignature();
    WriteComponent(Root);
    FAncestor = nullptr;
}

TComponent* TWriter::InlineAncestor(TComponent& Component)
{
    TComponent* Ancestor = nullptr;
    if (OnFindAncestor)
        OnFindAncestor(*this, &Component, Ancestor);
    if (!Ancestor && Component.ClassType().Create) {
        FInlineAncestors.emplace_back(static_cast<TComponent*>(Component.ClassType().Create(nullptr)));
        Ancestor = FInlineAncestors.back().get();
    }
    return Ancestor;
}

TComponent* TWriter::FindAncestor(TComponent& Component)
{
    TComponent* Ancestor =
        FChildren ? FChildren->Find(Component.GetName()) : static_cast<TComponent*>(FAncestor);
    // What a descendant put in the place of another class under the same name is new.
    if (Ancestor && !Component.InheritsFrom(Ancestor->ClassType()) && FChildren)
        Ancestor = nullptr;
    return Ancestor;
}

void TWriter::WriteComponent(TComponent* Component)
{
    const TDepth Depth(*this);
    TComponent* const Inherited = FindAncestor(*Component);
    const bool IsInline = Component->Is(TComponentState::csInline);
    TComponent* const Ancestor = Inherited || !IsInline ? Inherited : InlineAncestor(*Component);
    Component->FState.Include(TComponentState::csWriting);
    const TSaved<TPersistent*> KeepAncestor(FAncestor, Ancestor);
    const TSaved<TComponent*> KeepRootAncestor(FRootAncestor,
                                               Ancestor && IsInline ? Ancestor : FRootAncestor);
    WriteHeader(*Component, Inherited);
    {
        // References leave the frame in the terms of the form around it, those inside in the frame's own.
        const TSaved<TComponent*> KeepLookupRoot(FLookupRoot, IsInline ? Component : FLookupRoot);
        WriteProperties(*Component);
        WriteListEnd();
        WriteChildren(*Component, Ancestor);
        WriteListEnd();
    }
    Component->FState.Exclude(TComponentState::csWriting);
}

void TWriter::WriteHeader(TComponent& Component, TComponent* Inherited)
{
    std::uint8_t Flags = 0;
    if (Inherited)
        Flags |= PrefixInherited;
    else if (Component.Is(TComponentState::csInline))
        Flags |= PrefixInline;
    const bool IsAmongAncestors =
        FChildren && FChildren->HasAncestor && FChildren->AncestorPosition < FChildren->Ancestors.size();
    if (IsAmongAncestors && FChildren->Ancestors[FChildren->AncestorPosition] != Inherited)
        Flags |= PrefixChildPosition;
    // A long class name begins with a byte that would be taken for a prefix.
    const AnsiString ClassName = Component.ClassName();
    if (Flags != 0 || ClassName.size() >= PrefixMark)
        FStream.WriteByte(static_cast<std::uint8_t>(PrefixMark | Flags));
    if ((Flags & PrefixChildPosition) != 0)
        WriteInteger(FChildren->ChildPosition);
    if (IsAmongAncestors && Inherited)
        ++FChildren->AncestorPosition;
    if (FChildren)
        ++FChildren->ChildPosition;
    WriteStr(ClassName);
    WriteStr(Component.GetName());
}

void TWriter::WriteChildren(TComponent& Component, TComponent* Ancestor)
{
    TChildren Children;
    if (Ancestor)
        Children.Load(*Ancestor, FRootAncestor);
    const TSaved<TChildren*> KeepChildren(FChildren, &Children);
    const TSaved<TPersistent*> KeepAncestor(FAncestor, nullptr);
    Component.GetChildren([this](TComponent* Child) { WriteComponent(Child); },
                          Component.Is(TComponentState::csInline) ? &Component : FRoot);
}

} // namespace vcl
