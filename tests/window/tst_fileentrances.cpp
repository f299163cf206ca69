#include "filedialoguser.h"
#include "loopwindow.h"
#include "statustext.h"
#include "testfiles.h"
#include "windowfile.h"

#include <QDragEnterEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QTemporaryDir>
#include <QWindow>
#include <QtTest>

#include <functional>

/// Files that are dropped on the window, and the last ones by Ctrl+R.
class TestFileEntrances : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanupTestCase() { removeRemembered(); }

    void aDroppedFileIsLoaded_data();
    void aDroppedFileIsLoaded();
    void whatIsNoCommandFileIsRefused();
    void textGoesToTheFieldUnderTheMouse();
    void aModifiedListIsAskedFor_data();
    void aModifiedListIsAskedFor();
    void anEditThatIsOpenCounts();
    void whoWantsToSaveAndDoesNotKeepsAll();
    void nothingIsLoadedWhileTheLoopRuns();
    void theLastFilesAreListed();
    void aDigitLoads();
    void arrowsAndEnterLoad();
    void escapeLoadsNothing();
    void withoutFilesTheMenuSaysSo();
    void filesThatAreGoneCanNotBeChosen();
    void savedFilesAreListed();
    void theyAreRemembered();

private:
    static void removeRemembered();
    QString write(const QString &name, const QByteArray &description) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

QString firstDescription(const WindowDriver &window)
{
    return window.commands()->item(0, CommandColumn::Description)->text();
}

