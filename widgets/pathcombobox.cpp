#include "widgets/pathcombobox.h"

#include <QRegularExpression>
#include <QStylePainter>

QString PathComboBox::textFor(int width) const
{
    if (currentIndex() >= 0) {
        return fontMetrics().elidedText(currentText(), Qt::ElideLeft, width);
    }
    static const QRegularExpression comma(QStringLiteral("[,\uFF0C]"));
    const QString whole = placeholderText();
    return fontMetrics().horizontalAdvance(whole) <= width ? whole : whole.section(comma, 0, 0);
}

void PathComboBox::paintEvent(QPaintEvent * /*event*/)
{
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    const QRect room =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    option.currentText = textFor(room.width());
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}
