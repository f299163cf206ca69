#pragma once

#include <QCoreApplication>
#include <QHelpEvent>
#include <QImage>
#include <QTableWidget>
#include <QToolTip>

/// What is painted of a cell.
inline QImage pictureOf(const QTableWidget &table, int row, int column)
{
    const QRect cell = table.visualRect(table.model()->index(row, column));
    return table.viewport()->grab(cell).toImage();
}

/// The tip that comes when the mouse rests on a cell.
inline QString tipOf(const QTableWidget &table, int row, int column)
{
    QToolTip::hideText();
    const QPoint place = table.visualRect(table.model()->index(row, column)).center();
    QHelpEvent event(QEvent::ToolTip, place, table.viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(table.viewport(), &event);
    return QToolTip::text();
}
