#include "widgets/tableitems.h"

#include <QTableWidget>

namespace {

void setItem(QTableWidget &table, int row, int column, const QString &text, Qt::Alignment alignment)
{
    auto *item = new QTableWidgetItem(text);
    QFont font;
    font.setStyle(QFont::StyleNormal);
    font.setWeight(QFont::Normal);
    item->setFont(font);
    item->setTextAlignment(int(alignment));
    table.setItem(row, column, item);
}

} // namespace

void setCentredItem(QTableWidget &table, int row, int column, const QString &text)
{
    setItem(table, row, column, text, Qt::AlignHCenter | Qt::AlignVCenter);
}

void setLeftItem(QTableWidget &table, int row, int column, const QString &text)
{
    setItem(table, row, column, text, Qt::AlignLeft | Qt::AlignVCenter);
}

QString cellText(const QTableWidget &table, int row, int column)
{
    const QTableWidgetItem *item = table.item(row, column);
    return item != nullptr ? item->text() : QString();
}

void setColumns(QTableWidget &table, const QVector<TableColumn> &columns)
{
    for (int column = 0; column < columns.size(); ++column) {
        const TableColumn &look = columns.at(column);
        auto *header = new QTableWidgetItem(look.header);
        if (look.leftAlignedHeader) {
            header->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        }
        table.setHorizontalHeaderItem(column, header);
        table.setColumnWidth(column, look.width);
        table.horizontalHeader()->setSectionResizeMode(column, look.resizeMode);
    }
}
