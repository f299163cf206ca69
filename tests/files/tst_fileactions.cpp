#include "commandfile.h"
#include "fileactions.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QTimer>
#include <QWidget>
#include <QtTest>

#include <optional>
#include <sys/stat.h>
#include <utility>

class TestFileActions : public QObject
{
    Q_OBJECT

private slots:
    void loadDialog();
    void saveCommandsDialog();
    void saveMessagesDialog();

    void cancelledLoad();
    void loads();
    void tellsOfInvalidLinesBeforeTheFolderIsStored();
    void loadsNothingFromAListWithoutCommands();
    void loadFails_data();
    void loadFails();
    void vanishedBehindTheDialog();

    void cancelledSave();
    void savesCommands();
    void savesUntouchedTableAsEmptyFile();
    void failedSaveChangesNothing();
    void tellsWhatTheFileCannotHold();
    void savesInTheLocalEncoding();
    void savedListLoadsAgain();

    void savesMessages();
    void cancelledMessageSaveForgetsTheFolder();
    void failedMessageSaveKeepsTheFolder();
};

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

CommandRow rowWith(const QString &description)
{
    CommandRow row = emptyRow();
    row.description = description;
    return row;
}

/// Plays the user: waits for the next file dialog, notes how it looks, and answers it with a file
/// name or, where there is none, by closing it. Agrees to replacing a file.
class DialogAnswer : public QObject
{
public:
    explicit DialogAnswer(QString fileName = {})
        : m_fileName(std::move(fileName))
    {
        connect(&m_timer, &QTimer::timeout, this, [this] { look(); });
        m_timer.start(5);
    }

    bool wasAsked() const { return m_asked; }

    QString caption;
    QString folder;
    QStringList filters;
    QWidget *parent = nullptr;
    QFileDialog::AcceptMode mode = QFileDialog::AcceptOpen;

private:
    void look()
    {
        QWidget *const modal = QApplication::activeModalWidget();
        if (auto *question = qobject_cast<QMessageBox *>(modal)) {
            question->button(QMessageBox::Yes)->click();
        } else if (auto *dialog = qobject_cast<QFileDialog *>(modal); dialog && !m_asked) {
            m_asked = true;
            note(*dialog);
            answer(*dialog);
        }
    }

    void note(const QFileDialog &dialog)
    {
        caption = dialog.windowTitle();
        folder = dialog.directory().absolutePath();
        filters = dialog.nameFilters();
        parent = dialog.parentWidget();
        mode = dialog.acceptMode();
    }

    void answer(QFileDialog &dialog)
    {
        if (m_fileName.isEmpty()) {
            dialog.reject();
            return;
        }
        dialog.selectFile(m_fileName);
        // Not from here: it may ask a question, which this timer has to answer.
        QTimer::singleShot(0, static_cast<QDialog *>(&dialog), &QDialog::accept);
    }

    QString m_fileName;
    QTimer m_timer;
    bool m_asked = false;
};

/// The window around the file actions: it notes what happens, in order.
class Desk
{
public:
    Desk()
        : actions(&window, dir.path(), hooks())
    {}

    QString path(const QString &name) const { return dir.filePath(name); }
    QString folder() const { return dir.path() + QLatin1Char('/'); }
    QByteArray record() const { return contentOf(path(QStringLiteral("lastCommand_path.ini"))); }

    QTemporaryDir dir;
    QWidget window;
    QVector<CommandRow> rows;
    QVector<MessageRow> messages;
    QStringList events;
    /// The last load folder at the time of the last message.
    std::optional<QString> folderAtMessage;
    FileActions actions;

private:
    FileActionHooks hooks()
    {
        FileActionHooks hooks;
        hooks.showMessage = [this](const QString &text) {
            folderAtMessage = actions.lastLoadFolder();
            events.append("message: " + text);
        };
        hooks.commands = [this] { return rows; };
        hooks.replaceCommands = [this](const QVector<CommandRow> &loaded) {
            rows = loaded;
            events.append(QStringLiteral("%1 rows").arg(loaded.size()));
        };
        hooks.commandsUnmodified = [this] { events.append(QStringLiteral("unmodified")); };
        hooks.messages = [this] { return messages; };
        return hooks;
    }
};

