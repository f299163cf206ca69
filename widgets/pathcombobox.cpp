#include "widgets/pathcombobox.h"

#include <QStylePainter>

void PathComboBox::paintEvent(QPaintEvent * /*event*/)
{
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    const QRect room =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    if (currentIndex() < 0) {
        option.currentText = placeholderText();
    }
    option.currentText = fontMetrics().elidedText(option.currentText, Qt::ElideLeft, room.width());
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}
