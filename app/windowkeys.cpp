#include "app/windowkeys.h"

#include "ui_dialog.h"
#include "widgets/leavingkeys.h"

#include <QShortcut>

static void addButtonKey(QPushButton &button, QKeySequence::StandardKey key)
{
    // A button's own shortcut would make it hold the key, and its caption show it.
    const auto *shortcut = new QShortcut(key, button.window());
    QObject::connect(shortcut, &QShortcut::activated, &button, &QPushButton::click);
}

void addWindowKeys(const Ui::Dialog &form)
{
    addButtonKey(*form.pushButton_LoadCommand, QKeySequence::Open);
    addButtonKey(*form.pushButton_SaveCommand, QKeySequence::Save);
    addLeavingKeys(*form.tableWidget_Register);
    addLeavingKeys(*form.tableWidget_Message);
    form.tableWidget_Message->setTabKeyNavigation(false);
}
