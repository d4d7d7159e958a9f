#include "package/Package.h"

#include "KSTimeView/KSTimeView.h"
#include "vcl/classes/Component.h"

void RegisterKSSuite()
{
    vcl::RegisterClasses({&TKSTimeView::StaticClass()});
}
