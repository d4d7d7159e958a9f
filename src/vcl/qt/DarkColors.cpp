#include "vcl/qt/DarkColors.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

namespace vcl::qt
{

void UseDarkColors()
{
    // The style that draws every part from the palette.
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    const QColor Window(45, 46, 50);
    const QColor Base(30, 31, 34);
    const QColor Text(225, 226, 230);
    const QColor Dim(130, 132, 138);
    QPalette Palette(Window);
    Palette.setColor(QPalette::Window, Window);
    Palette.setColor(QPalette::Base, Base);
    Palette.setColor(QPalette::AlternateBase, Window);
    Palette.setColor(QPalette::Button, Window);
    Palette.setColor(QPalette::ToolTipBase, Window);
    for (const QPalette::ColorRole Role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        Palette.setColor(Role, Text);
    Palette.setColor(QPalette::PlaceholderText, Dim);
    Palette.setColor(QPalette::Highlight, QColor(60, 110, 190));
    Palette.setColor(QPalette::HighlightedText, QColor(255, 255, 255));
    for (const QPalette::ColorRole Role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        Palette.setColor(QPalette::Disabled, Role, Dim);
    QApplication::setPalette(Palette);
}

} // namespace vcl::qt
