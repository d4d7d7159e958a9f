#include "SampleTree.h"

#include <bit>

#include "SampleComponents.h"
#include "support/Hex.h"
#include "vcl/system/CodePage.h"

namespace vcl::tests
{

using nlohmann::json;

namespace
{

json DescribeProperties(const TPersistent& Object, TComponent& Root);

std::string BitsText(std::uint64_t Bits, int Digits)
{
    char Text[24];
    std::snprintf(Text, sizeof Text, "%0*llX", Digits, static_cast<unsigned long long>(Bits));
    return Text;
}

json DescribeFloat(const TExtended& Value, TFloatKind Kind)
{
    const double Double = Value.ToDouble();
    switch (Kind) {
    case TFloatKind::Single:
        return {{"single", BitsText(std::bit_cast<std::uint32_t>(static_cast<float>(Double)), 8)}};
    case TFloatKind::Double:
        return {{"double", BitsText(std::bit_cast<std::uint64_t>(Double), 16)}};
    case TFloatKind::Currency:
        return {{"currency", Value.ToCurrency().Scaled}};
    case TFloatKind::Extended:
        break;
    }
    std::string Bytes(Value.Bytes().rbegin(), Value.Bytes().rend());
    return {{"extended", ToHex(Bytes)}};
}

json DescribeOrdinal(const TTypeInfo& Type, std::int64_t Value)
{
    switch (Type.Kind) {
    case TTypeKind::Char:
        return std::string(1, static_cast<char>(Value));
    case TTypeKind::WideChar:
        return WideToUtf8(WideString(1, static_cast<char16_t>(Value)));
    case TTypeKind::Enumeration:
        return Type.IsBoolean() ? json(Value != 0) : json(Type.ValueNames[static_cast<std::size_t>(Value)]);
    case TTypeKind::Set: {
        json Names = json::array();
        for (std::size_t Bit = 0; Bit < Type.Element->ValueNames.size(); ++Bit)
            if ((Value >> Bit & 1) != 0)
                Names.push_back(Type.Element->ValueNames[Bit]);
        return Names;
    }
    default:
        return Value;
    }
}

json DescribeReference(const TComponent& Component, TComponent& Root)
{
    if (&Component == &Root)
        return {{"ref", Component.GetName()}, {"root", true}};
    const TComponent* const Owner = Component.GetOwnerComponent();
    return {{"ref", Owner == &Root ? Component.GetName() : Owner->GetName() + "." + Component.GetName()}};
}

json DescribeObject(const TPersistent* Object, TComponent& Root)
{
    if (!Object)
        return nullptr;
    if (const auto* Component = As<TComponent>(Object))
        return DescribeReference(*Component, Root);
    json Entries = json::array();
    if (const auto* Strings = As<TStrings>(Object)) {
        for (int Index = 0; Index < Strings->GetCount(); ++Index)
            Entries.push_back(Strings->GetString(Index));
        return {{"strings", Entries}};
    }
    if (const auto* Collection = As<TCollection>(Object)) {
        for (int Index = 0; Index < Collection->GetCount(); ++Index)
            Entries.push_back(DescribeProperties(*Collection->GetItem(Index), Root));
        return {{"items", Entries}};
    }
    return DescribeProperties(*Object, Root);
}

json DescribeValue(const TTypeInfo& Type, const TPropertyValue& Value, TComponent& Root)
{
    if (const auto* Ordinal = std::get_if<std::int64_t>(&Value))
        return DescribeOrdinal(Type, *Ordinal);
    if (const auto* Float = std::get_if<TExtended>(&Value))
        return DescribeFloat(*Float, Type.Float);
    if (const auto* Text = std::get_if<AnsiString>(&Value))
        return *Text;
    if (const auto* Wide = std::get_if<WideString>(&Value))
        return WideToUtf8(*Wide);
    if (const auto* Object = std::get_if<TPersistent*>(&Value))
        return DescribeObject(*Object, Root);
    const TEventBase* const Event = std::get<TEventBase*>(Value);
    return Event->IsAssigned() ? json{{"method", Event->GetHandlerName()}} : json(nullptr);
}

json DescribeProperties(const TPersistent& Object, TComponent& Root)
{
    json Result = json::object();
    for (const TPropertyInfo* Row : PublishedProperties(Object.ClassType()))
        if (std::string_view(Row->Name) != "Name" || !As<TComponent>(&Object))
            Result[Row->Name] = DescribeValue(*Row->Type, Row->Get(Object), Root);
    return Result;
}

json DescribeDefined(const TSampleData& Data)
{
    json Result = {{"Data", nullptr},       {"Pairs", Data.Pairs}, {"Mixed", nullptr},
                   {"Nested", Data.Nested}, {"Stamp", nullptr},    {"Flag", nullptr}};
    if (Data.Data)
        Result["Data"] = ToHex(std::string(Data.Data->begin(), Data.Data->end()));
    if (Data.Mixed)
        Result["Mixed"] = {Data.Mixed->Number, Data.Mixed->Text, Data.Mixed->Flag,
                           DescribeFloat(Data.Mixed->Float, TFloatKind::Double), Data.Mixed->Ident};
    if (Data.Stamp)
        Result["Stamp"] = DescribeFloat(*Data.Stamp, TFloatKind::Double);
    if (Data.Flag)
        Result["Flag"] = *Data.Flag;
    return Result;
}

json DescribeComponent(TComponent& Component, TComponent& Root)
{
    json Result = {{"class", Component.ClassName()},
                   {"name", Component.GetName()},
                   {"props", DescribeProperties(Component, Root)},
                   {"children", json::array()}};
    const TComponent* const Owner = Component.GetOwnerComponent();
    if (Owner && Owner != &Root)
        Result["owner"] = Owner->GetName();
    if (Component.Is(TComponentState::csInline))
        Result["inline"] = true;
    if (!As<TSampleControl>(&Component))
        Result["design"] = {static_cast<std::int16_t>(Component.GetDesignInfo()),
                            static_cast<std::int16_t>(Component.GetDesignInfo() >> 16)};
    if (const auto* Data = As<TSampleData>(&Component))
        Result["defined"] = DescribeDefined(*Data);
    Component.GetChildren(
        [&](TComponent* Child) { Result["children"].push_back(DescribeComponent(*Child, Root)); }, &Root);
    return Result;
}

} // namespace

json DescribeTree(TComponent& Root)
{
    return DescribeComponent(Root, Root);
}

json WithoutSpellings(const json& Tree)
{
    if (Tree.is_array()) {
        json Result = json::array();
        for (const json& Entry : Tree)
            Result.push_back(WithoutSpellings(Entry));
        return Result;
    }
    if (!Tree.is_object())
        return Tree;
    const bool IsNumber = Tree.contains("value") && Tree.size() == 2;
    json Result = json::object();
    for (const auto& [Key, Value] : Tree.items())
        if (!IsNumber || Key != "value")
            Result[Key] = WithoutSpellings(Value);
    return Result;
}

} // namespace vcl::tests
