#pragma once

#include <any>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

#include "vcl/classes/Extended.h"
#include "vcl/system/Event.h"
#include "vcl/system/Object.h"
#include "vcl/system/Set.h"
#include "vcl/system/Types.h"

namespace vcl
{

class TPersistent;
class TComponent;
class TCollection;
class TCollectionItem;

enum class TTypeKind {
    Integer,     // up to 32 bits, with range and perhaps identifiers (TColor, TCursor)
    Int64,       //
    Char,        // one byte
    WideChar,    // one UTF-16 unit
    Enumeration, // Boolean included
    Set,         //
    String,      // AnsiString
    WideText,    // WideString
    Float,       //
    Class,       // a persistent: an owned sub-object or a component reference
    Method,      // an event
};

enum class TFloatKind { Single, Double, Extended, Currency };

/// Names that stand for some values of an integer type in form files ("clWindow").
struct TIntegerIdentifier {
    const char* Name;
    std::int64_t Value;
};

/// The type of a published property: one immutable description for each type.
struct TTypeInfo {
    TTypeKind Kind = TTypeKind::Integer;
    const char* Name = "";
    std::int64_t Min = 0;                        // Integer, Int64, Char, WideChar: range; Enumeration: 0
    std::int64_t Max = 0;                        // Enumeration: ordinal of the last value
    std::vector<const char*> ValueNames;         // Enumeration
    const TTypeInfo* Element = nullptr;          // Set
    TFloatKind Float = TFloatKind::Double;       // Float
    std::vector<TIntegerIdentifier> Identifiers; // Integer
    const TClass& (*Class)() = nullptr;          // Class
    const std::type_info* Signature = nullptr;   // Method

    bool IsBoolean() const;
    /// The name for people: the class's for Class, Name for all others.
    AnsiString DisplayName() const;
    /// Ordinal of a value name, compared without regard to case; nothing when there is none.
    std::optional<std::int64_t> OrdinalOf(std::string_view ValueName) const;
    std::optional<std::int64_t> IdentifierValue(std::string_view Identifier) const;
    const char* IdentifierName(std::int64_t Value) const; // null when none
};

/// Description of T. Specialise TypeTraits<T>::Info() for an enumeration or another type of one's own:
///
///     template <> struct TypeTraits<TBorderStyle> {
///         static const TTypeInfo& Info() {
///             static const TTypeInfo Type = EnumerationType("TBorderStyle", {"bsNone", "bsSingle"});
///             return Type;
///         }
///     };
///
/// A set of it is then described by SetName: `static constexpr const char* SetName = "TAnchors";`.
template <class T>
struct TypeTraits;

TTypeInfo EnumerationType(const char* Name, std::initializer_list<const char*> ValueNames);
TTypeInfo IntegerType(const char* Name, std::int64_t Min, std::int64_t Max,
                      std::initializer_list<TIntegerIdentifier> Identifiers = {});
TTypeInfo SetType(const char* Name, const TTypeInfo& Element);
TTypeInfo FloatType(const char* Name, TFloatKind Kind);

/// Types that are plain C++ types here but have a name of their own in tables (TDate, TTime, TShortCut, ...).
const TTypeInfo& DateType();
const TTypeInfo& TimeType();
const TTypeInfo& DateTimeType();

/// A property's value without its static type. Ordinals, sets and Booleans are int64_t (sets as bits); floats
/// keep the ten bytes of the form file's format; events are the event itself.
using TPropertyValue =
    std::variant<std::monostate, std::int64_t, TExtended, AnsiString, WideString, TPersistent*, TEventBase*>;

/// One row of a class's property table.
struct TPropertyInfo {
    const char* Name = "";
    const TTypeInfo* Type = nullptr;
    TPropertyValue (*Get)(const TPersistent&) = nullptr;
    /// Null for read-only properties (sub-objects may be read-only and still stream their own properties).
    void (*Set)(TPersistent&, const TPropertyValue&) = nullptr;
    /// Declared default of an ordinal, Boolean or set (as bits); nothing: always written.
    std::optional<std::int64_t> Default;
    /// Null: stored according to the default alone. Otherwise also asked.
    bool (*IsStored)(const TPersistent&) = nullptr;
    /// False for a row a class only declares, so that descendants can publish it by name.
    bool IsPublished = true;
};

/// The rule of NeverStored: always false, and the same function for every row so that tools can tell.
bool NeverStoredRule(const TPersistent& Object);

/// A row in the making; see Published, Declared and Publish.
class TPropertyRow
{
public:
    explicit TPropertyRow(TPropertyInfo Info) : FInfo(std::move(Info)) {}
    /// A reference to a row of an ancestor, resolved when the table is made.
    explicit TPropertyRow(const char* AncestorRow) : FIsReference(true) { FInfo.Name = AncestorRow; }

