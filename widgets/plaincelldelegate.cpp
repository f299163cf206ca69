#include "widgets/plaincelldelegate.h"

#include "widgets/faultline.h"
#include "widgets/selectionbar.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace {

const QColor background(0xFF, 0xFF, 0xFF);
const QColor selectedBackground(0xF5, 0xF5, 0xF5);
const QColor selectedText(0x33, 0x33, 0x33);
const QColor line(0xF3, 0xF3, 0xF3);

bool isSelected(const QStyleOptionViewItem &option)
{
    return option.state & QStyle::State_Selected;
}

QFont fontOf(const QModelIndex &index, const QStyleOptionViewItem &option)
{
    const QVariant font = index.data(Qt::FontRole);
    return font.isValid() ? font.value<QFont>().resolve(option.font) : option.font;
}

Qt::Alignment alignmentOf(const QModelIndex &index, const QStyleOptionViewItem &option)
{
    const QVariant alignment = index.data(Qt::TextAlignmentRole);
    return alignment.isValid() ? Qt::Alignment(alignment.toInt()) : option.displayAlignment;
}

/// A text with a colour of its own keeps it when selected, which no style sheet grants it.
QColor colourOf(const QModelIndex &index, const QStyleOptionViewItem &option)
{
    const QVariant colour = index.data(Qt::ForegroundRole);
    if (colour.isValid()) {
        return colour.value<QBrush>().color();
    }
    return isSelected(option) ? selectedText : option.palette.color(QPalette::Text);
}

/// How far from the left a text begins that leaves so much of its place free.
qreal shiftOf(Qt::Alignment alignment, qreal spare)
{
    if (alignment & Qt::AlignHCenter) {
        return spare / 2;
    }
    return alignment & Qt::AlignRight ? spare : 0;
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

void underline(QPainter &painter, const QStyleOptionViewItem &cell)
{
    const int margin = cell.widget->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1;
    const QRect room = cell.rect.adjusted(margin, 0, -margin, -1);
    const int width = std::min(cell.fontMetrics.horizontalAdvance(cell.text), room.width());
    paintFaultLine(painter, QStyle::alignedRect(cell.direction, cell.displayAlignment,
                                                {width, cell.fontMetrics.height()}, room));
}

} // namespace

void PlainCellDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const
{
    painter->fillRect(option.rect, isSelected(option) ? selectedBackground : background);
    painter->fillRect(QRect(option.rect.bottomLeft(), QSize(option.rect.width(), 1)), line);
    paintText(*painter, option, index);
    if (!fault(index).isEmpty()) {
        QStyleOptionViewItem cell = option;
        initStyleOption(&cell, index);
        underline(*painter, cell);
    }
    if (option.state & QStyle::State_HasFocus) {
        QStyleOptionViewItem cell = option;
        initStyleOption(&cell, index);
        paintFocus(*painter, cell);
    }
    paintSelectionBar(*painter, option, index);
}

/// The line's height is rounded as the style does it; a painter that centres by itself may come out
/// a pixel lower.
void PlainCellDelegate::paintText(QPainter &painter, const QStyleOptionViewItem &option,
                                  const QModelIndex &index) const
{
    const QString text = index.data().toString();
    if (text.isEmpty()) {
        return;
    }
    const QFont font = fontOf(index, option);
    const QFontMetrics metrics(font);
    const Qt::Alignment alignment = alignmentOf(index, option);
    const int margin = option.widget->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1;
    const QRect room = option.rect.adjusted(margin, 0, -margin, -1);
    const QRect place =
        QStyle::alignedRect(option.direction, alignment, {room.width(), metrics.height()}, room);
    QStaticText laid = laidOut(text, font);
    if (laid.size().width() > place.width()) {
        laid = laidOut(metrics.elidedText(text, option.textElideMode, place.width()), font);
    }
    const qreal shift = shiftOf(alignment, place.width() - laid.size().width());
    painter.setPen(colourOf(index, option));
    painter.setFont(font);
    painter.drawStaticText(QPointF(place.left() + shift, place.top()), laid);
}

QStaticText PlainCellDelegate::laidOut(const QString &text, const QFont &font) const
{
    if (font != m_font) {
        m_texts.clear();
        m_font = font;
    }
    if (const QStaticText *known = m_texts.object(text)) {
        return *known;
    }
    QStaticText made(text);
    made.setTextFormat(Qt::PlainText);
    made.prepare({}, font);
    m_texts.insert(text, new QStaticText(made));
    return made;
}
