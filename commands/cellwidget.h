#pragma once

#include <QEvent>
#include <QPersistentModelIndex>
#include <QTableView>
#include <QWidget>

/// Whether a row of a table, or a part of it, is in view. No layout that is due is made for this.
bool isRowInView(const QTableView &table, int row);

/// Whether the focus of its window is on a widget or in it.
bool holdsFocus(const QWidget &widget);

/// A widget that gets its style when it is shown for the first time, not as soon as it exists.
template<typename Widget>
class LateStyled : public Widget
{
public:
    using Widget::Widget;

protected:
    bool event(QEvent *event) override
    {
        const bool tooEarly = event->type() == QEvent::PolishRequest && !this->isVisible();
        return tooEarly || Widget::event(event);
    }
};

/// A widget in a cell of a table. Asked to show itself, it looks whether its row is in view. Where
/// it isn't, the widget hides instead, unless it has the focus.
///
/// A table asks a new widget, and all its widgets with each layout. It pays for every widget that
/// is shown, seen or not: for its style and layout, and with each painting. Thousands of them would
/// take seconds.
template<typename Widget>
class CellWidget : public LateStyled<Widget>
{
public:
    /// The widget for a cell; the table must outlive it.
    CellWidget(QTableView &table, const QModelIndex &cell)
        : LateStyled<Widget>(table.viewport())
        , m_table(table)
        , m_cell(cell)
    {}

    /// Its cell, wherever its row has moved by now.
    const QPersistentModelIndex &cell() const { return m_cell; }

    void setVisible(bool visible) override
    {
        // Hiding it would give the focus away.
        Widget::setVisible(visible && (isRowInView(m_table, m_cell.row()) || holdsFocus(*this)));
    }

private:
    QTableView &m_table;
    QPersistentModelIndex m_cell;
};
