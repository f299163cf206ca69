#include "log/logtable.h"

#include "log/stillscrollbar.h"

#include <QHeaderView>
#include <QScopedValueRollback>

LogTable::LogTable(QWidget *parent)
    : QTableWidget(parent)
    , m_bar(new StillScrollBar(Qt::Vertical, this))
{
    setVerticalScrollBar(m_bar);
    connect(m_bar, &QScrollBar::valueChanged, this, [this] {
        if (!m_moves) {
            emit scrolledByHand(isAtEnd());
        }
    });
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

void LogTable::shrinkTo(int rows)
{
    const QScopedValueRollback<bool> moving(m_moves, true);
    if (verticalHeader()->hiddenSectionCount() > 0) {
        showRows(0, QVector<bool>(rowCount(), true));
    }
    setRowCount(rows);
    scrollToTop();
}

void LogTable::showRows(int first, const QVector<bool> &shown)
{
    // While it is not updated, the header doesn't compute all places anew for each row.
    verticalHeader()->setUpdatesEnabled(false);
    for (int i = 0; i < shown.size(); ++i) {
        setRowHidden(first + i, !shown.at(i));
    }
    verticalHeader()->setUpdatesEnabled(true);
}

void LogTable::showEnd()
{
    const QScopedValueRollback<bool> moving(m_moves, true);
    executeDelayedItemsLayout();
    if (m_bar->maximum() > 0) {
        // All rows are of one height. A layout that finds the range too short would move the rows
        // without moving what is painted of them.
        m_bar->goToEnd(m_bar->maximum() + shownRows() - m_rowsLaidOut);
    }
    const int offset = verticalHeader()->offset();
    updateGeometries();
    if (verticalHeader()->offset() != offset) {
        viewport()->update();
    }
    scrollToBottom();
}

void LogTable::stay()
{
    executeDelayedItemsLayout();
    const int offset = verticalHeader()->offset();
    const int value = m_bar->value();
    updateGeometries();
    // At the end the first row is cut off; it would be shown whole as soon as that isn't the end.
    if (m_bar->value() == value && verticalHeader()->offset() != offset) {
        verticalHeader()->setOffset(offset);
    }
}

void LogTable::selectInView()
{
    if (isInView(currentIndex())) {
        selectRow(currentRow());
        return;
    }
    const int top = rowAt(0);
    const int next = rowAt(rowHeight(top) + rowViewportPosition(top));
    // The first one may be cut off.
    if (const int row = rowViewportPosition(top) < 0 && next >= 0 ? next : top; row >= 0) {
        selectRow(row);
    }
}

bool LogTable::isSelectedInView() const
{
    const QModelIndex current = currentIndex();
    return isInView(current) && selectionModel()->isRowSelected(current.row(), {});
}

bool LogTable::isAtEnd() const
{
    return m_bar->value() == m_bar->maximum();
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
    const QScopedValueRollback<bool> moving(m_moves, true);
    QTableWidget::updateGeometries();
    m_rowsLaidOut = shownRows();
    const bool covered =
        m_bar->maximum() > 0 && horizontalHeader()->length() >= viewport()->width();
    if (covered != viewport()->testAttribute(Qt::WA_OpaquePaintEvent)) {
        viewport()->setAttribute(Qt::WA_OpaquePaintEvent, covered);
    }
}

int LogTable::shownRows() const
{
    return rowCount() - verticalHeader()->hiddenSectionCount();
}

/// The place of a hidden row is empty.
bool LogTable::isInView(const QModelIndex &cell) const
{
    return viewport()->rect().intersects(visualRect(cell));
}
