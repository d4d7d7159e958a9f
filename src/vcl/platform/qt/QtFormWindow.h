#pragma once

#include "vcl/platform/qt/QtFrame.h"

class QMenuBar;

namespace vcl::qt
{

/// A top-level window: a form with caption and menu, or a hint.
class TFormWindow final : public TFrameWindow
{
public:
    TFormWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent);

    void SetStyle(const TWindowStyle& Style) override;
    void SetParent(IWindow* Parent) override;
    void SetBounds(const TRect& Bounds) override;
    void SetText(const AnsiString& Text) override;
    AnsiString GetText() const override;
    void SetMenu(const TMenuSpec* Menu) override;
    void SetWindowState(unsigned State) override;
    void SetIcon(const TPixelBuffer& Icon) override;
    void SetModal(bool Modal) override;
    void Activate() override;

    int TopMargin() const override;
    unsigned SizeKind() const override;

    /// Begins to look at the frame's events; the window is held by a shared pointer by then.
    void Install();
    /// What a form's frame hears beyond other frames.
    bool FormEvent(QEvent& Event);

private:
    class TFormFilter;

    bool IsTopLevel() const override { return true; }
    void ApplyFlags();
    bool IsResizable() const;

    QPointer<QMenuBar> FMenuBar;
    unsigned FSentState;
};

/// Window flags of a top-level window of that style.
Qt::WindowFlags WindowFlagsOf(const TWindowStyle& Style);

} // namespace vcl::qt
