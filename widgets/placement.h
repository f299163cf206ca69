#pragma once

#include <QModelIndex>

class QAbstractItemView;
class QWidget;

/// Moves a window below a row of a view, or above it where the screen ends; it stays on the screen.
void placeBesideRow(QWidget &window, const QAbstractItemView &view, const QModelIndex &index);