QByteArray record(const QString &loadFolder, const QString &saveFolder)
{
    return "\xEF\xBB\xBF" + loadFolder.toUtf8() + '\n' + saveFolder.toUtf8() + '\n';
}

} // namespace

void TestFileActions::loadDialog()
{
    Desk desk;
    const DialogAnswer first;
    desk.actions.loadCommands();
    QVERIFY(first.wasAsked());
    QCOMPARE(first.caption, QStringLiteral("Select command txt files"));
    QCOMPARE(first.filters, QStringList("*.txt"));
    QCOMPARE(first.folder, QCoreApplication::applicationDirPath());
    QCOMPARE(first.parent, &desk.window);
    QCOMPARE(first.mode, QFileDialog::AcceptOpen);

    desk.actions.setLastLoadFolder(desk.folder());
    desk.actions.setLastSaveFolder(QStringLiteral("/"));
    const DialogAnswer second;
    desk.actions.loadCommands();
    QCOMPARE(second.folder, desk.dir.path());
}

void TestFileActions::saveCommandsDialog()
{
    Desk desk;
    const DialogAnswer first;
    desk.actions.saveCommands();
    QVERIFY(first.wasAsked());
    QCOMPARE(first.caption, QStringLiteral("Select command txt files"));
    QCOMPARE(first.filters, QStringList("*.txt"));
    QCOMPARE(first.folder, QCoreApplication::applicationDirPath());
    QCOMPARE(first.parent, &desk.window);
    QCOMPARE(first.mode, QFileDialog::AcceptSave);

    desk.actions.setLastLoadFolder(QStringLiteral("/"));
    desk.actions.setLastSaveFolder(desk.folder());
    const DialogAnswer second;
    desk.actions.saveCommands();
    QCOMPARE(second.folder, desk.dir.path());
}

void TestFileActions::saveMessagesDialog()
{
    Desk desk;
    desk.actions.setLastSaveFolder(desk.folder());
    const DialogAnswer first;
    desk.actions.saveMessages();
    QVERIFY(first.wasAsked());
    QCOMPARE(first.caption, QStringLiteral("Save command txt files"));
    QCOMPARE(first.filters, QStringList("file(*.txt)"));
    QCOMPARE(first.folder, desk.dir.path());
    QCOMPARE(first.parent, &desk.window);
    QCOMPARE(first.mode, QFileDialog::AcceptSave);
}

void TestFileActions::cancelledLoad()
{
    Desk desk;
    desk.actions.setLastLoadFolder(desk.folder());
    const DialogAnswer answer;
    desk.actions.loadCommands();
    QVERIFY(answer.wasAsked());
    QCOMPARE(desk.events, QStringList());
    QCOMPARE(desk.actions.lastLoadFolder(), desk.folder());
    QCOMPARE(desk.record(), QByteArray("unreadable"));
}

void TestFileActions::loads()
{
    Desk desk;
    desk.actions.setLastSaveFolder(QStringLiteral("/s/"));
    writeFile(desk.path(QStringLiteral("list.txt")), "a,select,5A 0001 01\nb,++  500\n");
    const DialogAnswer answer(desk.path(QStringLiteral("list.txt")));
    desk.actions.loadCommands();
    QCOMPARE(desk.events, QStringList({"2 rows", "unmodified"}));
    QCOMPARE(desk.rows.first().description, QStringLiteral("a"));
    QCOMPARE(desk.actions.lastLoadFolder(), desk.folder());
    QCOMPARE(desk.actions.lastSaveFolder(), QStringLiteral("/s/"));
    QCOMPARE(desk.record(), record(desk.folder(), QString()));
}

void TestFileActions::tellsOfInvalidLinesBeforeTheFolderIsStored()
{
    Desk desk;
    writeFile(desk.path(QStringLiteral("list.txt")), "a,b,c,d\na,5A0001\nwrong\n");
    const DialogAnswer answer(desk.path(QStringLiteral("list.txt")));
    desk.actions.loadCommands();
    QCOMPARE(desk.events,
             QStringList({"1 rows", "unmodified", "message: Input Register:Invalid format!"}));
    QCOMPARE(desk.folderAtMessage, std::optional<QString>(QString()));
    QCOMPARE(desk.actions.lastLoadFolder(), desk.folder());
}

