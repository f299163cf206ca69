#pragma once

#include <QObject>

namespace Ui {
class Dialog;
}
class ListState;

/// What stands beside the captions of the two tables.
class Headlines : public QObject
{
    Q_OBJECT

public:
    /// Shows the command list's name, and "*" while it is modified. Form and list must outlive
    /// this.
    Headlines(Ui::Dialog &form, const ListState &list, QObject *parent = nullptr);

private:
    void showList();

    Ui::Dialog &m_form;
    const ListState &m_list;
};
