#include "files/lastfolders.h"
#include "testfiles.h"

#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>

class TestLastFolders : public QObject
{
    Q_OBJECT

private slots:
    void folderOfAFileIsWhatComesBeforeItsName_data();
    void folderOfAFileIsWhatComesBeforeItsName();
    void keepsTheOtherLine_data();
    void keepsTheOtherLine();
    void bothFoldersAreWrittenLineByLine();
    void survivesAnImpossibleRecord();
};

namespace {

QByteArray record(const char *lines)
{
    return QByteArray("\xEF\xBB\xBF") + lines;
}

} // namespace

void TestLastFolders::folderOfAFileIsWhatComesBeforeItsName_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QString>("folder");

    const QString longest = QLatin1Char('/') + QString(1022, QLatin1Char('a')) + QLatin1Char('/');
    QTest::newRow("file in a folder") << "/home/a/list.txt"
                                      << "/home/a/";
    QTest::newRow("file in the root") << "/list.txt"
                                      << "/";
    QTest::newRow("folder") << "/home/a/"
                            << "/home/a/";
    QTest::newRow("no folder") << "list.txt"
                               << "";
    QTest::newRow("only a backslash") << "C:\\list.txt"
                                      << "";
    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("1024 characters") << longest + "b.txt" << longest;
    QTest::newRow("1025 characters") << "/a" + longest.mid(1) + "b.txt"
                                     << "";
}

void TestLastFolders::folderOfAFileIsWhatComesBeforeItsName()
{
    QFETCH(QString, fileName);
    QTEST(folderOf(fileName), "folder");
}

void TestLastFolders::keepsTheOtherLine_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("withLoad");
    QTest::addColumn<QByteArray>("withSave");

    QTest::newRow("no record") << QByteArray() << record("/new/\n\n") << record("\n/new/\n");
    QTest::newRow("both lines") << record("/l/\n/s/\n") << record("/new/\n/s/\n")
                                << record("/l/\n/new/\n");
    QTest::newRow("no last line end")
        << record("/l/\n/s/") << record("/new/\n/s/\n") << record("/l/\n/new/\n");
    QTest::newRow("CR LF") << record("/l/\r\n/s/\r\n") << record("/new/\n/s/\n")
                           << record("/l/\n/new/\n");
    QTest::newRow("no mark") << QByteArray("/l/\n/s/\n") << record("/new/\n/s/\n")
                             << record("/l/\n/new/\n");
    QTest::newRow("one line") << record("/l/\n") << record("/new/\n\n") << record("/l/\n/new/\n");
    QTest::newRow("more lines") << record("/l/\n/s/\n/x/\n") << record("/new/\n/s/\n")
                                << record("/l/\n/new/\n");
    QTest::newRow("UTF-8") << record("/中/\n/é/\n") << record("/new/\n/é/\n")
                           << record("/中/\n/new/\n");
    QTest::newRow("GBK") << record("/\xB0\xA1/\n/\xB0\xA2/\n") << record("/new/\n/阿/\n")
                         << record("/啊/\n/new/\n");
    QTest::newRow("one line of each")
        << record("/中/\n/\xB0\xA2/") << record("/new/\n/阿/\n") << record("/中/\n/new/\n");
}

void TestLastFolders::keepsTheOtherLine()
{
    QFETCH(QByteArray, before);
    const QString folder = QStringLiteral("/new/");
    QTEST(recordWithLoadFolder(before, folder), "withLoad");
    QTEST(recordWithSaveFolder(before, folder), "withSave");
}

void TestLastFolders::bothFoldersAreWrittenLineByLine()
{
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("lastCommand_path.ini"));
    recordSaveFolder(dir.path(), QStringLiteral("/é/"));
    QCOMPARE(contentOf(path), record("\n/é/\n"));
    recordLoadFolder(dir.path(), QStringLiteral("/中/"));
    QCOMPARE(contentOf(path), record("/中/\n/é/\n"));
    recordSaveFolder(dir.path(), QString());
    QCOMPARE(contentOf(path), record("/中/\n\n"));
}

void TestLastFolders::survivesAnImpossibleRecord()
{
    const QTemporaryDir dir;
    recordLoadFolder(dir.filePath(QStringLiteral("none")), QStringLiteral("/a/"));
    QVERIFY(!QFileInfo::exists(dir.filePath(QStringLiteral("none"))));

    QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("lastCommand_path.ini")));
    recordLoadFolder(dir.path(), QStringLiteral("/a/"));
    QVERIFY(QFileInfo(dir.filePath(QStringLiteral("lastCommand_path.ini"))).isDir());
}

QTEST_GUILESS_MAIN(TestLastFolders)
#include "tst_lastfolders.moc"