void TestFileActions::loadsNothingFromAListWithoutCommands()
{
    Desk desk;
    desk.rows = {rowWith(QStringLiteral("before"))};
    writeFile(desk.path(QStringLiteral("list.txt")), "// nothing\n\n");
    const DialogAnswer answer(desk.path(QStringLiteral("list.txt")));
    desk.actions.loadCommands();
    QCOMPARE(desk.events, QStringList({"0 rows", "unmodified"}));
    QVERIFY(desk.rows.isEmpty());
}

void TestFileActions::loadFails_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("message");

    QTest::newRow("a named pipe") << QByteArray() << "Read fail,please check the path!";
    QTest::newRow("large rubbish")
        << QByteArray(100 * 1024 * 1024, 'x') << "The file is too large for a command list!";
    QTest::newRow("50,000 commands")
        << QByteArray("a,5A0001\n").repeated(50'000) << "The file has more than 10000 commands!";
}

void TestFileActions::loadFails()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, message);
    Desk desk;
    const QString path = desk.path(QStringLiteral("list.txt"));
    if (bytes.isEmpty()) {
        QCOMPARE(mkfifo(qUtf8Printable(path), 0600), 0);
    } else {
        writeFile(path, bytes);
    }
    const DialogAnswer answer(path);
    desk.actions.loadCommands();
    QCOMPARE(desk.events, QStringList("message: " + message));
    QCOMPARE(desk.actions.lastLoadFolder(), QString());
    QCOMPARE(desk.record(), QByteArray("unreadable"));
}

void TestFileActions::vanishedBehindTheDialog()
{
    Desk desk;
    const QString path = desk.path(QStringLiteral("list.txt"));
    writeFile(path, "a,5A0001\n");
    const DialogAnswer answer(path);
    // Runs once the dialog has been accepted, before the file is opened.
    const auto removeFile = [&path](QFileDialog *dialog) {
        QObject::connect(dialog, &QDialog::finished, [&path] { QFile::remove(path); });
    };
    QTimer finder;
    QObject::connect(&finder, &QTimer::timeout, [&finder, &removeFile] {
        if (auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget())) {
            finder.stop();
            removeFile(dialog);
        }
    });
    finder.start(0);
    desk.actions.loadCommands();
    QCOMPARE(desk.events, QStringList("message: Read fail,please check the path!"));
}

void TestFileActions::cancelledSave()
{
    Desk desk;
    desk.actions.setLastSaveFolder(desk.folder());
    const DialogAnswer answer;
    desk.actions.saveCommands();
    QVERIFY(answer.wasAsked());
    QCOMPARE(desk.events, QStringList());
    QCOMPARE(desk.actions.lastSaveFolder(), desk.folder());
    QCOMPARE(desk.record(), QByteArray("unreadable"));
}

void TestFileActions::savesCommands()
{
    Desk desk;
    desk.rows = {emptyRow(), rowWith(QStringLiteral("Name")), delayRow()};
    desk.actions.setLastLoadFolder(QStringLiteral("/l/"));
    const QString path = desk.path(QStringLiteral("list.txt"));
    writeFile(path, "before");
    const DialogAnswer answer(path);
    desk.actions.saveCommands();
    QCOMPARE(contentOf(path), QByteArray("Name,unselect,%% %%%% \nDaley(ms),unselect,++  1000\n"));
    QCOMPARE(desk.events, QStringList("unmodified"));
    QCOMPARE(desk.actions.lastSaveFolder(), desk.folder());
    QCOMPARE(desk.actions.lastLoadFolder(), QStringLiteral("/l/"));
    QCOMPARE(desk.record(), record(QString(), desk.folder()));
}

void TestFileActions::savesUntouchedTableAsEmptyFile()
{
    Desk desk;
    desk.rows = QVector<CommandRow>(9, emptyRow());
    const DialogAnswer answer(desk.path(QStringLiteral("list.txt")));
    desk.actions.saveCommands();
    QCOMPARE(contentOf(desk.path(QStringLiteral("list.txt"))), QByteArray());
}

void TestFileActions::failedSaveChangesNothing()
{
    Desk desk;
    desk.rows = {rowWith(QStringLiteral("a,b"))};
    desk.actions.setLastSaveFolder(desk.folder());
    const DialogAnswer answer(QStringLiteral("/proc/list.txt"));
    desk.actions.saveCommands();
    QCOMPARE(desk.events, QStringList("message: Save the file failed"));
    QCOMPARE(desk.actions.lastSaveFolder(), desk.folder());
    QCOMPARE(desk.record(), QByteArray("unreadable"));
}

