#include "vcl/classes/Properties.h"

#include <unordered_map>

#include "vcl/system/Exception.h"

namespace vcl
{

bool TTypeInfo::IsBoolean() const
{
    return this == &TypeTraits<bool>::Info() ||
           (Kind == TTypeKind::Enumeration && std::string_view(Name) == TypeTraits<bool>::Info().Name);
}

AnsiString TTypeInfo::DisplayName() const
{
    return Kind == TTypeKind::Class && Class ? Class().Name : Name;
}

std::optional<std::int64_t> TTypeInfo::OrdinalOf(std::string_view ValueName) const
{
    for (std::size_t Ordinal = 0; Ordinal < ValueNames.size(); ++Ordinal)
        if (SameText(ValueNames[Ordinal], ValueName))
            return static_cast<std::int64_t>(Ordinal);
    return std::nullopt;
}

std::optional<std::int64_t> TTypeInfo::IdentifierValue(std::string_view Identifier) const
{
    for (const TIntegerIdentifier& Entry : Identifiers)
        if (SameText(Entry.Name, Identifier))
            return Entry.Value;
    return std::nullopt;
}

const char* TTypeInfo::IdentifierName(std::int64_t Value) const
{
    for (const TIntegerIdentifier& Entry : Identifiers)
        if (Entry.Value == Value)
            return Entry.Name;
    return nullptr;
}

TTypeInfo EnumerationType(const char* Name, std::initializer_list<const char*> ValueNames)
{
    TTypeInfo Info;
    Info.Kind = TTypeKind::Enumeration;
    Info.Name = Name;
    Info.ValueNames = ValueNames;
    Info.Max = static_cast<std::int64_t>(ValueNames.size()) - 1;
    return Info;
}

TTypeInfo IntegerType(const char* Name, std::int64_t Min, std::int64_t Max,
                      std::initializer_list<TIntegerIdentifier> Identifiers)
{
    TTypeInfo Info;
    Info.Kind = TTypeKind::Integer;
    Info.Name = Name;
    Info.Min = Min;
    Info.Max = Max;
    Info.Identifiers = Identifiers;
    return Info;
}

TTypeInfo SetType(const char* Name, const TTypeInfo& Element)
{
    TTypeInfo Info;
    Info.Kind = TTypeKind::Set;
    Info.Name = Name;
    Info.Element = &Element;
    return Info;
}

TTypeInfo FloatType(const char* Name, TFloatKind Kind)
{
    TTypeInfo Info;
    Info.Kind = TTypeKind::Float;
    Info.Name = Name;
    Info.Float = Kind;
    return Info;
}

bool NeverStoredRule(const TPersistent&)
{
    return false;
}

TPropertyInfo TPropertyRow::Resolve(const TClass* Parent) const
{
    TPropertyInfo Info = FInfo;
    if (FIsReference) {
        const TPropertyInfo* Found = nullptr;
        for (const TClass* Class = Parent; Class && !Found; Class = Class->Parent)
            if (Class->Properties)
                for (const TPropertyInfo& Row : Class->Properties->GetRows())
                    if (SameText(Row.Name, FInfo.Name))
                        Found = &Row;
        if (!Found)
            throw EPropertyError(AnsiString("No ancestor of the class declares the property ") + FInfo.Name);
        Info = *Found;
        Info.IsPublished = true;
        if (FStoredChanged)
            Info.IsStored = FInfo.IsStored;
        if (FInfo.Type)
            Info.Type = FInfo.Type;
    }
    if (FDefaultChanged)
        Info.Default = FDefault;
    return Info;
}

TPropertyRow Declared(TPropertyRow Row)
{
    Row.FInfo.IsPublished = false;
    return Row;
}

TPropertyRow Publish(const char* Name)
{
    return TPropertyRow(Name);
}

TPropertyTable::TPropertyTable(const TClass* Parent, std::initializer_list<TPropertyRow> Rows,
                               std::initializer_list<TMethodRow> Methods)
    : FMethods(Methods)
{
    FRows.reserve(Rows.size());
    for (const TPropertyRow& Row : Rows)
        FRows.push_back(Row.Resolve(Parent));
}

std::vector<const TPropertyInfo*> PublishedProperties(const TClass& Class)
{
    std::vector<const TClass*> Chain;
    for (const TClass* Step = &Class; Step; Step = Step->Parent)
        Chain.push_back(Step);
    std::vector<const TPropertyInfo*> Result;
    std::unordered_map<AnsiString, std::size_t> Places;
    for (auto Step = Chain.rbegin(); Step != Chain.rend(); ++Step) {
        if (!(*Step)->Properties)
            continue;
        for (const TPropertyInfo& Row : (*Step)->Properties->GetRows()) {
            const auto [Place, IsNew] = Places.try_emplace(LowerCase(Row.Name), Result.size());
            if (!IsNew)
                Result[Place->second] = Row.IsPublished ? &Row : Result[Place->second];
            else if (Row.IsPublished)
                Result.push_back(&Row);
            else
                Places.erase(Place);
        }
    }
    return Result;
}

const TPropertyInfo* FindProperty(const TClass& Class, std::string_view Name)
{
    for (const TClass* Step = &Class; Step; Step = Step->Parent)
        if (Step->Properties)
            for (const TPropertyInfo& Row : Step->Properties->GetRows())
                if (Row.IsPublished && SameText(Row.Name, Name))
                    return &Row;
    return nullptr;
}

const TPropertyTable::TMethodRow* FindMethod(const TClass& Class, std::string_view Name)
{
    for (const TClass* Step = &Class; Step; Step = Step->Parent)
        if (Step->Properties)
            for (const TPropertyTable::TMethodRow& Row : Step->Properties->GetMethods())
                if (SameText(Row.Name, Name))
                    return &Row;
    return nullptr;
}

} // namespace vcl
