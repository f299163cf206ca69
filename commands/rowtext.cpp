#include "commands/rowtext.h"

#include "commands/cellfault.h"
#include "commands/commandcolumns.h"
#include "commands/oneline.h"
#include "commands/tabtext.h"
#include "frames/delaymarker.h"
#include "frames/hextext.h"
#include "frames/messages.h"

#include <QStringList>

#include <algorithm>

namespace {

namespace RowCell {
enum : int {
    Description,
    Select,
    Cmd,
    Addr,
    Data,
    Crc,
    DataType,
    OriginalData,
    Expectations,
    Count
};
} // namespace RowCell

constexpr QChar apostrophe('\'');
const QString selectWord = QStringLiteral("select");
const QString unselectWord = QStringLiteral("unselect");

QString columnName(int cell)
{
    static const char *const names[] = {QT_TRANSLATE_NOOP("CommandTable", "Description"),
                                        QT_TRANSLATE_NOOP("CommandTable", "Select"),
                                        QT_TRANSLATE_NOOP("CommandTable", "CMD"),
                                        QT_TRANSLATE_NOOP("CommandTable", "Addr"),
                                        QT_TRANSLATE_NOOP("CommandTable", "Data"),
                                        QT_TRANSLATE_NOOP("CommandTable", "CRC"),
                                        QT_TRANSLATE_NOOP("CommandTable", "DataType"),
                                        QT_TRANSLATE_NOOP("CommandTable", "OriginalData"),
                                        QT_TRANSLATE_NOOP("CommandTable", "Expectations")};
    return QCoreApplication::translate("CommandTable", names[cell]);
}

QString sheltered(const QString &cell)
{
    const bool isTaken = cell.isEmpty() || cell.at(0).isLetter();
    return isTaken ? cell : apostrophe + cell;
}

QString unsheltered(const QString &cell)
{
    return cell.startsWith(apostrophe) ? cell.mid(1) : cell;
}

QStringList cellsOf(const CommandRow &row)
{
    QStringList cells{row.description, row.selected ? selectWord : unselectWord,
                      row.cmd,         row.addr,
                      row.data,        row.crc,
                      row.dataType,    row.originalData,
                      row.expectations};
    std::transform(cells.cbegin(), cells.cend(), cells.begin(), sheltered);
    return cells;
}

bool isOneOf(const QStringList &words, const QString &word)
{
    return words.contains(word.trimmed(), Qt::CaseInsensitive);
}

bool isChecked(const QString &word)
{
    return isOneOf({selectWord, QStringLiteral("x"), QStringLiteral("1"), QStringLiteral("true")},
                   word);
}

bool isUnchecked(const QString &word)
{
    return isOneOf({unselectWord, QString(), QStringLiteral("0"), QStringLiteral("false")}, word);
}

/// Lines as they stand in command files, each with its line end.
QString expectationLines(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    const bool isWhole = text.isEmpty() || text.endsWith(QLatin1Char('\n'));
    return isWhole ? text : text + QLatin1Char('\n');
}

bool areExpectations(const QString &lines)
{
    QStringList all = lines.split(QLatin1Char('\n'));
    const QString runLine = all.takeFirst();
    const auto isExpectation = [](const QString &line) {
        return line.startsWith(QLatin1String("//?")) || line.startsWith(QLatin1String("//+")) ||
               line.startsWith(QLatin1String("//!"));
    };
    return lines.isEmpty() || (runLine.startsWith(QLatin1String("//@ tarnwick-run ")) &&
                               std::all_of(all.cbegin(), all.cend() - 1, isExpectation));
}

/// An address that fits its cell, as if it were typed there.
QString pastedAddress(const QString &text)
{
    constexpr int digitsOfCell = 4;
    const bool isTypeable =
        text.size() <= digitsOfCell && std::all_of(text.cbegin(), text.cend(), [](QChar character) {
            return hexDigitValue(character.toLatin1()).has_value();
        });
    return isTypeable ? normalisedAddress(text) : text;
}

/// Makes a row of its cells.
class RowReader
{
public:
    explicit RowReader(QStringList cells)
        : m_cells(std::move(cells))
    {
        while (m_cells.size() > RowCell::Count && m_cells.last().isEmpty()) {
            m_cells.removeLast();
        }
    }

    CommandRow row() const
    {
        CommandRow row;
        row.description = line(RowCell::Description);
        row.selected = isChecked(line(RowCell::Select));
        row.cmd = line(RowCell::Cmd);
        row.addr = isDelay(row.cmd) ? line(RowCell::Addr) : pastedAddress(line(RowCell::Addr));
        row.data = line(RowCell::Data);
        row.crc = crcCellText(frameText(row));
        row.dataType = line(RowCell::DataType);
        row.originalData = line(RowCell::OriginalData);
        row.expectations = expectationLines(text(RowCell::Expectations));
        return row;
    }

    /// What is wrong, behind the name of the column; empty where nothing is.
    QString fault() const
    {
        const CommandRow row = this->row();
        for (int cell = 0; cell < RowCell::Count; ++cell) {
            const QString words = faultOf(row, cell);
            if (!words.isEmpty()) {
                return columnName(cell) + QLatin1String(": ") + words;
            }
        }
        return m_cells.size() > RowCell::Count ? Messages::tr("there are more cells than columns.")
                                               : QString();
    }

private:
    QString text(int cell) const { return unsheltered(m_cells.value(cell)); }
    QString line(int cell) const { return onOneLine(text(cell)); }

    QString faultOf(const CommandRow &row, int cell) const
    {
        switch (cell) {
        case RowCell::Select:
            return isChecked(line(RowCell::Select)) || isUnchecked(line(RowCell::Select))
                       ? QString()
                       : Messages::tr(R"(neither "select" nor "unselect".)");
        case RowCell::Cmd:
            return cellFault(row, CommandColumn::Cmd);
        case RowCell::Addr:
            return cellFault(row, CommandColumn::Addr);
        case RowCell::Data:
            return cellFault(row, CommandColumn::Data);
        case RowCell::Expectations:
            return areExpectations(row.expectations) ? QString()
                                                     : Messages::tr("no expectation lines.");
        default:
            return {};
        }
    }

    QStringList m_cells;
};

QString rowFault(int number, const QString &words)
{
    return Messages::tr("Row %1, %2").arg(number).arg(words);
}

} // namespace

QString rowsText(const QVector<CommandRow> &rows)
{
    QString text;
    for (const CommandRow &row : rows) {
        text += tabLine(cellsOf(row));
    }
    return text;
}

PastedRows readRowsText(const QString &text)
{
    if (text.size() > mostRowsText) {
        return {{}, Messages::tr("There is more text than a command list can have.")};
    }
    const TabText read = readTabText(text);
    if (read.openQuoteRow > 0) {
        return {{}, rowFault(read.openQuoteRow, Messages::tr("a quote is not closed."))};
    }
    PastedRows pasted;
    for (const QStringList &cells : read.rows) {
        const RowReader reader(cells);
        const QString fault = reader.fault();
        if (!fault.isEmpty()) {
            return {{}, rowFault(pasted.rows.size() + 1, fault)};
        }
        pasted.rows.append(reader.row());
    }
    return pasted.rows.isEmpty() ? PastedRows{{}, Messages::tr("There are no rows to paste.")}
                                 : pasted;
}
