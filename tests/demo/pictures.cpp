// Drives the real window through what the guide tells, and takes its pictures:
// tarnwick-pictures PORT EXAMPLES FOLDER. The device at the port answers without a CRC.

#include "filedialoguser.h"
#include "menuuser.h"
#include "windowdriver.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QEventLoop>
#include <QLabel>
#include <QMenu>
#include <QPixmap>
#include <QScreen>
#include <QTabWidget>
#include <QTextStream>
#include <QTimer>
#include <QtTest>

#include <utility>

namespace {

constexpr int picturePatienceMs = 10000;

/// Waits in the event loop; QtTest's own waiting sleeps in between, and times are in the pictures.
template<typename Condition>
bool waitFor(Condition isSo)
{
    constexpr int lookMs = 20;
    QEventLoop loop;
    QTimer look;
    const QDeadlineTimer end(picturePatienceMs);
    QObject::connect(&look, &QTimer::timeout, &loop, [&] {
        if (isSo() || end.hasExpired()) {
            loop.quit();
        }
    });
    look.start(lookMs);
    loop.exec();
    return isSo();
}

/// The window at work, and where its pictures go.
class Photographer
{
public:
    Photographer(QString port, const QString &examples, const QString &folder);

    /// Whether every picture was taken.
    bool takeAll();

private:
    bool openPort();
    void load(const QString &example);
    bool waitForMessages(int count);
    void askForMenu(int row);
    void save(const QPixmap &picture, const QString &name);
    void saveWindow(const QString &name);
    void saveSide(const QString &name);

    bool takeFirstFrame();
    bool takeWindow();
    bool takeLoop();
    bool takeBadCrc();
    bool takeRecording();
    bool takeRowMenu();
    bool takeEditor();
    bool takeHid();

