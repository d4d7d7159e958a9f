#include "vcl/graphics/GraphicsObject.h"

namespace vcl
{

const TClass& TGraphicsObject::StaticClass()
{
    static const TClass Class = DefineClass<TGraphicsObject, TPersistent>("TGraphicsObject");
    return Class;
}

void TGraphicsObject::Changed()
{
    OnChange(this);
}

} // namespace vcl