/// Drops that on a widget, as the system does it: the window is told where. Returns whether it may
/// be dropped there.
bool drop(WindowDriver &window, const QMimeData &data, const QWidget *onto)
{
    QWindow *handle = window.window().windowHandle();
    const QPoint place = onto->mapTo(&window.window(), onto->rect().center());
    const Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent enter(place, actions, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(handle, &enter);
    if (!enter.isAccepted()) {
        return false;
    }
    QDragMoveEvent move(place, actions, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(handle, &move);
    QDropEvent dropped(place, actions, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(handle, &dropped);
    return dropped.isAccepted();
}

bool dropFiles(WindowDriver &window, const QStringList &paths, const char *onto = "loopArea")
{
    QList<QUrl> urls;
    for (const QString &path : paths) {
        urls.append(QUrl::fromLocalFile(path));
    }
    QMimeData data;
    data.setUrls(urls);
    data.setText(paths.join(' '));
    const bool isTaken = drop(window, data, window.find<QWidget>(onto));
    QCoreApplication::processEvents();
    return isTaken;
}

QMenu *openMenu(WindowDriver &window)
{
    window.window().activateWindow();
    if (!QTest::qWaitForWindowActive(&window.window())) {
        return nullptr;
    }
    QTest::keyClick(&window.window(), Qt::Key_R, Qt::ControlModifier);
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

QStringList textsOf(const QMenu &menu)
{
    QStringList texts;
    for (const QAction *action : menu.actions()) {
        texts.append(action->text());
    }
    return texts;
}

} // namespace

void TestFileEntrances::init()
{
    removeRemembered();
    m_folder = std::make_unique<QTemporaryDir>();
}

void TestFileEntrances::removeRemembered()
{
    QFile::remove(windowFile());
}

QString TestFileEntrances::write(const QString &name, const QByteArray &description) const
{
    const QString path = m_folder->filePath(name);
    writeFile(path, description + ",select,03 0010 00 02\n");
    return path;
}

void TestFileEntrances::aDroppedFileIsLoaded_data()
{
    QTest::addColumn<int>("unused");

    for (const char *onto : {"loopArea", "tableWidget_Register", "tableWidget_Message",
                             "lineEdit_SBytes", "lineEdit_StepValue", "label_Status"}) {
        QTest::newRow(onto) << 0;
    }
}

void TestFileEntrances::aDroppedFileIsLoaded()
{
    const MessageBoxes boxes;
    WindowDriver window;
    const QString field = window.edit("lineEdit_SBytes")->text();
    const QString path = write("dropped.txt", "Dropped");
    QVERIFY(dropFiles(window, {path}, QTest::currentDataTag()));
    QCOMPARE(firstDescription(window), QString("Dropped"));
    QCOMPARE(window.find<QLabel>("label_ListName")->text(), QString("dropped.txt"));
    QCOMPARE(window.edit("lineEdit_SBytes")->text(), field);
    QCOMPARE(boxes.texts(), QStringList());
    QVERIFY(QFile::exists(path));
}

void TestFileEntrances::whatIsNoCommandFileIsRefused()
{
    MessageBoxes boxes;
    WindowDriver window;
    const QString path = write("a.txt", "First");
    QVERIFY(dropFiles(window, {path}));
    dropFiles(window, {write("b.txt", "Second"), write("c.txt", "Third")});
    QVERIFY2(statusText(window).contains("none was loaded"), qPrintable(statusText(window)));
    dropFiles(window, {write("d.csv", "Fourth")});
    QVERIFY2(statusText(window).contains("no .txt file: d.csv"), qPrintable(statusText(window)));
    QCOMPARE(boxes.texts(), QStringList());
    QVERIFY(QDir(m_folder->path()).mkdir("folder.txt"));
    dropFiles(window, {m_folder->filePath("folder.txt")});
    QCOMPARE(boxes.texts(), QStringList{"Read fail,please check the path!"});
    QCOMPARE(firstDescription(window), QString("First"));
    QCOMPARE(window.find<QLabel>("label_ListName")->text(), QString("a.txt"));
}

void TestFileEntrances::textGoesToTheFieldUnderTheMouse()
{
    WindowDriver window;
    QMimeData data;
    data.setText("0x11,0x22");
    window.edit("lineEdit_SBytes")->clear();
    drop(window, data, window.edit("lineEdit_SBytes"));
    QCOMPARE(window.edit("lineEdit_SBytes")->text(), QString("0x11,0x22"));
}

void TestFileEntrances::aModifiedListIsAskedFor_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("description");
    QTest::addColumn<bool>("isSaved");

    QTest::newRow("save") << int(QMessageBox::Save) << "Dropped" << true;
    QTest::newRow("discard") << int(QMessageBox::Discard) << "Dropped" << false;
    QTest::newRow("cancel") << int(QMessageBox::Cancel) << "Mine" << false;
}

void TestFileEntrances::aModifiedListIsAskedFor()
{
    QFETCH(int, answer);
    QFETCH(bool, isSaved);
    MessageBoxes boxes;
    boxes.answerWith(QMessageBox::StandardButton(answer));
    const QString saved = m_folder->filePath("saved.txt");
    const FileDialogUser user(saved);
    WindowDriver window;
    window.commands()->item(0, CommandColumn::Description)->setText("Mine");
    dropFiles(window, {write("dropped.txt", "Dropped")});
    QCOMPARE(boxes.texts().size(), 1);
    QVERIFY2(boxes.texts().first().contains("save"), qPrintable(boxes.texts().first()));
    QTEST(firstDescription(window), "description");
    QCOMPARE(QFile::exists(saved), isSaved);
    QVERIFY(!isSaved || textIn(saved).startsWith("Mine,"));
}

void TestFileEntrances::anEditThatIsOpenCounts()
{
    MessageBoxes boxes;
    boxes.answerWith(QMessageBox::Cancel);
    WindowDriver window;
    window.commands()->setCurrentCell(0, CommandColumn::Description);
    window.commands()->editItem(window.commands()->item(0, CommandColumn::Description));
    auto *editor = window.commands()->viewport()->findChild<QLineEdit *>();
    QVERIFY(editor != nullptr);
    QTest::keyClicks(editor, "Half");
    dropFiles(window, {write("dropped.txt", "Dropped")});
    QCOMPARE(boxes.texts().size(), 1);
    QCOMPARE(firstDescription(window), QString("Half"));
}

void TestFileEntrances::whoWantsToSaveAndDoesNotKeepsAll()
{
    MessageBoxes boxes;
    boxes.answerWith(QMessageBox::Save);
    const FileDialogUser user;
    WindowDriver window;
    window.commands()->item(0, CommandColumn::Description)->setText("Mine");
    dropFiles(window, {write("dropped.txt", "Dropped")});
    QCOMPARE(user.dialogCount(), 1);
    QCOMPARE(firstDescription(window), QString("Mine"));
    boxes.answerWith(QMessageBox::Discard);
}

void TestFileEntrances::nothingIsLoadedWhileTheLoopRuns()
{
    LoopWindow window("10", "10", "1");
    window.click("pushButton_Start_Loop");
    dropFiles(window, {write("dropped.txt", "Dropped")});
    QVERIFY2(statusText(window).contains("the loop is running"), qPrintable(statusText(window)));
    QCOMPARE(firstDescription(window), QString());
    QVERIFY(openMenu(window) == nullptr);
    window.click("pushButton_Start_Loop");
    MessageBoxes boxes;
    boxes.answerWith(QMessageBox::Discard);
    dropFiles(window, {write("dropped.txt", "Dropped")});
    QCOMPARE(firstDescription(window), QString("Dropped"));
}

void TestFileEntrances::theLastFilesAreListed()
{
    WindowDriver window;
    for (int i = 1; i <= 12; ++i) {
        dropFiles(window, {write(QString("list%1.txt").arg(i), "x")});
    }
    const QMenu *menu = openMenu(window);
    QVERIFY(menu != nullptr);
    const QStringList texts = textsOf(*menu);
    QCOMPARE(texts.size(), 10);
    const QString folder = QDir::toNativeSeparators(m_folder->path());
    QCOMPARE(texts.first(), QString("&1  list12.txt   (%1)").arg(folder));
    QCOMPARE(texts.last(), QString("&0  list3.txt   (%1)").arg(folder));
    QCOMPARE(menu->parentWidget(), window.button("pushButton_LoadCommand"));
}

void TestFileEntrances::aDigitLoads()
{
    const MessageBoxes boxes;
    WindowDriver window;
    dropFiles(window, {write(QString::fromUtf8("R&D \u6E29;=.txt"), "First")});
    dropFiles(window, {write("b.txt", "Second")});
    QTest::keyClick(openMenu(window), Qt::Key_2);
    QCOMPARE(firstDescription(window), QString("First"));
    QCOMPARE(boxes.texts(), QStringList());
}

void TestFileEntrances::arrowsAndEnterLoad()
{
    WindowDriver window;
    dropFiles(window, {write("a.txt", "First")});
    dropFiles(window, {write("b.txt", "Second")});
    QMenu *menu = openMenu(window);
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
    QCOMPARE(firstDescription(window), QString("First"));
}

void TestFileEntrances::escapeLoadsNothing()
{
    WindowDriver window;
    dropFiles(window, {write("a.txt", "First")});
    write("a.txt", "Changed");
    QTest::keyClick(openMenu(window), Qt::Key_Escape);
    QVERIFY(QApplication::activePopupWidget() == nullptr);
    QCOMPARE(firstDescription(window), QString("First"));
}

void TestFileEntrances::withoutFilesTheMenuSaysSo()
{
    WindowDriver window;
    const QMenu *menu = openMenu(window);
    QVERIFY(menu != nullptr);
    QCOMPARE(textsOf(*menu), QStringList{"No file was loaded or saved yet"});
    QVERIFY(!menu->actions().first()->isEnabled());
}

void TestFileEntrances::filesThatAreGoneCanNotBeChosen()
{
    WindowDriver window;
    dropFiles(window, {write("a.txt", "First")});
    dropFiles(window, {write("b.txt", "Second")});
    QVERIFY(QFile::remove(m_folder->filePath("b.txt")));
    QMenu *menu = openMenu(window);
    QVERIFY(textsOf(*menu).first().endsWith(": gone"));
    QVERIFY(!menu->actions().first()->isEnabled());
    // The first one that is there is at hand.
    QTest::keyClick(menu, Qt::Key_Return);
    QCOMPARE(firstDescription(window), QString("First"));
}

void TestFileEntrances::savedFilesAreListed()
{
    const MessageBoxes boxes;
    const FileDialogUser user(m_folder->filePath("saved.txt"));
    WindowDriver window;
    window.click("pushButton_SaveCommand");
    QVERIFY(textsOf(*openMenu(window)).first().startsWith("&1  saved.txt "));
}

void TestFileEntrances::theyAreRemembered()
{
    // Windows has no quotation marks, backslashes and control characters in names.
    const bool isWindows = QSysInfo::kernelType() == "winnt";
    const QString name =
        QString::fromUtf8(isWindows ? "a 'b'%x41;,= \u6E29.txt" : "a \"b\"\\x41;,= \u6E29\n.txt");
    {
        WindowDriver window;
        dropFiles(window, {write(name, "First")});
        QVERIFY(window.window().close());
    }
    WindowDriver window;
    QTest::keyClick(openMenu(window), Qt::Key_1);
    QCOMPARE(firstDescription(window), QString("First"));
}

QTEST_MAIN(TestFileEntrances)
#include "tst_fileentrances.moc"
