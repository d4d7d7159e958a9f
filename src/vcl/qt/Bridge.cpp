#include "vcl/qt/Bridge.h"

#include "vcl/platform/qt/QtPlatform.h"
#include "vcl/qt/EmbeddedForm.h"
#include "vcl/qt/EmbeddingWidget.h"

namespace vcl
{

QWidget* WidgetOf(TWinControl* Control)
{
    if (!Control)
        return nullptr;
    if (TEmbeddedForm* const Host = As<TEmbeddedForm>(Control->GetParent()))
        return &Host->Outside();
    if (Control->GetParent())
        throw EInvalidOperation("Control '" + Control->GetName() + "' stands in another control already");
    qt::UseQt();
    return new TEmbeddingWidget(*Control);
}

} // namespace vcl
