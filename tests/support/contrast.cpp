#include "contrast.h"

#include <QHash>
#include <QPixmap>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace {

double linear(double channel)
{
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

QColor groundOf(const QImage &picture)
{
    QHash<QRgb, int> counts;
    QRgb ground = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            if (++counts[pixel] > counts[ground]) {
                ground = pixel;
            }
        }
    }
    return ground;
}

} // namespace

double contrast(const QColor &one, const QColor &other)
{
    constexpr double glare = 0.05;
    const double first = luminance(one) + glare;
    const double second = luminance(other) + glare;
    return std::max(first, second) / std::min(first, second);
}

double textContrast(const QImage &picture)
{
    const QColor ground = groundOf(picture);
    double most = 1;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            most = std::max(most, contrast(picture.pixelColor(x, y), ground));
        }
    }
    return most;
}

double edgeContrast(QWidget &widget)
{
    constexpr int outside = 3;
    constexpr int inside = 5;
    QWidget &window = *widget.window();
    const QPoint left = widget.mapTo(&window, QPoint(0, widget.height() / 2));
    const QRect across(left - QPoint(outside, 0), QSize(outside + inside + 1, 1));
    const QImage picture = window.grab(across).toImage();
    const QColor before = picture.pixelColor(0, 0);
    const QColor behind = picture.pixelColor(picture.width() - 1, 0);
    double best = 1;
    for (int x = 0; x < picture.width(); ++x) {
        const QColor edge = picture.pixelColor(x, 0);
        best = std::max(best, std::min(contrast(edge, before), contrast(edge, behind)));
    }
    return best;
}
