#include "widgets/checkedlineedit.h"

#include "widgets/faultline.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>

#include <algorithm>
#include <utility>

void CheckedLineEdit::setCheck(std::function<QString(const QString &)> faultOf)
{
    m_faultOf = std::move(faultOf);
    connect(this, &QLineEdit::textChanged, this, &CheckedLineEdit::check);
    check();
}

void CheckedLineEdit::paintEvent(QPaintEvent *event)
{
    QLineEdit::paintEvent(event);
    if (m_faultOf && !m_faultOf(text()).isEmpty()) {
        QPainter painter(this);
        paintFaultLine(painter, textPlace());
    }
}

void CheckedLineEdit::check()
{
    setToolTip(m_faultOf(text()));
    update();
}

/// A text that is too long, and so scrolled, fills the field.
QRect CheckedLineEdit::textPlace() const
{
    constexpr int innerMargin = 2;
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QRect room = style()
                           ->subElementRect(QStyle::SE_LineEditContents, &option, this)
                           .marginsRemoved(textMargins())
                           .adjusted(innerMargin, 0, -innerMargin, 0);
    const int width = std::min(fontMetrics().horizontalAdvance(text()), room.width());
    return QStyle::alignedRect(layoutDirection(), alignment() | Qt::AlignVCenter,
                               {width, fontMetrics().height()}, room);
}
