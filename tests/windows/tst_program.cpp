#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <windows.h>

/// The program itself, in a folder of its own, seen from outside.
class TestProgram : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void startsShowsAndCloses();
    void settingsComeBack();

private:
    void start();
    void close();
    QString inFolder(const QString &name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
    QProcess m_program;
    HWND m_window = nullptr;
};

namespace {

HWND programWindow()
{
    HWND window = FindWindowW(nullptr, L"Tarnwick_V1.00");
    return window != nullptr && IsWindowVisible(window) != 0 ? window : nullptr;
}

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

} // namespace

void TestProgram::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QFile::copy(TARNWICK_PROGRAM, inFolder("tarnwick.exe")));
}

void TestProgram::cleanup()
{
    m_program.kill();
    m_program.waitForFinished();
}

void TestProgram::start()
{
    m_program.start(inFolder("tarnwick.exe"), QStringList());
    QVERIFY(m_program.waitForStarted());
    QTRY_VERIFY_WITH_TIMEOUT((m_window = programWindow()) != nullptr, 20000);
}

void TestProgram::close()
{
    QVERIFY(PostMessageW(m_window, WM_CLOSE, 0, 0) != 0);
    QVERIFY(m_program.waitForFinished());
    QCOMPARE(m_program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(m_program.exitCode(), 0);
}

void TestProgram::startsShowsAndCloses()
{
    start();
    RECT place{};
    QVERIFY(GetClientRect(m_window, &place) != 0);
    QVERIFY(place.right >= 600 && place.bottom >= 400);
    close();
    const QSettings settings(inFolder("debuggerConfig.ini"), QSettings::IniFormat);
    QCOMPARE(sorted(settings.allKeys()),
             QStringList({"set/LastLoadPath", "set/LastSavePath", "set/debuggerMode",
                          "set/isEditorFun", "set/noAppendHeader", "set/noAppendLength"}));
    QFile ids(inFolder("hidDeviceID.ini"));
    QVERIFY(ids.open(QIODevice::ReadOnly));
    QCOMPARE(ids.readAll(), QByteArray("VID_EEEF,PID_2929,512\nVID_EEEF,PID_1616,64"));
}

void TestProgram::settingsComeBack()
{
    QFile file(inFolder("debuggerConfig.ini"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[set]\r\ndebuggerMode=7\r\nnoAppendHeader=5\r\nLastLoadPath=C:/\xE6\xB5\x8B/\r\n");
    file.close();
    start();
    close();
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    QVERIFY2(content.contains("debuggerMode=1\r\n"), content.constData());
    QVERIFY2(content.contains("noAppendHeader=5\r\n"), content.constData());
    QVERIFY2(content.contains("LastLoadPath=C:/\xE6\xB5\x8B/\r\n"), content.constData());
}

QTEST_GUILESS_MAIN(TestProgram)
#include "tst_program.moc"
