#include "commands/checkedrows.h"

QVector<CheckedRow> checkedRows(const QVector<CommandRow> &rows)
{
    QVector<CheckedRow> checked;
    for (int row = 0; row < rows.size(); ++row) {
        if (rows.at(row).selected) {
            checked.append(
                {row + 1, frameText(rows.at(row)), rows.at(row).description, rows.at(row).id});
        }
    }
    return checked;
}
