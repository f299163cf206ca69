#pragma once

#include "windowdriver.h"

/// An active window whose command cells are edited by key.
class CellBench
{
public:
    CellBench();

    QTableWidget *table() const { return window.commands(); }
    QString text(int row, int column) const;

    /// Opens a cell's editor; null where none opens.
    QLineEdit *edit(int row, int column) const;
    /// The cell whose editor has the focus; null where none does.
    QTableWidgetItem *editedItem() const;

    /// Keys go to what has the focus.
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    static void type(const char *keys);

    WindowDriver window;

    Q_DISABLE_COPY(CellBench)
};
