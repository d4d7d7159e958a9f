#pragma once

#include <new>

#include "vcl/system/AnsiString.h"

namespace vcl
{

class TObject;
class TPropertyTable;

/// Run-time description of a class: its name, its ancestor, how to create an instance and which properties
/// it publishes. There is exactly one for each class, returned by that class's StaticClass().
///
/// Classes compare by name along the ancestor chain (see InheritsFrom), so a class keeps its identity across
/// shared libraries.
struct TClass {
    using TFactory = TObject* (*)(TObject* Owner);

    const char* Name = "";
    const TClass* Parent = nullptr;
    /// Makes an instance; Owner is the owning component for components and ignored or required by others.
    /// Null for abstract classes.
    TFactory Create = nullptr;
    /// The class's own rows (not its ancestors'); null when it publishes nothing of its own.
    const TPropertyTable* Properties = nullptr;

    /// True for the class itself and for each of its ancestors.
    bool InheritsFrom(const TClass& Ancestor) const;
    bool operator==(const TClass& Other) const;
};

/// The root of every class of the component model.
///
/// `delete` runs BeforeDestruction on the most derived class before any destructor, so what a descendant
/// overrides is still reached while its owner empties itself. An object on the stack or inside another one
/// skips that call; its destructors must then suffice.
class TObject
{
public:
    TObject() = default;
    TObject(const TObject&) = delete;
    TObject& operator=(const TObject&) = delete;
    virtual ~TObject() = default;

    static const TClass& StaticClass();
    virtual const TClass& ClassType() const { return StaticClass(); }
    AnsiString ClassName() const { return ClassType().Name; }
    bool InheritsFrom(const TClass& Class) const { return ClassType().InheritsFrom(Class); }

    /// Called by New() once the most derived constructor has finished.
    virtual void AfterConstruction() {}
    /// Called by `delete` before the first destructor.
    virtual void BeforeDestruction() {}

    static void* operator new(std::size_t Size) { return ::operator new(Size); }
    static void operator delete(void* Memory) { ::operator delete(Memory); }
    static void operator delete(TObject* Object, std::destroying_delete_t);
};

/// Declares the class description; the .cpp file defines StaticClass() with DefineClass.
#define VCL_CLASS                                                                                            \
public:                                                                                                      \
    static const ::vcl::TClass& StaticClass();                                                               \
    const ::vcl::TClass& ClassType() const override                                                          \
    {                                                                                                        \
        return StaticClass();                                                                                \
    }                                                                                                        \
                                                                                                             \
private:

/// Creates an object so that AfterConstruction runs on the finished object.
template <class T, class... TArguments>
T* New(TArguments&&... Arguments)
{
    T* Object = new T(static_cast<TArguments&&>(Arguments)...);
    Object->AfterConstruction();
    return Object;
}

/// `Object as T` that answers null instead of raising: compares registered classes, not C++ type information.
template <class T>
T* As(TObject* Object)
{
    return Object && Object->InheritsFrom(T::StaticClass()) ? static_cast<T*>(Object) : nullptr;
}

template <class T>
const T* As(const TObject* Object)
{
    return Object && Object->InheritsFrom(T::StaticClass()) ? static_cast<const T*>(Object) : nullptr;
}

} // namespace vcl
