#pragma once

#include "vcl/classes/Persistent.h"
#include "vcl/system/Event.h"

namespace vcl
{

/// What fonts, pens and brushes share: a notification after each change.
class TGraphicsObject : public TPersistent
{
    VCL_CLASS
public:
    /// After a property took another value, and after Assign.
    TNotifyEvent OnChange;

protected:
    /// Tells OnChange.
    virtual void Changed();

    /// Stores Value when it differs and tells of it.
    template <class T>
    void SetField(T& Field, const T& Value)
    {
        if (Field == Value)
            return;
        Field = Value;
        Changed();
    }
};

} // namespace vcl
