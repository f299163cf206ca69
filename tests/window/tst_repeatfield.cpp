#include "loopwindow.h"
#include "testfiles.h"
#include "windowfile.h"

#include <QFile>
#include <QLabel>
#include <QtTest>

/// "Repeat:", and the count of passes while the loop runs.
class TestRepeatField : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanupTestCase() { init(); }
    void itTakesPositiveNumbers_data();
    void itTakesPositiveNumbers();
    void theLoopEndsAsByAClick();
    void emptyIsEndless();
    void theCountStandsInPlaceOfTheNumber();
    void theCountMovesNothing();
    void manyPassesAreNotAllShown();
    void theNumberIsRemembered();
    void anEmptyFieldIsRememberedToo();
};

namespace {

QLabel *count(const WindowDriver &window)
{
    return window.find<QLabel>("label_Passes");
}

void typeRepeat(const WindowDriver &window, const QString &text)
{
    window.edit("lineEdit_Repeat")->clear();
    QTest::keyClicks(window.edit("lineEdit_Repeat"), text);
}

} // namespace

void TestRepeatField::init()
{
    QFile::remove(windowFile());
}

void TestRepeatField::itTakesPositiveNumbers_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("1") << "1";
    QTest::newRow("99999") << "99999";
    QTest::newRow("100000") << "10000";
    QTest::newRow("0") << "";
    QTest::newRow("007") << "7";
    QTest::newRow("-3") << "3";
    QTest::newRow("2.5") << "25";
    QTest::newRow("ten") << "";
}

void TestRepeatField::itTakesPositiveNumbers()
{
    const WindowDriver window;
    QCOMPARE(window.edit("lineEdit_Repeat")->text(), QString());
    typeRepeat(window, QTest::currentDataTag());
    QTEST(window.edit("lineEdit_Repeat")->text(), "text");
}

void TestRepeatField::theLoopEndsAsByAClick()
{
    MessageBoxes boxes;
    LoopWindow window("5", "5", "1");
    typeRepeat(window, "3");
    window.click("pushButton_Start_Loop");
    QCOMPARE(window.loopCaption(), QString("Sending..."));
    QTRY_COMPARE(window.loopCaption(), QString("Auto Send"));
    QCOMPARE(window.messageCount(), 6);
    QTRY_COMPARE(window.port.received(), (firstFrame + secondFrame).repeated(3));
    for (const char *name : {"tabWidget", "pushButton_OpenCom", "pushButton_LoadCommand",
                             "lineEdit_StepValue", "lineEdit_Repeat", "checkBox_CRC_EN"}) {
        QVERIFY2(window.find<QWidget>(name)->isEnabled(), name);
    }
    QVERIFY(window.edit("lineEdit_Repeat")->isVisible());
    QCOMPARE(window.edit("lineEdit_Repeat")->text(), QString("3"));
    QCOMPARE(boxes.texts(), QStringList());

    window.click("pushButton_Start_Loop");
    QTRY_COMPARE(window.messageCount(), 12);
    QTRY_COMPARE(window.loopCaption(), QString("Auto Send"));
}

void TestRepeatField::emptyIsEndless()
{
    LoopWindow window("1", "0", "1");
    window.click("pushButton_Start_Loop");
    QTRY_VERIFY(window.messageCount() >= 40);
    QCOMPARE(window.loopCaption(), QString("Sending..."));
    QTRY_VERIFY(count(window)->text().startsWith("pass "));
    QVERIFY(count(window)->text().mid(5).toInt() > 0);
}

void TestRepeatField::theCountStandsInPlaceOfTheNumber()
{
    LoopWindow window("5", "150", "1");
    typeRepeat(window, "3");
    QVERIFY(!count(window)->isVisible());
    QStringList shown;
    QTimer look;
    connect(&look, &QTimer::timeout, this, [&] {
        if (count(window)->isVisible() &&
            (shown.isEmpty() || shown.last() != count(window)->text())) {
            shown.append(count(window)->text());
        }
    });
    window.click("pushButton_Start_Loop");
    QVERIFY(count(window)->isVisible());
    QVERIFY(!window.edit("lineEdit_Repeat")->isVisible());
    QVERIFY(!window.edit("lineEdit_Repeat")->isEnabled());
    QCOMPARE(count(window)->text(), QString("0 of 3"));
    look.start(0);
    QTRY_COMPARE(window.loopCaption(), QString("Auto Send"));
    QCOMPARE(shown.mid(0, 2), (QStringList{"0 of 3", "1 of 3"}));
    for (const QString &text : shown) {
        QVERIFY2(text.endsWith(" of 3"), qPrintable(text));
    }
    QVERIFY(!count(window)->isVisible());
    QCOMPARE(window.edit("lineEdit_Repeat")->text(), QString("3"));

    window.click("pushButton_Start_Loop");
    QCOMPARE(count(window)->text(), QString("0 of 3"));
}

void TestRepeatField::theCountMovesNothing()
{
    LoopWindow window("1", "0", "1");
    window.window().resize(1120, 760);
    typeRepeat(window, "99999");
    QCoreApplication::processEvents();
    const QStringList neighbours{"label_Repeat", "pushButton_Start_Loop", "pushButton_ClearMessage",
                                 "lineEdit_CycleTime", "splitter"};
    const auto places = [&] {
        QVector<QRect> rects;
        for (const QString &name : neighbours) {
            const auto *widget = window.find<QWidget>(qPrintable(name));
            rects.append({widget->mapTo(&window.window(), QPoint()), widget->size()});
        }
        rects.append(window.find<QWidget>("repeatPlace")->geometry());
        return rects;
    };
    const QVector<QRect> before = places();
    window.click("pushButton_Start_Loop");
    QTRY_VERIFY(count(window)->text().contains(" of 99999"));
    QTRY_VERIFY(window.messageCount() >= 20);
    QCOMPARE(places(), before);
    QVERIFY(count(window)->fontMetrics().horizontalAdvance("100 of 999") <= count(window)->width());
}

void TestRepeatField::manyPassesAreNotAllShown()
{
    LoopWindow window("0", "0", "1");
    QStringList shown;
    QTimer look;
    connect(&look, &QTimer::timeout, this, [&] {
        if (shown.isEmpty() || shown.last() != count(window)->text()) {
            shown.append(count(window)->text());
        }
    });
    window.click("pushButton_Start_Loop");
    look.start(0);
    QTRY_VERIFY(shown.size() >= 3);
    window.click("pushButton_Start_Loop");
    const int passes = shown.last().mid(5).toInt();
    QVERIFY2(passes > shown.size(), qPrintable(shown.last()));
}

void TestRepeatField::theNumberIsRemembered()
{
    {
        WindowDriver window;
        typeRepeat(window, "25");
        QVERIFY(window.window().close());
    }
    QVERIFY(textIn(windowFile()).contains("repeat=25\n"));
    const WindowDriver window;
    QCOMPARE(window.edit("lineEdit_Repeat")->text(), QString("25"));
}

void TestRepeatField::anEmptyFieldIsRememberedToo()
{
    writeFile(windowFile(), "[window]\nrepeat=25\n");
    {
        WindowDriver window;
        QCOMPARE(window.edit("lineEdit_Repeat")->text(), QString("25"));
        window.edit("lineEdit_Repeat")->clear();
        QVERIFY(window.window().close());
    }
    QVERIFY(!textIn(windowFile()).contains("repeat"));
}

QTEST_MAIN(TestRepeatField)
#include "tst_repeatfield.moc"
