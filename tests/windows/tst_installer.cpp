#include "runningprogram.h"
#include "testfiles.h"

#include <QDirIterator>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>

/// The installer and what it leaves, seen from outside: it is run as tools run it.
class TestInstaller : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void installsAndRemoves_data();
    void installsAndRemoves();
    void whatTheUserHasMadeStays();
    void takesThePlaceOfAnEarlierVersion();
    void staysWhereTheEarlierVersionIs();
    void goesIntoAnyFolder();
    void aRunningProgramIsLeftAsItIs();
    void speaksChinese();

private:
    QString m_installer;
    QString m_earlier;
    QTemporaryDir m_folder;
};

namespace {

const QString unpacked = QStringLiteral(TARNWICK_PACKAGES "/tarnwick-" TARNWICK_VERSION "-win64");

/// A place to install to, and where the system is told of it.
struct Mode
{
    QString option;
    QString folder;
    QString startMenu;
    QString root;
};

QString knownFolder(const char *variable, const char *below)
{
    return QDir::fromNativeSeparators(qEnvironmentVariable(variable)) + QLatin1String(below);
}

Mode forTheUser()
{
    return {"/CurrentUser", knownFolder("LOCALAPPDATA", "/Programs/Tarnwick"),
            knownFolder("APPDATA", "/Microsoft/Windows/Start Menu/Programs"), "HKEY_CURRENT_USER"};
}

Mode forEverybody()
{
    return {"/AllUsers", knownFolder("ProgramFiles", "/Tarnwick"),
            knownFolder("ProgramData", "/Microsoft/Windows/Start Menu/Programs"),
            "HKEY_LOCAL_MACHINE"};
}

QString shortcutOf(const Mode &mode)
{
    return mode.startMenu + "/Tarnwick.lnk";
}

/// What the list of installed programs says of it; empty where it isn't in the list.
QString entry(const Mode &mode, const char *name)
{
    const QSettings key(mode.root +
                            R"(\Software\Microsoft\Windows\CurrentVersion\Uninstall\Tarnwick)",
                        QSettings::NativeFormat);
    return key.value(QLatin1String(name)).toString();
}

int exitCode(const QString &program, const QString &options)
{
    QProcess process;
    process.setProgram(program);
    // As they are, since the installer reads a folder without quotes.
    process.setNativeArguments(options);
    process.start();
    return process.waitForFinished() ? process.exitCode() : -1;
}

/// Relative to the folder, in order, with their sizes.
QStringList contentsOf(const QString &folder)
{
    QStringList contents;
    QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        contents.append(QDir(folder).relativeFilePath(path) + ' ' +
                        QString::number(files.fileInfo().size()));
    }
    contents.sort();
    return contents;
}

QStringList installedContentsOf(const QString &folder)
{
    QStringList contents = contentsOf(folder);
    const auto isUninstaller = [](const QString &text) { return text.startsWith("uninstall.exe"); };
    contents.erase(std::remove_if(contents.begin(), contents.end(), isUninstaller), contents.end());
    return contents;
}

/// It goes on from a copy of itself, so its end isn't that of the process that was started.
void uninstall(const Mode &mode)
{
    const QString command = entry(mode, "QuietUninstallString");
    QVERIFY(command.startsWith('"'));
    const QStringList parts = command.mid(1).split("\" ");
    QCOMPARE(exitCode(parts.at(0), parts.at(1)), 0);
    QTRY_VERIFY(entry(mode, "DisplayName").isEmpty());
}

/// The user's own, wherever the program is installed.
QString settingsFile()
{
    return knownFolder("LOCALAPPDATA", "/tarnwick/debuggerConfig.ini");
}

bool isInstalled(const Mode &mode)
{
    return !entry(mode, "DisplayName").isEmpty();
}

HWND windowWithTitle(const wchar_t *title)
{
    return FindWindowW(nullptr, title);
}

} // namespace

Q_DECLARE_METATYPE(Mode)

/// From their places in the build they would be a path without a drive.
void TestInstaller::initTestCase()
{
    m_installer = m_folder.filePath("tarnwick-setup.exe");
    m_earlier = m_folder.filePath("tarnwick-earlier.exe");
    QVERIFY(QFile::copy(unpacked + "-setup.exe", m_installer));
    QVERIFY(QFile::copy(TARNWICK_EARLIER, m_earlier));
}

void TestInstaller::cleanup()
{
    for (const Mode &mode : {forTheUser(), forEverybody()}) {
        if (isInstalled(mode)) {
            uninstall(mode);
        }
        QDir(mode.folder).removeRecursively();
    }
}

void TestInstaller::installsAndRemoves_data()
{
    QTest::addColumn<Mode>("mode");
    QTest::addColumn<QString>("options");

    QTest::newRow("for the user") << forTheUser() << "/S /CurrentUser";
    QTest::newRow("for everybody") << forEverybody() << "/S /AllUsers";
    QTest::newRow("unasked") << forTheUser() << "/S";
}

