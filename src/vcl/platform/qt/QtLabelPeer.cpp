#include <QPainter>
#include <QStyle>

#include "vcl/platform/qt/QtConvert.h"
#include "vcl/platform/qt/QtLineEdit.h"
#include "vcl/platform/qt/QtPeer.h"
#include "vcl/platform/qt/QtWindowKinds.h"

namespace vcl::qt
{

namespace
{

/// Static text. The toolkit's own label shows an access key only with a partner it can focus, hence this one.
class TLabelFace final : public QWidget
{
public:
    using QWidget::QWidget;

    QSize sizeHint() const override
    {
        constexpr int NoLimit = 1 << 20;
        const int Width = (Flags & Qt::TextWordWrap) != 0 ? std::max(1, width()) : NoLimit;
        return fontMetrics().boundingRect(QRect(0, 0, Width, NoLimit), Flags, Text).size();
    }

    QString Text;
    int Flags = Qt::AlignLeft | Qt::AlignTop | Qt::TextHideMnemonic;

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter Painter(this);
        style()->drawItemText(&Painter, rect(), Flags, palette(), isEnabled(), Text, QPalette::WindowText);
    }
};

class TLabelWindow final : public TPeerWindow, private ILabelPeer
{
public:
    TLabelWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent)
        : TPeerWindow(Owner, Style, new TLabelFace(Parent))
    {
        SetShowAccelerator(true);
    }

    void SetText(const AnsiString& Text) override
    {
        if (!Widget())
            return;
        Face().Text = ToQt(Text);
        Changed();
    }
    AnsiString GetText() const override { return Widget() ? FromQt(Face().Text) : AnsiString(); }
    ILabelPeer* Label() override { return this; }

private:
    TLabelFace& Face() const { return static_cast<TLabelFace&>(*Widget()); }
    bool TakesFocus() const override { return false; }

    void Changed()
    {
        Face().updateGeometry();
        Face().update();
    }

    void SetFlags(int Cleared, int Set)
    {
        if (!Widget())
            return;
        Face().Flags = (Face().Flags & ~Cleared) | Set;
        Changed();
    }

    void SetAlignment(TTextAlign Alignment) override
    {
        SetFlags(Qt::AlignHorizontal_Mask, AlignmentOf(Alignment) & Qt::AlignHorizontal_Mask);
    }

    void SetWordWrap(bool Wrap) override { SetFlags(Qt::TextWordWrap, Wrap ? Qt::TextWordWrap : 0); }

    void SetOpaque(bool Opaque) override
    {
        if (Widget())
            Widget()->setAutoFillBackground(Opaque);
    }

    void SetShowAccelerator(bool Show) override
    {
        SetFlags(Qt::TextShowMnemonic | Qt::TextHideMnemonic, Show ? Qt::TextShowMnemonic : 0);
    }
};

} // namespace

std::shared_ptr<TWindow> MakeLabelWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent)
{
    return MakePeer<TLabelWindow>(Owner, Style, Parent);
}

} // namespace vcl::qt
