#include "testfiles.h"
#include "windowdriver.h"
#include "windowfile.h"

#include <QDir>
#include <QFile>
#include <QScreen>
#include <QSplitter>
#include <QtTest>

class TestWindowMemory : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanupTestCase() { init(); }

    void theFirstSizeFitsTheScreen();
    void thePlaceIsRemembered();
    void theSplitterIsRemembered();
    void aMaximisedWindowComesBackSo();
    void aPlaceOffTheScreensIsBroughtBack();
    void theSettingsFileKeepsItsKeys();
    void aBadFileIsNoHarm_data();
    void aBadFileIsNoHarm();
    void aFolderInItsPlaceIsNoHarm();
    void aLinkToADeviceIsNoHarm();
    void theWindowCanBeSmallerThanItsContent();
};

namespace {

QRect screenRoom(const WindowDriver &window)
{
    return window.commands()->screen()->availableGeometry();
}

QSplitter *splitter(const WindowDriver &window)
{
    return window.find<QSplitter>("splitter");
}

} // namespace

void TestWindowMemory::init()
{
    QDir(windowFile()).removeRecursively();
    QFile::remove(windowFile());
}

void TestWindowMemory::theFirstSizeFitsTheScreen()
{
    WindowDriver window;
    const QRect screen = screenRoom(window);
    QVERIFY(screen.contains(window.window().frameGeometry()));
    QCOMPARE(window.window().size(), QSize(1120, 760).boundedTo(screen.size() - QSize(16, 40)));
}

void TestWindowMemory::thePlaceIsRemembered()
{
    const QRect place(30, 40, 300, 200);
    {
        WindowDriver window;
        window.window().setGeometry(place);
        QVERIFY(window.window().close());
    }
    WindowDriver window;
    QCOMPARE(window.window().geometry(), place);
}

void TestWindowMemory::theSplitterIsRemembered()
{
    QList<int> sizes;
    {
        WindowDriver window;
        const QList<int> before = splitter(window)->sizes();
        splitter(window)->setSizes({1, 1000});
        sizes = splitter(window)->sizes();
        QVERIFY(sizes != before);
        QVERIFY(window.window().close());
    }
    const WindowDriver window;
    QCOMPARE(splitter(window)->sizes(), sizes);
}

void TestWindowMemory::aMaximisedWindowComesBackSo()
{
    const QRect place(30, 40, 300, 200);
    {
        WindowDriver window;
        window.window().setGeometry(place);
        window.window().showMaximized();
        QTRY_VERIFY(window.window().isMaximized());
        QVERIFY(window.window().close());
    }
    WindowDriver window;
    QVERIFY(window.window().isMaximized());
    window.window().showNormal();
    QTRY_COMPARE(window.window().geometry(), place);
}

void TestWindowMemory::aPlaceOffTheScreensIsBroughtBack()
{
    writeFile(windowFile(), "[window]\nx=-5000\ny=9000\nwidth=300\nheight=200\n");
    WindowDriver window;
    QVERIFY(screenRoom(window).contains(window.window().geometry()));
    QCOMPARE(window.window().size(), QSize(300, 200));
}

void TestWindowMemory::theSettingsFileKeepsItsKeys()
{
    WindowDriver window;
    QVERIFY(window.window().close());
    const QByteArray settings =
        textIn(QCoreApplication::applicationDirPath() + "/debuggerConfig.ini");
    QCOMPARE(settings.count('='), 6);
    QVERIFY(textIn(windowFile()).startsWith("[window]\nx="));
}

void TestWindowMemory::aBadFileIsNoHarm_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("rubbish") << QByteArray("\x00\xFF[window]\n==\n", 15);
    QTest::newRow("too large") << QByteArray("[window]\nx=1\ny=1\nwidth=50\nheight=50\n") +
                                      QByteArray(65536, '\n');
}

void TestWindowMemory::aBadFileIsNoHarm()
{
    QFETCH(QByteArray, bytes);
    writeFile(windowFile(), bytes);
    WindowDriver window;
    QCOMPARE(window.window().size(),
             QSize(1120, 760).boundedTo(screenRoom(window).size() - QSize(16, 40)));
    QVERIFY(window.window().close());
    QVERIFY(textIn(windowFile()).startsWith("[window]\nx="));
}

void TestWindowMemory::aFolderInItsPlaceIsNoHarm()
{
    QVERIFY(QDir().mkpath(windowFile() + "/inside"));
    WindowDriver window;
    QVERIFY(window.window().close());
    QVERIFY(QDir(windowFile() + "/inside").exists());
}

void TestWindowMemory::aLinkToADeviceIsNoHarm()
{
    QVERIFY(QFile::link("/dev/zero", windowFile()));
    WindowDriver window;
    QVERIFY(window.window().isVisible());
    QVERIFY(window.window().close());
}

void TestWindowMemory::theWindowCanBeSmallerThanItsContent()
{
    WindowDriver window;
    window.window().resize(300, 200);
    QCOMPARE(window.window().size(), QSize(300, 200));
    QPushButton *last = window.button("pushButton_SaveMessage");
    QVERIFY(last->visibleRegion().isEmpty());
    // Whoever goes there by the keyboard sees it.
    window.button("pushButton_ClearMessage")->setFocus();
    QTRY_VERIFY(window.button("pushButton_ClearMessage")->hasFocus());
    QTest::keyClick(window.button("pushButton_ClearMessage"), Qt::Key_Tab);
    QTRY_VERIFY(last->hasFocus());
    QCOMPARE(last->visibleRegion().boundingRect(), last->rect());
}

QTEST_MAIN(TestWindowMemory)
#include "tst_windowmemory.moc"
