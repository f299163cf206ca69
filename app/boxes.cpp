#include "boxes.h"

#include <QCoreApplication>
#include <QMessageBox>

void showOpenFail(const QString &linkName)
{
    QMessageBox::information(nullptr, linkName, QStringLiteral("Open fail"), QMessageBox::Ok);
}

bool askToSaveCommands()
{
    QMessageBox question(QMessageBox::Question, QCoreApplication::translate("Dialog", "Message"),
                         QStringLiteral("Do you want to save your command?"),
                         QMessageBox::Yes | QMessageBox::No);
    return question.exec() == QMessageBox::Yes;
}
