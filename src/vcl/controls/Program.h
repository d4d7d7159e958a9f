#pragma once

#include "vcl/platform/Messages.h"
#include "vcl/system/Object.h"
#include "vcl/system/Types.h"

namespace vcl
{

class TControl;

/// What controls ask of the program they run in. The application object installs itself; until there is one,
/// exceptions go to standard error and nothing shows hints.
class IProgram
{
public:
    /// Called from within a catch block with what was under way.
    virtual void HandleException(TObject* Sender) = 0;
    /// A mouse message for Control (null: for none of ours) is about to be handled.
    virtual void HintMouseMessage(TControl* Control, const TMessage& Message) = 0;
    virtual void ControlDestroyed(TControl* Control) = 0;
    /// Overrides every control's cursor unless crDefault.
    virtual TCursor GetScreenCursor() const = 0;

protected:
    ~IProgram() = default;
};

IProgram& Program();
/// Null restores the one without an application.
void SetProgram(IProgram* Next);

/// Runs Action and hands what it throws to the program: the last frame before the platform's.
template <class TAction>
void RunGuarded(TObject* Sender, TAction&& Action) noexcept
{
    try {
        Action();
    } catch (...) {
        Program().HandleException(Sender);
    }
}

} // namespace vcl
