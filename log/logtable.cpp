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
    updateGeometries();
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
    const bool covered =
        verticalScrollBar()->maximum() > 0 && horizontalHeader()->length() >= viewport()->width();
    if (covered != viewport()->testAttribute(Qt::WA_OpaquePaintEvent)) {
        viewport()->setAttribute(Qt::WA_OpaquePaintEvent, covered);
    }
}
