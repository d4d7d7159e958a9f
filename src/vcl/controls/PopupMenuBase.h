#pragma once

#include "vcl/classes/Component.h"

namespace vcl
{

/// What a control needs to know of its popup menu.
class TPopupMenuBase : public TComponent
{
    VCL_CLASS
public:
    using TComponent::TComponent;

    /// False: the context menu message does not open the menu by itself.
    virtual bool GetAutoPopup() const = 0;
    /// The control the menu was opened for.
    virtual void SetPopupComponent(TComponent* Component) = 0;
    /// Opens the menu at a screen point and waits until it closes.
    virtual void Popup(int X, int Y) = 0;
};

} // namespace vcl
