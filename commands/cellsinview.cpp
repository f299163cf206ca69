#include "commands/cellsinview.h"

#include <QScrollBar>
#include <QTableWidget>

#include <utility>

namespace {

void setInView(QWidget *widget, bool inView)
{
    if (auto *resting = dynamic_cast<RestingWidget *>(widget)) {
        resting->setInView(inView);
    }
}

bool holdsFocus(const QWidget &widget)
{
    const QWidget *focused = widget.window()->focusWidget();
    return focused == &widget || widget.isAncestorOf(focused);
}

} // namespace

CellsInView::CellsInView(QTableWidget &table, QVector<int> columns, QObject *parent)
    : QObject(parent)
    , m_table(table)
    , m_columns(std::move(columns))
{
    m_table.viewport()->installEventFilter(this);
    const QScrollBar *bar = m_table.verticalScrollBar();
    connect(bar, &QScrollBar::valueChanged, this, &CellsInView::update);
    connect(bar, &QScrollBar::rangeChanged, this, &CellsInView::update);
}

void CellsInView::takeUp(int row)
{
    QVector<QPointer<QWidget>> widgets;
    appendWidgets(widgets, row);
    for (QWidget *widget : std::as_const(widgets)) {
        setInView(widget, true);
    }
}

void CellsInView::takeUpAll()
{
    m_shown.clear();
    update();
}

bool CellsInView::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Resize) {
        update();
    }
    return QObject::eventFilter(object, event);
}

void CellsInView::update()
{
    QVector<QPointer<QWidget>> inView = placedInView();
    for (QWidget *widget : std::as_const(m_shown)) {
        if (widget == nullptr || inView.contains(widget)) {
            continue;
        }
        // Hiding it would give the focus away.
        if (holdsFocus(*widget)) {
            inView.append(widget);
        } else {
            setInView(widget, false);
        }
    }
    for (QWidget *widget : std::as_const(inView)) {
        setInView(widget, true);
    }
    m_shown = inView;
}

QVector<QPointer<QWidget>> CellsInView::placedInView() const
{
    QVector<QPointer<QWidget>> widgets;
    const int height = m_table.viewport()->height();
    for (int row = m_table.rowAt(0); row >= 0 && row < m_table.rowCount(); ++row) {
        if (m_table.rowViewportPosition(row) >= height) {
            break;
        }
        appendWidgets(widgets, row);
        place(row);
    }
    return widgets;
}

/// A widget that was out of view has not been moved along with the rows.
void CellsInView::place(int row) const
{
    for (const int column : m_columns) {
        if (QWidget *widget = m_table.cellWidget(row, column)) {
            widget->setGeometry(m_table.visualRect(m_table.model()->index(row, column)));
        }
    }
}

void CellsInView::appendWidgets(QVector<QPointer<QWidget>> &widgets, int row) const
{
    for (const int column : m_columns) {
        if (QWidget *widget = m_table.cellWidget(row, column)) {
            widgets.append(widget);
        }
    }
}
