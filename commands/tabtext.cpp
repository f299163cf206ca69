#include "commands/tabtext.h"

#include <algorithm>

namespace {

constexpr QChar cellEnd('\t');
constexpr QChar cellQuote('"');

bool isLineEnd(QChar character)
{
    return character == QLatin1Char('\n') || character == QLatin1Char('\r');
}

/// Reads a text cell by cell.
class TabReader
{
public:
    explicit TabReader(const QString &text)
        : m_text(text)
    {}

    TabText read()
    {
        while (m_at < m_text.size()) {
            readRow();
        }
        return m_read;
    }

private:
    void readRow()
    {
        QStringList cells{readCell()};
        while (m_at < m_text.size() && m_text.at(m_at) == cellEnd) {
            ++m_at;
            cells.append(readCell());
        }
        // The next line end, in one or two characters; that a blank line makes no row needs no
        // more.
        m_at += m_at < m_text.size() ? 1 : 0;
        if (cells != QStringList(QString())) {
            m_read.rows.append(cells);
        }
    }

    QString readCell()
    {
        QString cell;
        if (m_at < m_text.size() && m_text.at(m_at) == cellQuote) {
            ++m_at;
            cell = readQuoted();
        }
        const int begin = m_at;
        while (m_at < m_text.size() && m_text.at(m_at) != cellEnd && !isLineEnd(m_text.at(m_at))) {
            ++m_at;
        }
        return cell + m_text.mid(begin, m_at - begin);
    }

    QString readQuoted()
    {
        QString cell;
        while (true) {
            const int end = m_text.indexOf(cellQuote, m_at);
            if (end < 0) {
                m_read.openQuoteRow = m_read.rows.size() + 1;
                m_at = m_text.size();
                return cell;
            }
            cell += m_text.mid(m_at, end - m_at);
            m_at = end + 1;
            if (m_at >= m_text.size() || m_text.at(m_at) != cellQuote) {
                return cell;
            }
            cell += cellQuote;
            ++m_at;
        }
    }

    const QString &m_text;
    int m_at = 0;
    TabText m_read;
};

bool needsQuotes(const QString &cell)
{
    return std::any_of(cell.cbegin(), cell.cend(), [](QChar character) {
        return character == cellEnd || character == cellQuote || isLineEnd(character);
    });
}

QString quoted(QString cell)
{
    return cellQuote + cell.replace(cellQuote, QLatin1String("\"\"")) + cellQuote;
}

} // namespace

TabText readTabText(const QString &text)
{
    return TabReader(text).read();
}

QString tabLine(const QStringList &cells)
{
    QStringList texts;
    for (const QString &cell : cells) {
        texts.append(needsQuotes(cell) ? quoted(cell) : cell);
    }
    return texts.join(cellEnd) + QLatin1Char('\n');
}
