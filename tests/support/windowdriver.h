#pragma once

#include "app/dialog.h"
#include "commands/commandcolumns.h"
#include "messageboxes.h"
#include "testport.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>

/// A main window with the means to use it as a person does.
class WindowDriver
{
public:
    WindowDriver();

    template<typename Widget>
    Widget *find(const char *name) const
    {
        return m_window.findChild<Widget *>(QLatin1String(name));
    }

    QPushButton *button(const char *name) const { return find<QPushButton>(name); }
    QLineEdit *edit(const char *name) const { return find<QLineEdit>(name); }
    QComboBox *combo(const char *name) const { return find<QComboBox>(name); }
    QCheckBox *check(const char *name) const { return find<QCheckBox>(name); }
    QTableWidget *commands() const { return find<QTableWidget>("tableWidget_Register"); }
    QTableWidget *messages() const { return find<QTableWidget>("tableWidget_Message"); }
    Dialog &window() { return m_window; }

    /// Calls a slot of the window by its name, as scripts from outside do.
    void call(const char *slot);

    /// Has ports and devices listed now, which the window does by itself when it opens and when
    /// they change.
    void listPorts();

    /// Presses a button with the mouse.
    void click(const char *buttonName);
    void clickSend(int row);
    /// Sends the row that the command table is at, with its send button.
    void sendCurrentRow();

    /// Lists a port and opens it with the button.
    void open(const TestPort &port);

    /// Writes a command into a row and makes it the current one.
    void setRow(int row, const QString &cmd, const QString &addr, const QString &data);
    void checkRow(int row, bool checked = true);

    /// Texts of a message row's columns 0 to 6.
    QStringList message(int row) const;
    /// What the message log shows.
    RecordLog &records() const { return *m_window.findChild<RecordLog *>(); }
    /// Rows of the log that have something in their first column.
    int messageCount() const;

private:
    Dialog m_window;
};

/// Whether a widget is one of the form itself, not one that Qt or a table puts into others.
bool isOfTheForm(const QWidget *widget);
