#include "vcl/controls/CustomControl.h"

namespace vcl
{

const TClass& TCustomControl::StaticClass()
{
    static const TClass Class = DefineClass<TCustomControl, TWinControl>("TCustomControl");
    return Class;
}

TCustomControl::TCustomControl(TComponent* Owner) : TWinControl(Owner)
{
}

void TCustomControl::PaintWindow(TCanvas&)
{
    Paint();
}

} // namespace vcl
