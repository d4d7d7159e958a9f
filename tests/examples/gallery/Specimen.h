#pragma once

#include "vcl/classes/Component.h"
#include "vcl/system/Exception.h"

enum class TShade { shLight, shMiddle, shDark };
using TShades = vcl::TSet<TShade>;

template <>
struct vcl::TypeTraits<TShade> {
    static constexpr const char* SetName = "TShades";
    static const TTypeInfo& Info()
    {
        static const TTypeInfo Type = EnumerationType("TShade", {"shLight", "shMiddle", "shDark"});
        return Type;
    }
};

/// A sub-object with one property.
class TPart : public vcl::TPersistent
{
    VCL_CLASS
public:
    int GetSize() const { return FSize; }
    void SetSize(int Value) { FSize = Value; }

private:
    int FSize = 3;
};

/// A component with a property of each kind that the inspector knows.
class TSpecimen : public vcl::TComponent
{
    VCL_CLASS
public:
    using vcl::TComponent::TComponent;

    /// Refuses negative values, as setters may.
    int GetAmount() const { return FAmount; }
    void SetAmount(int Value)
    {
        if (Value < 0)
            throw vcl::Exception("Amount is negative");
        FAmount = Value;
    }
    TShade GetShade() const { return FShade; }
    void SetShade(TShade Value) { FShade = Value; }
    TShades GetShades() const { return FShades; }
    void SetShades(TShades Value) { FShades = Value; }
    vcl::TColor GetColor() const { return FColor; }
    void SetColor(vcl::TColor Value) { FColor = Value; }
    double GetDay() const { return FDay; }
    void SetDay(double Value) { FDay = Value; }
    TPart* GetPart() { return &FPart; }
    TSpecimen* GetFriend() const { return FFriend; }
    void SetFriend(TSpecimen* Value) { FFriend = Value; }
    int GetFixed() const { return 7; }
    vcl::TNotifyEvent OnChange;

private:
    int FAmount = 5;
    TShade FShade = TShade::shMiddle;
    TShades FShades{TShade::shLight, TShade::shDark};
    vcl::TColor FColor = vcl::clRed;
    double FDay = 0;
    TPart FPart;
    TSpecimen* FFriend = nullptr;
};
