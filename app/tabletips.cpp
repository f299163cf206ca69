#include "app/tabletips.h"

#include "commands/commandcolumns.h"
#include "log/logcolumns.h"
#include "widgets/celltips.h"

#include <QTableWidget>

namespace {

constexpr int tipColumn = LogColumn::Data;
static_assert(tipColumn == CommandColumn::Crc);

} // namespace

CellTips *addTableTips(QTableWidget &table)
{
    table.setMouseTracking(true);
    return new CellTips(table, tipColumn, &table);
}

void showInstantTip(const QModelIndex &cell)
{
    if (cell.column() == tipColumn) {
        showCellText(cell.data().toString());
    }
}