    template <class T>
    TPropertyRow Default(T Value) const
    {
        TPropertyRow Row = *this;
        if constexpr (requires { Value.Bits(); })
            Row.FDefault = static_cast<std::int64_t>(Value.Bits());
        else
            Row.FDefault = static_cast<std::int64_t>(Value);
        Row.FDefaultChanged = true;
        return Row;
    }
    TPropertyRow NoDefault() const
    {
        TPropertyRow Row = *this;
        Row.FDefault.reset();
        Row.FDefaultChanged = true;
        return Row;
    }
    /// A rule as a const member function: `.Stored<&TControl::IsColorStored>()`.
    template <auto Rule>
    TPropertyRow Stored() const;
    TPropertyRow NeverStored() const
    {
        TPropertyRow Row = *this;
        Row.FInfo.IsStored = &NeverStoredRule;
        Row.FStoredChanged = true;
        return Row;
    }
    TPropertyRow Type(const TTypeInfo& Info) const
    {
        TPropertyRow Row = *this;
        Row.FInfo.Type = &Info;
        return Row;
    }

    /// The finished row; references are looked up from Parent upwards.
    TPropertyInfo Resolve(const TClass* Parent) const;

private:
    friend TPropertyRow Declared(TPropertyRow Row);

    TPropertyInfo FInfo;
    std::optional<std::int64_t> FDefault;
    bool FDefaultChanged = false;
    bool FStoredChanged = false;
    bool FIsReference = false;
};

/// The rows a class adds to its ancestors' and the methods it publishes for form files to name.
class TPropertyTable
{
public:
    using TMethodBinder = std::any (*)(TObject& Object);
    struct TMethodRow {
        const char* Name;
        TMethodBinder Bind;
        /// The signature of the events that accept the method.
        const std::type_info* Signature;
    };

    TPropertyTable(const TClass* Parent, std::initializer_list<TPropertyRow> Rows,
                   std::initializer_list<TMethodRow> Methods);

    const std::vector<TPropertyInfo>& GetRows() const { return FRows; }
    const std::vector<TMethodRow>& GetMethods() const { return FMethods; }

private:
    std::vector<TPropertyInfo> FRows;
    std::vector<TMethodRow> FMethods;
};

/// The published properties of Class in streaming order: ancestors' rows first, each in the order of its
/// table; a row published again keeps its first place with its last settings.
std::vector<const TPropertyInfo*> PublishedProperties(const TClass& Class);
/// The published property of that name (case ignored), or null.
const TPropertyInfo* FindProperty(const TClass& Class, std::string_view Name);
/// The published method of that name (case ignored), or null.
const TPropertyTable::TMethodRow* FindMethod(const TClass& Class, std::string_view Name);

/// Published<&T::GetX, &T::SetX>("X"), Published<&T::GetX>("X") read-only, Published<&T::OnX>("OnX") events.
template <auto Getter, auto Setter = nullptr>
TPropertyRow Published(const char* Name);
/// A row that this class only declares: descendants publish it with Publish("X").
TPropertyRow Declared(TPropertyRow Row);
/// Publishes a row that an ancestor declares or publishes, perhaps with another default.
TPropertyRow Publish(const char* Name);
/// A method that form files may name as an event handler:
/// PublishedMethod<&TMainForm::OpenClick>("OpenClick").
template <auto Method>
TPropertyTable::TMethodRow PublishedMethod(const char* Name);

/// Describes class T; the only way a TClass is made:
///
///     const TClass& TStatusBar::StaticClass()
///     {
///         static const TClass Class = DefineClass<TStatusBar, TWinControl>("TStatusBar", {
///             Published<&TStatusBar::GetSimpleText, &TStatusBar::SetSimpleText>("SimpleText"),
///         });
///         return Class;
///     }
template <class T, class TParent>
TClass DefineClass(const char* Name, std::initializer_list<TPropertyRow> Rows = {},
                   std::initializer_list<TPropertyTable::TMethodRow> Methods = {});

} // namespace vcl

#include "vcl/classes/PropertiesDetail.h"
