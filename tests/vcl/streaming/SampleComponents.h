#pragma once

#include "SampleClasses.h"

namespace vcl::tests
{

/// A property of every plain type, none with a default.
class TSampleTypes : public TComponent
{
    VCL_CLASS
public:
    using TComponent::TComponent;
    SAMPLE_VALUE(std::int8_t, AShortInt, 0)
    SAMPLE_VALUE(std::uint8_t, AByte, 0)
    SAMPLE_VALUE(std::int16_t, ASmallInt, 0)
    SAMPLE_VALUE(std::uint16_t, AWord, 0)
    SAMPLE_VALUE(int, AInteger, 0)
    SAMPLE_VALUE(unsigned, ACardinal, 0)
    SAMPLE_VALUE(std::int64_t, AInt64, 0)
    SAMPLE_VALUE(bool, ABoolean, false)
    SAMPLE_VALUE(char, AChar, ' ')
    SAMPLE_VALUE(TSampleAlign, AEnum, TSampleAlign::saNone)
    SAMPLE_VALUE(TSampleOptions, ASet, {})
    SAMPLE_VALUE(float, ASingle, 0)
    SAMPLE_VALUE(double, ADouble, 0)
    SAMPLE_VALUE(TExtended, AExtended, {})
    SAMPLE_VALUE(TDateTime, ADateTime, 0)
    SAMPLE_VALUE(TDate, ADate, 0)
    SAMPLE_VALUE(TTime, ATime, 0)
    SAMPLE_VALUE(AnsiString, AString, {})
    SAMPLE_VALUE(TSampleColor, AColor, {})
    SAMPLE_VALUE(TSampleCursor, ACursor, {})
    const AnsiString& GetAShortString() const { return FShortString; }
    void SetAShortString(const AnsiString& Text) { FShortString = Text.substr(0, 20); }

private:
    AnsiString FShortString;
};

class TSampleMoney : public TComponent
{
    VCL_CLASS
public:
    using TComponent::TComponent;
    SAMPLE_VALUE(TCurrency, ACurrency, {})
};

class TSampleWide : public TComponent
{
    VCL_CLASS
public:
    using TComponent::TComponent;
    SAMPLE_VALUE(char16_t, AWideChar, u' ')
    SAMPLE_VALUE(WideString, AWideString, {})
};

/// Every way to store or not to store a value.
class TSampleDefaults : public TComponent
{
    VCL_CLASS
public:
    using TComponent::TComponent;
    SAMPLE_VALUE(bool, StoreFlag, false)
    SAMPLE_VALUE(int, IntDefault7, 7)
    SAMPLE_VALUE(int, IntDefault0, 0)
    SAMPLE_VALUE(int, IntNegative, -5)
    SAMPLE_VALUE(int, IntPlain, 0)
    SAMPLE_VALUE(int, IntNoDefault, 0)
    SAMPLE_VALUE(int, IntNeverStored, 0)
    SAMPLE_VALUE(int, IntStoredIf, 1)
    int GetIntReadOnly() const { return 99; }
    SAMPLE_VALUE(bool, BoolTrue, true)
    SAMPLE_VALUE(bool, BoolFalse, false)
    SAMPLE_VALUE(bool, BoolPlain, false)
    SAMPLE_VALUE(bool, BoolNeverStored, false)
    SAMPLE_VALUE(char, CharX, 'X')
    SAMPLE_VALUE(TSampleAlign, EnumRight, TSampleAlign::saRight)
    SAMPLE_VALUE(TSampleAnchors, SetTwo, TSampleAnchors::FromBits(10))
    SAMPLE_VALUE(std::int64_t, Int64Default, 100)
    SAMPLE_VALUE(AnsiString, StrPlain, {})
    SAMPLE_VALUE(AnsiString, StrNeverStored, {})
    SAMPLE_VALUE(AnsiString, StrStoredIf, {})
    SAMPLE_VALUE(double, FloatPlain, 0)
    SAMPLE_VALUE(double, FloatStoredIf, 0)
};

class TSampleTimer : public TComponent
{
    VCL_CLASS
public:
    using TComponent::TComponent;
    SAMPLE_VALUE(bool, Enabled, true)
    SAMPLE_VALUE(unsigned, Interval, 1000)
    SAMPLE_VALUE(TComponent*, Target, nullptr)
    TNotifyEvent OnTimer;
};

/// Data beyond the published properties, in every shape DefineProperty allows.
class TSampleData : public TComponent
{
    VCL_CLASS
public:
    struct TMixed {
        std::int64_t Number = 0;
        AnsiString Text;
        bool Flag = false;
        TExtended Float;
        AnsiString Ident;
    };

    using TComponent::TComponent;
    SAMPLE_VALUE(AnsiString, Comment, {})
    void DefineProperties(TFiler& Filer) override;

    std::optional<std::vector<std::uint8_t>> Data;
    std::vector<std::int64_t> Pairs;
    std::optional<TMixed> Mixed;
    std::vector<std::vector<std::int64_t>> Nested;
    std::optional<TExtended> Stamp;
    std::optional<bool> Flag;
};

} // namespace vcl::tests
