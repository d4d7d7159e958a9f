#include <algorithm>
#include <cstdio>

#include "ksform/Json.h"
#include "ksform/Verbs.h"
#include "vcl/classes/Component.h"

namespace ksform
{

using namespace vcl;

namespace
{

const char* KindName(TTypeKind Kind)
{
    switch (Kind) {
    case TTypeKind::Integer:
        return "integer";
    case TTypeKind::Int64:
        return "int64";
    case TTypeKind::Char:
        return "char";
    case TTypeKind::WideChar:
        return "widechar";
    case TTypeKind::Enumeration:
        return "enumeration";
    case TTypeKind::Set:
        return "set";
    case TTypeKind::String:
        return "string";
    case TTypeKind::WideText:
        return "widestring";
    case TTypeKind::Float:
        return "float";
    case TTypeKind::Class:
        return "object";
    case TTypeKind::Method:
        return "event";
    }
    return "";
}

std::string SetText(const TTypeInfo& Type, std::int64_t Bits)
{
    std::string Text;
    for (std::size_t Bit = 0; Bit < Type.Element->ValueNames.size(); ++Bit)
        if ((Bits >> Bit & 1) != 0)
            Text += (Text.empty() ? "" : ", ") + std::string(Type.Element->ValueNames[Bit]);
    return "[" + Text + "]";
}

/// As a form file spells the value; empty when the property is always written or has an implied default.
std::string DefaultText(const TPropertyInfo& Row)
{
    if (!Row.Default)
        return "";
    const TTypeInfo& Type = *Row.Type;
    if (Type.Kind == TTypeKind::Set)
        return SetText(Type, *Row.Default);
    if (Type.Kind == TTypeKind::Enumeration && *Row.Default >= 0 && *Row.Default <= Type.Max)
        return Type.ValueNames[static_cast<std::size_t>(*Row.Default)];
    if (Type.Kind == TTypeKind::Char && *Row.Default >= ' ')
        return std::string("'") + static_cast<char>(*Row.Default) + "'";
    if (const char* Identifier = Type.IdentifierName(*Row.Default))
        return Identifier;
    return std::to_string(*Row.Default);
}

const char* StoredText(const TPropertyInfo& Row)
{
    if (!Row.IsStored)
        return "always";
    return Row.IsStored == &NeverStoredRule ? "never" : "sometimes";
}

std::string PropertyJson(const TPropertyInfo& Row)
{
    const std::string Default = DefaultText(Row);
    const bool IsReadOnly =
        !Row.Set && Row.Type->Kind != TTypeKind::Method && Row.Type->Kind != TTypeKind::Class;
    return "{\"name\": " + JsonString(Row.Name) + ", \"type\": " + JsonString(Row.Type->DisplayName()) +
           ", \"kind\": " + JsonString(KindName(Row.Type->Kind)) +
           ", \"default\": " + (Row.Default ? JsonString(Default) : "null") +
           ", \"stored\": " + JsonString(StoredText(Row)) +
           ", \"readOnly\": " + (IsReadOnly ? "true" : "false") + "}";
}

std::string ClassJson(const TClass& Class)
{
    std::string Properties;
    std::string Events;
    for (const TPropertyInfo* Row : PublishedProperties(Class)) {
        std::string& List = Row->Type->Kind == TTypeKind::Method ? Events : Properties;
        List += (List.empty() ? "\n    " : ",\n    ") + PropertyJson(*Row);
    }
    return "{\"class\": " + JsonString(Class.Name) +
           ", \"parent\": " + JsonString(Class.Parent ? Class.Parent->Name : "") + ",\n  \"properties\": [" +
           Properties + "],\n  \"events\": [" + Events + "]}";
}

void PrintJson(const std::vector<const TClass*>& Classes)
{
    std::string Text;
    for (const TClass* Class : Classes)
        Text += (Text.empty() ? "" : ",\n ") + ClassJson(*Class);
    std::printf("[%s]\n", Text.c_str());
}

void PrintClasses(const std::vector<const TClass*>& Classes)
{
    for (const TClass* Class : Classes)
        std::printf("%-28s %s\n", Class->Name, Class->Parent ? Class->Parent->Name : "");
}

void PrintRows(const TClass& Class, bool Events)
{
    for (const TPropertyInfo* Row : PublishedProperties(Class))
        if ((Row->Type->Kind == TTypeKind::Method) == Events)
            std::printf("  %-24s %-24s %-10s %s\n", Row->Name, Row->Type->DisplayName().c_str(),
                        StoredText(*Row), DefaultText(*Row).c_str());
}

void PrintClass(const TClass& Class)
{
    std::printf("%s", Class.Name);
    for (const TClass* Step = Class.Parent; Step; Step = Step->Parent)
        std::printf(" < %s", Step->Name);
    std::printf("\n\nProperties:\n  %-24s %-24s %-10s %s\n", "Name", "Type", "Stored", "Default");
    PrintRows(Class, false);
    std::printf("\nEvents:\n");
    PrintRows(Class, true);
}

} // namespace

int RunList(const TArguments& Arguments)
{
    bool AsJson = false;
    std::string Name;
    for (const std::string& Argument : Arguments) {
        if (Argument == "--json")
            AsJson = true;
        else if (!Argument.empty() && Argument.front() == '-')
            throw EUsage("there is no option " + Argument);
        else if (!Name.empty())
            throw EUsage("one class name at most");
        else
            Name = Argument;
    }
    const std::vector<const TClass*> Classes =
        Name.empty() ? RegisteredClasses() : std::vector{&FindClass(Name)};
    if (AsJson)
        PrintJson(Classes);
    else if (Name.empty())
        PrintClasses(Classes);
    else
        PrintClass(*Classes.front());
    return Success;
}

} // namespace ksform
