#pragma once

#include <any>
#include <functional>
#include <memory>
#include <type_traits>
#include <typeinfo>
#include <utility>

#include "vcl/system/AnsiString.h"

namespace vcl
{

/// What the form file reader and the inspector see of an event, whatever its parameters are.
class TEventBase
{
public:
    virtual ~TEventBase() = default;

    /// The handler's published name, which form files store; empty for handlers set by program.
    const AnsiString& GetHandlerName() const { return FHandlerName; }
    /// Names the handler without assigning one: a form read without its program keeps the name it found.
    void SetHandlerName(AnsiString Name) { FHandlerName = std::move(Name); }

    /// The signature as a function type; two events accept each other's handlers when it is the same.
    virtual const std::type_info& Signature() const = 0;
    /// Assigns a handler made by PublishedMethod for this signature; false when the signature differs.
    virtual bool Bind(const std::any& Handler, const AnsiString& Name) = 0;
    virtual bool IsAssigned() const = 0;
    virtual void Reset() = 0;

protected:
    AnsiString FHandlerName;
};

/// An event: assignable from a lambda or (with Bind) from a member function, testable, callable.
///
/// A handler may assign to the event or destroy the object that holds it while it runs.
template <class TSignature>
class TEvent;

template <class... TArguments>
class TEvent<void(TArguments...)> final : public TEventBase
{
public:
    using THandler = std::function<void(TArguments...)>;

    TEvent() = default;
    TEvent(std::nullptr_t) {}
    template <class TCallable>
    requires(!std::is_same_v<std::remove_cvref_t<TCallable>, TEvent> &&
             std::is_invocable_v<TCallable&, TArguments...>) TEvent(TCallable&& Handler)
        : FHandler(std::make_shared<THandler>(std::forward<TCallable>(Handler)))
    {
    }

    /// Calls Object's member function; Object must outlive the assignment.
    template <class TObjectType, class TMethodOwner>
    void Bind(TObjectType* Object, void (TMethodOwner::*Method)(TArguments...))
    {
        *this = [Object, Method](TArguments... Arguments) {
            (Object->*Method)(std::forward<TArguments>(Arguments)...);
        };
    }

    explicit operator bool() const { return FHandler != nullptr; }
    bool IsAssigned() const override { return FHandler != nullptr; }
    void Reset() override
    {
        FHandler.reset();
        FHandlerName.clear();
    }

    /// Raises the event; does nothing when no handler is assigned.
    void operator()(TArguments... Arguments) const
    {
        // A copy keeps the handler alive while it replaces itself or frees the holder of the event.
        if (const std::shared_ptr<THandler> Handler = FHandler)
            (*Handler)(std::forward<TArguments>(Arguments)...);
    }

    const std::type_info& Signature() const override { return typeid(void(TArguments...)); }
    bool Bind(const std::any& Handler, const AnsiString& Name) override
    {
        const THandler* Typed = std::any_cast<THandler>(&Handler);
        if (!Typed)
            return false;
        FHandler = std::make_shared<THandler>(*Typed);
        FHandlerName = Name;
        return true;
    }

private:
    std::shared_ptr<THandler> FHandler;
};

class TObject;
using TNotifyEvent = TEvent<void(TObject*)>;

} // namespace vcl
