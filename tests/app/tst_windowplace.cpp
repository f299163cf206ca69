#include "app/windowplace.h"

#include <QtTest>

class TestWindowPlace : public QObject
{
    Q_OBJECT

private slots:
    void whatIsWrittenIsRead_data();
    void whatIsWrittenIsRead();
    void theFileIsPlain();
    void whatMakesNoSenseIsUnknown_data();
    void whatMakesNoSenseIsUnknown();
    void foreignLinesAreNoHarm();
    void aFolderThatWouldBreakTheFileIsLeftOut();
    void theFirstSizeFits_data();
    void theFirstSizeFits();
    void aPlaceIsBroughtOntoTheScreens_data();
    void aPlaceIsBroughtOntoTheScreens();
    void withoutAScreenThePlaceStays();
};

namespace {

WindowPlace place(const QRect &inside, bool maximized = false, const QList<int> &splitter = {})
{
    WindowPlace made;
    made.inside = inside;
    made.maximized = maximized;
    made.splitter = splitter;
    return made;
}

} // namespace

Q_DECLARE_METATYPE(WindowPlace)

void TestWindowPlace::whatIsWrittenIsRead_data()
{
    QTest::addColumn<WindowPlace>("written");

    const QRect inside(16, 40, 1120, 760);
    QTest::newRow("unknown") << place({});
    QTest::newRow("place") << place(inside);
    QTest::newRow("left of the first screen") << place(inside.translated(-1920, -300));
    QTest::newRow("maximised") << place(inside, true);
    QTest::newRow("splitter") << place(inside, false, {410, 250});
    WindowPlace recording = place(inside);
    recording.recordings = QString::fromUtf8("/home/me/a = b/\u6E29");
    recording.repeat = 99999;
    recording.reopens = true;
    recording.recentFiles = QStringList{QString::fromUtf8("/home/me/a = b/\u6E29;,.txt"),
                                        "/a\nb\\x41\".txt", " /a ", "@Variant(1)", "/last%1"};
    QTest::newRow("choices") << recording;
    for (const ShownTime shown : {ShownTime::OfDay, ShownTime::Nothing}) {
        WindowPlace other = place(inside);
        other.shownTime = shown;
        QTest::addRow("time %d", int(shown)) << other;
    }
    QTest::newRow("splitter alone") << place({}, true, {1, 700});
}

void TestWindowPlace::whatIsWrittenIsRead()
{
    QFETCH(WindowPlace, written);
    const WindowPlace read = parseWindowPlace(formatWindowPlace(written));
    QCOMPARE(read.inside, written.inside);
    QCOMPARE(read.maximized, written.maximized);
    QCOMPARE(read.splitter, written.splitter);
    QCOMPARE(read.recordings, written.recordings);
    QCOMPARE(read.repeat, written.repeat);
    QCOMPARE(read.shownTime, written.shownTime);
    QCOMPARE(read.reopens, written.reopens);
    QCOMPARE(read.recentFiles, written.recentFiles);
}

void TestWindowPlace::theFileIsPlain()
{
    QCOMPARE(formatWindowPlace(place({-5, 40, 1120, 760}, true, {410, 250})),
             QByteArray("[window]\nx=-5\ny=40\nwidth=1120\nheight=760\nmaximized=1\n"
                        "splitter=410,250\n"));
}

void TestWindowPlace::whatMakesNoSenseIsUnknown_data()
{
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("empty") << QByteArray();
    QTest::newRow("rubbish") << QByteArray("\x7F\xFF\0=\n[[\n", 8);
    QTest::newRow("another group") << QByteArray("[set]\nx=1\ny=1\nwidth=5\nheight=5\n");
    QTest::newRow("no group") << QByteArray("x=1\ny=1\nwidth=5\nheight=5\n");
    QTest::newRow("no height") << QByteArray("[window]\nx=1\ny=1\nwidth=5\n");
    QTest::newRow("no width") << QByteArray("[window]\nx=1\ny=1\nwidth=0\nheight=5\n");
    QTest::newRow("negative") << QByteArray("[window]\nx=1\ny=1\nwidth=5\nheight=-5\n");
    QTest::newRow("too far") << QByteArray("[window]\nx=32768\ny=1\nwidth=5\nheight=5\n");
    QTest::newRow("too far left") << QByteArray("[window]\nx=-32768\ny=1\nwidth=5\nheight=5\n");
    QTest::newRow("too large") << QByteArray("[window]\nx=1\ny=1\nwidth=5\nheight=32768\n");
    QTest::newRow("beyond a number")
        << QByteArray("[window]\nx=1\ny=1\nwidth=5\nheight=99999999999999999999\n");
    QTest::newRow("words") << QByteArray("[window]\nx=left\ny=1\nwidth=5\nheight=5\n");
    QTest::newRow("half a splitter") << QByteArray("[window]\nsplitter=410\n");
    QTest::newRow("three areas") << QByteArray("[window]\nsplitter=410,250,9\n");
    QTest::newRow("an unknown time") << QByteArray("[window]\ntime=Day\n");
    QTest::newRow("an area without height") << QByteArray("[window]\nsplitter=0,250\n");
    QTest::newRow("no pass") << QByteArray("[window]\nrepeat=0\n");
    QTest::newRow("fewer passes than none") << QByteArray("[window]\nrepeat=-1\n");
    QTest::newRow("too many passes") << QByteArray("[window]\nrepeat=99999999999\n");
}

