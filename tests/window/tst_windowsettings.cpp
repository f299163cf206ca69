#include "windowdriver.h"

#include <QDir>
#include <QFile>
#include <QMenu>
#include <QSettings>
#include <QtTest>

class TestWindowSettings : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanupTestCase();
    void withoutAFileTheWindowBeginsWithDefaults();
    void closingWritesAllKeys();
    void nothingIsWrittenBeforeTheWindowCloses();
    void theTabOfTheLinkModeIsShown_data();
    void theTabOfTheLinkModeIsShown();
    void theTabShownIsWritten();
    void valuesComeBackAsTheyWere();
    void theMenuOffersEditAsTheFileSays_data();
    void theMenuOffersEditAsTheFileSays();
    void aBadFileDoesNotStopTheWindow_data();
    void aBadFileDoesNotStopTheWindow();
    void aFolderInItsPlaceDoesNotStopTheWindow();
};

namespace {

QString filePath()
{
    return QCoreApplication::applicationDirPath() + "/debuggerConfig.ini";
}

/// With plain line ends, whatever the platform has.
QByteArray content()
{
    QFile file(filePath());
    return file.open(QIODevice::ReadOnly | QIODevice::Text) ? file.readAll() : QByteArray();
}

void write(const QByteArray &bytes)
{
    QFile file(filePath());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QTabWidget *tabs(const WindowDriver &window)
{
    return window.find<QTabWidget>("tabWidget");
}

/// The texts of the menu that has "insert" in it.
QStringList rowMenuTexts(WindowDriver &window)
{
    QStringList texts;
    for (const QMenu *menu : window.window().findChildren<QMenu *>()) {
        QStringList menuTexts;
        for (const QAction *action : menu->actions()) {
            menuTexts.append(action->text());
        }
        if (menuTexts.contains("insert")) {
            texts = menuTexts;
        }
    }
    return texts;
}

} // namespace

void TestWindowSettings::init()
{
    QDir(filePath()).removeRecursively();
    QFile::remove(filePath());
}

void TestWindowSettings::cleanupTestCase()
{
    init();
}

void TestWindowSettings::withoutAFileTheWindowBeginsWithDefaults()
{
    MessageBoxes boxes;
    WindowDriver window;
    TestPort port;
    QCOMPARE(tabs(window)->currentIndex(), 0);
    window.open(port);
    window.setRow(0, "01", "0300", "00 00 01");
    window.sendCurrentRow();
    QTRY_COMPARE(port.received(), QByteArray::fromHex("5AA506010300000001"));
    QCOMPARE(boxes.texts(), QStringList());
}

void TestWindowSettings::closingWritesAllKeys()
{
    WindowDriver window;
    QVERIFY(window.window().close());
    QCOMPARE(content(), QByteArray("[set]\nLastLoadPath=\nLastSavePath=\ndebuggerMode=0\n"
                                   "isEditorFun=0\nnoAppendHeader=0\nnoAppendLength=0\n"));
}

void TestWindowSettings::nothingIsWrittenBeforeTheWindowCloses()
{
    {
        const WindowDriver window;
        tabs(window)->setCurrentIndex(1);
        QCoreApplication::processEvents();
        QVERIFY(!QFile::exists(filePath()));
    }
    QVERIFY(!QFile::exists(filePath()));
}

void TestWindowSettings::theTabOfTheLinkModeIsShown_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<int>("tab");

    QTest::newRow("0") << QByteArray("0") << 0;
    QTest::newRow("1") << QByteArray("1") << 1;
    QTest::newRow("7") << QByteArray("7") << 1;
    QTest::newRow("negative") << QByteArray("-1") << 1;
    QTest::newRow("no number") << QByteArray("x") << 0;
}

void TestWindowSettings::theTabOfTheLinkModeIsShown()
{
    QFETCH(QByteArray, value);
    QFETCH(int, tab);
    write("[set]\ndebuggerMode=" + value + "\n");
    WindowDriver window;
    QCOMPARE(tabs(window)->currentIndex(), tab);
    window.window().close();
    QVERIFY(content().contains("debuggerMode=" + QByteArray::number(tab) + "\n"));
}

void TestWindowSettings::theTabShownIsWritten()
{
    WindowDriver window;
    tabs(window)->setCurrentIndex(1);
    window.window().close();
    QVERIFY(content().contains("debuggerMode=1\n"));
    window.window().show();
    tabs(window)->setCurrentIndex(0);
    window.window().close();
    QVERIFY(content().contains("debuggerMode=0\n"));
}

void TestWindowSettings::valuesComeBackAsTheyWere()
{
    const QByteArray folder = QStringLiteral(u"/home/M\u00FCller/\u547D\u4EE4").toUtf8();
    const QByteArray file = "[other]\nkey=value\n\n[set]\nLastLoadPath=" + folder +
                            "/load\nLastSavePath=" + folder +
                            "/save\ndebuggerMode=0\nisEditorFun=5\nmine=kept\n"
                            "noAppendHeader=5\nnoAppendLength=-5\n";
    write(file);
    WindowDriver window;
    window.window().close();
    QCOMPARE(content(), file);
}

void TestWindowSettings::theMenuOffersEditAsTheFileSays_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<bool>("withEdit");

    QTest::newRow("no file") << QByteArray() << false;
    QTest::newRow("0") << QByteArray("[set]\nisEditorFun=0\n") << false;
    QTest::newRow("1") << QByteArray("[set]\nisEditorFun=1\n") << true;
    QTest::newRow("negative") << QByteArray("[set]\nisEditorFun=-1\n") << true;
}

void TestWindowSettings::theMenuOffersEditAsTheFileSays()
{
    QFETCH(QByteArray, file);
    QFETCH(bool, withEdit);
    write(file);
    WindowDriver window;
    QStringList expected{"insert", "clone", "delete", "up", "down", "delay"};
    if (withEdit) {
        expected.prepend("edit");
    }
    QCOMPARE(rowMenuTexts(window), expected);
}

void TestWindowSettings::aBadFileDoesNotStopTheWindow_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("zeros") << QByteArray(5000, '\0');
    QTest::newRow("no text") << QByteArray("\xFF\xFE\x80[[[==\x01\r\n%%%\\x\\\n=\n[]\n");
    QTest::newRow("text") << QByteArray("just some words\n");
}

void TestWindowSettings::aBadFileDoesNotStopTheWindow()
{
    QFETCH(QByteArray, bytes);
    write(bytes);
    MessageBoxes boxes;
    WindowDriver window;
    QCOMPARE(tabs(window)->currentIndex(), 0);
    tabs(window)->setCurrentIndex(1);
    QVERIFY(window.window().close());
    QCOMPARE(boxes.texts(), QStringList());
    QSettings read(filePath(), QSettings::IniFormat);
    QCOMPARE(read.value("set/debuggerMode").toInt(), 1);
}

void TestWindowSettings::aFolderInItsPlaceDoesNotStopTheWindow()
{
    QVERIFY(QDir().mkpath(filePath() + "/inside"));
    MessageBoxes boxes;
    WindowDriver window;
    QCOMPARE(tabs(window)->currentIndex(), 0);
    QVERIFY(window.window().close());
    QVERIFY(QFileInfo(filePath() + "/inside").isDir());
    QCOMPARE(boxes.texts(), QStringList());
}

QTEST_MAIN(TestWindowSettings)
#include "tst_windowsettings.moc"