    WindowDriver m_window;
    FileDialogUser m_files;
    QString m_port;
    QDir m_examples;
    QDir m_folder;
    bool m_isGood = true;
};

Photographer::Photographer(QString port, const QString &examples, const QString &folder)
    : m_port(std::move(port))
    , m_examples(examples)
    , m_folder(folder)
{
    m_window.window().show();
}

bool Photographer::takeAll()
{
    // The loop comes last: how it went stays in the side panel.
    return takeHid() && openPort() && takeFirstFrame() && takeBadCrc() && takeWindow() &&
           takeRecording() && takeRowMenu() && takeEditor() && takeLoop() && m_isGood;
}

bool Photographer::openPort()
{
    QComboBox &ports = *m_window.combo("comboBox_Comm");
    if (!waitFor([&] { return ports.findText(m_port) >= 0; })) {
        return false;
    }
    ports.setCurrentIndex(ports.findText(m_port));
    m_window.click("pushButton_OpenCom");
    return m_window.button("pushButton_OpenCom")->text() == QLatin1String("Linking...");
}

void Photographer::load(const QString &example)
{
    m_window.click("pushButton_ClearMessage");
    m_files.choose(m_examples.filePath(example));
    m_window.click("pushButton_LoadCommand");
}

/// As many as the window itself counts, since that is what a picture shows.
bool Photographer::waitForMessages(int count)
{
    const auto *counted = m_window.find<QLabel>("label_MessageCount");
    return waitFor([&] { return counted->text().section(' ', 0, 0).toInt() >= count; });
}

/// A right click on the row, after which a menu stands at the mouse.
void Photographer::askForMenu(int row)
{
    QTableWidget &table = *m_window.commands();
    table.setCurrentCell(row, CommandColumn::Description);
    const QPoint place = table.visualItemRect(table.item(row, CommandColumn::Description)).center();
    QCursor::setPos(table.viewport()->mapToGlobal(place));
    QMetaObject::invokeMethod(&table, "customContextMenuRequested", Q_ARG(QPoint, place));
}

void Photographer::save(const QPixmap &picture, const QString &name)
{
    m_isGood = picture.save(m_folder.filePath(name)) && m_isGood;
}

/// Its painting may still be to come.
void Photographer::saveWindow(const QString &name)
{
    QCoreApplication::processEvents();
    save(m_window.window().grab(), name);
}

void Photographer::saveSide(const QString &name)
{
    QCoreApplication::processEvents();
    save(m_window.find<QWidget>("sideArea")->grab(), name);
}

bool Photographer::takeFirstFrame()
{
    m_window.commands()->item(0, CommandColumn::Description)->setText("Hello");
    m_window.setRow(0, "42", "0000", "48 65 6C 6C 6F");
    m_window.clickSend(0);
    const bool isAnswered = waitForMessages(2);
    saveWindow("first-frame.png");
    return isAnswered;
}

bool Photographer::takeWindow()
{
    load("registers.txt");
    m_window.click("pushButton_SendAll");
    const bool isAnswered = waitForMessages(14);
    saveWindow("window.png");
    return isAnswered;
}

bool Photographer::takeLoop()
{
    load("loop.txt");
    m_window.edit("lineEdit_StepValue")->setText("200");
    m_window.edit("lineEdit_CycleTime")->setText("500");
    m_window.click("pushButton_Start_Loop");
    const bool isAnswered = waitForMessages(8);
    saveWindow("loop.png");
    m_window.click("pushButton_Start_Loop");
    return isAnswered;
}

/// The device takes the CRC for another register, and answers without one.
bool Photographer::takeBadCrc()
{
    m_window.click("pushButton_ClearMessage");
    m_window.commands()->item(1, CommandColumn::Description)->setText("Switch on");
    m_window.setRow(1, "10", "0200", "00 01");
    m_window.check("checkBox_CRC_EN")->setChecked(true);
    m_window.clickSend(1);
    const bool isAnswered = waitForMessages(2);
    saveWindow("bad-crc.png");
    m_window.check("checkBox_CRC_EN")->setChecked(false);
    return isAnswered;
}

bool Photographer::takeRecording()
{
    load("registers.txt");
    m_files.choose(m_folder.filePath("run.jsonl"));
    m_window.click("pushButton_Record");
    m_window.click("pushButton_SendAll");
    const auto *label = m_window.find<QLabel>("label_Record");
    const bool isRecorded = waitFor([label] { return label->text().contains("14 events"); });
    saveSide("record.png");
    m_window.click("pushButton_Record");
    return isRecorded;
}

/// A menu is a window of its own, so the picture is the screen's.
bool Photographer::takeRowMenu()
{
    MenuUser menus;
    QObject::connect(&menus, &MenuUser::shown, [this](const QMenu *menu) {
        QTest::qWait(100);
        const QRect place = m_window.window().geometry();
        const QRect shown = menu->geometry().adjusted(-300, -140, 300, 60) & place;
        save(menu->screen()->grabWindow(0, shown.x(), shown.y(), shown.width(), shown.height()),
             "row-menu.png");
    });
    askForMenu(2);
    return menus.menuCount() == 1;
}

bool Photographer::takeEditor()
{
    MenuUser menus;
    menus.choose("edit");
    askForMenu(5);
    auto *editor = m_window.find<QDialog>("DirectEditor");
    if (editor == nullptr || !waitFor([&] { return editor->isVisible(); })) {
        return false;
    }
    editor->findChild<QComboBox *>("comboBox_dataType")->setCurrentText("int");
    editor->findChild<QLineEdit *>("lineEdit_originalData")->setText("1,-1,1000");
    QCoreApplication::processEvents();
    save(editor->grab(), "editor.png");
    editor->close();
    return true;
}

bool Photographer::takeHid()
{
    auto *tabs = m_window.find<QTabWidget>("tabWidget");
    tabs->setCurrentIndex(1);
    m_window.listPorts();
    saveSide("hid.png");
    tabs->setCurrentIndex(0);
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 4) {
        QTextStream(stderr) << "usage: tarnwick-pictures PORT EXAMPLES FOLDER\n";
        return 2;
    }
    MessageBoxes boxes;
    Photographer photographer(arguments.at(1), arguments.at(2), arguments.at(3));
    const bool isGood = photographer.takeAll() && boxes.texts().isEmpty();
    for (const QString &text : boxes.texts()) {
        QTextStream(stderr) << "the window said: " << text << '\n';
    }
    return isGood ? 0 : 1;
}
