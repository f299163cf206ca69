#include "runner/testfile.h"

#include "expectations/rowexpectation.h"
#include "files/commandfile.h"
#include "files/directivelines.h"
#include "files/linedecoder.h"
#include "files/recoverytext.h"
#include "frames/delaymarker.h"

namespace {

QByteArray withoutLineEnd(QByteArray line)
{
    while (line.endsWith('\n') || line.endsWith('\r')) {
        line.chop(1);
    }
    return line;
}

/// Takes in the lines of a file, one after the other.
class TestFileReader
{
public:
    TestFileReader(const QString &name, bool isRecovery)
        : m_rows(isRecovery)
    {
        m_file.name = name;
    }

    void take(const QByteArray &line)
    {
        ++m_line;
        const QByteArray text = withoutLineEnd(line);
        if (isRunLine(text)) {
            takeRunLine(text);
        } else if (m_expects && isExpectationLine(text)) {
            takeExpectation(text);
        }
        takeRow(line);
    }

    bool isFull() const { return m_file.rows.size() > mostCommandRows; }

    TestFile finish()
    {
        if (isFull()) {
            complain({1, QStringLiteral("there are more than %1 rows").arg(mostCommandRows)});
        }
        return std::move(m_file);
    }

private:
    void takeRow(const QByteArray &line)
    {
        const bool sawInvalidLine = m_rows.sawInvalidLine();
        if (const std::optional<CommandRow> row = m_rows.read(line)) {
            m_file.rows.append({m_file.rows.size() + 1, m_line, *row, {}});
        } else if (m_rows.sawInvalidLine() && (!sawInvalidLine || isInvalid(line))) {
            complain({1, QStringLiteral("this is neither a row nor a comment")});
        }
    }

    /// Whether a line is invalid by itself, once there was one before.
    static bool isInvalid(const QByteArray &line)
    {
        CommandLineReader alone;
        return !alone.read(line) && alone.sawInvalidLine();
    }

    void takeRunLine(const QByteArray &line)
    {
        if (m_expects || !m_file.rows.isEmpty()) {
            complain({1, QStringLiteral("\"//@ tarnwick-run\" stands once, before the first row")});
            return;
        }
        m_expects = true;
        const Parsed<FileSettings> settings = parseRunLine(line);
        if (settings.value) {
            m_file.settings = *settings.value;
        } else {
            complain(settings.fault);
        }
    }

    void takeExpectation(const QByteArray &line)
    {
        const Parsed<Directive> directive = parseDirective(line);
        if (!directive.value) {
            complain(directive.fault);
        } else if (m_file.rows.isEmpty() || isDelay(m_file.rows.last().row.cmd)) {
            complain({1, QStringLiteral("there is no row above that sends something")});
        } else if (!addDirective(*directive.value, m_file.rows.last().expectation)) {
            complain({1, QStringLiteral("a further frame needs a first one: \"//?\"")});
        }
    }

    void complain(const LineFault &fault) { m_file.faults.append({m_line, fault}); }

    CommandLineReader m_rows;
    TestFile m_file;
    int m_line = 0;
    bool m_expects = false;
};

} // namespace

TestFile readTestFile(const QString &name, const QByteArray &bytes)
{
    TestFileReader reader(name, isRecoveryText(bytes));
    int begin = bytes.startsWith(byteOrderMark) ? byteOrderMark.size() : 0;
    while (begin < bytes.size() && !reader.isFull()) {
        const int lineEnd = bytes.indexOf('\n', begin);
        const int end = lineEnd < 0 ? bytes.size() : lineEnd + 1;
        reader.take(bytes.mid(begin, end - begin));
        begin = end;
    }
    return reader.finish();
}

QString faultText(const QString &fileName, const FileFault &fault)
{
    return QStringLiteral("%1:%2:%3: %4")
        .arg(fileName)
        .arg(fault.line)
        .arg(fault.fault.column)
        .arg(fault.fault.words);
}