void TestWindowPlace::whatMakesNoSenseIsUnknown()
{
    QFETCH(QByteArray, text);
    const WindowPlace read = parseWindowPlace(text);
    QVERIFY(read.inside.isNull());
    QVERIFY(!read.maximized);
    QCOMPARE(read.splitter, QList<int>());
    QCOMPARE(read.repeat, 0);
    QCOMPARE(read.shownTime, ShownTime::SinceRowBefore);
}

void TestWindowPlace::foreignLinesAreNoHarm()
{
    const WindowPlace read = parseWindowPlace(
        "[other]\r\nx=9\r\n[window]\r\nx=1\r\nmine\r\ny=2\r\nz=3\r\nwidth=4\r\nheight=5\r\n");
    QCOMPARE(read.inside, QRect(1, 2, 4, 5));
}

void TestWindowPlace::aFolderThatWouldBreakTheFileIsLeftOut()
{
    for (const char *folder : {"", "/a\nwidth=1", " /a", "/a\r"}) {
        WindowPlace place;
        place.recordings = folder;
        QCOMPARE(formatWindowPlace(place), QByteArray("[window]\nmaximized=0\n"));
    }
}

void TestWindowPlace::theFirstSizeFits_data()
{
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<QSize>("size");

    QTest::newRow("1920x1080") << QSize(1920, 1080) << QSize(1120, 760);
    QTest::newRow("just enough") << QSize(1136, 800) << QSize(1120, 760);
    QTest::newRow("1920x1080 at 144 dpi") << QSize(1280, 720) << QSize(1120, 680);
    QTest::newRow("1920x1080 at 200 %") << QSize(960, 540) << QSize(944, 500);
    QTest::newRow("1024x700") << QSize(1024, 700) << QSize(1008, 660);
}

void TestWindowPlace::theFirstSizeFits()
{
    QFETCH(QSize, screen);
    QTEST(firstWindowSize({1120, 760}, screen), "size");
}

void TestWindowPlace::aPlaceIsBroughtOntoTheScreens_data()
{
    QTest::addColumn<QRect>("place");
    QTest::addColumn<QRect>("brought");

    // Beside a screen of 1000 to 800 stands one of 500 to 400.
    const QRect inside(100, 100, 300, 200);
    QTest::newRow("inside") << inside << inside;
    QTest::newRow("in the second") << inside.translated(1000, 0) << inside.translated(1000, 0);
    QTest::newRow("over both") << inside.translated(750, 0) << inside.translated(750, 0);
    QTest::newRow("as large as the first") << QRect(0, 0, 1000, 800) << QRect(0, 0, 1000, 800);
    QTest::newRow("off to the left") << inside.translated(-900, 0) << QRect(8, 100, 300, 200);
    QTest::newRow("off at the top") << inside.translated(0, -900) << QRect(100, 32, 300, 200);
    QTest::newRow("off at the bottom") << inside.translated(0, 900) << QRect(100, 592, 300, 200);
    QTest::newRow("off to the right") << inside.translated(4000, 0) << QRect(692, 100, 300, 200);
    QTest::newRow("half off the first") << inside.translated(-250, 0) << QRect(8, 100, 300, 200);
    QTest::newRow("half off the second")
        << inside.translated(1250, 0) << QRect(1192, 100, 300, 200);
    QTest::newRow("below the second") << inside.translated(1000, 250) << QRect(1100, 192, 300, 200);
    QTest::newRow("too large") << QRect(-50, -50, 3000, 3000) << QRect(8, 32, 984, 760);
}

void TestWindowPlace::aPlaceIsBroughtOntoTheScreens()
{
    QFETCH(QRect, place);
    QTEST(broughtOntoScreens(place, {{0, 0, 1000, 800}, {1000, 0, 500, 400}}), "brought");
}

void TestWindowPlace::withoutAScreenThePlaceStays()
{
    QCOMPARE(broughtOntoScreens({1, 2, 3, 4}, {}), QRect(1, 2, 3, 4));
}

QTEST_APPLESS_MAIN(TestWindowPlace)
#include "tst_windowplace.moc"
