#include "commands/checkedrows.h"

QVector<CheckedRow> checkedRows(const QVector<CommandRow> &rows)
{
    QVector<CheckedRow> checked;
    for (int row = 0; row < rows.size(); ++row) {
        if (rows.at(row).selected) {
            const CommandRow &command = rows.at(row);
            checked.append({row + 1, frameText(command), command.description, command.id,
                            command.expectations});
        }
    }
    return checked;
}
