#pragma once

#include <memory>
#include <vector>

#include "vcl/streaming/Filer.h"

namespace vcl
{

class TCollection;

/// Writes components as a binary form image: what differs from the declared defaults or, below an ancestor
/// form, from the ancestor.
///
///     TMemoryStream Stream;
///     TWriter(Stream).WriteDescendent(&Form, nullptr);
class TWriter : public TFiler
{
public:
    explicit TWriter(TStream& Stream);
    ~TWriter() override;

    // Values, each in its shortest form.
    void WriteValue(TValueType Type);
    void WriteListBegin() { WriteValue(TValueType::vaList); }
    void WriteListEnd() { WriteValue(TValueType::vaNull); }
    void WriteBoolean(bool Value);
    void WriteChar(char Value);
    void WriteWideChar(char16_t Value);
    void WriteInteger(std::int64_t Value);
    void WriteExtended(const TExtended& Value);
    void WriteFloat(double Value) { WriteExtended(TExtended(Value)); }
    /// The bytes as they are.
    void WriteString(std::string_view Value);
    /// As a narrow string while all characters are ASCII.
    void WriteWideString(std::u16string_view Value);
    void WriteIdent(std::string_view Value);
    void WriteBinary(const void* Bytes, std::size_t Count);
    void WriteSet(std::int64_t Bits, const TTypeInfo& ElementType);
    void WriteCollection(const TCollection& Collection);
    /// A name: length byte and at most 255 characters, without a type byte.
    void WriteStr(std::string_view Value);
    void WriteBytes(const void* Bytes, std::size_t Count);

    // Components.
    void WriteSignature();
    /// Writes a whole form; with an ancestor only what differs from it.
    void WriteDescendent(TComponent* Root, TComponent* Ancestor = nullptr);
    void WriteComponent(TComponent* Component);
    /// Published properties and defined data, without an end mark.
    void WriteProperties(TPersistent& Instance);

    void DefineProperty(const char* Name, const TReaderProc& ReadData, const TWriterProc& WriteData,
                        bool HasData) override;
    void DefineBinaryProperty(const char* Name, const TStreamProc& ReadData, const TStreamProc& WriteData,
                              bool HasData) override;

    /// May give the ancestor of a component: for an inline frame that the ancestor form does not have, the
    /// pristine frame. Without it a new instance of the frame's class serves.
    std::function<void(TWriter&, TComponent* Component, TComponent*& Ancestor)> OnFindAncestor;

private:
    struct TChildren;
    class TDepth;

    TComponent* FindAncestor(TComponent& Component);
    TComponent* InlineAncestor(TComponent& Component);
    void WriteHeader(TComponent& Component, TComponent* Inherited);
    void WriteChildren(TComponent& Component, TComponent* Ancestor);
    void WriteProperty(TPersistent& Instance, const TPropertyInfo& Property);
    bool IsDefault(const TPropertyInfo& Property, const TPropertyValue& Value,
                   const TPropertyValue* Ancestor) const;
    void WriteTypedValue(const TTypeInfo& Type, const TPropertyValue& Value);
    void WriteOrdinal(const TTypeInfo& Type, std::int64_t Value);
    void WriteClass(const TPropertyInfo& Property, TPersistent* Object, TPersistent* Other, bool HasAncestor);
    void WriteReference(const TPropertyInfo& Property, TComponent* Object, TComponent* Other);
    void WriteMethod(const TPropertyInfo& Property, const TEventBase& Event, const TEventBase* Other);
    void WritePropertyName(std::string_view Name);
    bool CollectionsEqual(const TCollection& Left, const TCollection& Right);

    TStream& FStream;
    /// Dotted names of the sub-objects around the property being written.
    AnsiString FPath;
    int FDepth = 0;
    /// The form, or frame, that the ancestors found below belong to.
    TComponent* FRootAncestor = nullptr;
    TChildren* FChildren = nullptr;
    std::vector<std::unique_ptr<TComponent>> FInlineAncestors;
};

} // namespace vcl
