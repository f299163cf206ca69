#include "commands/cellwidget.h"

bool isRowInView(const QTableView &table, int row)
{
    const int top = table.rowViewportPosition(row);
    return top + table.rowHeight(row) > 0 && top < table.viewport()->height();
}

bool holdsFocus(const QWidget &widget)
{
    const QWidget *focused = widget.window()->focusWidget();
    return focused == &widget || widget.isAncestorOf(focused);
}
