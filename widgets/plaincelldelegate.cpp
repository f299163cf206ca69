#include "plaincelldelegate.h"

#include "selectionbar.h"

#include <QPainter>
#include <QStyle>

namespace {

const QColor background(0xFF, 0xFF, 0xFF);
const QColor selectedBackground(0xF5, 0xF5, 0xF5);
const QColor selectedText(0x33, 0x33, 0x33);
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

void paintFocus(QPainter &painter, const QStyleOptionViewItem &cell)
{
    const QStyle &style = *cell.widget->style();
    QStyleOptionFocusRect frame;
    frame.QStyleOption::operator=(cell);
    frame.rect = style.subElementRect(QStyle::SE_ItemViewItemFocusRect, &cell, cell.widget);
    frame.state |= QStyle::State_KeyboardFocusChange | QStyle::State_Item;
    style.drawPrimitive(QStyle::PE_FrameFocusRect, &frame, &painter, cell.widget);
}

} // namespace

void PlainCellDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const bool isSelected = cell.state & QStyle::State_Selected;
    // A text with a colour of its own keeps it, which no style sheet grants it.
    if (isSelected && !index.data(Qt::ForegroundRole).isValid()) {
        cell.palette.setColor(QPalette::Text, selectedText);
    }
    painter->fillRect(cell.rect, isSelected ? selectedBackground : background);
    painter->fillRect(QRect(cell.rect.bottomLeft(), QSize(cell.rect.width(), 1)), line);
    if (!cell.text.isEmpty()) {
        paintText(*painter, cell);
    }
    if (cell.state & QStyle::State_HasFocus) {
        paintFocus(*painter, cell);
    }
    paintSelectionBar(*painter, cell, index);
}
