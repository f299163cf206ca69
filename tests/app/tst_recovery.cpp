#include "app/liststate.h"
#include "app/recovery.h"
#include "files/commandfile.h"
#include "files/recoverytext.h"
#include "testfiles.h"

#include <QDateTime>
#include <QTemporaryDir>
#include <QtTest>

#include <optional>

class TestRecovery : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void anUntouchedListIsNotKept();
    void aModifiedListIsKeptSoon();
    void aModifiedListIsKeptAgainAndAgain();
    void whatIsSavedOrClearedIsNotKept_data();
    void whatIsSavedOrClearedIsNotKept();
    void whatEndsInGoodOrderLeavesNothing();
    void whatIsKeptIsLeftBehind();
    void aSessionThatGoesOnLeavesNothing();
    void runningProgramsHaveFilesOfTheirOwn();
    void theNewestIsOffered();
    void whatIsTakenOverGoes();
    void filesElsewhereAreNotTakenOver();
    void leftOversAreNoObstacle();
    void aFolderThatIsGoneIsNoMatter();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QStringList files() const { return filesIn(m_folder->path()); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

constexpr RecoveryPace quick{1, 1};
constexpr RecoveryPace never{1'000'000, 1'000'000};

/// A program with a list of one row.
struct KeepingProgram
{
    explicit KeepingProgram(const QString &folder, RecoveryPace pace = never)
        : recovery(
              folder, list, [this] { return rows; }, pace)
    {}

    void change(const QString &description)
    {
        rows[0].description = description;
        list.setModified();
    }

    QVector<CommandRow> rows{emptyRow()};
    ListState list;
    Recovery recovery;
};

QString keptIn(const QString &path)
{
    const QVector<CommandRow> rows = readCommandFile(contentOf(path)).rows;
    return rows.isEmpty() ? QString() : rows.first().description;
}

} // namespace

void TestRecovery::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

void TestRecovery::anUntouchedListIsNotKept()
{
    KeepingProgram program(m_folder->path(), quick);
    program.recovery.keep();
    program.list.setStored("/a.txt");
    QCOMPARE(files(), QStringList());
    QCOMPARE(program.recovery.leftBehind(), QString());
}

void TestRecovery::aModifiedListIsKeptSoon()
{
    KeepingProgram program(m_folder->path(), {1, 1'000'000});
    program.change("a");
    QTRY_COMPARE(files(), QStringList({".recovery-1.lock", "recovery-1.txt"}));
    QCOMPARE(keptIn(path("recovery-1.txt")), QString("a"));
}

void TestRecovery::aModifiedListIsKeptAgainAndAgain()
{
    KeepingProgram program(m_folder->path(), quick);
    for (const char *const text : {"a", "b", "c"}) {
        program.change(text);
        QTRY_COMPARE(keptIn(path("recovery-1.txt")), QString(text));
    }
    QCOMPARE(files(), QStringList({".recovery-1.lock", "recovery-1.txt"}));
}

void TestRecovery::whatIsSavedOrClearedIsNotKept_data()
{
    QTest::addColumn<QString>("file");

    QTest::newRow("saved or loaded") << "/a.txt";
    QTest::newRow("cleared") << QString();
}

void TestRecovery::whatIsSavedOrClearedIsNotKept()
{
    QFETCH(QString, file);
    KeepingProgram program(m_folder->path());
    program.change("a");
    program.recovery.write();
    QCOMPARE(files().size(), 2);
    program.list.setStored(file);
    QCOMPARE(files(), QStringList());
    program.change("b");
    program.recovery.write();
    QCOMPARE(keptIn(path("recovery-1.txt")), QString("b"));
}

void TestRecovery::whatEndsInGoodOrderLeavesNothing()
{
    std::optional<KeepingProgram> program(std::in_place, m_folder->path());
    program->change("a");
    program->recovery.write();
    program.reset();
    QCOMPARE(files(), QStringList());
}

