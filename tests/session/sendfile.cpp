// Sends the selected rows of a command file twice, in a loop without a window, and prints what went
// over the wire: sendfile COMMANDFILE PORT

#include "commands/checkedrows.h"
#include "files/commandfile.h"
#include "session/session.h"
#include "system/filereader.h"

#include <QCoreApplication>
#include <QTextStream>

static void print(const LogRecord &record)
{
    const char *direction = record.kind == LogRecord::Kind::Sent ? "tx" : "rx";
    QTextStream(stdout) << direction << ' ' << record.number << ' ' << record.bytes.toHex(' ')
                        << '\n';
}

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const FileContent content = readFile(arguments.value(1), largestCommandFile);
    Session session({}, {});
    session.setHeaderText(QStringLiteral("0x5A,0xA5"));
    SerialSettings settings;
    settings.portName = arguments.value(2);
    if (content.outcome != FileContent::Outcome::Read || !session.links().serial().open(settings)) {
        return 1;
    }
    QObject::connect(&session.log(), &RecordLog::appended, print);
    int passes = 0;
    QObject::connect(&session.loop(), &LoopControl::passDue, &session, [&session, &passes] {
        if (++passes == 3) {
            session.end();
            QCoreApplication::quit();
        }
    });
    session.loop().start(checkedRows(readCommandFile(content.bytes).rows), {20, 200});
    return QCoreApplication::exec();
}
