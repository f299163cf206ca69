#include "log/logitem.h"

#include <QBrush>

#include <utility>

LogItem::LogItem(QString text, Qt::Alignment alignment, Colour colour)
    : m_text(std::move(text))
    , m_alignment(alignment)
    , m_colour(colour)
{
    setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
}

QTableWidgetItem *LogItem::clone() const
{
    return new LogItem(*this);
}

QVariant LogItem::data(int role) const
{
    const QVariant set = QTableWidgetItem::data(role);
    return set.isValid() ? set : ownData(role);
}

void LogItem::setData(int role, const QVariant &value)
{
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        m_text.clear();
        break;
    case Qt::TextAlignmentRole:
        m_alignment = {};
        break;
    case Qt::ForegroundRole:
        m_colour = Colour::Plain;
        break;
    default:
        break;
    }
    QTableWidgetItem::setData(role, value);
}

QVariant LogItem::ownData(int role) const
{
    static const QVariant receivedColour = QBrush(QColor(0, 130, 255));

    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return m_text;
    case Qt::TextAlignmentRole:
        return int(m_alignment);
    case Qt::ForegroundRole:
        return m_colour == Colour::Received ? receivedColour : QVariant();
    default:
        return {};
    }
}
