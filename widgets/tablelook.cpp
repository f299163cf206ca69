#include "widgets/tablelook.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QTableWidget>

namespace {

constexpr int rowHeight = 36;

const char *const scrollBarStyle =
    "QScrollBar:vertical{background:transparent;width:18px;margin-left:8px;}"
    "QScrollBar::handle:vertical{ background: #c0c0c0;width:10px;border-radius: 5px; "
    "min-height:91px; border-style:flat;}"
    "QScrollBar::handle:vertical::hover{ background: #c0c0c0;border-radius: 5px;width:10px; }"
    "QScrollBar::handle:vertical::pressed{ background: #c0c0c0;border-radius:5px;width:10px; }"
    "QScrollBar::sub-page:vertical {background: transparent; border-style:flat;}"
    "QScrollBar::add-page:vertical {background: transparent;border-style:flat;}"
    "QScrollBar::add-line:vertical{background: transparent;}"
    "QScrollBar::sub-line:vertical {background: transparent;}";

const char *const headerStyle =
    "QHeaderView::section{border:0px solid rgb(255,255,255);color: #001560;background: #d9dfe7;"
    "height: 36px;font-size: 16px;min-width:60px;}";

const char *const tableStyle =
    "QTableWidget{border:none;background: #ffffff;border-radius: 4px;}"
    "QTableWidget::Item{border:0px solid rgb(255,255,255);height:36px;background: #ffffff;"
    "border-bottom:1px solid #f3f3f3;}"
    "QTableWidget::Item::selected{color:#333333;background: #f5f5f5}";

} // namespace

void styleTable(QTableWidget &table, int columns, int rows)
{
    table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.verticalHeader()->setDefaultSectionSize(rowHeight);
    table.verticalHeader()->hide();
    table.verticalScrollBar()->setStyleSheet(QLatin1String(scrollBarStyle));
    table.horizontalHeader()->setHighlightSections(false);
    table.horizontalHeader()->setStyleSheet(QLatin1String(headerStyle));
    table.setStyleSheet(QLatin1String(tableStyle));
    table.setShowGrid(false);
    table.setWordWrap(false);
    table.setColumnCount(columns);
    table.setRowCount(rows);
    table.setSelectionMode(QAbstractItemView::ExtendedSelection);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
}
