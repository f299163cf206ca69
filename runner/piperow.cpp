#include "runner/piperow.h"

#include <QRegularExpression>

Parsed<TestRow> parsePipeRow(const QByteArray &line, int number)
{
    static const QRegularExpression mark(QStringLiteral("//[?+!]"));
    QByteArray text("//@ tarnwick-run 1\n");
    const QString whole = QString::fromLatin1(line);
    int begin = 0;
    for (auto match = mark.globalMatch(whole); match.hasNext();) {
        const int next = match.next().capturedStart();
        text += line.mid(begin, next - begin) + '\n';
        begin = next;
    }
    text += line.mid(begin);
    TestFile file = readTestFile({}, text);
    if (!file.faults.isEmpty()) {
        return Parsed<TestRow>::failed(1, file.faults.first().fault.words);
    }
    if (file.rows.size() != 1) {
        return Parsed<TestRow>::failed(1, QStringLiteral("this is no row"));
    }
    TestRow row = file.rows.first();
    row.number = number;
    return {row, {}};
}

ExpectedFrame anyFrame()
{
    return {*BytePattern::parse(QStringLiteral("**")).value, std::nullopt};
}
