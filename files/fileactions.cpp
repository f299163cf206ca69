#include "fileactions.h"

#include "commandfile.h"
#include "filereader.h"
#include "filesaver.h"
#include "lastfolders.h"
#include "localtext.h"
#include "saveloss.h"

#include <QDir>
#include <QFileDialog>
#include <QTextCodec>

#include <utility>

namespace {

QString startFolder(const QString &lastFolder)
{
    return lastFolder.isEmpty() ? QCoreApplication::applicationDirPath() : lastFolder;
}

} // namespace

FileActions::FileActions(QWidget *window, QString dataFolder, FileActionHooks hooks)
    : m_window(window)
    , m_dataFolder(std::move(dataFolder))
    , m_hooks(std::move(hooks))
{}

void FileActions::loadCommands()
{
    const QString fileName =
        QFileDialog::getOpenFileName(m_window, tr("Select command txt files"),
                                     startFolder(m_lastLoadFolder), QStringLiteral("*.txt"));
    if (fileName.isEmpty() || !loadCommandsFrom(fileName)) {
        return;
    }
    m_lastLoadFolder = folderOf(fileName);
    recordLoadFolder(m_dataFolder, m_lastLoadFolder);
}

/// False when the table was left as it is.
bool FileActions::loadCommandsFrom(const QString &fileName)
{
    const FileContent content = readFile(fileName, largestCommandFile);
    if (content.outcome == FileContent::Outcome::Unreadable) {
        m_hooks.showMessage(QStringLiteral("Read fail,please check the path!"));
        return false;
    }
    if (content.outcome == FileContent::Outcome::TooLarge) {
        m_hooks.showMessage(QStringLiteral("The file is too large for a command list!"));
        return false;
    }
    const CommandFile file = readCommandFile(content.bytes);
    if (file.hasTooManyRows) {
        m_hooks.showMessage(
            QStringLiteral("The file has more than %1 commands!").arg(mostCommandRows));
        return false;
    }
    m_hooks.replaceCommands(file.rows);
    m_hooks.commandsStored(fileName);
    if (file.hasInvalidLines) {
        m_hooks.showMessage(QStringLiteral("Input Register:Invalid format!"));
    }
    return true;
}

void FileActions::saveCommands()
{
    const QString fileName =
        QFileDialog::getSaveFileName(m_window, tr("Select command txt files"),
                                     startFolder(m_lastSaveFolder), QStringLiteral("*.txt"));
    if (fileName.isEmpty()) {
        return;
    }
    const QVector<CommandRow> rows = m_hooks.commands();
    if (!save(fileName, commandFileText(rows))) {
        return;
    }
    m_hooks.commandsStored(fileName);
    m_hooks.tell(tr("Commands saved: %1").arg(QDir::toNativeSeparators(fileName)));
    m_lastSaveFolder = folderOf(fileName);
    recordSaveFolder(m_dataFolder, m_lastSaveFolder);

    const QString loss = saveLossMessage(affectedRows(rows, *QTextCodec::codecForLocale()));
    if (!loss.isEmpty()) {
        m_hooks.showMessage(loss);
    }
}

void FileActions::saveMessages()
{
    const QString fileName = QFileDialog::getSaveFileName(
        m_window, tr("Save command txt files"), startFolder(m_lastSaveFolder), tr("file(*.txt)"));
    if (!fileName.isEmpty()) {
        if (!save(fileName, messageFileText(m_hooks.messages()))) {
            return;
        }
        m_hooks.tell(tr("Messages saved: %1").arg(QDir::toNativeSeparators(fileName)));
    }
    // No name has no folder: after a cancelled save the next one starts afresh.
    m_lastSaveFolder = folderOf(fileName);
}

bool FileActions::save(const QString &fileName, const QString &text)
{
    const bool saved = saveFile(fileName, toLocalText(text));
    if (!saved) {
        m_hooks.showMessage(QStringLiteral("Save the file failed"));
    }
    return saved;
}
