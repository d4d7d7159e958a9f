#include "package/Package.h"

#include "KSTimeView/KSTimeView.h"
#include "KSTreeView/KSTreeView.h"
#include "vcl/classes/Component.h"

void RegisterKSSuite()
{
    vcl::RegisterClasses({&TKSTimeView::StaticClass(), &TKSTreeView::StaticClass()});
}
