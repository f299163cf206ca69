#pragma once

#include <QObject>

#include <functional>

class QModelIndex;
class QTableView;

/// Shows a cell's text at the mouse, wrapped so that it stays on the screen, until the mouse goes.
void showCellText(const QString &text);

/// Tips that come when the mouse rests on a cell of a table: the text of one that is cut off, what
/// its item has as its tip, and
/// what its delegate says about it (see PlainCellDelegate::fault and remark). In one column the
/// whole text is shown as soon as the mouse enters, by somebody else; its tip stays.
class CellTips : public QObject
{
    Q_OBJECT

public:
    /// The table must outlive this.
    CellTips(QTableView &table, int columnWithInstantTip, QObject *parent = nullptr);

    /// What tells what else there is to say about a cell; empty where there is nothing.
    void setRemark(std::function<QString(const QModelIndex &cell)> remark);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void onEntered(const QModelIndex &cell);
    void showTip(const QModelIndex &cell);
    QString tipOf(const QModelIndex &cell) const;
    bool isCutOff(const QModelIndex &cell) const;

    QTableView &m_table;
    int m_columnWithInstantTip;
    std::function<QString(const QModelIndex &cell)> m_remark;
};
