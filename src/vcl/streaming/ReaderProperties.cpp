// Properties: from a name and a value in the stream to an assignment.

#include <climits>

#include "vcl/classes/Collection.h"
#include "vcl/streaming/LoadList.h"
#include "vcl/streaming/ReaderDepth.h"

namespace vcl
{

namespace
{

/// An error that already says which property it is about.
class EPlacedReadError final : public EReadError
{
public:
    using EReadError::EReadError;
};

bool IsComponentType(const TTypeInfo& Type)
{
    return Type.Class && Type.Class().InheritsFrom(TComponent::StaticClass());
}

/// The object below Instance that a dotted name goes through.
TPersistent& SubObject(TPersistent& Instance, const AnsiString& Name)
{
    const TPropertyInfo* const Property = FindProperty(Instance.ClassType(), Name);
    if (!Property)
        throw EReadError("The property " + Name + " does not exist");
    TPersistent* Object = nullptr;
    if (Property->Type->Kind == TTypeKind::Class)
        Object = std::get<TPersistent*>(Property->Get(Instance));
    const TComponent* const Component = As<TComponent>(Object);
    if (!Object || (Component && !Component->GetComponentStyle().Contains(TComponentStyle::csSubComponent)))
        throw EReadError(Name + " holds no object with properties of its own");
    return *Object;
}

} // namespace

void TReader::ReadProperties(TPersistent& Instance)
{
    while (!EndOfList())
        ReadProperty(Instance);
}

void TReader::ReadProperty(TPersistent& Instance)
{
    const std::int64_t Start = GetPosition();
    const AnsiString Name = ReadStr();
    const std::int64_t ValueStart = GetPosition();
    FPropertyPosition = Start;
    try {
        ReadNamedProperty(Instance, Name);
    } catch (const EPlacedReadError&) {
        throw;
    } catch (const Exception& Error) {
        const EPlacedReadError Placed("Error reading " + PathOf(Instance) + "." + Name + ": " + Error.what());
        FErrorPosition = Start;
        if (!OnError)
            throw Placed;
        // Where the value itself is damaged this raises, and nobody is asked.
        SetPosition(ValueStart);
        SkipValue();
        if (!IsAccepted(Placed, Start))
            throw Placed;
    }
}

void TReader::ReadNamedProperty(TPersistent& Instance, const AnsiString& Name)
{
    TPersistent* Object = &Instance;
    AnsiString Last = Name;
    for (std::size_t Dot = Last.find('.'); Dot != AnsiString::npos; Dot = Last.find('.')) {
        Object = &SubObject(*Object, Last.substr(0, Dot));
        Last.erase(0, Dot + 1);
    }
    if (const TPropertyInfo* const Property = FindProperty(Object->ClassType(), Last))
        ReadPropertyValue(*Object, *Property);
    else if (!ReadDefinedProperty(*Object, Last))
        throw EReadError("The property does not exist");
}

bool TReader::ReadDefinedProperty(TPersistent& Instance, const AnsiString& Name)
{
    // What is read below may itself ask for defined properties.
    const AnsiString OuterName = std::exchange(FDefinedName, Name);
    const bool OuterRead = std::exchange(FDefinedRead, false);
    try {
        Instance.DefineProperties(*this);
    } catch (...) {
        FDefinedName = OuterName;
        FDefinedRead = OuterRead;
        throw;
    }
    FDefinedName = OuterName;
    return std::exchange(FDefinedRead, OuterRead);
}

void TReader::DefineProperty(const char* Name, const TReaderProc& ReadData, const TWriterProc&, bool)
{
    if (FDefinedRead || !ReadData || !SameText(Name, FDefinedName))
        return;
    ReadData(*this);
    FDefinedRead = true;
}

void TReader::DefineBinaryProperty(const char* Name, const TStreamProc& ReadData, const TStreamProc&, bool)
{
    if (FDefinedRead || !ReadData || !SameText(Name, FDefinedName))
        return;
    const std::vector<std::uint8_t> Bytes = ReadBinary();
    TMemoryStream Stream;
    Stream.WriteBuffer(Bytes.data(), static_cast<std::int64_t>(Bytes.size()));
    Stream.SetPosition(0);
    ReadData(Stream);
    FDefinedRead = true;
}

void TReader::ReadPropertyValue(TPersistent& Instance, const TPropertyInfo& Property)
{
    switch (Property.Type->Kind) {
    case TTypeKind::Class:
        ReadClassValue(Instance, Property);
        break;
    case TTypeKind::Method:
        ReadMethodValue(Instance, Property);
        break;
    default:
        if (!Property.Set)
            throw EReadError("The property is read-only");
        Property.Set(Instance, ReadTypedValue(*Property.Type));
    }
}

void TReader::ReadClassValue(TPersistent& Instance, const TPropertyInfo& Property)
{
    switch (NextValue()) {
    case TValueType::vaCollection: {
        auto* const Collection = As<TCollection>(std::get<TPersistent*>(Property.Get(Instance)));
        if (!Collection)
            InvalidValue();
        ReadCollection(*Collection);
        break;
    }
    case TValueType::vaNil:
        if (!Property.Set || !IsComponentType(*Property.Type))
            InvalidValue();
        ReadValue();
        if (FLoading)
            FLoading->AddReference(Instance, Property, "", FPropertyPosition);
        Property.Set(Instance, static_cast<TPersistent*>(nullptr));
        break;
    case TValueType::vaIdent:
        if (!Property.Set || !IsComponentType(*Property.Type) || !FLoading)
            InvalidValue();
        FLoading->AddReference(Instance, Property, ReadIdent(), FPropertyPosition);
        break;
    default:
        InvalidValue();
    }
}

void TReader::ReadMethodValue(TPersistent& Instance, const TPropertyInfo& Property)
{
    TEventBase* const Event = std::get<TEventBase*>(Property.Get(Instance));
    if (NextValue() == TValueType::vaNil) {
        ReadValue();
        Event->Reset();
        return;
    }
    if (NextValue() != TValueType::vaIdent)
        InvalidValue();
    const AnsiString Name = ReadIdent();
    const auto* const Method = FRoot ? FindMethod(FRoot->ClassType(), Name) : nullptr;
    if (Method && *Method->Signature == Event->Signature() && Event->Bind(Method->Bind(*FRoot), Method->Name))
        return;
    bool Handled = false;
    if (OnFindMethod)
        OnFindMethod(*this, *Event, Name, Handled);
    if (!Handled)
        throw EReadError(Method ? "The handler " + Name + " has other parameters than the event"
                                : "The handler " + Name + " does not exist");
}

TPropertyValue TReader::ReadTypedValue(const TTypeInfo& Type)
{
    switch (Type.Kind) {
    case TTypeKind::String:
        return ReadString();
    case TTypeKind::WideText:
        return ReadWideString();
    case TTypeKind::Float:
        return ReadExtended();
    default:
        return ReadOrdinal(Type);
    }
}

std::int64_t TReader::ReadOrdinal(const TTypeInfo& Type)
{
    if (Type.Kind == TTypeKind::Int64)
        return ReadInt64();
    if (Type.Kind == TTypeKind::Char)
        return ReadChar();
    if (Type.Kind == TTypeKind::WideChar)
        return ReadWideChar();
    if (Type.Kind == TTypeKind::Set)
        return ReadSet(*Type.Element);
    if (Type.IsBoolean())
        return ReadBoolean() ? 1 : 0;
    if (NextValue() == TValueType::vaIdent || Type.Kind == TTypeKind::Enumeration) {
        if (NextValue() != TValueType::vaIdent)
            InvalidValue();
        const AnsiString Name = ReadIdent();
        const std::optional<std::int64_t> Value =
            Type.Kind == TTypeKind::Enumeration ? Type.OrdinalOf(Name) : Type.IdentifierValue(Name);
        if (!Value)
            throw EReadError("\"" + Name + "\" is no " + Type.Name);
        return *Value;
    }
    std::int64_t Value = ReadInt64();
    // Types of 32 bits take a number of the other sign for the same bits, as hexadecimal colours need.
    if (Type.Min == INT32_MIN && Value > INT32_MAX && Value <= UINT32_MAX)
        Value = static_cast<std::int32_t>(static_cast<std::uint32_t>(Value));
    else if (Type.Max == UINT32_MAX && Value < 0 && Value >= INT32_MIN)
        Value = static_cast<std::uint32_t>(Value);
    if (Value < Type.Min || Value > Type.Max)
        throw EReadError("The number " + IntToStr(Value) + " is out of the range of " + Type.Name);
    return Value;
}

void TReader::ReadCollection(TCollection& Collection)
{
    const TDepth Depth(*this);
    if (NextValue() != TValueType::vaCollection)
        InvalidValue();
    ReadValue();
    if (FLoading)
        FLoading->EnterCollection(Collection);
    Collection.BeginUpdate();
    try {
        Collection.Clear();
        while (!EndOfList()) {
            // Some writers number the items.
            if (NextValue() != TValueType::vaList)
                ReadInt64();
            ReadListBegin();
            ReadProperties(*Collection.Add());
            ReadListEnd();
        }
        ReadListEnd();
    } catch (...) {
        if (FLoading)
            FLoading->LeaveCollection();
        Collection.EndUpdate();
        throw;
    }
    if (FLoading)
        FLoading->LeaveCollection();
    Collection.EndUpdate();
}

} // namespace vcl
