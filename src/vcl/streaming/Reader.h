#pragma once

#include <memory>
#include <vector>

#include "vcl/streaming/Filer.h"

namespace vcl
{

class TCollection;
class TLoadList;

/// A reference that named nothing.
struct TUnresolvedReference {
    AnsiString Property; // "Form1.Button2.Buddy"
    AnsiString Name;
    std::int64_t Position = 0; // of the property in the stream
};

/// Reads components from a binary form image.
///
///     TFileStream Stream("main.dfm", fmOpenRead);
///     TReader(Stream).ReadRootComponent(&Form);
///
/// Every error in the data raises EReadError, EClassNotFound or EComponentError, unless OnError accepts it.
/// Lengths are checked against the bytes that are left before memory is taken for them.
class TReader : public TFiler
{
public:
    /// Reads from the stream's position. Bytes after the image stay unread: once the root has been read, the
    /// stream's position is the first byte after it.
    explicit TReader(TStream& Stream);
    ~TReader() override;

    /// Position of the next byte in the stream.
    std::int64_t GetPosition();
    void SetPosition(std::int64_t Position);
    /// Sets the stream's position to that of the reader.
    void FlushBuffer();

    // Values. Each raises EReadError when the next value is of another kind.
    TValueType NextValue();
    TValueType ReadValue();
    void SkipValue();
    bool EndOfList();
    void ReadListBegin();
    void ReadListEnd();
    bool ReadBoolean();
    char ReadChar();
    char16_t ReadWideChar();
    /// 32 bits; a larger value raises EReadError.
    int ReadInteger();
    std::int64_t ReadInt64();
    /// Any floating point or integer value.
    TExtended ReadExtended();
    double ReadFloat() { return ReadExtended().ToDouble(); }
    /// Any kind of string; wide ones are converted to the current code page.
    AnsiString ReadString();
    WideString ReadWideString();
    /// An identifier; False, True and nil are given as such words.
    AnsiString ReadIdent();
    std::vector<std::uint8_t> ReadBinary();
    /// The elements of a set as bits.
    std::int64_t ReadSet(const TTypeInfo& ElementType);
    /// Replaces the collection's items.
    void ReadCollection(TCollection& Collection);
    /// A name: length byte and characters, without a type byte.
    AnsiString ReadStr();
    void ReadBytes(void* Buffer, std::size_t Count);

    // Components.
    void ReadSignature();
    /// Reads a whole form: into Root, or with null into a new instance of the registered class, which the
    /// caller then owns. After a failure a new instance is gone and a given root keeps what was read.
    TComponent* ReadRootComponent(TComponent* Root = nullptr);
    /// Passes over a whole form, signature included, and checks nothing but its structure. After an error the
    /// reader's position tells where.
    void SkipRootComponent();
    /// For ReadState: the properties and children of Instance.
    void ReadData(TComponent& Instance);
    /// For collection items and the like: properties up to the end of the list.
    void ReadProperties(TPersistent& Instance);

    void DefineProperty(const char* Name, const TReaderProc& ReadData, const TWriterProc& WriteData,
                        bool HasData) override;
    void DefineBinaryProperty(const char* Name, const TStreamProc& ReadData, const TStreamProc& WriteData,
                              bool HasData) override;

    /// Owner and parent of the components being read.
    TComponent* GetOwner() const { return FOwner; }
    void SetOwner(TComponent* Owner) { FOwner = Owner; }
    TComponent* GetParent() const { return FParent; }
    void SetParent(TComponent* Parent) { FParent = Parent; }

    /// Whether the form being read is a descendant's, "inherited" in its first word.
    bool IsInherited() const { return FIsInherited; }
    /// The name of the root's class in the stream, which is not always that of the root.
    const AnsiString& GetRootClassName() const { return FRootClassName; }
    /// Where the last error lies: first byte of the property's name, or of the object's class name.
    std::int64_t GetErrorPosition() const { return FErrorPosition; }
    /// References of the form that named nothing; they stay null.
    const std::vector<TUnresolvedReference>& GetUnresolved() const { return FUnresolved; }

