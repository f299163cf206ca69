#include "widgets/placement.h"

#include <QAbstractItemView>
#include <QScreen>

#include <algorithm>

namespace {

/// The window as the desktop will frame it. A frame comes some time after the window is shown, but
/// a window that has one tells how large they are.
QSize framedSize(const QWidget &window, const QWidget &framedWindow)
{
    const QSize frame = framedWindow.frameGeometry().size() - framedWindow.size();
    return window.size().expandedTo(window.sizeHint()) + frame;
}

/// The top of a window of this height that leaves the row visible, or as much of it as can be.
int topBesideRow(const QRect &row, int height, const QRect &screen)
{
    const int below = std::min(row.bottom() + 1, screen.bottom() + 1 - height);
    const int above = std::max(row.top() - height, screen.top());
    const int hiddenFromBelow = row.bottom() + 1 - below;
    const int hiddenFromAbove = above + height - row.top();
    return std::max(screen.top(), hiddenFromBelow <= hiddenFromAbove ? below : above);
}

} // namespace

void placeBesideRow(QWidget &window, const QAbstractItemView &view, const QModelIndex &index)
{
    window.ensurePolished();
    const QRect cell = view.visualRect(index);
    const QRect row(view.viewport()->mapToGlobal(cell.topLeft()), cell.size());
    const QRect screen = view.screen()->availableGeometry();
    const QSize size = framedSize(window, *view.window());
    const int x = std::min(row.left(), screen.right() + 1 - size.width());
    window.move(std::max(screen.left(), x), topBesideRow(row, size.height(), screen));
}
