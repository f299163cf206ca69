#pragma once

#include "commands/commandtable.h"
#include "commands/rowactions.h"
#include "menuuser.h"
#include "windowdriver.h"

/// The row menus of a window whose nine commands carry their numbers, 0 to 8, as descriptions.
class RowBench
{
public:
    RowBench();

    QTableWidget *table() const { return window.commands(); }
    CommandTable *rows() { return window.window().findChild<CommandTable *>(); }
    RowActions *actions() { return window.window().findChild<RowActions *>(); }
    /// The first action of the window that has this text; null if none has.
    QAction *entry(const QString &text);

    /// The descriptions from top to bottom; "-" stands for a row without one, "D" for a delay row.
    QString order() const;
    bool isChecked(int row) { return rows()->row(row).selected; }

    /// Right-clicks a cell: the widget on top of it there, as a mouse does.
    void rightClick(int row, int column) const;
    /// Turns the wheel over the table by one step, downwards.
    void turnWheel() const;

    WindowDriver window;
    MenuUser menus;
    MessageBoxes boxes;

    Q_DISABLE_COPY(RowBench)
};

/// The entries that write a command into the CMD cell.
QStringList cmdEntries();
