#include "contrast.h"
#include "contrastwindow.h"
#include "filedialoguser.h"
#include "menuuser.h"

#include <QGroupBox>
#include <QToolTip>
#include <QtTest>

/// What opens over the window.
class TestPopupContrast : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void listsAreReadable_data();
    void listsAreReadable();
    void boxesAreReadable();
    void menusAreReadable();
    void tipsAreReadable();
    void theEditorIsReadable();
    void fileDialogsAreReadable();
    void edgesOfBoxesAreSeen();
};

void TestPopupContrast::init()
{
    makeDesktopDark();
}

void TestPopupContrast::listsAreReadable_data()
{
    QTest::addColumn<QString>("name");

    for (const char *name : {"comboBox_Baudrate", "comboBox_DataBit", "comboBox_StopBit",
                             "comboBox_Parity", "comboBox_dataType", "comboBox_encode"}) {
        QTest::newRow(name) << name;
    }
}

void TestPopupContrast::listsAreReadable()
{
    QFETCH(QString, name);
    ContrastWindow window;
    auto &box = *window.window().findChild<QComboBox *>(name);
    box.setEnabled(true);
    box.window()->show();
    box.setCurrentIndex(0);
    box.showPopup();
    const QAbstractItemView &list = *box.view();
    QTRY_VERIFY(list.isVisible());
    for (const int row : {0, 1}) {
        const QRect item = list.visualRect(list.model()->index(row, 0));
        const QRect shown = item.adjusted(2, 2, -2, -2) & list.viewport()->rect();
        QVERIFY(contrastIn(*list.viewport(), shown) >= readable);
    }
    box.hidePopup();
}

void TestPopupContrast::boxesAreReadable()
{
    ContrastWindow window;
    MessageBoxes boxes;
    QStringList found;
    int shown = 0;
    connect(&boxes, &MessageBoxes::shown, this, [&] {
        const QWidget &box = *QApplication::activeModalWidget();
        found.append(unreadable(box));
        QVERIFY(!box.windowIcon().isNull());
        ++shown;
    });
    boxes.answerWith(QMessageBox::No);
    window.click("pushButton_SendAll");
    window.openNothing();
    window.setRow(0, "01", "0300", "01");
    window.window().close();
    QCOMPARE(shown, 3);
    QCOMPARE(boxes.titles(), QStringList({"Message", "UART", "Message"}));
    QCOMPARE(found, QStringList());
}

void TestPopupContrast::menusAreReadable()
{
    ContrastWindow window;
    MenuUser menus;
    int entries = 0;
    connect(&menus, &MenuUser::shown, this, [&](QMenu *menu) {
        menu->actions().constLast()->setEnabled(false);
        menu->setActiveAction(menu->actions().constFirst());
        for (QAction *action : menu->actions()) {
            QVERIFY(contrastIn(*menu, menu->actionGeometry(action)) >= readable);
            ++entries;
        }
    });
    QTableWidget &table = *window.commands();
    emit table.customContextMenuRequested(table.visualRect(table.model()->index(0, 0)).center());
    QTRY_VERIFY(entries > 2);
}

void TestPopupContrast::tipsAreReadable()
{
    const ContrastWindow window;
    QToolTip::showText(QPoint(100, 100), "01 02 03");
    QVERIFY(QToolTip::isVisible());
    const QWidget *tip = nullptr;
    for (const QWidget *widget : QApplication::topLevelWidgets()) {
        tip = widget->inherits("QTipLabel") && widget->isVisible() ? widget : tip;
    }
    QVERIFY(tip != nullptr);
    QVERIFY(contrastIn(*tip, tip->rect().adjusted(2, 2, -2, -2)) >= readable);
    QToolTip::hideText();
}

void TestPopupContrast::theEditorIsReadable()
{
    ContrastWindow window;
    DirectEditor &editor = window.editor();
    editor.editCmd = "03";
    editor.editAddr = "0300";
    editor.editData = "00010002";
    editor.editType = "short";
    editor.loadFromMembers();
    editor.show();
    editor.findChild<QPushButton *>("pushButton_cancel")->setFocus();
    QVERIFY(!editor.findChild<QLineEdit *>("lineEdit_Data")->isEnabled());
    QVERIFY(!editor.findChild<QComboBox *>("comboBox_encode")->isEnabled());
    QCOMPARE(unreadable(editor), QStringList());
    for (const QGroupBox *group : editor.findChildren<QGroupBox *>()) {
        QVERIFY(contrastIn(*group, QRect(10, 0, 40, 14)) >= readable);
    }
    editor.activateWindow();
    for (const char *name : {"comboBox_dataType", "lineEdit_originalData", "lineEdit_Od"}) {
        auto &field = *editor.findChild<QWidget *>(name);
        field.setFocus();
        QTRY_VERIFY(field.hasFocus());
        QVERIFY(edgeContrast(field) >= seen);
    }
}

void TestPopupContrast::fileDialogsAreReadable()
{
    ContrastWindow window;
    FileDialogUser user{QString()};
    QStringList found{"not shown"};
    connect(&user, &FileDialogUser::shown, this,
            [&](QFileDialog *dialog) { found = unreadable(*dialog); });
    window.click("pushButton_LoadCommand");
    QCOMPARE(found, QStringList());
}

void TestPopupContrast::edgesOfBoxesAreSeen()
{
    ContrastWindow window;
    MessageBoxes boxes;
    double least = 0;
    connect(&boxes, &MessageBoxes::shown, this, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        least = edgeContrast(*box->button(QMessageBox::Ok));
    });
    window.click("pushButton_SendAll");
    QVERIFY2(least >= seen, qPrintable(QString::number(least)));
    least = 0;
    window.openNothing();
    QVERIFY2(least >= seen, qPrintable(QString::number(least)));
}

QTEST_MAIN(TestPopupContrast)
#include "tst_popupcontrast.moc"
