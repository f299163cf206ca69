#pragma once

#include <QModelIndex>

class QAbstractItemView;
class QWidget;

/// Moves a window below a row of a view, or above it where the screen ends; it stays on the screen,
/// and leaves as much of the row visible as it can. To be called before the window is shown.
void placeBesideRow(QWidget &window, const QAbstractItemView &view, const QModelIndex &index);
