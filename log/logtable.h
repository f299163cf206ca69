#pragma once

#include <QTableWidget>
#include <QVector>

class StillScrollBar;

/// The table of the message log, which grows at its end many times a second.
///
/// A table that gets a row lays itself out and paints itself as a whole. This one moves what is
/// painted and paints only the rows that are new. Rows can be hidden.
class LogTable : public QTableWidget
{
    Q_OBJECT

public:
    explicit LogTable(QWidget *parent = nullptr);

    /// Appends rows; what was in view stays there.
    void growTo(int rows);

    /// Goes back to so many rows, none of them hidden, and to the first one.
    void shrinkTo(int rows);

    /// Shows or hides the rows from that one on, each as its flag says.
    void showRows(int first, const QVector<bool> &shown);

    /// Brings the last row into view.
    void showEnd();

    /// Lets the scroll bar reach the rows that were appended; what is in view stays there.
    void stay();

    /// Selects the current row if it is in view, or else the first one that is.
    void selectInView();

    /// Whether the current row is selected and in view.
    bool isSelectedInView() const;

    /// Whether the last row is in view, or would be if there were enough of them.
    bool isAtEnd() const;

    void doItemsLayout() override;

signals:
    /// The user has scrolled, with the mouse or by keys; whether to the end.
    void scrolledByHand(bool toEnd);

protected:
    void updateGeometries() override;

private:
    int shownRows() const;
    bool isInView(const QModelIndex &cell) const;

    StillScrollBar *m_bar;
    bool m_growing = false;
    bool m_moves = false;
    int m_rowsLaidOut = 0;
};
