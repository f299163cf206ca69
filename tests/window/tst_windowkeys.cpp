#include "windowdriver.h"

#include <QtTest>

class TestWindowKeys : public QObject
{
    Q_OBJECT

private slots:
    void enterInAFieldPressesNoButton_data();
    void enterInAFieldPressesNoButton();
    void escapeLeavesTheWindowOpen();
};

void TestWindowKeys::enterInAFieldPressesNoButton_data()
{
    QTest::addColumn<int>("tab");

    QTest::newRow("lineEdit_SBytes") << 0;
    QTest::newRow("lineEdit_RpID") << 1;
    QTest::newRow("lineEdit_SBytes_2") << 1;
    QTest::newRow("lineEdit_StepValue") << 0;
    QTest::newRow("lineEdit_CycleTime") << 0;
    QTest::newRow("lineEdit_Repeat") << 0;
}

void TestWindowKeys::enterInAFieldPressesNoButton()
{
    QFETCH(int, tab);
    MessageBoxes boxes;
    WindowDriver window;
    window.find<QTabWidget>("tabWidget")->setCurrentIndex(tab);
    int clicks = 0;
    for (const QPushButton *button : window.window().findChildren<QPushButton *>()) {
        if (button->window() != &window.window()) {
            continue;
        }
        QVERIFY2(!button->autoDefault(), qPrintable(button->objectName() + button->text()));
        QVERIFY(!button->isDefault());
        connect(button, &QPushButton::clicked, this, [&] { ++clicks; });
    }
    QLineEdit *edit = window.edit(QTest::currentDataTag());
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Return);
    QTest::keyClick(edit, Qt::Key_Enter);
    QCOMPARE(clicks, 0);
    QCOMPARE(boxes.texts(), QStringList());
    QVERIFY(window.window().isVisible());
}

void TestWindowKeys::escapeLeavesTheWindowOpen()
{
    WindowDriver window;
    QTest::keyClick(&window.window(), Qt::Key_Escape);
    QTest::keyClick(window.edit("lineEdit_SBytes"), Qt::Key_Escape);
    QVERIFY(window.window().isVisible());
}

QTEST_MAIN(TestWindowKeys)
#include "tst_windowkeys.moc"