void TestFileActions::tellsWhatTheFileCannotHold()
{
    Desk desk;
    desk.rows = {rowWith(QStringLiteral("a")), rowWith(QStringLiteral("a,b"))};
    const QString path = desk.path(QStringLiteral("list.txt"));
    const DialogAnswer answer(path);
    desk.actions.saveCommands();
    QCOMPARE(contentOf(path), QByteArray("a,unselect,%% %%%% \na,b,unselect,%% %%%% \n"));
    QCOMPARE(desk.events.size(), 2);
    QCOMPARE(desk.events.first(), QStringLiteral("unmodified"));
    QVERIFY(desk.events.last().contains(QLatin1String("row 2: cannot be read again")));
}

void TestFileActions::savesInTheLocalEncoding()
{
    Desk desk;
    desk.rows = {rowWith(QStringLiteral("啊")), rowWith(QStringLiteral("😀"))};
    const QString path = desk.path(QStringLiteral("list.txt"));
    const DialogAnswer answer(path);
    QTextCodec *const local = QTextCodec::codecForLocale();
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("GBK"));
    desk.actions.saveCommands();
    QTextCodec::setCodecForLocale(local);
    QVERIFY(contentOf(path).startsWith("\xB0\xA1,unselect,"));
    QVERIFY(desk.events.last().contains(QLatin1String("row 2: some characters")));
}

void TestFileActions::savedListLoadsAgain()
{
    Desk desk;
    CommandRow row = rowWith(QStringLiteral("读 é"));
    row.selected = true;
    row.cmd = QStringLiteral("5A");
    row.data = QStringLiteral("01");
    desk.rows = {row, emptyRow(), delayRow()};
    const QString path = desk.path(QStringLiteral("list.txt"));
    {
        const DialogAnswer answer(path);
        desk.actions.saveCommands();
    }
    const QByteArray saved = contentOf(path);
    {
        const DialogAnswer answer(path);
        desk.actions.loadCommands();
    }
    QCOMPARE(desk.rows.size(), 2);
    QCOMPARE(desk.rows.first().addr, QString());
    {
        const DialogAnswer answer(path);
        desk.actions.saveCommands();
    }
    QCOMPARE(contentOf(path), saved);
    QCOMPARE(desk.events, QStringList({"unmodified", "2 rows", "unmodified", "unmodified"}));
    QCOMPARE(desk.record(), record(desk.folder(), desk.folder()));
}

void TestFileActions::savesMessages()
{
    Desk desk;
    desk.messages = {{"1", "5A A5", "04", "03", "00 10", "", "0A 84"},
                     {"Uart", "a", "b", "c", "d", "e", "f"}};
    const QString path = desk.path(QStringLiteral("log.txt"));
    const DialogAnswer answer(path);
    desk.actions.saveMessages();
    QCOMPARE(contentOf(path), QByteArray("1, 5A A5 04 03 00 10  0A 84\n"));
    QCOMPARE(desk.events, QStringList());
    QCOMPARE(desk.actions.lastSaveFolder(), desk.folder());
    QCOMPARE(desk.record(), QByteArray("unreadable"));
}

void TestFileActions::cancelledMessageSaveForgetsTheFolder()
{
    Desk desk;
    desk.actions.setLastSaveFolder(desk.folder());
    const DialogAnswer answer;
    desk.actions.saveMessages();
    QVERIFY(answer.wasAsked());
    QCOMPARE(desk.actions.lastSaveFolder(), QString());
    const DialogAnswer next;
    desk.actions.saveCommands();
    QCOMPARE(next.folder, QCoreApplication::applicationDirPath());
}

void TestFileActions::failedMessageSaveKeepsTheFolder()
{
    Desk desk;
    desk.actions.setLastSaveFolder(desk.folder());
    const DialogAnswer answer(QStringLiteral("/proc/log.txt"));
    desk.actions.saveMessages();
    QCOMPARE(desk.events, QStringList("message: Save the file failed"));
    QCOMPARE(desk.actions.lastSaveFolder(), desk.folder());
}

QTEST_MAIN(TestFileActions)
#include "tst_fileactions.moc"