    /// Handled = true skips the property or object at fault and goes on. Damage to the file's structure is
    /// not offered: nothing after it can be trusted.
    std::function<void(TReader&, const Exception& Error, bool& Handled)> OnError;
    /// Assigns the handler of that name to Event; asked for names that the root does not publish.
    std::function<void(TReader&, TEventBase& Event, const AnsiString& Name, bool& Handled)> OnFindMethod;
    /// May give the class of an unregistered name.
    std::function<void(TReader&, const AnsiString& Name, const TClass*& Class)> OnFindComponentClass;
    /// May give the component that an "inherited" object means when the form has none of that name; it must
    /// have been named and inserted.
    std::function<void(TReader&, const AnsiString& ClassName, const AnsiString& Name, TComponent*& Component)>
        OnAncestorNotFound;
    /// May change the name an object is given.
    std::function<void(TReader&, TComponent* Component, AnsiString& Name)> OnSetName;
    /// May give the component of a name that the form does not have.
    std::function<TComponent*(TReader&, const AnsiString& Name)> OnFindReference;

private:
    struct TObjectHeader;
    class TDepth;
    friend class TLoadList;

    [[noreturn]] static void InvalidValue();
    std::int64_t Available();
    std::size_t ReadLength(std::size_t UnitSize);
    std::uint64_t ReadLittleEndian(int Count);
    void SkipBytes(std::int64_t Count);
    void SkipProperties();
    void SkipComponentBody();
    std::uint8_t PeekByte();
    std::uint8_t ReadByte();
    AnsiString ReadCharacters(std::size_t Count);

    TObjectHeader ReadHeader();
    void ReadRoot(TComponent& Root, const TObjectHeader& Header);
    void ReadChild();
    void ReadChildBody(TComponent& Component, const TObjectHeader& Header);
    void ReadChildren(TComponent& Instance);
    TComponent* CreateChild(const TObjectHeader& Header);
    TComponent* FindInherited(const TObjectHeader& Header);
    void NameComponent(TComponent& Component, AnsiString Name);
    const TClass& ComponentClass(const AnsiString& Name);
    void ReadProperty(TPersistent& Instance);
    void ReadNamedProperty(TPersistent& Instance, const AnsiString& Name);
    bool ReadDefinedProperty(TPersistent& Instance, const AnsiString& Name);
    void ReadPropertyValue(TPersistent& Instance, const TPropertyInfo& Property);
    void ReadClassValue(TPersistent& Instance, const TPropertyInfo& Property);
    void ReadMethodValue(TPersistent& Instance, const TPropertyInfo& Property);
    TPropertyValue ReadTypedValue(const TTypeInfo& Type);
    std::int64_t ReadOrdinal(const TTypeInfo& Type);
    bool IsAccepted(const Exception& Error, std::int64_t Position);
    AnsiString PathOf(const TPersistent& Instance) const;

    // What the load list does to components.
    static bool Watch(TComponent& Component, TComponent& Watcher);
    static void Unwatch(TComponent& Component, TComponent& Watcher);
    static void TellLoaded(TComponent& Component);
    static void EndLoading(TComponent& Component);

    TStream& FStream;
    std::vector<std::uint8_t> FBuffer;
    std::size_t FBufferPosition = 0;
    int FDepth = 0;
    bool FIsInherited = false;
    AnsiString FRootClassName;
    TComponent* FOwner = nullptr;
    TComponent* FParent = nullptr;
    /// The name that DefineProperties is being asked for, and whether somebody knew it.
    AnsiString FDefinedName;
    bool FDefinedRead = false;
    std::int64_t FPropertyPosition = 0;
    std::int64_t FErrorPosition = 0;
    std::vector<TUnresolvedReference> FUnresolved;
    std::unique_ptr<TLoadList> FLoading;
};

} // namespace vcl
