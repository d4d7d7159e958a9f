#include "ksform/Placeholder.h"

namespace ksform
{

const vcl::TClass& TPlaceholder::StaticClass()
{
    static const vcl::TClass Class = vcl::DefineClass<TPlaceholder, vcl::TPanel>("TPlaceholder");
    return Class;
}

TPlaceholder::TPlaceholder(vcl::TComponent* Owner) : TPanel(Owner)
{
    constexpr int IconSide = 28;
    SetBounds(0, 0, IconSide, IconSide);
    SetBevelOuter(vcl::TPanelBevel::bvLowered);
}

} // namespace ksform
