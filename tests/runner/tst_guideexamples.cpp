#include "markdown.h"
#include "ranprogram.h"
#include "runningdevice.h"
#include "testfiles.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QtTest>

/// The examples of the guide, as they stand there: command lines with what they print, and command
/// files.
class TestGuideExamples : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void commandsDoWhatTheySay_data();
    void commandsDoWhatTheySay();
    void scriptsEndWell_data() { listPages(); }
    void scriptsEndWell();
    void otherProgramsReadRecordings();
    void commandFilesAreSent_data() { listPages(); }
    void commandFilesAreSent();
    void otherCommandLinesAreUnderstood_data() { listPages(); }
    void otherCommandLinesAreUnderstood();

private:
    static void listPages();
};

namespace {

struct GuideCommand
{
    QString line;
    QStringList output;
};

/// A folder as the guide's reader has it: the examples in it, and a list of one's own.
class ReadersFolder : public ListFolder
{
public:
    ReadersFolder()
    {
        QFile::link(inTree("examples"), path("examples"));
        file("Echo,select,42 0000 01\n");
        QDir().mkdir(path("ports"));
    }

    Ran inShell(const QString &script) const
    {
        return ranOther("sh", {"-e", "-c", "cd '" + path(".") + "'\n" + script});
    }
};

QVector<MarkdownBlock> blocksOf(const QString &page, const QByteArray &language)
{
    QVector<MarkdownBlock> blocks;
    for (const MarkdownBlock &block : blocksIn(guidePageText(page))) {
        if (block.language == language) {
            blocks.append(block);
        }
    }
    return blocks;
}

/// The commands behind "$ ", each with the lines that it prints.
QVector<GuideCommand> commandsIn(const QByteArray &console)
{
    QVector<GuideCommand> commands;
    for (const QString &line : QString::fromUtf8(console).split('\n', Qt::SkipEmptyParts)) {
        if (line.startsWith("$ ")) {
            commands.append({line.mid(2), {}});
        } else if (!commands.isEmpty()) {
            commands.last().output.append(line);
        }
    }
    return commands;
}

/// Whether a line is as the guide has it, where "…" is anything.
bool isAsTold(const QString &line, const QString &told)
{
    const QString pattern =
        QRegularExpression::escape(told).replace(QRegularExpression::escape("…"), ".*");
    return QRegularExpression("\\A" + pattern + "\\z").match(line).hasMatch();
}

bool areAsTold(const QStringList &lines, const QStringList &told)
{
    return std::equal(lines.begin(), lines.end(), told.begin(), told.end(), isAsTold);
}

/// Starts the device as the guide does, and ends it.
QStringList printedByDevice(const GuideCommand &command, const ReadersFolder &folder)
{
    QStringList options = command.line.split(' ').mid(1);
    const int file = options.indexOf("--play") + 1;
    if (file > 0) {
        options[file] = folder.path(options.at(file));
    }
    RunningDevice device;
    if (!device.startOnly(options + QStringList{"--ports", folder.path("ports")})) {
        return {"it did not start"};
    }
    device.process().terminate();
    const Ran result = endOf(device.process());
    return result.code == 0 ? QStringList{device.printedPath()}
                            : QStringList{"it did not end well"};
}

QStringList printedBy(const GuideCommand &command, const ReadersFolder &folder)
{
    if (command.line.startsWith("tarnwick-device")) {
        return printedByDevice(command, folder);
    }
    const Ran result = folder.inShell(command.line);
    const QString text = QString::fromUtf8(result.out + result.error);
    return text.split('\n', Qt::SkipEmptyParts);
}

bool isAboutOurs(const QByteArray &script)
{
    return script.contains("tarnwick-run") || script.contains("tarnwick-device");
}

/// The command lines of the runner in blocks that aren't run, for example in a server's script.
QStringList linesInOtherBlocks(const QString &page)
{
    static const QRegularExpression call("tarnwick-run( +[^'\"\\n]+)");
    QStringList lines;
    for (const MarkdownBlock &block : blocksIn(guidePageText(page))) {
        if (block.language == "sh" || block.language == "console" || block.language == "tarnwick") {
            continue;
        }
        auto matches = call.globalMatch(QString::fromUtf8(block.text));
        while (matches.hasNext()) {
            lines.append("tarnwick-run --check" + matches.next().captured(1));
        }
    }
    return lines;
}

} // namespace

