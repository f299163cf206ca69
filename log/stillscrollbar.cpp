#include "log/stillscrollbar.h"

#include <QStyleOptionSlider>

void StillScrollBar::goToEnd(int maximum)
{
    m_onTheWay = true;
    setMaximum(maximum);
    m_onTheWay = false;
    setValue(maximum);
}

void StillScrollBar::sliderChange(SliderChange change)
{
    if (!m_onTheWay && handle() != m_painted) {
        QScrollBar::sliderChange(change);
    }
}

void StillScrollBar::paintEvent(QPaintEvent *event)
{
    m_painted = handle();
    QScrollBar::paintEvent(event);
}

QRect StillScrollBar::handle() const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    return style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, this);
}
