#include "vcl/platform/qt/QtAccessible.h"

#include <QAccessibleWidget>

#include "vcl/platform/qt/QtFrame.h"

namespace vcl::qt
{

namespace
{

class TAccessibleFrame final : public QAccessibleWidget
{
public:
    explicit TAccessibleFrame(QWidget* Frame)
        : QAccessibleWidget(Frame, Frame->isWindow() ? QAccessible::Window : QAccessible::Client)
    {
    }

    QString text(QAccessible::Text Which) const override
    {
        if (Which == QAccessible::Name && widget()->isWindow())
            return widget()->windowTitle();
        return QAccessibleWidget::text(Which);
    }

    QAccessible::State state() const override
    {
        QAccessible::State Result = QAccessibleWidget::state();
        Result.focusable = widget()->isEnabled();
        Result.focused = widget()->hasFocus();
        return Result;
    }
};

/// Frames have no meta object of their own, so they come by the name of any widget.
QAccessibleInterface* MakeInterface(const QString& ClassName, QObject* Object)
{
    auto* const Frame = ClassName == QLatin1String("QWidget") ? dynamic_cast<TFrame*>(Object) : nullptr;
    return Frame ? new TAccessibleFrame(Frame) : nullptr;
}

} // namespace

void InstallAccessibility()
{
    QAccessible::removeFactory(MakeInterface);
    QAccessible::installFactory(MakeInterface);
}

} // namespace vcl::qt
