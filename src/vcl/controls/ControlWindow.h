#pragma once

#include "vcl/platform/Window.h"

namespace vcl
{

class TWinControl;

/// The side of a window control that the platform talks to: exceptions end here, and messages get their
/// context (drag, capture, the control under the pointer) before the control sees them.
class TControlWindow final : public IWindowOwner
{
public:
    explicit TControlWindow(TWinControl& Control) : FControl(Control) {}

    TWinControl& GetControl() const { return FControl; }

    void WindowMessage(TMessage& Message) noexcept override;
    void WindowUpdate() noexcept override;
    TPixelBuffer WindowPixels() noexcept override;
    void WindowScaleChanged() noexcept override;
    void WindowDestroyed() noexcept override;

private:
    template <class TAction>
    void Run(TAction&& Action) noexcept;
    void Handle(TMessage& Message);
    void Scroll(TMessage& Message);
    bool BeforeKey(TMessage& Message);
    void FollowMouse(const TMessage& Message);

    TWinControl& FControl;
};

} // namespace vcl
