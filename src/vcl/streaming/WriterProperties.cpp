// Properties: which differ from their default or ancestor, and how they are written.

#include "vcl/classes/Collection.h"
#include "vcl/streaming/WriterDepth.h"

namespace vcl
{

namespace
{

bool IsReference(const TPropertyInfo& Property, const TPersistent* Object)
{
    if (Object) {
        const TComponent* const Component = As<TComponent>(Object);
        return Component && !Component->GetComponentStyle().Contains(TComponentStyle::csSubComponent);
    }
    return Property.Type->Class().InheritsFrom(TComponent::StaticClass());
}

/// The name of a component as seen from Root; empty when it has none.
AnsiString ReferenceName(TComponent& Component, TComponent* Root)
{
    if (&Component == Root)
        return "Owner";
    AnsiString Path = Component.GetName();
    TComponent* Owner = Component.GetOwnerComponent();
    if (!Owner)
        return Path.empty() ? Path : Path + ".Owner";
    for (; !Path.empty() && Owner && Owner != Root; Owner = Owner->GetOwnerComponent())
        Path = Owner->GetName().empty() ? AnsiString() : Owner->GetName() + "." + Path;
    return Path;
}

/// True for the value that is not written where there is neither a declared default nor an ancestor.
bool IsEmptyValue(const TPropertyValue& Value)
{
    if (const auto* Text = std::get_if<AnsiString>(&Value))
        return Text->empty();
    if (const auto* Wide = std::get_if<WideString>(&Value))
        return Wide->empty();
    if (const auto* Number = std::get_if<TExtended>(&Value))
        return Number->IsZero();
    return false;
}

/// An ancestor form may be of a class that does not have all of its descendant's properties yet.
bool HasProperty(const TPersistent& Object, const TPropertyInfo& Property)
{
    const TPropertyInfo* const Found = FindProperty(Object.ClassType(), Property.Name);
    return Found && Found->Get == Property.Get;
}

bool SameValue(const TPropertyValue& Left, const TPropertyValue& Right)
{
    const auto* First = std::get_if<TExtended>(&Left);
    const auto* Second = std::get_if<TExtended>(&Right);
    if (First && Second && First->IsZero() && Second->IsZero())
        return true;
    return Left == Right;
}

} // namespace

void TWriter::WriteProperties(TPersistent& Instance)
{
    for (const TPropertyInfo* Property : PublishedProperties(Instance.ClassType()))
        if (!Property->IsStored || Property->IsStored(Instance))
            WriteProperty(Instance, *Property);
    Instance.DefineProperties(*this);
}

void TWriter::WritePropertyName(std::string_view Name)
{
    WriteStr(FPath + AnsiString(Name));
}

void TWriter::WriteProperty(TPersistent& Instance, const TPropertyInfo& Property)
{
    const TTypeKind Kind = Property.Type->Kind;
    // Nothing could read the value back; sub-objects are filled in place.
    if (!Property.Set && Kind != TTypeKind::Class && Kind != TTypeKind::Method)
        return;
    const bool HasAncestor = FAncestor && HasProperty(*FAncestor, Property);
    const TPropertyValue Value = Property.Get(Instance);
    const TPropertyValue Other = HasAncestor ? Property.Get(*FAncestor) : TPropertyValue();
    if (Kind == TTypeKind::Class) {
        TPersistent* const OtherObject = HasAncestor ? std::get<TPersistent*>(Other) : nullptr;
        WriteClass(Property, std::get<TPersistent*>(Value), OtherObject, HasAncestor);
    } else if (Kind == TTypeKind::Method) {
        WriteMethod(Property, *std::get<TEventBase*>(Value),
                    HasAncestor ? std::get<TEventBase*>(Other) : nullptr);
    } else if (!IsDefault(Property, Value, HasAncestor ? &Other : nullptr)) {
        WritePropertyName(Property.Name);
        WriteTypedValue(*Property.Type, Value);
    }
}

bool TWriter::IsDefault(const TPropertyInfo& Property, const TPropertyValue& Value,
                        const TPropertyValue* Ancestor) const
{
    if (Ancestor)
        return SameValue(Value, *Ancestor);
    if (const auto* Ordinal = std::get_if<std::int64_t>(&Value))
        return Property.Default && *Property.Default == *Ordinal;
    return IsEmptyValue(Value);
}

void TWriter::WriteTypedValue(const TTypeInfo& Type, const TPropertyValue& Value)
{
    if (const auto* Ordinal = std::get_if<std::int64_t>(&Value))
        WriteOrdinal(Type, *Ordinal);
    else if (const auto* Number = std::get_if<TExtended>(&Value))
        WriteExtended(*Number);
    else if (const auto* Text = std::get_if<AnsiString>(&Value))
        WriteString(*Text);
    else
        WriteWideString(std::get<WideString>(Value));
}

void TWriter::WriteOrdinal(const TTypeInfo& Type, std::int64_t Value)
{
    switch (Type.Kind) {
    case TTypeKind::Char:
        WriteChar(static_cast<char>(Value));
        break;
    case TTypeKind::WideChar:
        WriteWideChar(static_cast<char16_t>(Value));
        break;
    case TTypeKind::Set:
        WriteSet(Value, *Type.Element);
        break;
    case TTypeKind::Enumeration:
        if (Type.IsBoolean())
            WriteBoolean(Value != 0);
        else if (Value >= 0 && Value <= Type.Max)
            WriteIdent(Type.ValueNames[static_cast<std::size_t>(Value)]);
        else
            throw EWriteError(IntToStr(Value) + " is no value of " + Type.Name);
        break;
    default:
        if (const char* Identifier = Type.IdentifierName(Value))
            WriteIdent(Identifier);
        else
            // Unsigned 32-bit numbers are written as the signed one with the same bits.
            WriteInteger(Type.Max == UINT32_MAX ? static_cast<std::int32_t>(Value) : Value);
    }
}

void TWriter::WriteClass(const TPropertyInfo& Property, TPersistent* Object, TPersistent* Other,
                         bool HasAncestor)
{
    if (IsReference(Property, Object ? Object : Other)) {
        if (Property.Set)
            WriteReference(Property, static_cast<TComponent*>(Object), static_cast<TComponent*>(Other));
        return;
    }
    if (!Object)
        return;
    if (const auto* const Collection = As<TCollection>(Object)) {
        const auto* const OtherCollection = HasAncestor ? As<TCollection>(Other) : nullptr;
        if (!OtherCollection || !CollectionsEqual(*Collection, *OtherCollection)) {
            const TSaved<TPersistent*> NoAncestor(FAncestor, nullptr);
            WritePropertyName(Property.Name);
            const AnsiString Path = std::exchange(FPath, AnsiString());
            WriteCollection(*Collection);
            FPath = Path;
        }
    }
    // Below the value itself a sub-object has its properties and its data, under dotted names.
    const TDepth Depth(*this);
    const AnsiString Path = FPath;
    FPath += AnsiString(Property.Name) + ".";
    {
        const TSaved<TPersistent*> KeepAncestor(FAncestor, Other);
        WriteProperties(*Object);
    }
    FPath = Path;
}

void TWriter::WriteReference(const TPropertyInfo& Property, TComponent* Object, TComponent* Other)
{
    const AnsiString Name = Object ? ReferenceName(*Object, FLookupRoot) : AnsiString();
    const AnsiString OtherName = Other ? ReferenceName(*Other, FRootAncestor) : AnsiString();
    if (Name == OtherName)
        return;
    WritePropertyName(Property.Name);
    WriteIdent(Name.empty() ? AnsiString("nil") : Name);
}

void TWriter::WriteMethod(const TPropertyInfo& Property, const TEventBase& Event, const TEventBase* Other)
{
    const AnsiString OtherName = Other ? Other->GetHandlerName() : AnsiString();
    if (Event.GetHandlerName() == OtherName)
        return;
    WritePropertyName(Property.Name);
    WriteIdent(Event.GetHandlerName().empty() ? AnsiString("nil") : Event.GetHandlerName());
}

void TWriter::WriteCollection(const TCollection& Collection)
{
    const TDepth Depth(*this);
    WriteValue(TValueType::vaCollection);
    for (int Index = 0; Index < Collection.GetCount(); ++Index) {
        WriteListBegin();
        WriteProperties(*Collection[Index]);
        WriteListEnd();
    }
    WriteListEnd();
}

bool TWriter::CollectionsEqual(const TCollection& Left, const TCollection& Right)
{
    if (Left.GetCount() != Right.GetCount())
        return false;
    // Each as it would be written, with names seen from its own root.
    TMemoryStream Images[2];
    const TCollection* const Collections[2] = {&Left, &Right};
    TComponent* const Roots[2] = {FLookupRoot, FRootAncestor};
    for (int Index = 0; Index < 2; ++Index) {
        TWriter Writer(Images[Index]);
        Writer.FRoot = Roots[Index];
        Writer.FLookupRoot = Roots[Index];
        Writer.FDepth = FDepth;
        Writer.WriteCollection(*Collections[Index]);
    }
    return Images[0].GetBytes() == Images[1].GetBytes();
}

void TWriter::DefineProperty(const char* Name, const TReaderProc&, const TWriterProc& WriteData, bool HasData)
{
    if (!HasData || !WriteData)
        return;
    WritePropertyName(Name);
    const AnsiString Path = std::exchange(FPath, AnsiString());
    WriteData(*this);
    FPath = Path;
}

void TWriter::DefineBinaryProperty(const char* Name, const TStreamProc&, const TStreamProc& WriteData,
                                   bool HasData)
{
    if (!HasData || !WriteData)
        return;
    TMemoryStream Data;
    WriteData(Data);
    WritePropertyName(Name);
    WriteBinary(Data.GetMemory(), Data.GetBytes().size());
}

} // namespace vcl
