#include "widgets/elidinglabel.h"

#include <QPainter>
#include <QStyleOption>

QSize ElidingLabel::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

void ElidingLabel::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, width());
    style()->drawItemText(&painter, rect(), int(alignment()), option.palette, isEnabled(), shown,
                          foregroundRole());
}
