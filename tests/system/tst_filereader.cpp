#include "system/filereader.h"

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>

class TestFileReader : public QObject
{
    Q_OBJECT

private slots:
    void wholeFile_data();
    void wholeFile();
    void unreadable_data();
    void unreadable();
    void namedPipe();
    void neverWaits();
    void failsOnTheWay();
    void tooLarge_data();
    void tooLarge();
    void hugeFileIsRefusedUnread();
    void fileWithoutEnd();
    void vanishesWhileRead();
};

using Outcome = FileContent::Outcome;

namespace {

QString writeFile(const QTemporaryDir &dir, const QByteArray &bytes)
{
    QString path = dir.filePath(QStringLiteral("list.txt"));
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(bytes);
    return path;
}

/// A device that has lost a part of what it said it holds, or breaks there.
class LossyDevice : public QIODevice
{
public:
    LossyDevice(qint64 size, qint64 readable, bool breaks)
        : m_size(size)
        , m_left(readable)
        , m_breaks(breaks)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    qint64 size() const override { return m_size; }

protected:
    qint64 readData(char *data, qint64 most) override
    {
        const qint64 count = qMin(most, m_left);
        m_left -= count;
        std::fill_n(data, count, 'a');
        return count == 0 && m_breaks ? -1 : count;
    }

    qint64 writeData(const char *, qint64) override { return -1; }

private:
    qint64 m_size;
    qint64 m_left;
    bool m_breaks;
};

} // namespace

void TestFileReader::wholeFile_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text with CR LF") << QByteArray("a\r\nb\r\n");
    QTest::newRow("binary") << QByteArray("\0\xFF\x1A\n\0", 5);
    QTest::newRow("larger than a chunk") << QByteArray("0123456789abc").repeated(100'000);
}

void TestFileReader::wholeFile()
{
    QFETCH(QByteArray, bytes);
    const QTemporaryDir dir;
    const FileContent content = readFile(writeFile(dir, bytes), bytes.size());
    QCOMPARE(content.outcome, Outcome::Read);
    QCOMPARE(content.bytes, bytes);
}

void TestFileReader::unreadable_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("missing") << QStringLiteral("/nowhere/list.txt");
    QTest::newRow("no name") << QString();
    QTest::newRow("folder") << QDir::tempPath();
    QTest::newRow("device") << QStringLiteral("/dev/zero");
    QTest::newRow("reading fails at once") << QStringLiteral("/proc/self/mem");
}

void TestFileReader::unreadable()
{
    QFETCH(QString, path);
    const FileContent content = readFile(path, 1000);
    QCOMPARE(content.outcome, Outcome::Unreadable);
    QVERIFY(content.bytes.isEmpty());
}

void TestFileReader::namedPipe()
{
    const QTemporaryDir dir;
    const QString pipe = dir.filePath(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(qUtf8Printable(pipe), 0600), 0);
    QCOMPARE(readFile(pipe, 1000).outcome, Outcome::Unreadable);

    const QString link = dir.filePath(QStringLiteral("link"));
    QVERIFY(QFile::link(pipe, link));
    QCOMPARE(readFile(link, 1000).outcome, Outcome::Unreadable);
}

void TestFileReader::neverWaits()
{
    const QTemporaryDir dir;
    const QString path = writeFile(dir, "text");
    QFile leased(path);
    QVERIFY(leased.open(QIODevice::ReadOnly));
    // Whoever opens a leased file has to wait until the lease is given back, or gets nothing.
    std::signal(SIGIO, SIG_IGN);
    QCOMPARE(fcntl(leased.handle(), F_SETLEASE, F_WRLCK), 0);
    QCOMPARE(readFile(path, 1000).outcome, Outcome::Unreadable);
    QCOMPARE(fcntl(leased.handle(), F_SETLEASE, F_UNLCK), 0);
    QCOMPARE(readFile(path, 1000).bytes, QByteArray("text"));
}

void TestFileReader::failsOnTheWay()
{
    LossyDevice broken(200'000, 100'000, true);
    QCOMPARE(readDevice(broken, 1'000'000).outcome, Outcome::Unreadable);
    LossyDevice shrunk(200'000, 100'000, false);
    QCOMPARE(readDevice(shrunk, 1'000'000).outcome, Outcome::Unreadable);
    LossyDevice whole(200'000, 200'000, false);
    QCOMPARE(readDevice(whole, 1'000'000).bytes.size(), 200'000);
    LossyDevice brokenAtTheEnd(200'000, 200'000, true);
    QCOMPARE(readDevice(brokenAtTheEnd, 1'000'000).outcome, Outcome::Unreadable);
}

void TestFileReader::tooLarge_data()
{
    QTest::addColumn<qint64>("size");
    QTest::addColumn<qint64>("readable");
    QTest::addColumn<bool>("tooLarge");

    QTest::newRow("at the limit") << qint64(100'000) << qint64(100'000) << false;
    QTest::newRow("one more") << qint64(100'001) << qint64(100'001) << true;
    QTest::newRow("grows while read") << qint64(100'000) << qint64(100'001) << true;
    QTest::newRow("tells no size") << qint64(0) << qint64(100'001) << true;
    QTest::newRow("grows within the limit") << qint64(10) << qint64(100'000) << false;
    QTest::newRow("never ends") << qint64(0) << std::numeric_limits<qint64>::max() << true;
}

void TestFileReader::tooLarge()
{
    QFETCH(qint64, size);
    QFETCH(qint64, readable);
    QFETCH(bool, tooLarge);
    LossyDevice device(size, readable, false);
    const FileContent content = readDevice(device, 100'000);
    QCOMPARE(content.outcome, tooLarge ? Outcome::TooLarge : Outcome::Read);
    QCOMPARE(content.bytes.isEmpty(), tooLarge);
}

void TestFileReader::hugeFileIsRefusedUnread()
{
    const QTemporaryDir dir;
    const QString path = writeFile(dir, {});
    QVERIFY(QFile::resize(path, qint64(1) << 40));
    QCOMPARE(readFile(path, qint64(8) << 20).outcome, Outcome::TooLarge);
}

void TestFileReader::fileWithoutEnd()
{
    // It tells a size of 0 and has text all the same.
    const FileContent content = readFile(QStringLiteral("/proc/self/status"), 100'000);
    QCOMPARE(content.outcome, Outcome::Read);
    QVERIFY(content.bytes.startsWith("Name:"));
}

void TestFileReader::vanishesWhileRead()
{
    const QTemporaryDir dir;
    const QByteArray bytes = QByteArray("0123456789").repeated(100'000);
    const QString path = writeFile(dir, bytes);

    QFile removed(path);
    QVERIFY(removed.open(QIODevice::ReadOnly));
    QVERIFY(QFile(path).remove());
    QCOMPARE(readDevice(removed, bytes.size()).bytes, bytes);
}

QTEST_GUILESS_MAIN(TestFileReader)
#include "tst_filereader.moc"
