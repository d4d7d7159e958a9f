#pragma once

#include <QWidget>

#include <functional>
#include <vector>

#include "vcl/platform/Messages.h"
#include "vcl/platform/Window.h"
#include "vcl/platform/WindowSystem.h"
#include "vcl/platform/qt/QtPlatform.h"

namespace vcl
{

/// Stands for a control: keeps the messages it gets, and hands them back to the window as a control does with
/// what its handlers leave.
class TTestOwner : public IWindowOwner
{
public:
    TTestOwner(TWindowKind Kind, TTestOwner* Parent, const TRect& Bounds, std::uint32_t Style = 0,
               std::uint32_t ExStyle = 0)
        : Window(qt::UseQt().Windows().CreateWindow(*this, {Kind, Style, ExStyle},
                                                    Parent ? Parent->Window.get() : nullptr, Bounds))
    {
    }

    virtual ~TTestOwner() = default;

    void WindowMessage(TMessage& Message) noexcept override
    {
        Messages.push_back(Message);
        if (OnMessage && OnMessage(Message))
            return;
        if (Window)
            Window->DefaultMessage(Message);
    }
    void WindowUpdate() noexcept override { ++Updates; }
    TPixelBuffer WindowPixels() noexcept override { return Pixels; }
    void WindowScaleChanged() noexcept override { ++ScaleChanges; }
    void WindowDestroyed() noexcept override
    {
        [[maybe_unused]] IWindow* const Gone = Window.release();
        Destroyed = true;
    }

    QWidget* Widget() const { return static_cast<QWidget*>(Window->NativeHandle()); }
    int Count(unsigned Msg) const
    {
        int Result = 0;
        for (const TMessage& Message : Messages)
            Result += Message.Msg == Msg ? 1 : 0;
        return Result;
    }
    /// The last message of that kind; one of WM_NULL when there was none.
    TMessage Last(unsigned Msg) const
    {
        for (auto Message = Messages.rbegin(); Message != Messages.rend(); ++Message) {
            if (Message->Msg == Msg)
                return *Message;
        }
        return {};
    }

    std::vector<TMessage> Messages;
    /// True: consumed.
    std::function<bool(TMessage&)> OnMessage;
    TPixelBuffer Pixels;
    int Updates = 0;
    int ScaleChanges = 0;
    bool Destroyed = false;
    TWindowPtr Window;
};

/// A shown and active form.
class TTestForm : public TTestOwner
{
public:
    TTestForm();
};

/// Handles what is pending.
void ProcessEvents();

} // namespace vcl
