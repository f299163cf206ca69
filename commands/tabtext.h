#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

/// The cells of a text, row by row.
struct TabText
{
    QVector<QStringList> rows;
    /// The row, from 1, in which a quote begins that doesn't end; 0 where there is none.
    int openQuoteRow = 0;
};

/// Reads text as spreadsheets put it on the clipboard: tabs between cells, any line end between
/// rows. A cell that begins with a quote goes to the next single one, over tabs and line ends, and
/// doubled quotes in it stand for one. Lines with nothing in them are no rows.
TabText readTabText(const QString &text);

/// A row in that form, with its line end.
QString tabLine(const QStringList &cells);
