#include "app/boxes.h"

#include "app/styles.h"

#include <QCoreApplication>
#include <QMessageBox>

void showOpenFail(const QString &linkName)
{
    QMessageBox box(QMessageBox::Information, linkName, QStringLiteral("Open fail"),
                    QMessageBox::Ok);
    box.setStyleSheet(windowStyle());
    box.exec();
}

bool askToSaveCommands()
{
    QMessageBox question(QMessageBox::Question, QCoreApplication::translate("Dialog", "Message"),
                         QStringLiteral("Do you want to save your command?"),
                         QMessageBox::Yes | QMessageBox::No);
    question.setStyleSheet(windowStyle());
    return question.exec() == QMessageBox::Yes;
}
