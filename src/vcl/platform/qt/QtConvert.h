#pragma once

#include <QColor>
#include <QPoint>
#include <QRect>
#include <QString>

#include "vcl/system/AnsiString.h"
#include "vcl/system/Types.h"

namespace vcl::qt
{

inline QString ToQt(const AnsiString& Text)
{
    return QString::fromUtf8(Text.data(), static_cast<qsizetype>(Text.size()));
}

inline AnsiString FromQt(const QString& Text)
{
    const QByteArray Bytes = Text.toUtf8();
    return AnsiString(Bytes.constData(), static_cast<std::size_t>(Bytes.size()));
}

inline QRect ToQt(const TRect& Rect)
{
    return {Rect.Left, Rect.Top, Rect.Width(), Rect.Height()};
}

inline TRect FromQt(const QRect& Rect)
{
    return Bounds(Rect.x(), Rect.y(), Rect.width(), Rect.height());
}

inline QPoint ToQt(TPoint Point)
{
    return {Point.X, Point.Y};
}

inline TPoint FromQt(QPoint Point)
{
    return {Point.x(), Point.y()};
}

/// Color is a real one, 0x00BBGGRR.
inline QColor ToQt(TColor Color)
{
    const auto Value = static_cast<std::uint32_t>(Color);
    return QColor(static_cast<int>(Value & 0xFF), static_cast<int>(Value >> 8 & 0xFF),
                  static_cast<int>(Value >> 16 & 0xFF));
}

inline TColor FromQt(const QColor& Color)
{
    return static_cast<TColor>(Color.red() | Color.green() << 8 | Color.blue() << 16);
}

} // namespace vcl::qt
