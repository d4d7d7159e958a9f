#pragma once

#include <QMetaObject>
#include <QPointer>

#include "vcl/controls/WinControl.h"

class QWidget;

namespace vcl
{

/// A control that shows a widget of the toolkit on a form.
///
///     TQtHost* Host = New<TQtHost>(Form);
///     Host->SetParent(Form);
///     Host->SetWidget(new QCalendarWidget);
///
/// The widget fills the host and belongs to it. It has its place in the form's focus order; within the widget
/// Tab walks as the widget wants.
class TQtHost : public TWinControl
{
    VCL_CLASS
public:
    explicit TQtHost(TComponent* Owner);
    ~TQtHost() override;

    QWidget* GetWidget() const { return FWidget; }
    /// Deletes the widget shown before. Null: none.
    void SetWidget(QWidget* Value);
    /// Gives the widget back to the caller.
    QWidget* TakeWidget();

    bool Focused() const override;

protected:
    void CreateWnd() override;
    void DestroyWnd() override;
    void WMSize(TMessage& Message) override;
    void WMSetFocus(TMessage& Message) override;

private:
    void Insert();
    void Place();
    void FocusMoved(QWidget* To);

    QPointer<QWidget> FWidget;
    QMetaObject::Connection FFocusConnection;
};

} // namespace vcl
