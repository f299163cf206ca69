#include "commands/commandview.h"

#include <QAbstractItemDelegate>
#include <QHeaderView>
#include <QScrollBar>

namespace {

/// Lets the sections begin with the one that the bar has reached; the last one is shown whole.
void follow(QHeaderView &header, const QScrollBar &bar, QAbstractItemView::ScrollMode mode)
{
    if (mode == QAbstractItemView::ScrollPerPixel) {
        header.setOffset(bar.value());
    } else if (bar.maximum() > 0 && bar.value() == bar.maximum()) {
        header.setOffsetToLastSection();
    } else {
        header.setOffsetToSectionPosition(bar.value());
    }
}

} // namespace

void CommandView::scrollContentsBy(int dx, int dy)
{
    const QPoint before = offset();
    if (dx != 0) {
        follow(*horizontalHeader(), *horizontalScrollBar(), horizontalScrollMode());
    }
    if (dy != 0) {
        follow(*verticalHeader(), *verticalScrollBar(), verticalScrollMode());
    }
    moveShownWidgets(before - offset());
    placeWidgetsInView();
    viewport()->update();
}

QPoint CommandView::offset() const
{
    return {horizontalHeader()->offset(), verticalHeader()->offset()};
}

/// Asked to show itself again, a widget hides where its cell has left the view.
void CommandView::moveShownWidgets(QPoint by)
{
    for (QObject *child : viewport()->children()) {
        auto *widget = qobject_cast<QWidget *>(child);
        if (widget != nullptr && !widget->isHidden()) {
            widget->move(widget->pos() + by);
            widget->show();
        }
    }
}

void CommandView::placeWidgetsInView()
{
    const int height = viewport()->height();
    for (int row = rowAt(0); row >= 0 && row < rowCount(); ++row) {
        if (rowViewportPosition(row) >= height) {
            break;
        }
        for (int column = 0; column < columnCount(); ++column) {
            placeWidget(model()->index(row, column));
        }
    }
}

/// As a layout does it.
void CommandView::placeWidget(const QModelIndex &cell)
{
    QWidget *widget = indexWidget(cell);
    if (widget == nullptr || !widget->isHidden()) {
        return;
    }
    QStyleOptionViewItem option = viewOptions();
    option.rect = visualRect(cell);
    itemDelegate(cell)->updateEditorGeometry(widget, option, cell);
    widget->setVisible(option.rect.isValid());
}
