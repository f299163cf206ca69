#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QVector>
#include <QWidget>

class QTableWidget;

/// What a widget in a cell has to be, so that it can rest while its cell is out of view.
class RestingWidget
{
public:
    virtual ~RestingWidget() = default;

    /// Lets the widget be shown, or keeps it hidden even where its table shows it.
    virtual void setInView(bool inView) = 0;
};

/// A widget that gets its style when it is shown at first, not as soon as it exists.
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

/// A widget in a cell that rests while its cell is out of view. A new one rests until it is taken
/// up.
template<typename Widget>
class CellWidget : public LateStyled<Widget>, public RestingWidget
{
public:
    explicit CellWidget(QWidget *parent)
        : LateStyled<Widget>(parent)
    {
        Widget::setVisible(false);
    }

    void setVisible(bool visible) override
    {
        if (!visible || m_inView) {
            Widget::setVisible(visible);
        }
    }

    void setInView(bool inView) override
    {
        m_inView = inView;
        Widget::setVisible(inView);
    }

private:
    bool m_inView = false;
};

/// Lets those widgets in the cells of a table rest that are out of view. A table pays for every
/// widget that is shown, with style and layout once and with each painting, whether it can be seen
/// or not: thousands of them would take seconds.
class CellsInView : public QObject
{
    Q_OBJECT

public:
    /// Watches the widgets in some columns of a table, which must outlive this.
    CellsInView(QTableWidget &table, QVector<int> columns, QObject *parent = nullptr);

    /// Takes up the new widgets of a row, wherever it is.
    void takeUp(int row);

    /// Takes up what is in view of a table whose rows have all been replaced.
    void takeUpAll();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void update();
    QVector<QPointer<QWidget>> placedInView() const;
    void place(int row) const;
    void appendWidgets(QVector<QPointer<QWidget>> &widgets, int row) const;

    QTableWidget &m_table;
    QVector<int> m_columns;
    QVector<QPointer<QWidget>> m_shown;
};
