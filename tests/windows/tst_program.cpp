#include "runningprogram.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

/// The program itself, in a folder of its own, seen from outside.
class TestProgram : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void startsShowsAndCloses();
    void settingsComeBack();

private:
    QString inFolder(const QString &name) const { return m_folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

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

void TestProgram::startsShowsAndCloses()
{
    RunningProgram program;
    program.start(inFolder("tarnwick.exe"));
    RECT place{};
    QVERIFY(GetClientRect(program.window(), &place) != 0);
    QVERIFY(place.right >= 600 && place.bottom >= 400);
    program.close();
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
    RunningProgram program;
    program.start(inFolder("tarnwick.exe"));
    program.close();
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    QVERIFY2(content.contains("debuggerMode=1\r\n"), content.constData());
    QVERIFY2(content.contains("noAppendHeader=5\r\n"), content.constData());
    QVERIFY2(content.contains("LastLoadPath=C:/\xE6\xB5\x8B/\r\n"), content.constData());
}

QTEST_GUILESS_MAIN(TestProgram)
#include "tst_program.moc"
