#include "log/logitems.h"

#include <QBrush>

namespace {

const QColor receivedColour(0, 130, 255);

void setLook(QTableWidgetItem &item, Qt::AlignmentFlag alignment, LogItems::Colour colour)
{
    item.setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    item.setTextAlignment(int(alignment | Qt::AlignVCenter));
    if (colour == LogItems::Colour::Received) {
        item.setForeground(receivedColour);
    }
}

} // namespace

LogItems::LogItems()
{
    setLook(m_left, Qt::AlignLeft, Colour::Plain);
    setLook(m_centred, Qt::AlignHCenter, Colour::Plain);
    setLook(m_leftReceived, Qt::AlignLeft, Colour::Received);
    setLook(m_centredReceived, Qt::AlignHCenter, Colour::Received);
}

QTableWidgetItem *LogItems::make(const QString &text, Qt::AlignmentFlag alignment,
                                 Colour colour) const
{
    const bool left = alignment == Qt::AlignLeft;
    const QTableWidgetItem &look = colour == Colour::Received
                                       ? (left ? m_leftReceived : m_centredReceived)
                                       : (left ? m_left : m_centred);
    QTableWidgetItem *item = look.clone();
    if (!text.isEmpty()) {
        item->setText(text);
    }
    return item;
}
