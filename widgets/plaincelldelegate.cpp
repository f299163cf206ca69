#include "plaincelldelegate.h"

#include <QPainter>
#include <QStyle>

namespace {

const QColor background(0xFF, 0xFF, 0xFF);
const QColor line(0xF3, 0xF3, 0xF3);

/// The line's height is rounded as the style does it; a painter that centres by itself may come out
/// a pixel lower.
void paintText(QPainter &painter, const QStyleOptionViewItem &cell)
{
    const int margin = cell.widget->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1;
    const QRect room = cell.rect.adjusted(margin, 0, -margin, -1);
    const QRect place = QStyle::alignedRect(cell.direction, cell.displayAlignment,
                                            {room.width(), cell.fontMetrics.height()}, room);
    const Qt::Alignment sideways = cell.displayAlignment & Qt::AlignHorizontal_Mask;
    painter.setPen(cell.palette.color(QPalette::Text));
    painter.setFont(cell.font);
    painter.drawText(place, int(sideways) | Qt::TextSingleLine | Qt::TextDontClip,
                     cell.fontMetrics.elidedText(cell.text, cell.textElideMode, place.width()));
}

} // namespace

void PlainCellDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const
{
    if (option.state & (QStyle::State_Selected | QStyle::State_HasFocus)) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    painter->fillRect(cell.rect, background);
    painter->fillRect(QRect(cell.rect.bottomLeft(), QSize(cell.rect.width(), 1)), line);
    if (!cell.text.isEmpty()) {
        paintText(*painter, cell);
    }
}
