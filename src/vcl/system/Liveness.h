#pragma once

#include <memory>

namespace vcl
{

/// A member that knows, for those who hold a guard, when its object is gone.
class TLiveness
{
public:
    TLiveness() : FAlive(std::make_shared<bool>(true)) {}
    ~TLiveness() { *FAlive = false; }
    TLiveness(const TLiveness&) = delete;
    TLiveness& operator=(const TLiveness&) = delete;

private:
    friend class TAliveGuard;
    std::shared_ptr<bool> FAlive;
};

/// Tells after a call that runs foreign code whether the object still exists:
///
///     TAliveGuard Guard(*this);
///     OnClick(this);
///     if (!Guard.IsAlive())
///         return; // the handler freed this control
class TAliveGuard
{
public:
    explicit TAliveGuard(const TLiveness& Liveness) : FAlive(Liveness.FAlive) {}
    template <class T>
    requires requires(const T& Object) { Object.GetLiveness(); }
    explicit TAliveGuard(const T& Object) : TAliveGuard(Object.GetLiveness()) {}

    bool IsAlive() const { return *FAlive; }

private:
    std::shared_ptr<bool> FAlive;
};

/// Sets a flag of an object for the length of a block, also when the block ends with an exception or with the
/// object's end.
class TFlagScope
{
public:
    template <class T>
    TFlagScope(const T& Object, bool& Flag) : FGuard(Object), FFlag(Flag), FBefore(Flag)
    {
        FFlag = true;
    }
    ~TFlagScope()
    {
        if (FGuard.IsAlive())
            FFlag = FBefore;
    }
    TFlagScope(const TFlagScope&) = delete;
    TFlagScope& operator=(const TFlagScope&) = delete;

private:
    TAliveGuard FGuard;
    bool& FFlag;
    bool FBefore;
};

/// A reference that turns into null when its object dies.
template <class T>
class TWeak
{
public:
    TWeak() = default;
    TWeak(T* Object)
    {
        if (Object) {
            FObject = Object;
            FGuard = std::make_unique<TAliveGuard>(*Object);
        }
    }
    TWeak(const TWeak& Other) : TWeak(Other.Get()) {}
    TWeak(TWeak&&) = default;
    TWeak& operator=(TWeak Other)
    {
        FObject = Other.FObject;
        FGuard = std::move(Other.FGuard);
        return *this;
    }

    T* Get() const { return FGuard && FGuard->IsAlive() ? FObject : nullptr; }

private:
    T* FObject = nullptr;
    std::unique_ptr<TAliveGuard> FGuard;
};

} // namespace vcl
