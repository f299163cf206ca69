#include "logitem.h"

#include <QBrush>

#include <utility>

LogItem::LogItem(QString text, Qt::Alignment alignment, Origin origin)
    : m_text(std::move(text))
    , m_alignment(alignment)
    , m_origin(origin)
{
    setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
}

QTableWidgetItem *LogItem::clone() const
{
    return new LogItem(m_text, m_alignment, m_origin);
}

QVariant LogItem::data(int role) const
{
    static const QVariant receivedColour = QBrush(QColor(0, 130, 255));

    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return m_text;
    case Qt::TextAlignmentRole:
        return int(m_alignment);
    case Qt::ForegroundRole:
        return m_origin == Origin::Received ? receivedColour : QVariant();
    default:
        return QTableWidgetItem::data(role);
    }
}
