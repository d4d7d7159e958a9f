#pragma once

#include "vcl/classes/Properties.h"
#include "vcl/system/Exception.h"
#include "vcl/system/Object.h"

namespace vcl
{

class TFiler;
class TReader;

/// An object whose published properties can be assigned and streamed.
class TPersistent : public TObject
{
    VCL_CLASS
public:
    /// Copies Source into this object. A class that does not know Source asks its ancestor; in the end
    /// Source's AssignTo, which raises EConvertError ("Cannot assign a X to a Y").
    virtual void Assign(const TPersistent* Source);
    /// Dotted name for messages and the inspector.
    virtual AnsiString GetNamePath() const { return ClassName(); }
    /// The persistent this one belongs to in GetNamePath, or null.
    virtual TPersistent* GetOwner() const { return nullptr; }

    /// Declares data beyond the published properties (TFiler::DefineBinaryProperty, DefineProperty).
    virtual void DefineProperties(TFiler& Filer);

protected:
    virtual void AssignTo(TPersistent* Target) const;
};

} // namespace vcl
