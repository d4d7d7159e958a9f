#pragma once

#include "vcl/classes/Persistent.h"
#include "vcl/system/Event.h"

namespace vcl
{

/// The least and the greatest size of a control, in pixels; 0 means no limit.
class TSizeConstraints : public TPersistent
{
    VCL_CLASS
public:
    int GetMaxHeight() const { return FMaxHeight; }
    void SetMaxHeight(int Value) { SetLimit(FMaxHeight, FMinHeight, Value, Limit::Max); }
    int GetMaxWidth() const { return FMaxWidth; }
    void SetMaxWidth(int Value) { SetLimit(FMaxWidth, FMinWidth, Value, Limit::Max); }
    int GetMinHeight() const { return FMinHeight; }
    void SetMinHeight(int Value) { SetLimit(FMinHeight, FMaxHeight, Value, Limit::Min); }
    int GetMinWidth() const { return FMinWidth; }
    void SetMinWidth(int Value) { SetLimit(FMinWidth, FMaxWidth, Value, Limit::Min); }

    void Assign(const TPersistent* Source) override;

    TNotifyEvent OnChange;

private:
    enum class Limit { Min, Max };
    /// A limit that crosses the other one takes it along; negative values are ignored.
    void SetLimit(int& Field, int& Other, int Value, Limit Kind);

    int FMaxHeight = 0;
    int FMaxWidth = 0;
    int FMinHeight = 0;
    int FMinWidth = 0;
};

} // namespace vcl
