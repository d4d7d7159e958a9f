#include "planner/State.h"

#include <algorithm>

#include <QRect>
#include <QSettings>
#include <QStringList>

namespace planner
{

TState LoadState()
{
    const QSettings Settings(QSettings::IniFormat, QSettings::UserScope, "KSSuite", "planner");
    TState State;
    for (const QString& File : Settings.value("files").toStringList())
        State.Files.push_back(File.toStdString());
    State.Days = std::clamp(Settings.value("days", State.Days).toInt(), 1, 31);
    State.MarkMinutes = Settings.value("markMinutes", State.MarkMinutes).toInt();
    State.ShowWork = Settings.value("showWork", State.ShowWork).toBool();
    const double Begin = Settings.value("beginWork", State.BeginWork).toDouble();
    const double End = Settings.value("endWork", State.EndWork).toDouble();
    if (Begin >= 0 && Begin < End && End <= 1) {
        State.BeginWork = Begin;
        State.EndWork = End;
    }
    const QRect Bounds = Settings.value("bounds").toRect();
    if (Bounds.width() >= 200 && Bounds.height() >= 150)
        State.Bounds = vcl::Bounds(Bounds.x(), Bounds.y(), Bounds.width(), Bounds.height());
    State.ScrollMinutes = std::clamp(Settings.value("scrollMinutes", -1).toInt(), -1, 24 * 60);
    return State;
}

void SaveState(const TState& State)
{
    QSettings Settings(QSettings::IniFormat, QSettings::UserScope, "KSSuite", "planner");
    QStringList Files;
    for (const std::string& File : State.Files)
        Files.append(QString::fromStdString(File));
    Settings.setValue("files", Files);
    Settings.setValue("days", State.Days);
    Settings.setValue("markMinutes", State.MarkMinutes);
    Settings.setValue("showWork", State.ShowWork);
    Settings.setValue("beginWork", State.BeginWork);
    Settings.setValue("endWork", State.EndWork);
    Settings.setValue(
        "bounds", QRect(State.Bounds.Left, State.Bounds.Top, State.Bounds.Width(), State.Bounds.Height()));
    Settings.setValue("scrollMinutes", State.ScrollMinutes);
}

} // namespace planner
