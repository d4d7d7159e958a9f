#pragma once

// The template half of Properties.h: how a getter and a setter become a row.

#include <string>

namespace vcl
{

namespace detail
{

template <class>
struct TMemberOf;
template <class TResult, class TOwner>
struct TMemberOf<TResult (TOwner::*)() const> {
    using Owner = TOwner;
    using Value = std::remove_cvref_t<TResult>;
};
template <class TResult, class TOwner>
struct TMemberOf<TResult (TOwner::*)()> {
    using Owner = TOwner;
    using Value = std::remove_cvref_t<TResult>;
};
template <class TMember, class TOwner>
requires(!std::is_function_v<TMember>) struct TMemberOf<TMember TOwner::*> {
    using Owner = TOwner;
    using Value = TMember;
};

/// A descendant may bring a setter of its own for its ancestor's getter.
template <class>
struct TSetterOf;
template <class TOwner, class TParameter>
struct TSetterOf<void (TOwner::*)(TParameter)> {
    using Owner = TOwner;
};

template <class T>
concept IsEvent = std::is_base_of_v<TEventBase, T>;

template <class T>
concept IsSet = requires(T Value)
{
    Value.Bits();
    T::FromBits(0u);
};

template <class T>
concept IsPersistentPointer =
    std::is_pointer_v<T> && std::is_base_of_v<TObject, std::remove_cv_t<std::remove_pointer_t<T>>>;

template <class T>
const TTypeInfo& ClassType()
{
    static const TTypeInfo Type = [] {
        TTypeInfo Info;
        Info.Kind = TTypeKind::Class;
        // The class's name is asked for later: its table may be the one that is being made.
        Info.Class = &T::StaticClass;
        return Info;
    }();
    return Type;
}

template <class T>
const TTypeInfo& MethodType()
{
    static const TTypeInfo Type = [] {
        TTypeInfo Info;
        Info.Kind = TTypeKind::Method;
        Info.Name = "Event";
        Info.Signature = &typeid(T);
        return Info;
    }();
    return Type;
}

template <class T>
struct TElementOf;
template <class TEnum>
struct TElementOf<TSet<TEnum>> {
    using Type = TEnum;
};

template <class T>
const TTypeInfo& TypeOf()
{
    if constexpr (IsEvent<T>)
        return TypeTraits<T>::Info();
    else if constexpr (IsPersistentPointer<T>)
        return ClassType<std::remove_cv_t<std::remove_pointer_t<T>>>();
    else if constexpr (IsSet<T>) {
        using TElement = typename TElementOf<T>::Type;
        static const TTypeInfo Type = SetType(TypeTraits<TElement>::SetName, TypeTraits<TElement>::Info());
        return Type;
    } else
        return TypeTraits<T>::Info();
}

/// Properties hold what a program may write through; the table reaches them through const accessors.
template <class T>
TPropertyValue ToValue(const T& Value)
{
    if constexpr (IsPersistentPointer<T>)
        return const_cast<TPersistent*>(static_cast<const TPersistent*>(Value));
    else if constexpr (IsSet<T>)
        return static_cast<std::int64_t>(Value.Bits());
    else if constexpr (std::is_floating_point_v<T>)
        return TExtended(Value);
    else if constexpr (std::is_same_v<T, AnsiString>)
        return Value;
    else if constexpr (std::is_same_v<T, WideString>)
        return Value;
    else if constexpr (requires { TypeTraits<T>::ToValue(Value); })
        return TypeTraits<T>::ToValue(Value);
    else
        return static_cast<std::int64_t>(Value);
}

template <class T>
T FromValue(const TPropertyValue& Value)
{
    if constexpr (IsPersistentPointer<T>) {
        using TTarget = std::remove_cv_t<std::remove_pointer_t<T>>;
        TPersistent* const* Object = std::get_if<TPersistent*>(&Value);
        return Object && *Object ? static_cast<TTarget*>(*Object) : nullptr;
    } else if constexpr (IsSet<T>)
        return T::FromBits(static_cast<std::uint32_t>(std::get<std::int64_t>(Value)));
    else if constexpr (std::is_floating_point_v<T>)
        return static_cast<T>(std::get<TExtended>(Value).ToDouble());
    else if constexpr (std::is_same_v<T, AnsiString>)
        return std::get<AnsiString>(Value);
    else if constexpr (std::is_same_v<T, WideString>)
        return std::get<WideString>(Value);
    else if constexpr (requires { TypeTraits<T>::FromValue(Value); })
        return TypeTraits<T>::FromValue(Value);
    else
        return static_cast<T>(std::get<std::int64_t>(Value));
}

template <auto Getter>
TPropertyValue GetProperty(const TPersistent& Object)
{
    using TMember = TMemberOf<decltype(Getter)>;
    using TOwner = typename TMember::Owner;
    auto& Owner = const_cast<TOwner&>(static_cast<const TOwner&>(Object));
    if constexpr (IsEvent<typename TMember::Value>)
        return static_cast<TEventBase*>(&(Owner.*Getter));
    else if constexpr (std::is_member_object_pointer_v<decltype(Getter)>)
        return ToValue<typename TMember::Value>(Owner.*Getter);
    else
        return ToValue<typename TMember::Value>((Owner.*Getter)());
}

template <auto Getter, auto Setter>
void SetProperty(TPersistent& Object, const TPropertyValue& Value)
{
    using TMember = TMemberOf<decltype(Getter)>;
    using TOwner = typename TSetterOf<decltype(Setter)>::Owner;
    (static_cast<TOwner&>(Object).*Setter)(FromValue<typename TMember::Value>(Value));
}

template <auto Rule>
bool AskRule(const TPersistent& Object)
{
    using TOwner = typename TMemberOf<decltype(Rule)>::Owner;
    return (static_cast<const TOwner&>(Object).*Rule)();
}

template <class>
struct TMethodTraits;
template <class TOwner, class... TArguments>
struct TMethodTraits<void (TOwner::*)(TArguments...)> {
    using Owner = TOwner;
    using Signature = void(TArguments...);
    template <auto Method>
    static std::any Bind(TObject& Object)
    {
        TOwner* const Owner = static_cast<TOwner*>(&Object);
        return std::function<Signature>(
            [Owner](TArguments... Arguments) { (Owner->*Method)(std::forward<TArguments>(Arguments)...); });
    }
};

} // namespace detail

template <auto Rule>
TPropertyRow TPropertyRow::Stored() const
{
    TPropertyRow Row = *this;
    Row.FInfo.IsStored = &detail::AskRule<Rule>;
    Row.FStoredChanged = true;
    return Row;
}

template <auto Getter, auto Setter>
TPropertyRow Published(const char* Name)
{
    using TValue = typename detail::TMemberOf<decltype(Getter)>::Value;
    TPropertyInfo Info;
    Info.Name = Name;
    Info.Type = &detail::TypeOf<TValue>();
    Info.Get = &detail::GetProperty<Getter>;
    if constexpr (!std::is_same_v<decltype(Setter), std::nullptr_t>)
        Info.Set = &detail::SetProperty<Getter, Setter>;
    return TPropertyRow(Info);
}

template <auto Method>
TPropertyTable::TMethodRow PublishedMethod(const char* Name)
{
    using TTraits = detail::TMethodTraits<decltype(Method)>;
    return {Name, &TTraits::template Bind<Method>, &typeid(typename TTraits::Signature)};
}

template <class... TArguments>
struct TypeTraits<TEvent<void(TArguments...)>> {
    static const TTypeInfo& Info() { return detail::MethodType<void(TArguments...)>(); }
};

template <>
struct TypeTraits<int> {
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<unsigned> {
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<std::int16_t> {
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<std::uint16_t> {
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<std::int8_t> {
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<std::uint8_t> {
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<std::int64_t> {
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<char> {
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<char16_t> {
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<bool> {
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<float> {
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<double> {
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<TExtended> {
    static const TTypeInfo& Info();
    static TPropertyValue ToValue(const TExtended& Value) { return Value; }
    static TExtended FromValue(const TPropertyValue& Value) { return std::get<TExtended>(Value); }
};
template <>
struct TypeTraits<TCurrency> {
    static const TTypeInfo& Info();
    static TPropertyValue ToValue(const TCurrency& Value) { return TExtended(Value); }
    static TCurrency FromValue(const TPropertyValue& Value)
    {
        return std::get<TExtended>(Value).ToCurrency();
    }
};
template <>
struct TypeTraits<AnsiString> {
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<WideString> {
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<TColor> {
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<TCursor> {
    static const TTypeInfo& Info();
};

namespace detail
{

/// Checked casts for class factories, out of line so that a table needs neither header.
TComponent* OwnerComponent(TObject* Owner);
TCollection* OwnerCollection(TObject* Owner);

} // namespace detail

template <class T, class TParent>
TClass DefineClass(const char* Name, std::initializer_list<TPropertyRow> Rows,
                   std::initializer_list<TPropertyTable::TMethodRow> Methods)
{
    TClass Class;
    Class.Name = Name;
    Class.Parent = &TParent::StaticClass();
    if constexpr (std::is_abstract_v<T>)
        Class.Create = nullptr;
    else if constexpr (std::is_base_of_v<TComponent, T> && std::is_constructible_v<T, TComponent*>)
        Class.Create = [](TObject* Owner) -> TObject* { return New<T>(detail::OwnerComponent(Owner)); };
    else if constexpr (std::is_base_of_v<TCollectionItem, T> && std::is_constructible_v<T, TCollection*>)
        Class.Create = [](TObject* Owner) -> TObject* { return New<T>(detail::OwnerCollection(Owner)); };
    else if constexpr (std::is_default_constructible_v<T>)
        Class.Create = [](TObject*) -> TObject* { return New<T>(); };
    // Lives as long as the class description, which is as long as the program.
    static const TPropertyTable Table(Class.Parent, Rows, Methods);
    Class.Properties = &Table;
    return Class;
}

} // namespace vcl