/// Programs are found by their names.
void TestGuideExamples::initTestCase()
{
    const QString programs = QFileInfo(QStringLiteral(TARNWICK_RUN)).path();
    qputenv("PATH", programs.toLocal8Bit() + ':' + qgetenv("PATH"));
}

void TestGuideExamples::listPages()
{
    QTest::addColumn<QString>("page");
    const QStringList pages = QDir(inTree("docs/guide")).entryList({"*.md"});
    for (const QString &page : pages) {
        QTest::newRow(qPrintable(page)) << page;
    }
}

void TestGuideExamples::commandsDoWhatTheySay_data()
{
    listPages();
}

/// What a page's scripts write is there for its later commands.
void TestGuideExamples::commandsDoWhatTheySay()
{
    QFETCH(QString, page);
    const ReadersFolder folder;
    for (const MarkdownBlock &block : blocksIn(guidePageText(page))) {
        if (block.language == "sh" && isAboutOurs(block.text)) {
            folder.inShell(block.text);
        }
        for (const GuideCommand &command :
             block.language == "console" ? commandsIn(block.text) : QVector<GuideCommand>()) {
            const QStringList printed = printedBy(command, folder);
            QVERIFY2(areAsTold(printed, command.output),
                     qPrintable(QString("%1, line %2: %3\n%4")
                                    .arg(page, QString::number(block.line), command.line,
                                         printed.join('\n'))));
        }
    }
}

void TestGuideExamples::scriptsEndWell()
{
    QFETCH(QString, page);
    const ReadersFolder folder;
    for (const MarkdownBlock &block : blocksOf(page, "sh")) {
        if (isAboutOurs(block.text)) {
            const Ran result = folder.inShell(block.text);
            QVERIFY2(result.code == 0, block.text + result.out + result.error);
            QVERIFY2(result.error.isEmpty(), result.error);
        }
    }
}

/// What is there to be read was recorded by the runner.
void TestGuideExamples::otherProgramsReadRecordings()
{
    const ReadersFolder folder;
    QFile::link(inTree("packaging/wireshark/tarnwick.lua"), folder.path("tarnwick.lua"));
    const Ran recorded =
        folder.inShell("tarnwick-run --sim --record run.jsonl examples/registers.txt\n"
                       "tarnwick-run --convert run.jsonl run.pcapng");
    QVERIFY2(recorded.code == 0, recorded.error);
    QByteArrayList lines;
    for (const MarkdownBlock &block : blocksOf("recording.md", "sh")) {
        lines += block.text.trimmed().split('\n');
    }
    QCOMPARE(lines.size(), 5);
    constexpr int framesInRun = 14;
    for (const QByteArray &line : lines) {
        const Ran result = folder.inShell(QString::fromUtf8(line));
        QVERIFY2(result.code == 0, line + result.error);
        QVERIFY2(result.out.simplified().count(' ') + 1 >= framesInRun, line + result.out);
    }
}

void TestGuideExamples::commandFilesAreSent()
{
    QFETCH(QString, page);
    const ReadersFolder folder;
    for (const MarkdownBlock &block : blocksOf(page, "tarnwick")) {
        const QString list = folder.file(block.text, "of the guide.txt");
        const Ran result = ran({"--sim", "--all", list});
        QVERIFY2(result.code == 0, block.text + result.out + result.error);
    }
}

void TestGuideExamples::otherCommandLinesAreUnderstood()
{
    QFETCH(QString, page);
    const ReadersFolder folder;
    for (const QString &line : linesInOtherBlocks(page)) {
        const Ran result = folder.inShell(line);
        QVERIFY2(result.code == 0, qPrintable(line + result.error));
    }
}

QTEST_GUILESS_MAIN(TestGuideExamples)

#include "tst_guideexamples.moc"
