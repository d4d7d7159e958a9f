#include "vcl/platform/qt/QtClipboard.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>

#include "vcl/platform/qt/QtConvert.h"

namespace vcl::qt
{

namespace
{

QClipboard* Desktop()
{
    return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) ? QGuiApplication::clipboard()
                                                                        : nullptr;
}

} // namespace

bool TClipboard::HasText()
{
    const QClipboard* const Board = Desktop();
    return Board && Board->mimeData() && Board->mimeData()->hasText();
}

AnsiString TClipboard::GetText()
{
    const QClipboard* const Board = Desktop();
    return Board ? FromQt(Board->text()) : AnsiString();
}

void TClipboard::SetText(const AnsiString& Text)
{
    if (QClipboard* const Board = Desktop())
        Board->setText(ToQt(Text));
}

} // namespace vcl::qt
