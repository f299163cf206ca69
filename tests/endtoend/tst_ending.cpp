#include "files/commandfile.h"
#include "testfiles.h"
#include "typedprogram.h"

#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

/// The program as it is installed, with a typist in front of it, ended from outside.
class TestEnding : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void anEditedListOutlivesASignal_data();
    void anEditedListOutlivesASignal();
    void anOpenDialogDoesNotHoldItUp();
    void anUntouchedListLeavesNothing();
    void anEditedListOutlivesAKill();
    void aHangUpThatIsToBeIgnoredIsIgnored();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    /// What is in the first cell of the list that was kept.
    QString keptText() const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

/// The program, which can be ended from outside.
class Program : public TypedProgram
{
public:
    using TypedProgram::TypedProgram;

    void signal(int number) { ::kill(static_cast<pid_t>(processId()), number); }

    bool endsInGoodOrder()
    {
        return waitForFinished() && exitStatus() == QProcess::NormalExit && exitCode() == 0;
    }

    bool ignoresHangUp = false;

protected:
    void setupChildProcess() override { std::signal(SIGHUP, ignoresHangUp ? SIG_IGN : SIG_DFL); }
};

} // namespace

void TestEnding::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

QString TestEnding::keptText() const
{
    const CommandFile file = readCommandFile(contentOf(path("recovery-1.txt")));
    return file.rows.isEmpty() ? QString("nothing") : file.rows.first().description;
}

void TestEnding::anEditedListOutlivesASignal_data()
{
    QTest::addColumn<int>("signal");

    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGHUP") << SIGHUP;
}

void TestEnding::anEditedListOutlivesASignal()
{
    QFETCH(int, signal);
    Program program(m_folder->path(), "edited");
    QVERIFY(program.startAndType());
    program.signal(signal);
    QVERIFY(program.endsInGoodOrder());
    QCOMPARE(keptText(), QString("edited"));
    QVERIFY(!QFileInfo::exists(path(".recovery-1.lock")));
    const QSettings settings(path("debuggerConfig.ini"), QSettings::IniFormat);
    QCOMPARE(settings.allKeys().size(), 6);
}

void TestEnding::anOpenDialogDoesNotHoldItUp()
{
    Program program(m_folder->path(), "edited|pushButton_LoadCommand");
    QVERIFY(program.startAndType());
    program.signal(SIGTERM);
    QVERIFY(program.endsInGoodOrder());
    QCOMPARE(keptText(), QString("edited"));
}

void TestEnding::anUntouchedListLeavesNothing()
{
    Program program(m_folder->path(), {});
    QVERIFY(program.startAndType());
    program.signal(SIGTERM);
    QVERIFY(program.endsInGoodOrder());
    QCOMPARE(filesIn(m_folder->path()).filter("recovery"), QStringList());
}

void TestEnding::anEditedListOutlivesAKill()
{
    Program program(m_folder->path(), "edited");
    QVERIFY(program.startAndType());
    QVERIFY(!program.text("status").contains("not saved"));
    QTRY_COMPARE(keptText(), QString("edited"));
    program.signal(SIGKILL);
    QVERIFY(program.waitForFinished());

    Program next(m_folder->path(), {});
    QVERIFY(next.startAndType());
    QVERIFY(next.text("status").contains("not saved"));
    next.signal(SIGTERM);
    QVERIFY(next.endsInGoodOrder());
    QCOMPARE(keptText(), QString("edited"));
}

void TestEnding::aHangUpThatIsToBeIgnoredIsIgnored()
{
    Program program(m_folder->path(), "edited");
    program.ignoresHangUp = true;
    QVERIFY(program.startAndType());
    program.signal(SIGHUP);
    // The program that goes on writes this after a while.
    QTRY_COMPARE(keptText(), QString("edited"));
    program.signal(SIGTERM);
    QVERIFY(program.endsInGoodOrder());
}

QTEST_GUILESS_MAIN(TestEnding)
#include "tst_ending.moc"
