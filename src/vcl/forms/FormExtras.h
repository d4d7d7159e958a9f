#pragma once

#include <cstdint>
#include <vector>

#include "vcl/classes/Persistent.h"
#include "vcl/controls/ControlTypes.h"

namespace vcl
{

/// What a form file says of a form's own scroll bar. It is kept and written again; forms do not scroll.
class TControlScrollBar : public TPersistent
{
    VCL_CLASS
public:
    int GetIncrement() const { return FIncrement; }
    void SetIncrement(int Value) { FIncrement = Value; }
    int GetMargin() const { return FMargin; }
    void SetMargin(int Value) { FMargin = Value; }
    int GetPosition() const { return FPosition; }
    void SetPosition(int Value) { FPosition = Value; }
    int GetRange() const { return FRange; }
    void SetRange(int Value) { FRange = Value; }
    bool GetSmooth() const { return FSmooth; }
    void SetSmooth(bool Value) { FSmooth = Value; }
    bool GetTracking() const { return FTracking; }
    void SetTracking(bool Value) { FTracking = Value; }
    bool GetVisible() const { return FVisible; }
    void SetVisible(bool Value) { FVisible = Value; }

    void Assign(const TPersistent* Source) override;

private:
    int FIncrement = 8;
    int FMargin = 0;
    int FPosition = 0;
    int FRange = 0;
    bool FSmooth = false;
    bool FTracking = false;
    bool FVisible = true;
};

/// A form's icon as the form file has it: bytes that are kept and written again. Windows show the program's.
class TIcon : public TPersistent
{
    VCL_CLASS
public:
    const std::vector<std::uint8_t>& GetBytes() const { return FBytes; }
    void SetBytes(std::vector<std::uint8_t> Value) { FBytes = std::move(Value); }

    void Assign(const TPersistent* Source) override;
    void DefineProperties(TFiler& Filer) override;

private:
    std::vector<std::uint8_t> FBytes;
};

enum class TDefaultMonitor { dmDesktop, dmPrimary, dmMainForm, dmActiveForm };
template <>
struct TypeTraits<TDefaultMonitor> {
    static const TTypeInfo& Info();
};
enum class TPrintScale { poNone, poProportional, poPrintToFit };
template <>
struct TypeTraits<TPrintScale> {
    static const TTypeInfo& Info();
};

} // namespace vcl
