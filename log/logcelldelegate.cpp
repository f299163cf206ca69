#include "log/logcelldelegate.h"

#include "log/crccheck.h"
#include "log/logcolumns.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace {

/// What was received is told by its colour.
bool isReceived(const QModelIndex &index)
{
    return index.data(Qt::ForegroundRole).isValid();
}

FrameFields fieldsOf(const QModelIndex &index)
{
    const auto text = [&index](int column) {
        return index.siblingAtColumn(column).data().toString();
    };
    return {text(LogColumn::Header), text(LogColumn::Length), text(LogColumn::Cmd),
            text(LogColumn::Addr),   text(LogColumn::Data),   text(LogColumn::Crc)};
}

/// Tells the time from the frames' bytes, and is read on both grounds that a row can have.
const QColor timeColour(0x59, 0x59, 0x59);

std::optional<RowTime> timeOf(const QModelIndex &index)
{
    const QVariant time = index.data(LogCellDelegate::timeRole);
    return time.isValid() ? std::make_optional(time.value<RowTime>()) : std::nullopt;
}

int widthOf(const QStringList &lines, const QFontMetrics &metrics)
{
    int width = 0;
    for (const QString &line : lines) {
        width = std::max(width, metrics.horizontalAdvance(line));
    }
    return width;
}

/// The font, or one as much smaller as the room asks for.
QFont fontThatFits(QFont font, const QStringList &lines, QSize room)
{
    const QFontMetrics metrics(font);
    const double across = double(room.width()) / std::max(1, widthOf(lines, metrics));
    const double down = double(room.height()) / (metrics.lineSpacing() * lines.size());
    if (const double scale = std::min(across, down); scale < 1) {
        font.setPixelSize(std::max(1, static_cast<int>(QFontInfo(font).pixelSize() * scale)));
    }
    return font;
}

void paintCentred(QPainter &painter, const QStringList &lines, const QRect &room)
{
    const QFontMetrics metrics = painter.fontMetrics();
    const int height = metrics.lineSpacing() * (lines.size() - 1) + metrics.height();
    int y = room.top() + (room.height() - height) / 2 + metrics.ascent();
    for (const QString &line : lines) {
        painter.drawText(room.left() + (room.width() - metrics.horizontalAdvance(line)) / 2, y,
                         line);
        y += metrics.lineSpacing();
    }
}

} // namespace

void LogCellDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    PlainCellDelegate::paint(painter, option, index);
    if (index.column() != LogColumn::Rest) {
        return;
    }
    const std::optional<RowTime> time = timeOf(index);
    const QString text = time ? cellTimeText(*time, m_shownTime) : QString();
    if (text.isEmpty()) {
        return;
    }
    const int margin = option.widget->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1;
    const QRect room = option.rect.adjusted(margin, 1, -margin, -2);
    const QStringList lines = text.split(QLatin1Char('\n'));
    painter->setPen(timeColour);
    painter->setFont(fontThatFits(option.font, lines, room.size()));
    paintCentred(*painter, lines, room);
}

QString LogCellDelegate::fault(const QModelIndex &index) const
{
    if (index.column() >= LogColumn::Cmd && index.column() <= LogColumn::Data) {
        return index.siblingAtColumn(LogColumn::Number).data(faultRole).toString();
    }
    if (index.column() != LogColumn::Crc || !isReceived(index)) {
        return {};
    }
    const QString expected = expectedInsteadOfCrc(fieldsOf(index));
    return expected.isEmpty() ? QString() : tr("The CRC does not fit: %1 expected.").arg(expected);
}

QString LogCellDelegate::remark(const QModelIndex &index) const
{
    const std::optional<RowTime> time =
        index.column() == LogColumn::Rest ? timeOf(index) : std::nullopt;
    QStringList lines{time ? tipTimeText(*time) : QString(),
                      index.siblingAtColumn(LogColumn::Number).data(remarkRole).toString()};
    lines.removeAll(QString());
    return lines.join(QLatin1Char('\n'));
}
