#include "vcl/classes/Persistent.h"

namespace vcl
{

const TClass& TPersistent::StaticClass()
{
    static const TClass Class = DefineClass<TPersistent, TObject>("TPersistent");
    return Class;
}

void TPersistent::Assign(const TPersistent* Source)
{
    if (!Source)
        throw EConvertError("Cannot assign nothing to a " + ClassName());
    Source->AssignTo(this);
}

void TPersistent::AssignTo(TPersistent* Target) const
{
    throw EConvertError("Cannot assign a " + ClassName() + " to a " + Target->ClassName());
}

void TPersistent::DefineProperties(TFiler&)
{
}

} // namespace vcl
