#pragma once

#include "commands/commandrow.h"

#include <QVector>

/// Rows that take the place of `removed` others, from index `row` on.
struct RowExchange
{
    int row = 0;
    int removed = 0;
    QVector<CommandRow> rows = {};
};

/// Exchanges the rows in a list, and returns what takes it back. The indices must be in the list.
RowExchange exchange(QVector<CommandRow> &list, const RowExchange &change);

/// The exchange without rows at its ends that are as they were: `before` are the rows that it
/// takes away.
RowExchange withoutEqualEnds(const RowExchange &change, const QVector<CommandRow> &before);

/// Whether nothing changes by it.
bool isNothing(const RowExchange &change);

/// About how much memory the rows take, in bytes.
qint64 memoryOf(const QVector<CommandRow> &rows);
