#include "commands/unitlineedit.h"
#include "windowdriver.h"

#include <QIntValidator>
#include <QSplitter>
#include <QtTest>

class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void isADialogOfItsOwnWithItsTitle();
    void tabsCarryTheirNames();
    void fileButtonsHavePicturesAndTips_data();
    void fileButtonsHavePicturesAndTips();
    void crcIsOffAtFirst();
    void areasShareTheHeightTenToEight();
    void timesTakeZeroToTenThousandMs_data();
    void timesTakeZeroToTenThousandMs();
    void commandTableHasItsOwnMenus();
};

void TestMainWindow::isADialogOfItsOwnWithItsTitle()
{
    WindowDriver window;
    QCOMPARE(window.window().windowTitle(), QString("Tarnwick_V1.00"));
    // Qt completes what was asked for, so the same is asked for another window.
    QWidget other;
    other.setWindowFlags(Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint);
    QCOMPARE(window.window().windowFlags(), other.windowFlags());
    QVERIFY(window.window().parent() == nullptr);
}

void TestMainWindow::tabsCarryTheirNames()
{
    const WindowDriver window;
    const auto *tabs = window.find<QTabWidget>("tabWidget");
    QCOMPARE(tabs->count(), 2);
    QCOMPARE(tabs->tabText(0), QString("Uart"));
    QCOMPARE(tabs->tabText(1), QString("HID"));
    QCOMPARE(tabs->widget(0)->objectName(), QString("tab"));
    QCOMPARE(tabs->widget(1)->objectName(), QString("tab_2"));
}

void TestMainWindow::fileButtonsHavePicturesAndTips_data()
{
    QTest::addColumn<QString>("tip");
    QTest::addColumn<QString>("picture");

    QTest::newRow("pushButton_LoadCommand") << "Load Command"
                                            << ":/Image/Input.png";
    QTest::newRow("pushButton_SaveCommand") << "Save Command"
                                            << ":/Image/save.png";
    QTest::newRow("pushButton_ClearCommand") << "Clear Command"
                                             << ":/Image/Delete.png";
}

void TestMainWindow::fileButtonsHavePicturesAndTips()
{
    QFETCH(QString, picture);
    const WindowDriver window;
    const QPushButton *button = window.button(QTest::currentDataTag());
    QTEST(button->toolTip(), "tip");
    QCOMPARE(button->text(), QString());
    const QSize size = button->iconSize();
    QVERIFY(!button->icon().isNull());
    QCOMPARE(button->icon().pixmap(size).toImage(), QIcon(picture).pixmap(size).toImage());
}

void TestMainWindow::crcIsOffAtFirst()
{
    const WindowDriver window;
    QVERIFY(!window.check("checkBox_CRC_EN")->isChecked());
    QVERIFY(!window.check("checkBox_CRC_EN_2")->isChecked());
}

void TestMainWindow::areasShareTheHeightTenToEight()
{
    const WindowDriver window;
    const auto *splitter = window.find<QSplitter>("splitter");
    QCOMPARE(splitter->count(), 2);
    QCOMPARE(splitter->orientation(), Qt::Vertical);
    QCOMPARE(splitter->widget(0)->sizePolicy().verticalStretch(), 10);
    QCOMPARE(splitter->widget(1)->sizePolicy().verticalStretch(), 8);
    QVERIFY(splitter->widget(0)->isAncestorOf(window.commands()));
    QVERIFY(splitter->widget(1)->isAncestorOf(window.messages()));
}

void TestMainWindow::timesTakeZeroToTenThousandMs_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("text");

    QTest::newRow("zero") << "0"
                          << "0";
    QTest::newRow("highest") << "10000"
                             << "10000";
    QTest::newRow("too many digits") << "100000"
                                     << "10000";
    QTest::newRow("negative") << "-5"
                              << "5";
    QTest::newRow("no number") << "1x.2"
                               << "12";
}

void TestMainWindow::timesTakeZeroToTenThousandMs()
{
    QFETCH(QString, typed);
    const WindowDriver window;
    const QValidator *shared = window.edit("lineEdit_StepValue")->validator();
    for (const char *name : {"lineEdit_StepValue", "lineEdit_CycleTime"}) {
        auto *edit = window.find<UnitLineEdit>(name);
        QCOMPARE(edit->unit(), QString("ms"));
        const auto *validator = qobject_cast<const QIntValidator *>(edit->validator());
        QCOMPARE(validator, shared);
        QCOMPARE(validator->bottom(), 0);
        QCOMPARE(validator->top(), 10000);
        edit->clear();
        QTest::keyClicks(edit, typed);
        QTEST(edit->text(), "text");
        QVERIFY(edit->hasAcceptableInput());
        edit->setText("10001");
        QVERIFY(!edit->hasAcceptableInput());
    }
}

void TestMainWindow::commandTableHasItsOwnMenus()
{
    const WindowDriver window;
    QCOMPARE(window.commands()->contextMenuPolicy(), Qt::CustomContextMenu);
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
