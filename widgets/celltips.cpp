#include "widgets/celltips.h"

#include "widgets/celltiptext.h"
#include "widgets/plaincelldelegate.h"

#include <QCursor>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QScreen>
#include <QTableView>
#include <QTextDocument>
#include <QToolTip>

#include <limits>
#include <utility>

namespace {

constexpr int untilTheMouseGoes = std::numeric_limits<int>::max();

TipRoom roomOnScreen()
{
    const QScreen *screen = QGuiApplication::screenAt(QCursor::pos());
    if (screen == nullptr) {
        screen = QGuiApplication::primaryScreen();
    }
    const QSize size = screen->availableSize();
    const QFontMetrics metrics(QToolTip::font());
    // A tip has a frame around its text.
    return {size.height() / metrics.lineSpacing() - 2,
            size.width() / metrics.horizontalAdvance(QStringLiteral("AA ")) - 2};
}

/// As the user is to read it: a tip takes for markup what looks like it.
QString asPlainText(const QString &text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

} // namespace

void showCellText(const QString &text)
{
    QToolTip::showText(QCursor::pos(), asPlainText(cellTipText(text, roomOnScreen())), nullptr, {},
                       untilTheMouseGoes);
}

CellTips::CellTips(QTableView &table, int columnWithInstantTip, QObject *parent)
    : QObject(parent)
    , m_table(table)
    , m_columnWithInstantTip(columnWithInstantTip)
{
    m_table.viewport()->installEventFilter(this);
    connect(&m_table, &QTableView::entered, this, &CellTips::onEntered);
}

void CellTips::setRemark(std::function<QString(const QModelIndex &cell)> remark)
{
    m_remark = std::move(remark);
}

bool CellTips::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() != QEvent::ToolTip) {
        return QObject::eventFilter(object, event);
    }
    showTip(m_table.indexAt(static_cast<const QHelpEvent *>(event)->pos()));
    return true;
}

/// The tip of the cell that the mouse has left must not stay over this one.
void CellTips::onEntered(const QModelIndex &cell)
{
    if (cell.column() != m_columnWithInstantTip) {
        QToolTip::hideText();
    }
}

void CellTips::showTip(const QModelIndex &cell)
{
    const QString text = asPlainText(tipOf(cell));
    if (text.isEmpty()) {
        QToolTip::hideText();
    } else if (!QToolTip::isVisible() || QToolTip::text() != text) {
        QToolTip::showText(QCursor::pos(), text, m_table.viewport(), m_table.visualRect(cell),
                           untilTheMouseGoes);
    }
}

QString CellTips::tipOf(const QModelIndex &cell) const
{
    if (!cell.isValid()) {
        return {};
    }
    QStringList lines;
    if (cell.column() == m_columnWithInstantTip || isCutOff(cell)) {
        lines.append(cellTipText(cell.data().toString(), roomOnScreen()));
    }
    if (const auto *delegate = qobject_cast<PlainCellDelegate *>(m_table.itemDelegate(cell))) {
        lines.append(delegate->fault(cell));
        lines.append(delegate->remark(cell));
    }
    lines.append(cell.data(Qt::ToolTipRole).toString());
    if (m_remark) {
        lines.append(m_remark(cell));
    }
    lines.removeAll(QString());
    return lines.join(QLatin1Char('\n'));
}

bool CellTips::isCutOff(const QModelIndex &cell) const
{
    return m_table.sizeHintForIndex(cell).width() > m_table.visualRect(cell).width();
}
