#include "vcl/controls/SizeConstraints.h"

#include <algorithm>

namespace vcl
{

const TClass& TSizeConstraints::StaticClass()
{
    static const TClass Class = DefineClass<TSizeConstraints, TPersistent>(
        "TSizeConstraints",
        {
            Published<&TSizeConstraints::GetMaxHeight, &TSizeConstraints::SetMaxHeight>("MaxHeight")
                .Default(0),
            Published<&TSizeConstraints::GetMaxWidth, &TSizeConstraints::SetMaxWidth>("MaxWidth").Default(0),
            Published<&TSizeConstraints::GetMinHeight, &TSizeConstraints::SetMinHeight>("MinHeight")
                .Default(0),
            Published<&TSizeConstraints::GetMinWidth, &TSizeConstraints::SetMinWidth>("MinWidth").Default(0),
        });
    return Class;
}

void TSizeConstraints::Assign(const TPersistent* Source)
{
    const TSizeConstraints* const Other = As<TSizeConstraints>(Source);
    if (!Other) {
        TPersistent::Assign(Source);
        return;
    }
    FMaxHeight = Other->FMaxHeight;
    FMaxWidth = Other->FMaxWidth;
    FMinHeight = Other->FMinHeight;
    FMinWidth = Other->FMinWidth;
    OnChange(this);
}

void TSizeConstraints::SetLimit(int& Field, int& Other, int Value, Limit Kind)
{
    if (Value < 0 || Value == Field)
        return;
    Field = Value;
    if (Value > 0 && Other > 0)
        Other = Kind == Limit::Max ? std::min(Other, Value) : std::max(Other, Value);
    OnChange(this);
}

} // namespace vcl
