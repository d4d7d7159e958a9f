#pragma once

// Checks every published property of a class from its table. A test calls it once for each class:
//
//     TEST(TimeViewProperties, AreSetReadStoredAndRefused)
//     {
//         CheckProperties([] { return std::make_unique<TKSTimeView>(nullptr); }, {.NotFree = {"Width"}});
//     }

#include <functional>
#include <memory>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "vcl/streaming/FormFile.h"
#include "vcl/streaming/Reader.h"
#include "vcl/streaming/Writer.h"

namespace vcl::tests
{

using TMakeComponent = std::function<std::unique_ptr<TComponent>()>;

struct TPropertyLoopOptions {
    /// Properties whose setter by rule does not keep every value it is given; they are streamed as they are.
    std::set<std::string> NotFree;
    /// Properties whose value follows another one's, so that a form read anew may hold another.
    std::set<std::string> NotStreamed;
};

namespace detail
{

inline TMemoryStream& Rewind(TMemoryStream& Stream)
{
    Stream.SetPosition(0);
    return Stream;
}

inline std::string TextOf(TComponent& Component)
{
    TMemoryStream Image;
    TMemoryStream Text;
    WriteComponent(Image, &Component);
    ObjectBinaryToText(Rewind(Image), Text);
    return {Text.GetBytes().begin(), Text.GetBytes().end()};
}

/// Reads a form text into a component; handlers are known by name only.
inline void ReadText(const std::string& Text, TComponent& Component, bool AcceptHandlers = true)
{
    TMemoryStream Stream;
    Stream.WriteBuffer(Text.data(), static_cast<std::int64_t>(Text.size()));
    ReadForm(Rewind(Stream), &Component, [AcceptHandlers](TReader& Reader) {
        Reader.OnFindMethod = [AcceptHandlers](TReader&, TEventBase& Event, const AnsiString& Name,
                                               bool& Handled) {
            Event.SetHandlerName(Name);
            Handled = AcceptHandlers;
        };
    });
}

inline bool IsWritten(TComponent& Component, const char* Property)
{
    const std::string Start = std::string("\n  ") + Property;
    const std::string Text = TextOf(Component);
    return Text.find(Start + " = ") != std::string::npos || Text.find(Start + ".") != std::string::npos;
}

inline bool IsPlain(const TPropertyInfo& Row)
{
    return Row.Type->Kind != TTypeKind::Class && Row.Type->Kind != TTypeKind::Method;
}

/// Values to try: the ends of the range, every enumeration value, every single element of a set.
inline std::vector<TPropertyValue> SampleValues(const TTypeInfo& Type)
{
    std::vector<TPropertyValue> Values;
    switch (Type.Kind) {
    case TTypeKind::Enumeration:
        for (std::int64_t Ordinal = 0; Ordinal <= Type.Max; ++Ordinal)
            Values.emplace_back(Ordinal);
        break;
    case TTypeKind::Set:
        Values.emplace_back(std::int64_t{0});
        for (std::int64_t Bit = 0; Bit <= Type.Element->Max; ++Bit)
            Values.emplace_back(std::int64_t{1} << Bit);
        break;
    case TTypeKind::String:
        Values = {AnsiString("Some text"), AnsiString("it's\r\nm\xC3\xB6re"), AnsiString()};
        break;
    case TTypeKind::WideText:
        Values = {WideString(u"Some text"), WideString(u"m\u00F6re"), WideString()};
        break;
    case TTypeKind::Float:
        Values = {TExtended(1.5), TExtended(-3.25), TExtended(0.0)};
        break;
    case TTypeKind::Char:
        Values = {std::int64_t{'A'}, std::int64_t{'\''}, std::int64_t{9}};
        break;
    case TTypeKind::WideChar:
        Values = {std::int64_t{'A'}, std::int64_t{0x416}};
        break;
    default:
        Values = {std::int64_t{1}, std::int64_t{0}, std::int64_t{17}};
        if (Type.Min < 0)
            Values.emplace_back(std::int64_t{-1});
    }
    return Values;
}

/// The text of a value that no property of the type accepts.
inline const char* WrongValue(TTypeKind Kind)
{
    switch (Kind) {
    case TTypeKind::String:
    case TTypeKind::WideText:
    case TTypeKind::Method:
    case TTypeKind::Class:
        return "5";
    case TTypeKind::Float:
        return "'1.5'";
    default:
        return "'text'";
    }
}

inline void CheckSetAndRead(const TMakeComponent& Make, const TPropertyInfo& Row,
                            const TPropertyLoopOptions& Options)
{
    for (const TPropertyValue& Value : SampleValues(*Row.Type)) {
        const auto Component = Make();
        Row.Set(*Component, Value);
        if (!Options.NotFree.contains(Row.Name)) {
            EXPECT_EQ(Row.Get(*Component), Value);
        }
        if (Options.NotStreamed.contains(Row.Name))
            continue;
        // Through the text form and, inside it, the binary one.
        const auto Read = Make();
        ReadText(TextOf(*Component), *Read);
        if (IsWritten(*Component, Row.Name)) {
            EXPECT_EQ(Row.Get(*Read), Row.Get(*Component));
        }
        EXPECT_EQ(TextOf(*Read), TextOf(*Component));
    }
}

inline void CheckDefault(const TMakeComponent& Make, const TPropertyInfo& Row)
{
    const auto Component = Make();
    if (Row.Default) {
        Row.Set(*Component, *Row.Default);
        if (Row.Get(*Component) == TPropertyValue(*Row.Default)) {
            EXPECT_FALSE(IsWritten(*Component, Row.Name)) << "written with its default";
        }
        return;
    }
    const bool HasImpliedDefault = !std::holds_alternative<std::int64_t>(Row.Get(*Component));
    const bool IsStored = !Row.IsStored || Row.IsStored(*Component);
    if (!HasImpliedDefault && IsStored) {
        EXPECT_TRUE(IsWritten(*Component, Row.Name)) << "has no default, so it is always written";
    }
}

inline void CheckWrongType(const TMakeComponent& Make, const TPropertyInfo& Row)
{
    const auto Component = Make();
    const std::string Text = "object " + Component->ClassName() + "\n  " + Row.Name + " = " +
                             WrongValue(Row.Type->Kind) + "\nend\n";
    EXPECT_THROW(ReadText(Text, *Component, false), EReadError) << "takes " << WrongValue(Row.Type->Kind);
}

inline void CheckEvent(const TMakeComponent& Make, const TPropertyInfo& Row)
{
    const auto Component = Make();
    std::get<TEventBase*>(Row.Get(*Component))->SetHandlerName("SomeHandler");
    const auto Read = Make();
    ReadText(TextOf(*Component), *Read);
    EXPECT_EQ(std::get<TEventBase*>(Row.Get(*Read))->GetHandlerName(), "SomeHandler");
}

} // namespace detail

/// Every published property is set and read, kept by the text and binary forms, left out with its default,
/// and refuses a value of another type.
inline void CheckProperties(const TMakeComponent& Make, const TPropertyLoopOptions& Options = {})
{
    const auto First = Make();
    for (const TPropertyInfo* Row : PublishedProperties(First->ClassType())) {
        if (std::string_view(Row->Name) == "Name")
            continue;
        SCOPED_TRACE(First->ClassName() + "." + Row->Name);
        if (detail::IsPlain(*Row) && Row->Set) {
            detail::CheckSetAndRead(Make, *Row, Options);
            detail::CheckDefault(Make, *Row);
        }
        if (Row->Type->Kind == TTypeKind::Method)
            detail::CheckEvent(Make, *Row);
        detail::CheckWrongType(Make, *Row);
    }
}

} // namespace vcl::tests
