#pragma once

#include <memory>

#include "vcl/controls/HintWindow.h"
#include "vcl/system/Liveness.h"

namespace vcl
{

class TApplication;

/// Decides when a hint shows, for which control and for how long.
class THintController
{
public:
    explicit THintController(TApplication& Application);
    ~THintController();

    void MouseMessage(TControl* Control, const TMessage& Message);
    void ControlDestroyed(const TControl* Control);
    void Cancel();

private:
    /// The nearest control that shows hints, from the one under the pointer upwards.
    static TControl* HintControlOf(TControl* Control);
    static AnsiString HintOf(TControl* Control);
    void StartTimer(int Interval, void (THintController::*Action)());
    void StopTimer();
    void ShowHint();
    void HideHint();
    void Hovered(TControl* Control);

    TApplication& FApplication;
    std::unique_ptr<THintWindow> FWindow;
    TWeak<TControl> FControl;
    TRect FCursorRect;
    TTimerHandle FTimer = 0;
    bool FShowing = false;
};

/// The part of a hint before "|", which shows beside the pointer; the part behind it is for status bars.
AnsiString GetShortHint(const AnsiString& Hint);
AnsiString GetLongHint(const AnsiString& Hint);

} // namespace vcl
