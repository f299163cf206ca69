#pragma once

#include <QCoreApplication>
#include <QHelpEvent>
#include <QImage>
#include <QTableWidget>
#include <QToolTip>
#include <QtTest>

/// What is painted of a cell.
inline QImage pictureOf(const QTableWidget &table, int row, int column)
{
    const QRect cell = table.visualRect(table.model()->index(row, column));
    return table.viewport()->grab(cell).toImage();
}

/// The tip that comes when the mouse rests on a cell.
inline QString tipOf(const QTableWidget &table, int row, int column)
{
    // A tip that is still being faded in isn't hidden by one call.
    const bool isGone = QTest::qWaitFor([] {
        QToolTip::hideText();
        return QToolTip::text().isEmpty();
    });
    if (!isGone) {
        return QStringLiteral("the tip before");
    }
    const QPoint place = table.visualRect(table.model()->index(row, column)).center();
    QHelpEvent event(QEvent::ToolTip, place, table.viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(table.viewport(), &event);
    return QToolTip::text();
}

/// Whether a picture has the red that underlines what is wrong.
inline bool showsRed(const QImage &image)
{
    const auto isRed = [](QRgb pixel) {
        return qRed(pixel) > 180 && qGreen(pixel) < 60 && qBlue(pixel) < 60;
    };
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (isRed(image.pixel(x, y))) {
                return true;
            }
        }
    }
    return false;
}
