#include "widgets/pathcombobox.h"

#include <QtTest>

class TestPathComboBox : public QObject
{
    Q_OBJECT

private slots:
    void aLongPathShowsItsEnd();
    void noPlaceHolderIsCutOff_data();
    void noPlaceHolderIsCutOff();
};

void TestPathComboBox::aLongPathShowsItsEnd()
{
    PathComboBox box;
    box.addItem("/home/engineer/.config/tarnwick/ports/simulated");
    const int width = box.fontMetrics().horizontalAdvance(box.currentText());
    QCOMPARE(box.textFor(width + 1), box.currentText());
    const QString shown = box.textFor(width / 2);
    QVERIFY2(shown.startsWith(QChar(0x2026)) && shown.endsWith("simulated"), qPrintable(shown));
}

void TestPathComboBox::noPlaceHolderIsCutOff_data()
{
    QTest::addColumn<QString>("whole");
    QTest::addColumn<QString>("part");

    QTest::newRow("English") << "No device, see hidDeviceID.ini"
                             << "No device";
    QTest::newRow("Chinese") << QString::fromUtf8("没有设备，见 hidDeviceID.ini")
                             << QString::fromUtf8("没有设备");
    QTest::newRow("no comma") << "None"
                              << "None";
}

void TestPathComboBox::noPlaceHolderIsCutOff()
{
    QFETCH(QString, whole);
    PathComboBox box;
    box.setPlaceholderText(whole);
    const int width = box.fontMetrics().horizontalAdvance(whole);
    QCOMPARE(box.textFor(width), whole);
    QTEST(box.textFor(width - 1), "part");
}

QTEST_MAIN(TestPathComboBox)
#include "tst_pathcombobox.moc"
