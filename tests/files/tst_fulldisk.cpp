#include "files/settings.h"
#include "testfiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <sys/resource.h>

class TestFullDisk : public QObject
{
    Q_OBJECT

private slots:
    void settingsStayAsTheyWere();
};

namespace {

/// Lets no file grow beyond a size, as a full disk does.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        m_formerHandler = signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_former);
        const rlimit limit{bytes, m_former.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_former);
        signal(SIGXFSZ, m_formerHandler);
    }
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;

private:
    rlimit m_former{};
    sighandler_t m_formerHandler;
};

} // namespace

void TestFullDisk::settingsStayAsTheyWere()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("debuggerConfig.ini");
    const QByteArray former =
        "[other]\nkey=" + QByteArray(2000, 'x') + "\n\n[set]\nisEditorFun=1\n";
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(former), qint64(former.size()));
    file.close();
    Settings settings = SettingsFile(path).load();
    settings.linkMode = 1;
    {
        const FileSizeLimit limit(1000);
        SettingsFile(path).save(settings);
    }
    QCOMPARE(contentOf(path), former);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{"debuggerConfig.ini"});
    SettingsFile(path).save(settings);
    QCOMPARE(SettingsFile(path).load().linkMode, 1);
    QVERIFY(contentOf(path).startsWith("[other]\nkey=xxx"));
}

QTEST_GUILESS_MAIN(TestFullDisk)
#include "tst_fulldisk.moc"
