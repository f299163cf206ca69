#include "filedialoguser.h"
#include "recordingsamples.h"
#include "serialwindow.h"
#include "testfiles.h"
#include "windowfile.h"

#include <QLabel>
#include <QTemporaryDir>
#include <QtTest>

/// Recordings by the buttons of the side panel.
class TestRecording : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void theButtonStartsAndStops();
    void aTableRowIsNamed();
    void clearingTheLogTakesNothingAway();
    void itGoesOnOverTheLossOfTheLink();
    void theEndingChoosesTheForm();
    void nothingIsOverwritten();
    void aClosedDialogRecordsNothing();
    void aFolderThatGoesIsShown();
    void closingTheWindowClosesTheFile();
    void endingTheProgramClosesTheFile();
    void theFolderIsRemembered();
    void atFirstItIsWhereDocumentsAre();
    void aRecordingIsExported();
    void whatIsNoRecordingIsTold();
};

namespace {

/// A window with an open port, and a folder for recordings.
class RecordedWindow
{
public:
    explicit RecordedWindow(const QString &name = "run.jsonl")
        : path(folder.filePath(name))
    {
        window = std::make_unique<SerialWindow>();
        window->open(port);
    }

    /// Presses the button, and chooses the file.
    void startRecording() const
    {
        const FileDialogUser user(path);
        window->click("pushButton_Record");
    }

    /// Waits until the file is closed.
    bool stopRecording() const
    {
        window->click("pushButton_Record");
        return QTest::qWaitFor([this] { return readPath(path).hasTail; });
    }

    /// Kind and bytes of what was recorded, like "1 5aa50142".
    QStringList recorded() const
    {
        QStringList all;
        for (const RecordEvent &event : readPath(path).events) {
            all.append(QString::number(int(event.kind)) + ' ' + event.bytes.toHex());
        }
        return all;
    }

    QString state() const { return window->find<QLabel>("label_Record")->text(); }
    QString caption() const { return window->button("pushButton_Record")->text(); }

    QTemporaryDir folder;
    QString path;
    TestPort port;
    MessageBoxes boxes;
    std::unique_ptr<SerialWindow> window;
};

void removeRemembered()
{
    QFile::remove(windowFile());
}

} // namespace

void TestRecording::initTestCase()
{
    removeRemembered();
}

void TestRecording::theButtonStartsAndStops()
{
    RecordedWindow bench;
    QCOMPARE(bench.caption(), QString("Record…"));
    QVERIFY(!bench.window->find<QLabel>("label_Record")->isVisibleTo(&bench.window->window()));
    bench.startRecording();
    QCOMPARE(bench.caption(), QString("Stop recording"));
    bench.window->setRow(0, "03", "10", "");
    bench.window->clickSend(0);
    QTRY_COMPARE(bench.port.received(), QByteArray::fromHex("5AA5020310"));
    bench.port.send(QByteArray::fromHex("5AA50142FF"));
    QTRY_COMPARE(bench.recorded(), (QStringList{"0 5aa5020310", "1 5aa50142", "2 ff"}));
    QTRY_VERIFY2(bench.state().contains("3 events"), qPrintable(bench.state()));
    QVERIFY(bench.stopRecording());
    QTRY_VERIFY2(bench.state().startsWith("Recorded, "), qPrintable(bench.state()));
    QCOMPARE(bench.caption(), QString("Record…"));
    bench.port.send(QByteArray::fromHex("5AA50143"));
    QTRY_COMPARE(bench.window->messageCount(), 4);
    const ReadFile read = readPath(bench.path);
    QCOMPARE(read.events.size(), 3);
    QCOMPARE(read.head.link, bench.port.path());
    QCOMPARE(read.head.version, QString("1.0.0"));
    QCOMPARE(read.tail.reason, QString("stopped"));
}

