#include "vcl/qt/QtHost.h"

#include <QApplication>
#include <QWidget>

#include "vcl/controls/Program.h"
#include "vcl/platform/qt/QtConvert.h"
#include "vcl/platform/qt/QtPlatform.h"
#include "vcl/platform/qt/QtWindow.h"

namespace vcl
{

const TClass& TQtHost::StaticClass()
{
    static const TClass Class = DefineClass<TQtHost, TWinControl>("TQtHost");
    return Class;
}

TQtHost::TQtHost(TComponent* Owner) : TWinControl(Owner)
{
    FWidth = 185;
    FHeight = 105;
    SetTabStop(true);
    qt::UseQt();
    FFocusConnection = QObject::connect(qApp, &QApplication::focusChanged, [this](QWidget*, QWidget* To) {
        RunGuarded(this, [this, To] { FocusMoved(To); });
    });
}

TQtHost::~TQtHost()
{
    QObject::disconnect(FFocusConnection);
    delete FWidget;
}

void TQtHost::SetWidget(QWidget* Value)
{
    if (Value == FWidget)
        return;
    delete FWidget;
    FWidget = Value;
    if (FWidget && HandleAllocated())
        Insert();
}

QWidget* TQtHost::TakeWidget()
{
    QWidget* const Result = FWidget;
    FWidget = nullptr;
    if (Result)
        Result->setParent(nullptr);
    return Result;
}

void TQtHost::CreateWnd()
{
    TWinControl::CreateWnd();
    if (FWidget)
        Insert();
}

void TQtHost::DestroyWnd()
{
    if (FWidget)
        FWidget->setParent(nullptr);
    TWinControl::DestroyWnd();
}

void TQtHost::Insert()
{
    FWidget->setParent(qt::TWindow::Of(GetWindow())->ClientWidget());
    Place();
    FWidget->show();
}

void TQtHost::Place()
{
    if (FWidget && HandleAllocated())
        FWidget->setGeometry(qt::ToQt(GetClientRect()));
}

void TQtHost::WMSize(TMessage& Message)
{
    TWinControl::WMSize(Message);
    Place();
}

bool TQtHost::Focused() const
{
    const QWidget* const Has = QApplication::focusWidget();
    return TWinControl::Focused() || (FWidget && Has && (Has == FWidget || FWidget->isAncestorOf(Has)));
}

void TQtHost::WMSetFocus(TMessage& Message)
{
    TWinControl::WMSetFocus(Message);
    if (!FWidget)
        return;
    QWidget* Target = FWidget;
    while (Target->focusPolicy() == Qt::NoFocus) {
        Target = Target->nextInFocusChain();
        if (!FWidget->isAncestorOf(Target))
            return; // nothing inside takes the focus
    }
    Target->setFocus(Qt::TabFocusReason);
}

void TQtHost::FocusMoved(QWidget* To)
{
    const bool Inside = FWidget && To && (To == FWidget || FWidget->isAncestorOf(To));
    IFormSite* const Site = GetFormSiteOf(this);
    if (Inside && Site && Site->GetActiveControl() != this)
        Site->SetFocusedControl(this);
}

} // namespace vcl
