#include "vcl/platform/qt/QtDialogs.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>
#include <QFontInfo>
#include <QMessageBox>

#include "vcl/platform/qt/QtConvert.h"
#include "vcl/platform/qt/QtFont.h"
#include "vcl/platform/qt/QtWindow.h"

namespace vcl::qt
{

namespace
{

QWidget* WidgetOf(IWindow* Window)
{
    return Window && TWindow::Of(Window)->Widget() ? TWindow::Of(Window)->Widget()->window() : nullptr;
}

/// "Calendars|*.ics;*.ical|All files|*" as a list of "Calendars (*.ics *.ical)".
QStringList NameFilters(const AnsiString& Filter)
{
    const QStringList Parts = ToQt(Filter).split(QChar('|'));
    QStringList Result;
    for (qsizetype Index = 0; Index + 1 < Parts.size(); Index += 2) {
        QString Patterns = Parts[Index + 1];
        Patterns.replace(QChar(';'), QChar(' '));
        // A name that lists its patterns itself would show them twice.
        const QString Name = Parts[Index].section(QChar('('), 0, 0).trimmed();
        Result << QStringLiteral("%1 (%2)").arg(Name, Patterns);
    }
    return Result;
}

struct TButtonPair {
    TMessageButton Button;
    QMessageBox::StandardButton Standard;
};

constexpr TButtonPair ButtonPairs[] = {
    {TMessageButton::Ok, QMessageBox::Ok},           {TMessageButton::Cancel, QMessageBox::Cancel},
    {TMessageButton::Yes, QMessageBox::Yes},         {TMessageButton::No, QMessageBox::No},
    {TMessageButton::Abort, QMessageBox::Abort},     {TMessageButton::Retry, QMessageBox::Retry},
    {TMessageButton::Ignore, QMessageBox::Ignore},   {TMessageButton::YesToAll, QMessageBox::YesToAll},
    {TMessageButton::NoToAll, QMessageBox::NoToAll},
};

QMessageBox::Icon IconOf(TMessageKind Kind)
{
    switch (Kind) {
    case TMessageKind::Warning:
        return QMessageBox::Warning;
    case TMessageKind::Error:
        return QMessageBox::Critical;
    case TMessageKind::Confirmation:
        return QMessageBox::Question;
    case TMessageKind::Information:
        break;
    }
    return QMessageBox::Information;
}

} // namespace

bool TDialogs::ChooseFile(TFileDialogSpec& Spec, std::vector<AnsiString>& Files, IWindow* Parent)
{
    QFileDialog Dialog(WidgetOf(Parent), ToQt(Spec.Title), ToQt(Spec.InitialDir));
    Dialog.setAcceptMode(Spec.Save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    Dialog.setFileMode(Spec.Save               ? QFileDialog::AnyFile
                       : Spec.AllowMultiSelect ? QFileDialog::ExistingFiles
                       : Spec.FileMustExist    ? QFileDialog::ExistingFile
                                               : QFileDialog::AnyFile);
    Dialog.setOption(QFileDialog::DontConfirmOverwrite, !Spec.OverwritePrompt);
    Dialog.setDefaultSuffix(ToQt(Spec.DefaultExt));
    const QStringList Filters = NameFilters(Spec.Filter);
    if (!Filters.isEmpty()) {
        Dialog.setNameFilters(Filters);
        if (Spec.FilterIndex >= 1 && Spec.FilterIndex <= Filters.size())
            Dialog.selectNameFilter(Filters[Spec.FilterIndex - 1]);
    }
    if (!Spec.FileName.empty())
        Dialog.selectFile(ToQt(Spec.FileName));
    if (Dialog.exec() != QDialog::Accepted || Dialog.selectedFiles().isEmpty())
        return false;
    Files.clear();
    for (const QString& File : Dialog.selectedFiles())
        Files.push_back(FromQt(File));
    Spec.FilterIndex = static_cast<int>(Filters.indexOf(Dialog.selectedNameFilter())) + 1;
    return true;
}

TMessageButton TDialogs::ShowMessage(TMessageKind Kind, const AnsiString& Caption, const AnsiString& Text,
                                     const std::vector<TMessageButton>& Buttons, IWindow* Parent)
{
    QMessageBox Box(IconOf(Kind), ToQt(Caption), ToQt(Text), QMessageBox::NoButton, WidgetOf(Parent));
    Box.setTextFormat(Qt::PlainText);
    for (const TButtonPair& Pair : ButtonPairs) {
        if (std::find(Buttons.begin(), Buttons.end(), Pair.Button) != Buttons.end())
            Box.addButton(Pair.Standard);
    }
    const int Chosen = Box.exec();
    for (const TButtonPair& Pair : ButtonPairs) {
        if (Pair.Standard == Chosen)
            return Pair.Button;
    }
    return Buttons.empty() ? TMessageButton::Ok : TMessageButton::Cancel;
}

bool TDialogs::ChooseColor(TColor& Color, IWindow* Parent)
{
    const QColor Chosen = QColorDialog::getColor(ToQt(Color), WidgetOf(Parent));
    if (Chosen.isValid())
        Color = FromQt(Chosen);
    return Chosen.isValid();
}

bool TDialogs::ChooseFont(TFontSpec& Font, TColor&, IWindow* Parent)
{
    bool Accepted = false;
    const QFont Chosen = QFontDialog::getFont(&Accepted, ToQtFont(Font), WidgetOf(Parent));
    if (!Accepted)
        return false;
    Font.Name = FromQt(Chosen.family());
    Font.Height = -QFontInfo(Chosen).pixelSize();
    Font.Bold = Chosen.bold();
    Font.Italic = Chosen.italic();
    Font.Underline = Chosen.underline();
    Font.StrikeOut = Chosen.strikeOut();
    return true;
}

} // namespace vcl::qt
