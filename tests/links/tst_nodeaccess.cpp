#include "frames/systemwords.h"
#include "links/nodeaccess.h"
#include "restrictions.h"
#include "testfiles.h"

#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <cerrno>
#include <grp.h>
#include <sys/stat.h>
#include <unistd.h>

class TestNodeAccess : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void nothingKeepsTheUserOut();
    void whatIsMissingIsToldInTheSystemsWords_data();
    void whatIsMissingIsToldInTheSystemsWords();
    void itsWordsAreKnownToTranslations_data();
    void itsWordsAreKnownToTranslations();
    void aNameIsOneOfDev();
    void theGroupThatMayIsNamed();
    void aGroupThatMayNotIsNotNamed_data();
    void aGroupThatMayNotIsNotNamed();

private:
    /// A file that the user of the test may not use, with these rights for its group.
    void makeFile(mode_t groupRights, gid_t group);

    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath("device");
    /// One that is not root's.
    gid_t m_group = geteuid() == 0 ? 20 : getegid();
};

void TestNodeAccess::init()
{
    QFile::remove(m_path);
    QCOMPARE(chmod(qPrintable(m_folder.path()), 0755), 0);
}

void TestNodeAccess::makeFile(mode_t groupRights, gid_t group)
{
    writeFile(m_path, "");
    QCOMPARE(chown(qPrintable(m_path), uid_t(-1), group), 0);
    QCOMPARE(chmod(qPrintable(m_path), groupRights), 0);
}

void TestNodeAccess::nothingKeepsTheUserOut()
{
    writeFile(m_path, "");
    const OpenFailure failure = examineDevice(m_path);
    QCOMPARE(failure.words, QString());
    QVERIFY(failure.cause == OpenFailure::Cause::Other);
}

void TestNodeAccess::whatIsMissingIsToldInTheSystemsWords_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("words");

    QTest::newRow("file") << "/nowhere/device"
                          << "No such file or directory";
    QTest::newRow("port") << "ttyNowhere"
                          << "No such file or directory";
    QTest::newRow("no folder") << "/dev/null/device"
                               << "Not a directory";
}

void TestNodeAccess::whatIsMissingIsToldInTheSystemsWords()
{
    QFETCH(QString, name);
    const OpenFailure failure = examineDevice(name);
    QTEST(failure.words, "words");
    QVERIFY(failure.cause == OpenFailure::Cause::Other);
    QCOMPARE(failure.group, QString());
}

void TestNodeAccess::itsWordsAreKnownToTranslations_data()
{
    QTest::addColumn<int>("error");

    for (const int error : {EPERM,  ENOENT,  EIO,    ENXIO,        EAGAIN, EACCES,    EBUSY,
                            ENODEV, ENOTDIR, EISDIR, EINVAL,       EMFILE, ENOTTY,    EFBIG,
                            ENOSPC, EROFS,   EPIPE,  ENAMETOOLONG, EDQUOT, ETIMEDOUT, ESTALE}) {
        QTest::addRow("%d", error) << error;
    }
}

void TestNodeAccess::itsWordsAreKnownToTranslations()
{
    QFETCH(int, error);
    const QString words = qt_error_string(error);
    QVERIFY2(std::any_of(systemWords.begin(), systemWords.end(),
                         [&words](const char *known) { return words == known; }),
             qPrintable(words));
}

void TestNodeAccess::aNameIsOneOfDev()
{
    QCOMPARE(examineDevice("null").words, QString());
}

void TestNodeAccess::theGroupThatMayIsNamed()
{
    makeFile(0060, m_group);
    const OrdinaryUser user;
    QVERIFY(user.isInForce());
    const OpenFailure failure = examineDevice(m_path);
    QVERIFY(failure.cause == OpenFailure::Cause::NoPermission);
    QCOMPARE(failure.words, QString("Permission denied"));
    QCOMPARE(failure.group, QString(getgrgid(m_group)->gr_name));
}

void TestNodeAccess::aGroupThatMayNotIsNotNamed_data()
{
    QTest::addColumn<int>("rights");
    QTest::addColumn<bool>("isRoots");

    QTest::newRow("none") << 0000 << false;
    QTest::newRow("reads only") << 0040 << false;
    QTest::newRow("writes only") << 0020 << false;
    QTest::newRow("root's") << 0060 << true;
}

void TestNodeAccess::aGroupThatMayNotIsNotNamed()
{
    QFETCH(int, rights);
    QFETCH(bool, isRoots);
    if (isRoots && geteuid() != 0) {
        QSKIP("only root gives a file to its group");
    }
    makeFile(mode_t(rights), isRoots ? 0 : m_group);
    const OrdinaryUser user;
    const OpenFailure failure = examineDevice(m_path);
    QVERIFY(failure.cause == OpenFailure::Cause::NoPermission);
    QCOMPARE(failure.group, QString());
}

QTEST_APPLESS_MAIN(TestNodeAccess)
#include "tst_nodeaccess.moc"
