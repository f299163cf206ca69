#pragma once

#include <QTableWidget>

/// The table of the commands, which holds thousands of widgets.
///
/// A table that is scrolled moves every widget in its cells, and tells each of them so. This one
/// moves those that are shown, and places those that come into view and so are shown again (see
/// CellWidget). A layout places all of them, as in any table.
class CommandView : public QTableWidget
{
public:
    using QTableWidget::QTableWidget;

protected:
    void scrollContentsBy(int dx, int dy) override;

private:
    QPoint offset() const;
    void moveShownWidgets(QPoint by);
    void placeWidgetsInView();
    void placeWidget(const QModelIndex &cell);
};
