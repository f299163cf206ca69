#pragma once

#include <QWidget>

#include <functional>
#include <memory>

namespace Ui {
class CommandArea;
}
class CellTips;
class ListState;
class QPushButton;
class QTableWidget;

/// The command table with its head: the list's name, and the buttons for its file. Ctrl+O and
/// Ctrl+S press the buttons that load and save, as long as these are enabled; F6 and Ctrl+Tab lead
/// out of the table, with Shift backwards.
class CommandArea : public QWidget
{
    Q_OBJECT

public:
    explicit CommandArea(QWidget *parent = nullptr);
    ~CommandArea() override;

    /// Shows where the list stands, from now on; with "*" while it is modified.
    void follow(const ListState &list);

    /// The list's file can't be changed meanwhile.
    void setResting(bool resting);
    bool isResting() const;

    QTableWidget &table() const;
    QPushButton &loadButton() const;

    /// What tells what the tip of a cell says besides.
    void setCellRemark(std::function<QString(const QModelIndex &cell)> remark);

private:
    void addButtonKey(QPushButton &button, QKeySequence::StandardKey key);
    void showList(const ListState &list);

    std::unique_ptr<Ui::CommandArea> m_form;
    CellTips *m_tips;
};
