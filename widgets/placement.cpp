#include "placement.h"

#include <QAbstractItemView>
#include <QScreen>

#include <algorithm>

void placeBesideRow(QWidget &window, const QAbstractItemView &view, const QModelIndex &index)
{
    const QRect cell = view.visualRect(index);
    const QPoint below = view.viewport()->mapToGlobal(cell.bottomLeft());
    const QPoint above = view.viewport()->mapToGlobal(cell.topLeft());
    const QRect screen = view.screen()->availableGeometry();
    const QSize size = window.frameGeometry().size().expandedTo(window.sizeHint());
    const bool fitsBelow = below.y() + size.height() <= screen.bottom();
    const int y = fitsBelow ? below.y() : above.y() - size.height();
    const int x = std::min(below.x(), screen.right() - size.width());
    window.move(std::max(screen.left(), x), std::max(screen.top(), y));
}
