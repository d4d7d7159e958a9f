#include <QApplication>
#include <QCalendarWidget>
#include <QLineEdit>
#include <QMainWindow>
#include <QSplitter>
#include <QVBoxLayout>

#include "KSTimeView/KSTimeView.h"
#include "vcl/platform/qt/QtPlatform.h"
#include "vcl/qt/Bridge.h"
#include "vcl/system/DateTime.h"

namespace
{

/// The day planner of the current week, with a few items in it.
std::unique_ptr<TKSTimeView> MakeTimeView(vcl::TDate Monday)
{
    vcl::qt::UseQt();
    std::unique_ptr<TKSTimeView> View(vcl::New<TKSTimeView>(nullptr));
    View->SetBounds(0, 0, 640, 480);
    View->SetTabStop(true);
    View->SetDateRange(Monday, 5);
    const auto Add = [&](const char* Caption, int Day, double From, double To) {
        View->GetItems()->Add(Caption, Monday + Day + From / 24, Monday + Day + To / 24, false);
    };
    Add("Planning", 0, 9, 10.5);
    Add("Call with the printers", 1, 10, 11);
    Add("Proofs", 1, 10.5, 12);
    Add("Lunch with Ana", 2, 12, 13.5);
    Add("Release", 4, 15, 16);
    View->GetItems()->Add("Fair", Monday + 2, Monday + 4, true);
    return View;
}

/// Widgets around the planner: a month to choose from, and a line that adds an item to the first day shown.
QWidget* MakeSurroundings(TKSTimeView& View)
{
    auto* const Month = new QCalendarWidget;
    auto* const Title = new QLineEdit;
    Title->setPlaceholderText(QObject::tr("New item at noon"));
    QObject::connect(Month, &QCalendarWidget::clicked, [&View](QDate Date) {
        View.SetDate(vcl::EncodeDate(Date.year(), Date.month(), Date.day()));
    });
    QObject::connect(Title, &QLineEdit::returnPressed, [&View, Title] {
        const vcl::TDate Day = View.GetDate();
        View.GetItems()->Add(Title->text().toStdString(), Day + 12.0 / 24, Day + 13.0 / 24, false);
        Title->clear();
    });
    auto* const Side = new QWidget;
    auto* const Column = new QVBoxLayout(Side);
    Column->addWidget(Month);
    Column->addWidget(Title);
    Column->addStretch();
    auto* const Halves = new QSplitter;
    Halves->addWidget(Side);
    Halves->addWidget(vcl::WidgetOf(&View));
    Halves->setStretchFactor(1, 1);
    return Halves;
}

/// What stands behind an option of the command line; empty when it is not given.
QString ValueOf(const char* Option)
{
    const QStringList Options = QApplication::arguments();
    const qsizetype Place = Options.indexOf(QLatin1String(Option));
    return Place >= 0 && Place + 1 < Options.size() ? Options[Place + 1] : QString();
}

} // namespace

int main(int Count, char** Arguments)
{
    QApplication Program(Count, Arguments);
    if (QApplication::arguments().contains("--dark"))
        vcl::qt::UseDarkLook();
    const vcl::TDate Today = vcl::Date();
    const auto View = MakeTimeView(Today - (vcl::DayOfWeek(Today) + 5) % 7);
    QMainWindow Window;
    Window.setWindowTitle(QObject::tr("A week in a window of widgets"));
    Window.setCentralWidget(MakeSurroundings(*View));
    Window.resize(1000, 560);
    if (const QString File = ValueOf("--screenshot"); !File.isEmpty()) {
        const double Scale = ValueOf("--scale").toDouble();
        return vcl::PictureOf(&Window, Scale > 0 ? Scale : 1.0).save(File) ? 0 : 1;
    }
    Window.show();
    return QApplication::exec();
}
