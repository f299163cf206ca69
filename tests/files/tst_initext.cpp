#include "files/initext.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>

class TestIniText : public QObject
{
    Q_OBJECT

private slots:
    void values_data();
    void values();
    void notText_data();
    void notText();
    void isWhatQSettingsReadsAndWrites_data();
    void isWhatQSettingsReadsAndWrites();
    void charactersBeyond16BitsSurvive();
    void byteOrderMarksSurvive();
};

namespace {

/// What QSettings reads from a file with that value.
QString readByQSettings(const QByteArray &value)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("a.ini"));
    file.open(QIODevice::WriteOnly);
    file.write("[set]\nkey=" + value + "\n");
    file.close();
    QSettings settings(file.fileName(), QSettings::IniFormat);
    settings.setIniCodec(QTextCodec::codecForName("UTF-8"));
    return settings.value("set/key").toString();
}

/// How QSettings writes a value.
QByteArray writtenByQSettings(const QString &text)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("a.ini");
    {
        QSettings settings(path, QSettings::IniFormat);
        settings.setIniCodec(QTextCodec::codecForName("UTF-8"));
        settings.setValue("set/key", text);
    }
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    const QByteArray line = file.readAll().split('\n').value(1);
    return line.mid(line.indexOf('=') + 1);
}

} // namespace

void TestIniText::values_data()
{
    QTest::addColumn<QByteArray>("raw");
    QTest::addColumn<QString>("text");

    QTest::newRow("nothing") << QByteArray() << QString();
    QTest::newRow("blanks around") << QByteArray(" \t a b \t\r") << "a b";
    QTest::newRow("a remark") << QByteArray("1 ; on") << "1";
    QTest::newRow("quoted") << QByteArray("\" a;b,c=d \"") << " a;b,c=d ";
    QTest::newRow("quoted in part") << QByteArray("a\" \" ") << "a ";
    QTest::newRow("never closed") << QByteArray("\"a ") << "a ";
    QTest::newRow("escapes") << QByteArray(R"(\a\b\f\n\r\t\v\"\\\?\')") << "\a\b\f\n\r\t\v\"\\?'";
    QTest::newRow("numbers") << QByteArray(R"(\x41\x20ac\xe9)") << QStringLiteral("A€é");
    QTest::newRow("an escape that means nothing") << QByteArray(R"(a\zb\xg)") << "abg";
    QTest::newRow("an escape cut off") << QByteArray("a\\") << "a";
    QTest::newRow("UTF-8") << QByteArray("命令") << QStringLiteral("命令");
    QTest::newRow("at") << QByteArray("@@a") << "@a";
    QTest::newRow("at alone") << QByteArray("@a") << "@a";
    QTest::newRow("at within") << QByteArray("a@b") << "a@b";
}

void TestIniText::values()
{
    QFETCH(QByteArray, raw);
    QTEST(iniText(raw).value_or("none"), "text");
}

void TestIniText::notText_data()
{
    QTest::addColumn<QByteArray>("raw");

    QTest::newRow("a list") << QByteArray("a, b");
    QTest::newRow("of another kind") << QByteArray("@Size(1 2)");
    QTest::newRow("in quotes") << QByteArray("\"@Invalid()\"");
    QTest::newRow("in disguise") << QByteArray(R"(\x40Variant(\0\0))");
}

void TestIniText::notText()
{
    QFETCH(QByteArray, raw);
    QVERIFY(!iniText(raw));
}

void TestIniText::isWhatQSettingsReadsAndWrites_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("empty") << QString();
    QTest::newRow("plain") << "/home/user/a b";
    QTest::newRow("marks of the format") << R"(/a,b;c=d "e" [f] %20 @g)";
    QTest::newRow("backslashes") << R"(C:\new\table\x41\)";
    QTest::newRow("blanks at its ends") << " /home ";
    QTest::newRow("tabs at its ends") << "\t/home\t";
    QTest::newRow("at") << "@home";
    QTest::newRow("what looks like another kind") << "@Variant(1)";
    QTest::newRow("line ends") << "a\r\nb";
    QTest::newRow("control characters") << "a\x01"
                                           "1\x1F"
                                           "fg\a";
    QTest::newRow("DEL") << "a\x7F";
    QTest::newRow("umlauts") << QStringLiteral("Müller");
}

void TestIniText::isWhatQSettingsReadsAndWrites()
{
    QFETCH(QString, text);
    QCOMPARE(readByQSettings(iniValue(text)), text);
    QCOMPARE(iniText(writtenByQSettings(text)).value_or("none"), text);
    QCOMPARE(iniText(iniValue(text)).value_or("none"), text);
}

/// QSettings reads them, but leaves them out when it writes.
void TestIniText::charactersBeyond16BitsSurvive()
{
    const QString text = QString::fromUtf8("\xF0\x9F\x94\x8C");
    QCOMPARE(iniText(iniValue(text)).value_or("none"), text);
    QCOMPARE(readByQSettings(iniValue(text)), text);
}

void TestIniText::byteOrderMarksSurvive()
{
    const QString text = QStringLiteral("\uFEFFa\n\uFEFFb");
    QCOMPARE(iniText(iniValue(text)).value_or("none"), text);
}

QTEST_GUILESS_MAIN(TestIniText)
#include "tst_initext.moc"