void TestRecording::aTableRowIsNamed()
{
    RecordedWindow bench;
    bench.startRecording();
    bench.window->commands()->item(2, CommandColumn::Description)->setText("Read status");
    bench.window->setRow(2, "03", "10", "");
    bench.window->clickSend(2);
    QTRY_COMPARE(readPath(bench.path).events.size(), 1);
    bench.window->checkRow(2);
    bench.window->click("pushButton_SendAll");
    QTRY_COMPARE(readPath(bench.path).events.size(), 2);
    for (const RecordEvent &event : readPath(bench.path).events) {
        QCOMPARE(event.row, 3);
        QCOMPARE(event.text, QString("Read status"));
    }
    QVERIFY(bench.stopRecording());
}

void TestRecording::clearingTheLogTakesNothingAway()
{
    RecordedWindow bench;
    bench.startRecording();
    bench.port.send(QByteArray::fromHex("5AA50142"));
    QTRY_COMPARE(bench.window->messageCount(), 1);
    bench.window->click("pushButton_ClearMessage");
    bench.port.send(QByteArray::fromHex("5AA50143"));
    QTRY_COMPARE(bench.recorded(), (QStringList{"1 5aa50142", "1 5aa50143"}));
    QVERIFY(bench.stopRecording());
}

void TestRecording::itGoesOnOverTheLossOfTheLink()
{
    RecordedWindow bench;
    bench.startRecording();
    bench.port.unplug();
    QTRY_VERIFY(!bench.window->looksOpen());
    TestPort other;
    bench.window->open(other);
    QTRY_VERIFY(bench.window->looksOpen());
    other.send(QByteArray::fromHex("5AA50142"));
    QTRY_COMPARE(bench.recorded(), (QStringList{"4 ", "3 ", "1 5aa50142"}));
    QVERIFY(!readPath(bench.path).events.at(0).text.isEmpty());
    QCOMPARE(readPath(bench.path).events.at(1).link, other.path());
    QCOMPARE(bench.caption(), QString("Stop recording"));
    QVERIFY(bench.stopRecording());
}

void TestRecording::theEndingChoosesTheForm()
{
    RecordedWindow bench("run.pcapng");
    bench.startRecording();
    QVERIFY(bench.stopRecording());
    QCOMPARE(contentOf(bench.path).left(4).toHex(), QByteArray("0a0d0d0a"));
    RecordedWindow without("run");
    without.startRecording();
    QTRY_COMPARE(filesIn(without.folder.path()), QStringList{"run.jsonl"});
}

void TestRecording::nothingIsOverwritten()
{
    RecordedWindow bench;
    writeFile(bench.path, "mine");
    bench.startRecording();
    QTRY_COMPARE(filesIn(bench.folder.path()), (QStringList{"run-002.jsonl", "run.jsonl"}));
    QCOMPARE(contentOf(bench.path), QByteArray("mine"));
    QTRY_VERIFY(bench.window->find<QLabel>("label_Status")->text().contains("run-002.jsonl"));
}

void TestRecording::aClosedDialogRecordsNothing()
{
    RecordedWindow bench;
    const FileDialogUser user;
    bench.window->click("pushButton_Record");
    QCOMPARE(user.dialogCount(), 1);
    QCOMPARE(user.look().mode, QFileDialog::AcceptSave);
    QCOMPARE(user.look().filters, (QStringList{"JSON Lines (*.jsonl)", "pcapng (*.pcapng)"}));
    QCOMPARE(bench.caption(), QString("Record…"));
}

void TestRecording::aFolderThatGoesIsShown()
{
    RecordedWindow bench;
    bench.startRecording();
    QTRY_COMPARE(filesIn(bench.folder.path()).size(), 1);
    QVERIFY(bench.folder.remove());
    QTRY_VERIFY2(bench.state().startsWith("Stopped: the file is gone"), qPrintable(bench.state()));
    QCOMPARE(bench.caption(), QString("Record…"));
    const QString status = bench.window->find<QLabel>("label_Status")->text();
    QVERIFY2(status.contains("The recording run.jsonl has stopped: the file is gone."),
             qPrintable(status));
}

