#pragma once

#include <QTableWidget>

class StillScrollBar;

/// The table of the message log, which grows at its end many times a second.
///
/// A table that gets a row lays itself out and paints itself as a whole. This one moves what is
/// painted and paints only the rows that are new.
class LogTable : public QTableWidget
{
public:
    explicit LogTable(QWidget *parent = nullptr);

    /// Appends rows; what was in view stays there.
    void growTo(int rows);

    /// Brings the last row into view.
    void showEnd();

    void doItemsLayout() override;

protected:
    void updateGeometries() override;

private:
    StillScrollBar *m_bar;
    bool m_growing = false;
    int m_rowsLaidOut = 0;
};
