#pragma once

#include <QObject>

namespace Ui {
class Dialog;
}
class ListState;
class MessageLog;

/// What stands beside the captions of the two tables: the command list's name, with "*" while it is
/// modified, and how full the message log is.
class Headlines : public QObject
{
    Q_OBJECT

public:
    /// Form and list must outlive this.
    Headlines(Ui::Dialog &form, const ListState &list, QObject *parent = nullptr);

    /// Shows how full the log is, from now on.
    void follow(const MessageLog &log);

private:
    void showList();
    void showMessageCount(int count);

    Ui::Dialog &m_form;
    const ListState &m_list;
};
