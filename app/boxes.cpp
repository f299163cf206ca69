#include "app/boxes.h"

#include "app/styles.h"
#include "frames/messages.h"

#include <QMessageBox>

void showOpenFail(const QString &linkName)
{
    QMessageBox box(QMessageBox::Information, linkName, Messages::tr("Open fail"), QMessageBox::Ok);
    box.setStyleSheet(windowStyle());
    box.exec();
}

bool askToSaveCommands()
{
    QMessageBox question(QMessageBox::Question, Messages::tr("Message"),
                         Messages::tr("Do you want to save your command?"),
                         QMessageBox::Yes | QMessageBox::No);
    question.setStyleSheet(windowStyle());
    return question.exec() == QMessageBox::Yes;
}

UnsavedCommands askAboutUnsavedCommands()
{
    QMessageBox question(
        QMessageBox::Question, Messages::tr("Message"),
        Messages::tr("The commands were changed. Do you want to save them before others are "
                     "loaded?"),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    question.setStyleSheet(windowStyle());
    switch (question.exec()) {
    case QMessageBox::Save:
        return UnsavedCommands::Save;
    case QMessageBox::Discard:
        return UnsavedCommands::Discard;
    default:
        return UnsavedCommands::Keep;
    }
}
