#include "files/commandfile.h"
#include "files/saveloss.h"
#include "frames/delaymarker.h"
#include "frames/framebuilder.h"
#include "system/filereader.h"
#include "testfiles.h"

#include <QRegularExpression>
#include <QTextCodec>
#include <QtTest>

/// The command lists that users are given to start with.
class TestExamples : public QObject
{
    Q_OBJECT

private slots:
    void loads_data();
    void loads();
    void textsAreWhatTheyAreCalled();
};

namespace {

CommandFile example(const QString &name)
{
    const QString path = inTree("examples/") + name;
    const FileContent content = readFile(path, largestCommandFile);
    return readCommandFile(content.bytes);
}

QTextCodec *codecCalled(const QString &encoding)
{
    return QTextCodec::codecForName(encoding == QLatin1String("Unicode") ? QByteArray("UTF-16BE")
                                                                         : encoding.toLatin1());
}

/// The text that data stands for, without the zeros that close it.
QString textOf(const QString &data, const QString &encoding)
{
    const QByteArray bytes = QByteArray::fromHex(data.toLatin1());
    return codecCalled(encoding)->toUnicode(bytes).remove(QChar(QChar::Null));
}

} // namespace

void TestExamples::loads_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("pauses");

    QTest::newRow("registers.txt") << 10 << 0;
    QTest::newRow("texts.txt") << 11 << 0;
    QTest::newRow("loop.txt") << 9 << 4;
}

void TestExamples::loads()
{
    const CommandFile file = example(QTest::currentDataTag());
    QVERIFY(!file.hasInvalidLines);
    QTEST(file.rows.size(), "rows");
    QVERIFY(affectedRows(file.rows, utf8Codec()).isEmpty());

    int pauses = 0;
    for (const CommandRow &row : file.rows) {
        if (isDelay(row.cmd)) {
            ++pauses;
            QVERIFY(delayMilliseconds(frameText(row)) > 0);
        } else {
            QVERIFY(parsePayload(frameText(row)).has_value());
        }
    }
    QTEST(pauses, "pauses");
}

void TestExamples::textsAreWhatTheyAreCalled()
{
    static const QRegularExpression called(QStringLiteral("^(Write|Echo) \"(.+)\" in (\\w+)$"));
    QStringList encodings;
    for (const CommandRow &row : example(QStringLiteral("texts.txt")).rows) {
        const QRegularExpressionMatch match = called.match(row.description);
        if (match.hasMatch()) {
            encodings.append(match.captured(3));
            QCOMPARE(textOf(row.data, match.captured(3)), match.captured(2));
        }
    }
    QCOMPARE(encodings, QStringList({"GB2312", "GB2312", "GBK", "Unicode", "Unicode", "Unicode"}));
}

QTEST_GUILESS_MAIN(TestExamples)
#include "tst_examples.moc"
