#include "commands/commandview.h"

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
    viewport()->update();
}

QPoint CommandView::offset() const
{
    return {horizontalHeader()->offset(), verticalHeader()->offset()};
}

void CommandView::moveShownWidgets(QPoint by)
{
    for (QObject *child : viewport()->children()) {
        auto *widget = qobject_cast<QWidget *>(child);
        if (widget != nullptr && !widget->isHidden()) {
            widget->move(widget->pos() + by);
        }
    }
}
