#include "vcl/controls/PopupMenuBase.h"

namespace vcl
{

const TClass& TPopupMenuBase::StaticClass()
{
    static const TClass Class = DefineClass<TPopupMenuBase, TComponent>("TPopupMenuBase");
    return Class;
}

} // namespace vcl
