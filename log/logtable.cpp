#include "log/logtable.h"

#include "log/stillscrollbar.h"

#include <QHeaderView>

LogTable::LogTable(QWidget *parent)
    : QTableWidget(parent)
    , m_bar(new StillScrollBar(Qt::Vertical, this))
{
    setVerticalScrollBar(m_bar);
}

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
    executeDelayedItemsLayout();
    if (m_bar->maximum() > 0) {
        // All rows are of one height. A layout that finds the range too short would move the rows
        // without moving what is painted of them.
        m_bar->goToEnd(m_bar->maximum() + rowCount() - m_rowsLaidOut);
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
        m_bar->maximum() > 0 && horizontalHeader()->length() >= viewport()->width();
    if (covered != viewport()->testAttribute(Qt::WA_OpaquePaintEvent)) {
        viewport()->setAttribute(Qt::WA_OpaquePaintEvent, covered);
    }
}
