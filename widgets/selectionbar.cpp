#include "widgets/selectionbar.h"

#include <QPainter>
#include <QStyleOptionViewItem>

namespace {

constexpr int barWidth = 4;
const QColor barColour(0x00, 0x6F, 0xCF);

} // namespace

void paintSelectionBar(QPainter &painter, const QStyleOptionViewItem &cell,
                       const QModelIndex &index)
{
    if (index.column() == 0 && (cell.state & QStyle::State_Selected)) {
        painter.fillRect(QRect(cell.rect.topLeft(), QSize(barWidth, cell.rect.height())),
                         barColour);
    }
}