void TestInstaller::installsAndRemoves()
{
    QFETCH(Mode, mode);
    QFETCH(QString, options);
    QVERIFY(!QFile::exists(mode.folder));
    QVERIFY(!isInstalled(mode));

    QCOMPARE(exitCode(m_installer, options), 0);
    QCOMPARE(installedContentsOf(mode.folder), contentsOf(unpacked));
    QCOMPARE(entry(mode, "DisplayName"), QString("Tarnwick"));
    QCOMPARE(entry(mode, "DisplayVersion"), QString(TARNWICK_VERSION));
    QCOMPARE(QDir::fromNativeSeparators(entry(mode, "InstallLocation")), mode.folder);
    const QString program = QFile::symLinkTarget(shortcutOf(mode));
    QCOMPARE(program, mode.folder + "/tarnwick.exe");
    QFile::remove(settingsFile());
    RunningProgram running;
    running.start(program);
    running.close();
    QVERIFY(QFile::exists(settingsFile()));
    QCOMPARE(installedContentsOf(mode.folder), contentsOf(unpacked));

    uninstall(mode);
    QTRY_VERIFY(!QFile::exists(mode.folder));
    QVERIFY(!QFile::exists(shortcutOf(mode)));
    QVERIFY(!isInstalled(mode));
    QVERIFY(QFile::exists(settingsFile()));
}

void TestInstaller::whatTheUserHasMadeStays()
{
    const Mode mode = forTheUser();
    QCOMPARE(exitCode(m_installer, "/S"), 0);
    writeFile(mode.folder + "/examples/mine.txt", "Mine,select,03 0010 00 02\r\n");
    uninstall(mode);
    QTRY_COMPARE(contentsOf(mode.folder), QStringList{"examples/mine.txt 27"});
    QVERIFY(!QFile::exists(mode.folder + "/guide"));
}

void TestInstaller::takesThePlaceOfAnEarlierVersion()
{
    const Mode mode = forTheUser();
    QCOMPARE(exitCode(m_earlier, "/S"), 0);
    QCOMPARE(entry(mode, "DisplayVersion"), QString("0.9.0"));
    QVERIFY(QFile::exists(mode.folder + "/guide/old/gone.html"));
    const QString own = mode.folder + "/mine.txt";
    writeFile(own, "Mine,select,03 0010 00 02\r\n");

    QCOMPARE(exitCode(m_installer, "/S"), 0);
    QCOMPARE(entry(mode, "DisplayVersion"), QString(TARNWICK_VERSION));
    QVERIFY(!QFile::exists(mode.folder + "/guide/old"));
    QCOMPARE(contentOf(own), QByteArray("Mine,select,03 0010 00 02\r\n"));
    QVERIFY(QFile::remove(own));
    QCOMPARE(installedContentsOf(mode.folder), contentsOf(unpacked));
}

void TestInstaller::staysWhereTheEarlierVersionIs()
{
    QCOMPARE(exitCode(m_earlier, "/S /AllUsers"), 0);
    QCOMPARE(exitCode(m_installer, "/S"), 0);
    QCOMPARE(entry(forEverybody(), "DisplayVersion"), QString(TARNWICK_VERSION));
    QVERIFY(!isInstalled(forTheUser()));
}

void TestInstaller::goesIntoAnyFolder()
{
    const Mode mode = forTheUser();
    const QString folder = m_folder.filePath(QStringLiteral(u"Tarnwick \u6D4B\u8BD5"));
    QCOMPARE(exitCode(m_installer, "/S /D=" + QDir::toNativeSeparators(folder)), 0);
    QCOMPARE(installedContentsOf(folder), contentsOf(unpacked));
    QVERIFY(!QFile::exists(mode.folder));
    uninstall(mode);
    QTRY_VERIFY(!QFile::exists(folder));
}

void TestInstaller::aRunningProgramIsLeftAsItIs()
{
    constexpr int aborted = 2;
    const Mode mode = forTheUser();
    QCOMPARE(exitCode(m_installer, "/S"), 0);
    const QStringList before = installedContentsOf(mode.folder);
    RunningProgram program;
    program.start(mode.folder + "/tarnwick.exe");
    QCOMPARE(exitCode(m_installer, "/S"), aborted);
    const QString uninstaller = mode.folder + "/uninstall.exe";
    const QString inPlace = "/S /CurrentUser _?=" + QDir::toNativeSeparators(mode.folder);
    QCOMPARE(exitCode(uninstaller, inPlace), aborted);
    for (const QString &file : before) {
        QVERIFY2(contentsOf(mode.folder).contains(file), qPrintable(file));
    }
    QVERIFY(isInstalled(mode));
    QVERIFY(QFile::exists(shortcutOf(mode)));
    program.close();
}

/// The language of this system, as tests/windows/run makes it.
void TestInstaller::speaksChinese()
{
    QProcess installer;
    installer.start(m_installer, QStringList());
    const QString title = QStringLiteral(u"Tarnwick " TARNWICK_VERSION u" \u5B89\u88C5 ");
    HWND window = nullptr;
    QTRY_VERIFY((window = windowWithTitle(reinterpret_cast<const wchar_t *>(title.utf16()))) !=
                nullptr);
    installer.kill();
    QVERIFY(installer.waitForFinished());
}

QTEST_GUILESS_MAIN(TestInstaller)
#include "tst_installer.moc"
