#include <QLabel>
#include <QStatusBar>

#include "vcl/platform/Messages.h"
#include "vcl/platform/qt/QtConvert.h"
#include "vcl/platform/qt/QtLineEdit.h"
#include "vcl/platform/qt/QtPeer.h"
#include "vcl/platform/qt/QtWindowKinds.h"

namespace vcl::qt
{

namespace
{

class TStatusBarWindow final : public TPeerWindow, private IStatusBarPeer
{
public:
    TStatusBarWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent)
        : TPeerWindow(Owner, Style, new QStatusBar(Parent))
    {
        Face().setAutoFillBackground(true);
    }

    IStatusBarPeer* StatusBar() override { return this; }

    void DefaultMessage(TMessage& Message) override
    {
        TPeerWindow::DefaultMessage(Message);
        if (Message.Msg != WM_LBUTTONUP || !Widget())
            return;
        const TPoint Point = PointOfParam(Message.LParam);
        for (std::size_t Index = 0; Index < FPanels.size(); ++Index) {
            if (FPanels[Index]->geometry().contains(ToQt(Point))) {
                Notice(TPeerNotice::PanelClicked, static_cast<std::int64_t>(Index));
                return;
            }
        }
    }

private:
    QStatusBar& Face() const { return static_cast<QStatusBar&>(*Widget()); }
    bool TakesFocus() const override { return false; }

    void SetSimple(bool Simple, const AnsiString& SimpleText) override
    {
        if (!Widget())
            return;
        if (Simple)
            Face().showMessage(ToQt(SimpleText));
        else
            Face().clearMessage();
        for (QLabel* const Panel : FPanels)
            Panel->setVisible(!Simple);
    }

    void SetPanels(std::span<const TStatusPanelSpec> Panels) override
    {
        if (!Widget())
            return;
        while (FPanels.size() > Panels.size()) {
            Face().removeWidget(FPanels.back());
            delete FPanels.back();
            FPanels.pop_back();
        }
        while (FPanels.size() < Panels.size()) {
            auto* const Panel = new QLabel(Widget());
            Panel->setTextFormat(Qt::PlainText);
            // Clicks are the bar's, which knows what panel they hit.
            Panel->setAttribute(Qt::WA_TransparentForMouseEvents);
            FPanels.push_back(Panel);
            Face().addWidget(Panel);
        }
        for (std::size_t Index = 0; Index < Panels.size(); ++Index)
            Describe(*FPanels[Index], Panels[Index], Index + 1 == Panels.size());
    }

    void Describe(QLabel& Panel, const TStatusPanelSpec& Spec, bool IsLast)
    {
        Panel.setText(ToQt(Spec.Text));
        Panel.setAlignment(AlignmentOf(Spec.Alignment));
        Panel.setFrameStyle(Spec.Bevel == 0   ? int(QFrame::NoFrame)
                            : Spec.Bevel == 1 ? int(QFrame::Panel) | int(QFrame::Sunken)
                                              : int(QFrame::Panel) | int(QFrame::Raised));
        Panel.setMinimumWidth(IsLast ? 0 : Spec.Width);
        Panel.setMaximumWidth(IsLast ? QWIDGETSIZE_MAX : Spec.Width);
        Panel.setSizePolicy(IsLast ? QSizePolicy::Ignored : QSizePolicy::Fixed, QSizePolicy::Preferred);
        // The bar keeps a stretch for each widget from the time it was added.
        Face().removeWidget(&Panel);
        Face().addWidget(&Panel, IsLast ? 1 : 0);
        Panel.show();
    }

    void SetSizeGrip(bool Show) override
    {
        if (Widget())
            Face().setSizeGripEnabled(Show);
    }

    std::vector<QLabel*> FPanels;
};

} // namespace

std::shared_ptr<TWindow> MakeStatusBarWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent)
{
    return MakePeer<TStatusBarWindow>(Owner, Style, Parent);
}

} // namespace vcl::qt
