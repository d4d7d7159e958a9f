#include "gallery/inspector/Inspector.h"

#include <algorithm>

#include "gallery/inspector/ValueText.h"
#include "vcl/classes/Component.h"
#include "vcl/system/Exception.h"

namespace gallery
{

using vcl::AnsiString;
using vcl::TPersistent;
using vcl::TPropertyInfo;
using vcl::TTypeKind;

namespace
{

bool IsEvent(const TPropertyInfo& Property)
{
    return Property.Type->Kind == TTypeKind::Method;
}

/// The object behind a property; null when there is none or the property has no objects.
TPersistent* ObjectOf(const TPropertyInfo& Property, const TPersistent& Object)
{
    return Property.Type->Kind == TTypeKind::Class ? std::get<TPersistent*>(Property.Get(Object)) : nullptr;
}

bool IsExpandable(const TPropertyInfo& Property, const TPersistent& Object)
{
    if (Property.Type->Kind != TTypeKind::Class || IsReferenceType(*Property.Type))
        return false;
    const TPersistent* const SubObject = ObjectOf(Property, Object);
    return SubObject && !vcl::PublishedProperties(SubObject->ClassType()).empty();
}

TRowEditor EditorOf(const TPropertyInfo& Property)
{
    if (!Property.Set || IsEvent(Property))
        return TRowEditor::ReadOnly;
    if (Property.Type->Kind == TTypeKind::Class)
        return IsReferenceType(*Property.Type) ? TRowEditor::Choice : TRowEditor::ReadOnly;
    return Property.Type->Kind == TTypeKind::Enumeration ? TRowEditor::Choice : TRowEditor::Text;
}

std::vector<const TPropertyInfo*> InOrder(const vcl::TClass& Class)
{
    std::vector<const TPropertyInfo*> Properties = vcl::PublishedProperties(Class);
    std::stable_sort(Properties.begin(), Properties.end(),
                     [](const TPropertyInfo* Left, const TPropertyInfo* Right) {
                         if (IsEvent(*Left) != IsEvent(*Right))
                             return IsEvent(*Right);
                         return vcl::CompareText(Left->Name, Right->Name) < 0;
                     });
    return Properties;
}

} // namespace

std::vector<TInspectorRow> TInspector::Rows() const
{
    std::vector<TInspectorRow> Result;
    if (FObject)
        AddRows(Result, *FObject, {}, 0);
    return Result;
}

// As deep as the user has opened sub-objects.
void TInspector::AddRows(std::vector<TInspectorRow>& Rows, TPersistent& Object, const AnsiString& Prefix,
                         int Depth) const
{
    for (const TPropertyInfo* const Property : InOrder(Object.ClassType())) {
        TInspectorRow Row;
        Row.Path = Prefix + Property->Name;
        Row.Text = ValueToText(*Property->Type, Property->Get(Object));
        Row.Editor = EditorOf(*Property);
        Row.Depth = Depth;
        Row.IsExpandable = IsExpandable(*Property, Object);
        Row.IsExpanded = Row.IsExpandable && FExpanded.contains(Row.Path);
        Rows.push_back(Row);
        if (Row.IsExpanded)
            AddRows(Rows, *ObjectOf(*Property, Object), Row.Path + ".", Depth + 1);
    }
}

void TInspector::Toggle(const AnsiString& Path)
{
    if (FExpanded.erase(Path) == 0)
        FExpanded.insert(Path);
}

TInspector::TPlace TInspector::Find(std::string_view Path) const
{
    TPersistent* Object = FObject;
    std::string_view Rest = Path;
    while (Object) {
        const std::size_t Dot = Rest.find('.');
        const TPropertyInfo* const Property = vcl::FindProperty(Object->ClassType(), Rest.substr(0, Dot));
        if (!Property)
            break;
        if (Dot == std::string_view::npos)
            return {Object, Property};
        Object = ObjectOf(*Property, *Object);
        Rest.remove_prefix(Dot + 1);
    }
    throw vcl::EPropertyError("There is no property " + AnsiString(Path));
}

AnsiString TInspector::GetText(std::string_view Path) const
{
    const TPlace Place = Find(Path);
    return ValueToText(*Place.Property->Type, Place.Property->Get(*Place.Object));
}

void TInspector::SetText(std::string_view Path, std::string_view Text)
{
    const TPlace Place = Find(Path);
    const vcl::TTypeInfo& Type = *Place.Property->Type;
    if (EditorOf(*Place.Property) == TRowEditor::ReadOnly)
        throw vcl::EPropertyError(AnsiString(Path) + " cannot be changed");
    if (!IsReferenceType(Type)) {
        Place.Property->Set(*Place.Object, TextToValue(Type, Text));
        return;
    }
    TPersistent* Chosen = nullptr;
    if (!Text.empty()) {
        for (TPersistent* const Candidate : Candidates(Type))
            if (vcl::SameText(ValueToText(Type, Candidate), Text))
                Chosen = Candidate;
        if (!Chosen)
            throw vcl::EPropertyError("There is no " + Type.DisplayName() + " called " + AnsiString(Text));
    }
    Place.Property->Set(*Place.Object, Chosen);
}

std::vector<AnsiString> TInspector::Choices(std::string_view Path) const
{
    const vcl::TTypeInfo& Type = *Find(Path).Property->Type;
    if (Type.Kind == TTypeKind::Enumeration)
        return {Type.ValueNames.begin(), Type.ValueNames.end()};
    std::vector<AnsiString> Names;
    if (IsReferenceType(Type)) {
        Names.emplace_back();
        for (TPersistent* const Candidate : Candidates(Type))
            Names.push_back(ValueToText(Type, Candidate));
    }
    return Names;
}

// Components with a name that have the same owner as the object.
std::vector<TPersistent*> TInspector::Candidates(const vcl::TTypeInfo& Type) const
{
    std::vector<TPersistent*> Result;
    const auto* const Component = vcl::As<vcl::TComponent>(FObject);
    const vcl::TComponent* const Owner = Component ? Component->GetOwnerComponent() : nullptr;
    for (int Index = 0; Owner && Index < Owner->GetComponentCount(); ++Index) {
        vcl::TComponent* const Other = Owner->GetComponent(Index);
        if (Other != FObject && !Other->GetName().empty() && Other->InheritsFrom(Type.Class()))
            Result.push_back(Other);
    }
    return Result;
}

} // namespace gallery
