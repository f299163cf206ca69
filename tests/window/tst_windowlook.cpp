#include "windowdriver.h"

#include <QtTest>

class TestWindowLook : public QObject
{
    Q_OBJECT

private slots:
    void linkAndLoopButtonsBeginIdle_data();
    void linkAndLoopButtonsBeginIdle();
    void anOpenPortAndARunningLoopLookBusy();
    void picturesAreThereInTwoSizes_data();
    void picturesAreThereInTwoSizes();
    void picturesStandOutUnderTheMouse_data();
    void picturesStandOutUnderTheMouse();
    void nothingIsClipped_data();
    void nothingIsClipped();
    void unitsAreWhole_data();
    void unitsAreWhole();
};

namespace {

const QString idleStyle =
    "QPushButton{background: #FFFFFF;border: 2px solid #d9dfe7;border-radius: 4px;color: "
    "#333333;}QPushButton:hover{background: #0090ff;border-radius: 4px;color: "
    "#fefefe;}QPushButton:disabled{background: #cccccc;color:#666666}";
const QString busyStyle =
    "QPushButton{background: #0090ff;border: 2px solid #d9dfe7;border-radius: 4px;color: "
    "#fefefe;}QPushButton:hover{background: #0090ff;border-radius: 4px;color: "
    "#fefefe;}QPushButton:disabled{background: #cccccc;color:#666666}";

bool hasPixel(const QImage &image, const QColor &color)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == color) {
                return true;
            }
        }
    }
    return false;
}

bool showsItsWholeText(const QWidget *widget)
{
    if (const auto *edit = qobject_cast<const QLineEdit *>(widget)) {
        const int room = edit->width() - edit->textMargins().left() - edit->textMargins().right();
        return edit->fontMetrics().horizontalAdvance(edit->text()) < room &&
               edit->height() >= edit->minimumSizeHint().height();
    }
    if (qobject_cast<const QComboBox *>(widget) != nullptr) {
        return widget->height() >= widget->minimumSizeHint().height();
    }
    return widget->width() >= widget->sizeHint().width() &&
           widget->height() >= widget->sizeHint().height();
}

} // namespace

void TestWindowLook::linkAndLoopButtonsBeginIdle_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("pushButton_OpenCom") << "Open Com Port";
    QTest::newRow("pushButton_ConnectHID") << "Open HID Device";
    QTest::newRow("pushButton_Start_Loop") << "Auto Send";
}

void TestWindowLook::linkAndLoopButtonsBeginIdle()
{
    const WindowDriver window;
    const QPushButton *button = window.button(QTest::currentDataTag());
    QTEST(button->text(), "text");
    QCOMPARE(button->styleSheet(), idleStyle);
}

void TestWindowLook::anOpenPortAndARunningLoopLookBusy()
{
    WindowDriver window;
    const TestPort port;
    const QPushButton *link = window.button("pushButton_OpenCom");
    const QPushButton *loop = window.button("pushButton_Start_Loop");
    window.open(port);
    QCOMPARE(link->text(), QString("Linking..."));
    QCOMPARE(link->styleSheet(), busyStyle);
    window.setRow(0, "01", "0300", "01");
    window.checkRow(0);
    window.click("pushButton_Start_Loop");
    QCOMPARE(loop->text(), QString("Sending..."));
    QCOMPARE(loop->styleSheet(), busyStyle);
    window.click("pushButton_Start_Loop");
    QCOMPARE(loop->text(), QString("Auto Send"));
    QCOMPARE(loop->styleSheet(), idleStyle);
    window.click("pushButton_OpenCom");
    QCOMPARE(link->text(), QString("Open Com Port"));
    QCOMPARE(link->styleSheet(), idleStyle);
}

void TestWindowLook::picturesAreThereInTwoSizes_data()
{
    QTest::addColumn<QString>("name");

    for (const char *name :
         {"Input", "save", "Delete", "Send", "ComboBox-downArrow", "Checkbox_uncheck",
          "Checkbox_uncheck_hover", "Checkbox_check", "Checkbox_check_hover",
          "Checkbox_point_uncheck", "Checkbox_point_check"}) {
        QTest::newRow(name) << name;
    }
}

void TestWindowLook::picturesAreThereInTwoSizes()
{
    QFETCH(QString, name);
    const WindowDriver window;
    const QImage plain(":/Image/" + name + ".png");
    const QImage large(":/Image/" + name + "@2x.png");
    QVERIFY(!plain.isNull());
    QCOMPARE(large.size(), plain.size() * 2);
}

void TestWindowLook::picturesStandOutUnderTheMouse_data()
{
    QTest::addColumn<int>("unused");

    QTest::newRow("pushButton_LoadCommand") << 0;
    QTest::newRow("pushButton_SaveCommand") << 0;
    QTest::newRow("pushButton_ClearCommand") << 0;
}

void TestWindowLook::picturesStandOutUnderTheMouse()
{
    WindowDriver window;
    QPushButton *button = window.button(QTest::currentDataTag());
    window.window().resize(1120, 760);
    window.window().show();
    // A button is entered from somewhere.
    for (const QPoint place : {QPoint(-9, -9), button->rect().center()}) {
        QTest::mouseMove(window.window().windowHandle(), button->mapTo(&window.window(), place));
    }
    QTRY_VERIFY(button->underMouse());
    const QImage look = button->grab().toImage();
    const QColor ground = look.pixelColor(look.width() / 8, look.height() / 8);
    const QColor stroke(0x00, 0x90, 0xFF);
    QVERIFY2(ground != Qt::white && ground != stroke, qPrintable(ground.name()));
    QVERIFY(hasPixel(look, stroke));
}

void TestWindowLook::nothingIsClipped_data()
{
    QTest::addColumn<int>("tab");

    QTest::newRow("Uart") << 0;
    QTest::newRow("HID") << 1;
}

void TestWindowLook::nothingIsClipped()
{
    QFETCH(int, tab);
    WindowDriver window;
    window.window().resize(1024, 700);
    window.find<QTabWidget>("tabWidget")->setCurrentIndex(tab);
    QCoreApplication::processEvents();
    QCOMPARE(window.window().size(), QSize(1024, 700));
    int checked = 0;
    for (const QWidget *widget : window.window().findChildren<QWidget *>()) {
        const bool hasText = widget->inherits("QLabel") || widget->inherits("QPushButton") ||
                             widget->inherits("QLineEdit") || widget->inherits("QComboBox");
        if (!hasText || !isOfTheForm(widget) || !widget->isVisible()) {
            continue;
        }
        const QByteArray name = widget->objectName().toLatin1();
        QVERIFY2(showsItsWholeText(widget), name.constData());
        QVERIFY2(widget->parentWidget()->rect().contains(widget->geometry()), name.constData());
        ++checked;
    }
    QVERIFY(checked > 15);
}

void TestWindowLook::unitsAreWhole_data()
{
    QTest::addColumn<int>("unused");

    QTest::newRow("lineEdit_StepValue") << 0;
    QTest::newRow("lineEdit_CycleTime") << 0;
}

void TestWindowLook::unitsAreWhole()
{
    WindowDriver window;
    window.window().show();
    const auto *unit = window.edit(QTest::currentDataTag())->findChild<QPushButton *>();
    QCOMPARE(unit->text(), QString("ms"));
    QVERIFY(unit->width() >= unit->fontMetrics().horizontalAdvance(unit->text()));
}

QTEST_MAIN(TestWindowLook)
#include "tst_windowlook.moc"
