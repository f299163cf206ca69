#include "app/datafolder.h"
#include "restrictions.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

#include <array>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

class TestUserFolder : public QObject
{
    Q_OBJECT

private slots:
    void portsFolderIsMade();
    void elsewhereIsTheUsersConfigurationFolder();
};

void TestUserFolder::portsFolderIsMade()
{
    QDir(QCoreApplication::applicationDirPath()).rmdir("ports");
    const QString folder = portsFolder();
    QCOMPARE(folder, QCoreApplication::applicationDirPath() + "/ports");
    QVERIFY(QFileInfo(folder).isDir());
}

namespace {

/// The data folder as a user without special rights finds it.
QString dataFolderOfAPlainUser()
{
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) {
        return {};
    }
    const pid_t child = fork();
    if (child == 0) {
        const bool isPlain = geteuid() != 0 || setuid(nobody) == 0;
        const QByteArray folder = isPlain ? dataFolder().toUtf8() : QByteArray();
        const bool written = write(ends[1], folder.constData(), size_t(folder.size())) >= 0;
        _exit(written ? 0 : 1);
    }
    close(ends[1]);
    std::array<char, 4096> answer{};
    const ssize_t size = read(ends[0], answer.data(), answer.size());
    close(ends[0]);
    waitpid(child, nullptr, 0);
    return QString::fromUtf8(answer.data(), int(size));
}

} // namespace

void TestUserFolder::elsewhereIsTheUsersConfigurationFolder()
{
    const QTemporaryDir home;
    const QByteArray homePath = home.path().toLocal8Bit();
    QCOMPARE(chmod(homePath.constData(), 0777), 0);
    qputenv("XDG_CONFIG_HOME", homePath);
    const QByteArray ownFolder = QCoreApplication::applicationDirPath().toLocal8Bit();
    QCOMPARE(chmod(ownFolder.constData(), 0555), 0);
    const QString folder = dataFolderOfAPlainUser();
    QCOMPARE(chmod(ownFolder.constData(), 0755), 0);
    QCOMPARE(folder, home.filePath("tst_userfolder"));
    QVERIFY(QFileInfo(folder).isDir());
}

QTEST_GUILESS_MAIN(TestUserFolder)
#include "tst_userfolder.moc"
