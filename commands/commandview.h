#pragma once

#include <QTableWidget>

/// The table of the commands, which holds thousands of widgets.
///
/// A table that is scrolled moves every widget in its cells, and tells each of them so. This one
/// moves those that are shown; whoever shows another one has to place it.
class CommandView : public QTableWidget
{
public:
    using QTableWidget::QTableWidget;

protected:
    void scrollContentsBy(int dx, int dy) override;

private:
    QPoint offset() const;
    void moveShownWidgets(QPoint by);
};
