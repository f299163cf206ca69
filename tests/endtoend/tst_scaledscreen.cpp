#include "app/windowplace.h"
#include "testfiles.h"
#include "typedprogram.h"

#include <QTemporaryDir>
#include <QtTest>

/// The program on a screen whose dots are smaller than usual.
class TestScaledScreen : public QObject
{
    Q_OBJECT

private slots:
    void theWindowIsScaledAsTheScreenAsks_data();
    void theWindowIsScaledAsTheScreenAsks();
};

void TestScaledScreen::theWindowIsScaledAsTheScreenAsks_data()
{
    QTest::addColumn<QSize>("size");

    // What is left of 800 to 600 dots beside a frame, in pixels of so many dots.
    QTest::newRow("96") << QSize(784, 560);
    QTest::newRow("120") << QSize(624, 440);
    QTest::newRow("144") << QSize(517, 360);
    QTest::newRow("192") << QSize(384, 260);
}

void TestScaledScreen::theWindowIsScaledAsTheScreenAsks()
{
    QFETCH(QSize, size);
    const QTemporaryDir folder;
    TypedProgram program(folder.path(), "a");
    program.setVariable("QT_FONT_DPI", QTest::currentDataTag());
    QVERIFY(program.startAndType());
    program.terminate();
    QVERIFY(program.waitForFinished());
    QCOMPARE(parseWindowPlace(contentOf(folder.filePath("window.ini"))).inside.size(), size);
}

QTEST_GUILESS_MAIN(TestScaledScreen)
#include "tst_scaledscreen.moc"