void TestRecording::closingTheWindowClosesTheFile()
{
    RecordedWindow bench;
    bench.startRecording();
    bench.port.send(QByteArray::fromHex("5AA50142"));
    QTRY_COMPARE(bench.window->messageCount(), 1);
    QVERIFY(bench.window->window().close());
    bench.window.reset();
    QCOMPARE(bench.recorded(), QStringList{"1 5aa50142"});
    QVERIFY(readPath(bench.path).hasTail);
}

void TestRecording::endingTheProgramClosesTheFile()
{
    RecordedWindow bench;
    bench.startRecording();
    bench.window->window().end();
    bench.window.reset();
    QCOMPARE(bench.recorded(), QStringList{"4 "});
    QVERIFY(readPath(bench.path).hasTail);
}

void TestRecording::theFolderIsRemembered()
{
    RecordedWindow bench;
    bench.startRecording();
    QVERIFY(bench.stopRecording());
    QVERIFY(bench.window->window().close());
    bench.window = std::make_unique<SerialWindow>();
    const FileDialogUser user;
    bench.window->click("pushButton_Record");
    QCOMPARE(user.look().folder, bench.folder.path());
    removeRemembered();
}

void TestRecording::atFirstItIsWhereDocumentsAre()
{
    const QByteArray homeBefore = qgetenv("HOME");
    const auto restore = qScopeGuard([&homeBefore] { qputenv("HOME", homeBefore); });
    const QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    const RecordedWindow bench;
    const FileDialogUser user;
    bench.window->click("pushButton_Record");
    QCOMPARE(user.look().folder, home.path());
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QVERIFY(QDir().mkpath(documents));
    bench.window->click("pushButton_Record");
    QCOMPARE(user.look().folder, documents);
}

void TestRecording::aRecordingIsExported()
{
    RecordedWindow bench;
    writeFile(bench.path, sampleFile(RecordingFormat::JsonLines, sampleEvents()));
    const QString csv = bench.folder.filePath("run.csv");
    FileDialogUser user(bench.path);
    // The first dialog asks what to read, the second where to write.
    connect(&user, &FileDialogUser::shown, this, [&](QFileDialog *dialog) {
        if (dialog->acceptMode() == QFileDialog::AcceptSave) {
            user.choose(csv);
        }
    });
    bench.window->click("pushButton_Export");
    QCOMPARE(user.dialogCount(), 2);
    const auto *status = bench.window->find<QLabel>("label_Status");
    QTRY_VERIFY2(status->text().contains("6 events exported to run.csv."),
                 qPrintable(status->text()));
    QVERIFY(contentOf(csv).startsWith("\xEF\xBB\xBFtime,"));
    QCOMPARE(contentOf(csv).count('\n'), 7);
    QVERIFY(bench.window->button("pushButton_Export")->isEnabled());
}

void TestRecording::whatIsNoRecordingIsTold()
{
    RecordedWindow bench("notes.jsonl");
    writeFile(bench.path, "hello\n");
    const QString csv = bench.folder.filePath("notes.csv");
    FileDialogUser user(bench.path);
    connect(&user, &FileDialogUser::shown, this, [&](QFileDialog *dialog) {
        if (dialog->acceptMode() == QFileDialog::AcceptSave) {
            user.choose(csv);
        }
    });
    bench.window->click("pushButton_Export");
    const auto *status = bench.window->find<QLabel>("label_Status");
    QTRY_VERIFY2(status->text().contains("was not exported: line 1: illegal value"),
                 qPrintable(status->text()));
    QCOMPARE(filesIn(bench.folder.path()), QStringList{"notes.jsonl"});
}

QTEST_MAIN(TestRecording)
#include "tst_recording.moc"
