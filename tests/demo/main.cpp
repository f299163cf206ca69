// Drives the real window through a session with a device that answers every frame, and shows what
// the message log then holds: tarnwick-demo PORT SCREENSHOT

#include "windowdriver.h"

#include <QApplication>
#include <QPixmap>
#include <QTextStream>
#include <QtTest>

namespace {

constexpr int tourPatienceMs = 10000;
const QString shortestLength = QStringLiteral(" 02");
constexpr int cycles = 2;
constexpr int framesPerPass = 3;
constexpr int expectedFrames = (1 + cycles) * framesPerPass;

struct Row
{
    const char *description;
    const char *cmd;
    const char *addr;
    const char *data;
};

void fillCommands(WindowDriver &window)
{
    const QVector<Row> rows{{"Write two registers", "10", "0010", "1234 ABCD"},
                            {"Read them back", "03", "0010", "0002"},
                            {"Daley(ms)", "++", "", "100"},
                            {"Echo a text", "42", "4865", "6C 6C 6F"}};
    for (int row = 0; row < rows.size(); ++row) {
        const Row &content = rows.at(row);
        window.commands()->item(row, CommandColumn::Description)->setText(content.description);
        window.setRow(row, content.cmd, content.addr, content.data);
        window.checkRow(row);
    }
}

bool openPort(WindowDriver &window, const QString &port)
{
    QComboBox &ports = *window.combo("comboBox_Comm");
    if (!QTest::qWaitFor([&] { return ports.findText(port) >= 0; }, tourPatienceMs)) {
        return false;
    }
    ports.setCurrentIndex(ports.findText(port));
    window.click("pushButton_OpenCom");
    return window.button("pushButton_OpenCom")->text() == QLatin1String("Linking...");
}

/// Replies, not counting error frames: those are the only ones with two bytes behind the length.
int repliesReceived(const WindowDriver &window)
{
    int count = 0;
    for (int row = 0; row < window.messageCount(); ++row) {
        const QVariant colour = window.messages()->item(row, 0)->data(Qt::ForegroundRole);
        const bool isError = window.message(row).at(2) == shortestLength;
        count += colour.isValid() && !isError ? 1 : 0;
    }
    return count;
}

/// Waits until that many frames were sent and each one was answered.
bool waitForReplies(const WindowDriver &window, int frames)
{
    return QTest::qWaitFor(
        [&] {
            const int received = repliesReceived(window);
            return received >= frames && window.messageCount() - received >= frames;
        },
        tourPatienceMs);
}

bool runLoop(WindowDriver &window)
{
    window.edit("lineEdit_StepValue")->setText(QStringLiteral("50"));
    window.edit("lineEdit_CycleTime")->setText(QStringLiteral("300"));
    window.click("pushButton_Start_Loop");
    const bool answered = waitForReplies(window, expectedFrames);
    window.click("pushButton_Start_Loop");
    return answered;
}

void printLog(const WindowDriver &window)
{
    QTextStream out(stdout);
    for (int row = 0; row < window.messageCount(); ++row) {
        const QStringList texts = window.message(row);
        out << texts.first() << ", " << QStringList(texts.mid(1)).join(QLatin1Char(' ')) << '\n';
    }
}

bool demonstrate(WindowDriver &window, const QString &port)
{
    fillCommands(window);
    if (!openPort(window, port)) {
        return false;
    }
    window.click("pushButton_SendAll");
    return waitForReplies(window, framesPerPass) && runLoop(window);
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 3) {
        QTextStream(stderr) << "usage: tarnwick-demo PORT SCREENSHOT\n";
        return 2;
    }
    MessageBoxes boxes;
    WindowDriver window;
    const bool complete = demonstrate(window, arguments.at(1)) && boxes.texts().isEmpty();
    printLog(window);
    QTest::qWait(100);
    const bool pictured = window.window().grab().save(arguments.at(2));
    for (const QString &text : boxes.texts()) {
        QTextStream(stderr) << "the window said: " << text << '\n';
    }
    QTextStream(stdout) << (complete ? "every frame was answered\n" : "a reply is missing\n");
    return complete && pictured ? 0 : 1;
}
