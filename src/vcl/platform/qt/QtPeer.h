#pragma once

#include <QObject>

#include "vcl/platform/qt/QtWindow.h"

namespace vcl::qt
{

/// A widget of the toolkit behind a control. Its input goes to the control first; only what comes back
/// through DefaultMessage reaches the widget.
///
/// Focus follows the control too: the widget does not take it by itself.
class TPeerWindow : public TWindow
{
public:
    TSize GetPreferredSize() const override;
    void SetStyle(const TWindowStyle& Style) override;
    void SetFont(const TFontSpec& Font) override;
    void SetColors(TColor Text, TColor Background, bool UseNative) override;
    void DefaultMessage(TMessage& Message) override;
    void RenderTo(const TPixelBuffer& Target, TPoint Origin) override;
    void SetFocus() override;
    bool HasFocus() const override;

    /// Begins to look at the widget's input; the window is held by a shared pointer by then.
    void Install();
    bool Filter(QObject* Receiver, QEvent& Event);

protected:
    TPeerWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Widget);

    void Notice(TPeerNotice Notice, std::int64_t Index = 0);
    /// The widget that gets the keyboard and the mouse, often the same as Widget().
    virtual QWidget* InputWidget() const { return Widget(); }
    /// Further widgets whose input passes the control.
    virtual std::vector<QWidget*> InputWidgets() const { return {InputWidget()}; }
    virtual bool TakesFocus() const { return true; }
    /// A character or clipboard command that did not come from the keyboard; false: not understood.
    virtual bool EditMessage(TMessage&) { return false; }
    void ApplyBorder();

    /// While the control changes the widget, changes are not told back.
    bool FSilent = false;
    class TSilence
    {
    public:
        explicit TSilence(TPeerWindow& Peer) : FPeer(Peer), FBefore(std::exchange(Peer.FSilent, true)) {}
        ~TSilence() { FPeer.FSilent = FBefore; }
        TSilence(const TSilence&) = delete;
        TSilence& operator=(const TSilence&) = delete;

    private:
        TPeerWindow& FPeer;
        bool FBefore;
    };

private:
    class TFilter;

    /// What is being handled: what the widget gets when its message comes back.
    struct TPending {
        unsigned Msg = 0;
        QWidget* Receiver = nullptr;
        QEvent* Event = nullptr;
        bool CameBack = false;
        std::uint64_t WParam = 0;
    };

    bool Offer(TPending& Pending, TMessage& Message);
    bool FilterMouse(QWidget& Receiver, QMouseEvent& Event);
    bool FilterKey(QWidget& Receiver, QKeyEvent& Event);
    bool FilterInputMethod(QWidget& Receiver, QInputMethodEvent& Event);
    bool FilterWheel(QWheelEvent& Event);
    bool KeyDown(QWidget& Receiver, QKeyEvent& Event);
    void Deliver(QWidget& Receiver, QEvent& Event);
    void DeliverPosted(TMessage& Message);

    TPending* FPending = nullptr;
    bool FDelivering = false;
};

/// Finishes a new peer: Install, and the shared pointer as the kinds want it.
template <class TPeer>
std::shared_ptr<TWindow> MakePeer(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent)
{
    const auto Window = std::make_shared<TPeer>(Owner, Style, Parent);
    Window->Install();
    return Window;
}

} // namespace vcl::qt
