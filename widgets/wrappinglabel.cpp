#include "widgets/wrappinglabel.h"

#include <QEvent>
#include <QFocusEvent>
#include <QHelpEvent>
#include <QTextBoundaryFinder>
#include <QTextDocumentFragment>
#include <QToolTip>

namespace {

const QChar zeroWidthSpace(0x200B);

QString plainText(const QLabel &label)
{
    return label.textFormat() == Qt::RichText
               ? QTextDocumentFragment::fromHtml(label.text()).toPlainText()
               : label.text();
}

} // namespace

bool WrappingLabel::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && !showsAll()) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), plainText(*this), this);
        return true;
    }
    return QLabel::event(event);
}

void WrappingLabel::focusInEvent(QFocusEvent *event)
{
    QLabel::focusInEvent(event);
    const bool hasLinks = (textInteractionFlags() & Qt::LinksAccessibleByKeyboard) != 0;
    const bool isNext = event->reason() == Qt::TabFocusReason;
    if (hasLinks && (isNext || event->reason() == Qt::BacktabFocusReason)) {
        focusNextPrevChild(isNext);
    }
}

bool WrappingLabel::showsAll() const
{
    return heightForWidth(width()) <= height();
}

QString withLineBreaks(const QString &text, int longest)
{
    QTextBoundaryFinder lines(QTextBoundaryFinder::Line, text);
    QString broken;
    for (int from = 0; from < text.size();) {
        const int boundary = int(lines.toNextBoundary());
        const int to = boundary < 0 ? text.size() : boundary;
        for (; to - from > longest; from += longest) {
            broken += text.mid(from, longest) + zeroWidthSpace;
        }
        broken += text.mid(from, to - from);
        from = to;
    }
    return broken;
}
