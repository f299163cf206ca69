#include "logtable.h"

#include <QHeaderView>
#include <QScrollBar>

void LogTable::growTo(int rows)
{
    // Whatever else asked for a layout gets a whole one.
    executeDelayedItemsLayout();
    m_growing = true;
    setRowCount(rows);
    executeDelayedItemsLayout();
    m_growing = false;
}

void LogTable::showEnd()
{
    QScrollBar &bar = *verticalScrollBar();
    if (bar.maximum() > 0) {
        // All rows are of one height. A layout that finds the range too short would move the rows
        // without moving what is painted of them.
        bar.setMaximum(bar.maximum() + rowCount() - m_rowsLaidOut);
        bar.setValue(bar.maximum());
    }
    const int offset = verticalHeader()->offset();
    updateGeometries();
    if (verticalHeader()->offset() != offset) {
        viewport()->update();
    }
    scrollToBottom();
}

void LogTable::doItemsLayout()
{
    if (!m_growing) {
        QTableWidget::doItemsLayout();
    }
}

/// Where cells cover all of the view, nothing behind it has to be painted, and what is painted can
/// be moved.
void LogTable::updateGeometries()
{
    QTableWidget::updateGeometries();
    m_rowsLaidOut = rowCount();
    const bool covered =
        verticalScrollBar()->maximum() > 0 && horizontalHeader()->length() >= viewport()->width();
    if (covered != viewport()->testAttribute(Qt::WA_OpaquePaintEvent)) {
        viewport()->setAttribute(Qt::WA_OpaquePaintEvent, covered);
    }
}
