#include "app/fileactions.h"

#include "files/commandfile.h"
#include "files/examplesfolder.h"
#include "files/filesaver.h"
#include "files/lastfolders.h"
#include "files/localtext.h"
#include "files/recoverytext.h"
#include "files/saveloss.h"
#include "frames/messages.h"
#include "system/filereader.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QTextCodec>

#include <utility>

namespace {

QString startFolder(const QString &lastFolder)
{
    return lastFolder.isEmpty() ? QCoreApplication::applicationDirPath() : lastFolder;
}

/// Loading begins in the examples where they are installed, until something was loaded.
QString loadFolder(const QString &lastFolder)
{
    return startFolder(lastFolder.isEmpty() ? examplesFolder(QCoreApplication::applicationDirPath())
                                            : lastFolder);
}

/// Recovery files may be larger than others.
FileContent readCommandsFile(const QString &path)
{
    FileContent content = readFile(path, largestRecoveryFile);
    if (content.bytes.size() > largestCommandFile && !isRecoveryText(content.bytes)) {
        content = {FileContent::Outcome::TooLarge, {}};
    }
    return content;
}

} // namespace

FileActions::FileActions(QWidget *window, QString dataFolder, FileSources sources)
    : m_window(window)
    , m_dataFolder(std::move(dataFolder))
    , m_sources(std::move(sources))
{}

void FileActions::loadCommands()
{
    loadCommandsAt(loadFolder(m_lastLoadFolder));
}

void FileActions::loadCommandsAt(const QString &path)
{
    const QString fileName = QFileDialog::getOpenFileName(m_window, tr("Select command txt files"),
                                                          path, QStringLiteral("*.txt"));
    if (!fileName.isEmpty()) {
        loadCommandFile(fileName);
    }
}

void FileActions::loadCommandFile(const QString &fileName)
{
    if (!loadCommandsFrom(fileName)) {
        return;
    }
    m_lastLoadFolder = folderOf(fileName);
    recordLoadFolder(m_dataFolder, m_lastLoadFolder);
}

/// Whether its folder is to be remembered: the table was not left as it is, and the file is one of
/// the user's own.
bool FileActions::loadCommandsFrom(const QString &fileName)
{
    const FileContent content = readCommandsFile(fileName);
    if (content.outcome == FileContent::Outcome::Unreadable) {
        emit notice(Messages::tr("Read fail,please check the path!"));
        return false;
    }
    if (content.outcome == FileContent::Outcome::TooLarge) {
        emit notice(Messages::tr("The file is too large for a command list!"));
        return false;
    }
    const CommandFile file = readCommandFile(content.bytes);
    if (file.hasTooManyRows) {
        emit notice(Messages::tr("The file has more than %1 commands!").arg(mostCommandRows));
        return false;
    }
    takeCommands(file, fileName);
    if (file.hasInvalidLines) {
        emit notice(Messages::tr("Input Register:Invalid format!"));
    }
    return !file.isRecovery;
}

void FileActions::takeCommands(const CommandFile &file, const QString &fileName)
{
    emit commandsRead(file.rows);
    if (file.isRecovery) {
        emit commandsRecovered(fileName);
    } else {
        emit commandsStored(fileName);
    }
}

void FileActions::saveCommands()
{
    const QString fileName =
        QFileDialog::getSaveFileName(m_window, tr("Select command txt files"),
                                     startFolder(m_lastSaveFolder), QStringLiteral("*.txt"));
    if (fileName.isEmpty()) {
        return;
    }
    const QVector<CommandRow> rows = m_sources.commands();
    if (!save(fileName, commandFileText(rows), [this] { emit overwriting(); })) {
        return;
    }
    emit commandsStored(fileName);
    emit told(tr("Commands saved: %1").arg(QDir::toNativeSeparators(fileName)));
    m_lastSaveFolder = folderOf(fileName);
    recordSaveFolder(m_dataFolder, m_lastSaveFolder);

    const QString loss = saveLossMessage(affectedRows(rows, *QTextCodec::codecForLocale()));
    if (!loss.isEmpty()) {
        emit notice(loss);
    }
}

void FileActions::saveMessages()
{
    const QString fileName = QFileDialog::getSaveFileName(
        m_window, tr("Save command txt files"), startFolder(m_lastSaveFolder), tr("file(*.txt)"));
    if (!fileName.isEmpty()) {
        if (!save(fileName, messageFileText(m_sources.messages()))) {
            return;
        }
        emit told(tr("Messages saved: %1").arg(QDir::toNativeSeparators(fileName)));
    }
    // No name has no folder. See docs/deliberate.md, Forgotten folder.
    m_lastSaveFolder = folderOf(fileName);
}

bool FileActions::save(const QString &fileName, const QString &text,
                       const std::function<void()> &beforeOverwriting)
{
    const bool saved = saveFile(fileName, toLocalText(text), beforeOverwriting);
    if (!saved) {
        emit notice(Messages::tr("Save the file failed"));
    }
    return saved;
}
