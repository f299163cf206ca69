#include "app/filedrop.h"
#include "app/recentfiles.h"

#include <QDir>
#include <QtTest>

/// Which of the things dropped is loaded, and how the last files are listed.
class TestFileDrop : public QObject
{
    Q_OBJECT

private slots:
    void oneTextFileIsLoaded_data();
    void oneTextFileIsLoaded();
    void allElseIsRefusedInWords_data();
    void allElseIsRefusedInWords();
    void theLastFileComesFirst();
    void noMoreThanTenAreKept();
    void namesAreShownAsTheyAre_data();
    void namesAreShownAsTheyAre();
};

void TestFileDrop::oneTextFileIsLoaded_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("plain") << "/home/me/loop.txt";
    QTest::newRow("capitals") << "/home/me/LOOP.TXT";
    QTest::newRow("any characters") << QString::fromUtf8("/home/me/a #1 100%?\u6E29.txt");
    QTest::newRow("two endings") << "/home/me/loop.bak.txt";
}

void TestFileDrop::oneTextFileIsLoaded()
{
    QFETCH(QString, path);
    const DroppedFile file = commandFileAmong({QUrl::fromLocalFile(path)});
    QCOMPARE(file.path, path);
    QCOMPARE(file.refusal, QString());
}

void TestFileDrop::allElseIsRefusedInWords_data()
{
    QTest::addColumn<QList<QUrl>>("urls");
    QTest::addColumn<QString>("words");

    const QUrl text = QUrl::fromLocalFile("/home/me/a.txt");
    QTest::newRow("two files") << QList<QUrl>{text, text}
                               << "Of 2 files that were dropped, none was loaded: drop one.";
    QTest::newRow("a picture") << QList<QUrl>{QUrl::fromLocalFile("/home/me/a.png")}
                               << "Not loaded, as it is no .txt file: a.png";
    QTest::newRow("no ending") << QList<QUrl>{QUrl::fromLocalFile("/home/me/txt")}
                               << "Not loaded, as it is no .txt file: txt";
    QTest::newRow("a page") << QList<QUrl>{QUrl("https://example.org/a.txt")}
                            << "Not loaded, as it is no file of this computer: "
                               "https://example.org/a.txt";
}

void TestFileDrop::allElseIsRefusedInWords()
{
    QFETCH(QList<QUrl>, urls);
    const DroppedFile file = commandFileAmong(urls);
    QCOMPARE(file.path, QString());
    QTEST(file.refusal, "words");
}

void TestFileDrop::theLastFileComesFirst()
{
    QStringList files;
    for (const char *path : {"/a", "/b", "/c", "/a", "/a"}) {
        files = withRecentFile(files, path);
    }
    QCOMPARE(files, (QStringList{"/a", "/c", "/b"}));
}

void TestFileDrop::noMoreThanTenAreKept()
{
    QStringList files;
    for (int i = 1; i <= 12; ++i) {
        files = withRecentFile(files, QString::number(i));
    }
    QCOMPARE(files.size(), 10);
    QCOMPARE(files.first(), QString("12"));
    QCOMPARE(files.last(), QString("3"));
}

void TestFileDrop::namesAreShownAsTheyAre_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("text");

    QTest::newRow("first") << 0 << "/home/me/a.txt"
                           << "&1  a.txt   (/home/me)";
    QTest::newRow("tenth") << 9 << "/a.txt"
                           << "&0  a.txt   (/)";
    QTest::newRow("ampersand") << 1 << "/R&D/a&b.txt"
                               << "&2  a&&b.txt   (/R&&D)";
    QTest::newRow("two lines") << 1 << "/x/a\n\tb.txt"
                               << "&2  a??b.txt   (/x)";
    QTest::newRow("percent") << 1 << "/%2/%1%3.txt"
                             << "&2  %1%3.txt   (/%2)";
    QTest::newRow("beyond 16 bits") << 1 << QString::fromUtf8("/x/\xF0\x9F\x94\x8C.txt")
                                    << QString::fromUtf8("&2  \xF0\x9F\x94\x8C.txt   (/x)");
}

void TestFileDrop::namesAreShownAsTheyAre()
{
    QFETCH(int, place);
    QFETCH(QString, path);
    QFETCH(QString, text);
    QCOMPARE(recentFileText(place, path), text.replace('/', QDir::separator()));
}

QTEST_APPLESS_MAIN(TestFileDrop)
#include "tst_filedrop.moc"
