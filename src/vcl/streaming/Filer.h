#pragma once

#include <cstdint>
#include <functional>

#include "vcl/classes/Component.h"
#include "vcl/classes/Stream.h"

namespace vcl
{

class TReader;
class TWriter;

/// The kind of a value in a binary form file: one byte before it.
enum class TValueType : std::uint8_t {
    vaNull,       // ends a list
    vaList,       // values up to vaNull
    vaInt8,       //
    vaInt16,      //
    vaInt32,      //
    vaExtended,   // 10 bytes
    vaString,     // length byte
    vaIdent,      // length byte
    vaFalse,      //
    vaTrue,       //
    vaBinary,     // 4-byte length
    vaSet,        // identifiers, each a length byte and characters; an empty one ends it
    vaLString,    // 4-byte length
    vaNil,        //
    vaCollection, // items (vaList, properties, vaNull) up to vaNull
    vaSingle,     // 4 bytes
    vaCurrency,   // 8 bytes, ten-thousandths
    vaDate,       // 8 bytes, a double
    vaWString,    // 4-byte count of 16-bit units
    vaInt64,      //
    vaUTF8String, // 4-byte length
    vaDouble,     // 8 bytes
};

/// How deep objects, collections and lists may lie in each other in a form file. Deeper ones are refused: the
/// data must not decide how much stack is used.
constexpr int MaxFormDepth = 200;

/// What TReader and TWriter have in common for classes that declare data beyond their published properties:
///
///     void TStrings::DefineProperties(TFiler& Filer)
///     {
///         Filer.DefineProperty("Strings", [this](TReader& Reader) { ReadData(Reader); },
///                              [this](TWriter& Writer) { WriteData(Writer); }, GetCount() > 0);
///     }
class TFiler
{
public:
    using TReaderProc = std::function<void(TReader&)>;
    using TWriterProc = std::function<void(TWriter&)>;
    using TStreamProc = std::function<void(TStream&)>;

    TFiler() = default;
    TFiler(const TFiler&) = delete;
    TFiler& operator=(const TFiler&) = delete;
    virtual ~TFiler() = default;

    /// Declares data as values under Name. A reader calls ReadData when it meets Name; a writer calls
    /// WriteData when HasData. Either may be null.
    virtual void DefineProperty(const char* Name, const TReaderProc& ReadData, const TWriterProc& WriteData,
                                bool HasData) = 0;
    /// Declares data as a block of bytes under Name; the reader's stream holds exactly the block.
    virtual void DefineBinaryProperty(const char* Name, const TStreamProc& ReadData,
                                      const TStreamProc& WriteData, bool HasData) = 0;

    /// The form being read or written.
    TComponent* GetRoot() const { return FRoot; }
    /// Where names are looked up: the form, or inside an inline frame the frame.
    TComponent* GetLookupRoot() const { return FLookupRoot; }
    /// While writing: the object in the ancestor form that the current one is compared with, or null. Only
    /// differences are written.
    TPersistent* GetAncestor() const { return FAncestor; }

protected:
    TComponent* FRoot = nullptr;
    TComponent* FLookupRoot = nullptr;
    TPersistent* FAncestor = nullptr;
};

} // namespace vcl
