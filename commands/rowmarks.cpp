#include "commands/rowmarks.h"

#include "commands/commandcolumns.h"

#include <QTableWidget>

namespace {

constexpr int expectationsRole = Qt::UserRole + 1;
constexpr int idRole = Qt::UserRole + 2;

QVariant rowMark(const QTableWidget &table, int row, int role)
{
    const QTableWidgetItem *item = table.item(row, CommandColumn::Description);
    return item != nullptr ? item->data(role) : QVariant();
}

} // namespace

int rowId(const QTableWidget &table, int row)
{
    return rowMark(table, row, idRole).toInt();
}

void setRowId(QTableWidget &table, int row, int id)
{
    if (QTableWidgetItem *item = table.item(row, CommandColumn::Description)) {
        item->setData(idRole, id);
    }
}

QString rowExpectations(const QTableWidget &table, int row)
{
    return rowMark(table, row, expectationsRole).toString();
}

void setRowExpectations(QTableWidget &table, int row, const QString &expectations)
{
    QTableWidgetItem *item = table.item(row, CommandColumn::Description);
    if (item != nullptr && expectations != rowExpectations(table, row)) {
        item->setData(expectationsRole, expectations);
        item->setToolTip(expectations.section(QLatin1Char('\n'), 1).trimmed());
    }
}
