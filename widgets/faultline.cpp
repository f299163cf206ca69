#include "widgets/faultline.h"

#include <QPainter>

void paintFaultLine(QPainter &painter, const QRect &text)
{
    constexpr int thickness = 2;
    const QColor red(0xD0, 0x00, 0x00);
    painter.fillRect(text.left(), text.bottom() - thickness + 1, text.width(), thickness, red);
}
