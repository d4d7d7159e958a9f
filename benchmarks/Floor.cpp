#include "benchmarks/Floor.h"

#include <algorithm>
#include <array>
#include <chrono>

#include <QFont>
#include <QImage>
#include <QPainter>

namespace ks::bench
{

namespace
{

constexpr int Width = 1400;
constexpr int Height = 900;

/// Spreads the n-th thing over the image; neighbours in number are not neighbours on the image.
QRect Place(int Number)
{
    return QRect(Number * 97 % (Width - 100), Number * 61 % (Height - 20), 100, 20);
}

double PaintOnce(const TFloor& Floor)
{
    QImage Image(Width, Height, QImage::Format_RGB32);
    const auto Start = std::chrono::steady_clock::now();
    QPainter Painter(&Image);
    Painter.setFont(QFont("Liberation Sans", 8));
    Painter.fillRect(Image.rect(), Qt::white);
    for (int Number = 0; Number < Floor.Rectangles; ++Number) {
        Painter.fillRect(Place(Number), QColor(255, 255, 210));
        Painter.drawRect(Place(Number));
    }
    for (int Number = 0; Number < Floor.Texts; ++Number)
        Painter.drawText(Place(Number), Qt::AlignLeft, "Appointment of twenty");
    Painter.end();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - Start).count();
}

} // namespace

double FloorMilliseconds(const TFloor& Floor)
{
    std::array<double, 9> Times{};
    for (double& Time : Times)
        Time = PaintOnce(Floor);
    std::nth_element(Times.begin(), Times.begin() + Times.size() / 2, Times.end());
    return Times[Times.size() / 2];
}

} // namespace ks::bench