void TestRecovery::whatIsKeptIsLeftBehind()
{
    std::optional<KeepingProgram> program(std::in_place, m_folder->path());
    program->change("a");
    program->recovery.keep();
    program.reset();
    QCOMPARE(files(), QStringList("recovery-1.txt"));
    const KeepingProgram next(m_folder->path());
    QCOMPARE(next.recovery.leftBehind(), path("recovery-1.txt"));
    QCOMPARE(files(), QStringList("recovery-1.txt"));
}

void TestRecovery::aSessionThatGoesOnLeavesNothing()
{
    std::optional<KeepingProgram> program(std::in_place, m_folder->path());
    program->change("a");
    program->recovery.keep();
    program->recovery.discard();
    program.reset();
    QCOMPARE(files(), QStringList());
}

void TestRecovery::runningProgramsHaveFilesOfTheirOwn()
{
    KeepingProgram first(m_folder->path());
    std::optional<KeepingProgram> second(std::in_place, m_folder->path());
    first.change("a");
    second->change("b");
    first.recovery.write();
    second->recovery.write();
    QCOMPARE(keptIn(path("recovery-1.txt")), QString("a"));
    QCOMPARE(keptIn(path("recovery-2.txt")), QString("b"));
    const KeepingProgram third(m_folder->path());
    QCOMPARE(third.recovery.leftBehind(), QString());
    second->recovery.keep();
    second.reset();
    QCOMPARE(third.recovery.leftBehind(), path("recovery-2.txt"));
}

void TestRecovery::theNewestIsOffered()
{
    for (const int number : {1, 2, 3}) {
        const QString name = path(QString("recovery-%1.txt").arg(number));
        writeFile(name, recoveryText({}));
        QFile file(name);
        QVERIFY(file.open(QIODevice::ReadWrite));
        const QDateTime time = QDateTime::currentDateTime().addSecs(number == 2 ? -10 : -1000);
        QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
    }
    KeepingProgram program(m_folder->path());
    QCOMPARE(program.recovery.leftBehind(), path("recovery-2.txt"));
    program.change("a");
    program.recovery.write();
    QCOMPARE(keptIn(path("recovery-4.txt")), QString("a"));
}

void TestRecovery::whatIsTakenOverGoes()
{
    writeFile(path("recovery-1.txt"), recoveryText({emptyRow()}));
    KeepingProgram program(m_folder->path());
    program.change("a");
    program.recovery.takeOver(path("recovery-1.txt"));
    QCOMPARE(files(), QStringList({".recovery-2.lock", "recovery-2.txt"}));
    QCOMPARE(keptIn(path("recovery-2.txt")), QString("a"));
    program.recovery.takeOver(path("recovery-2.txt"));
    QCOMPARE(keptIn(path("recovery-2.txt")), QString("a"));
}

void TestRecovery::filesElsewhereAreNotTakenOver()
{
    const QTemporaryDir elsewhere;
    for (const QString &name : {elsewhere.filePath("recovery-1.txt"), path("mine.txt")}) {
        writeFile(name, recoveryText({emptyRow()}));
        KeepingProgram program(m_folder->path());
        program.change("a");
        program.recovery.takeOver(name);
        QVERIFY(QFile::exists(name));
    }
}

void TestRecovery::leftOversAreNoObstacle()
{
    QVERIFY(QDir(m_folder->path()).mkdir("recovery-1.txt"));
    writeFile(path("recovery-2.txt.new"), "mine");
    KeepingProgram program(m_folder->path());
    QCOMPARE(program.recovery.leftBehind(), QString());
    program.change("a");
    program.recovery.write();
    QCOMPARE(keptIn(path("recovery-2.txt")), QString("a"));
}

void TestRecovery::aFolderThatIsGoneIsNoMatter()
{
    const QString folder = path("gone");
    KeepingProgram program(folder);
    program.change("a");
    program.recovery.keep();
    QCOMPARE(program.recovery.leftBehind(), QString());
    QVERIFY(!QFile::exists(folder));
}

QTEST_GUILESS_MAIN(TestRecovery)
#include "tst_recovery.moc"
