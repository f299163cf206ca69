#pragma once

#include "commands/commandcolumns.h"
#include "commands/commandtable.h"
#include "commands/commandview.h"

#include <QCheckBox>
#include <QLayout>

/// A row whose texts and Select box tell which one it is.
inline CommandRow numberedRow(int number)
{
    const QString text = QString::number(number);
    return {"name " + text, number % 2 == 0, "03", text, "00 " + text, "crc" + text, "uint", text};
}

/// What a row carries, column by column, the last two included; "x" stands for a checked box.
inline QStringList texts(const CommandRow &row)
{
    return {row.description, row.selected ? "x" : "", row.cmd, row.addr, row.data, row.crc,
            row.dataType,    row.originalData};
}

inline QStringList emptyTexts()
{
    return {"", "", "", "", "", "", "short", ""};
}

/// A command table on a widget of its own, empty or with numbered rows.
struct TableFixture
{
    explicit TableFixture(int rowCount = 0)
    {
        QVector<CommandRow> content;
        for (int i = 0; i < rowCount; ++i) {
            content.append(numberedRow(i));
        }
        if (!content.isEmpty()) {
            rows.replaceRows(content);
        }
    }

    QStringList addresses() const
    {
        QStringList all;
        for (const CommandRow &row : rows.rows()) {
            all.append(row.addr);
        }
        return all;
    }

    QCheckBox *box(int row) const
    {
        const QWidget *container = table.cellWidget(row, CommandColumn::Select);
        return qobject_cast<QCheckBox *>(container->layout()->itemAt(0)->widget());
    }

    CommandView table;
    QObject filter;
    CommandTable rows{table, &filter};
};
