#include "runningprogram.h"

#include <QtTest>

namespace {

HWND visibleWindow()
{
    HWND window = FindWindowW(nullptr, L"Tarnwick_V1.00");
    return window != nullptr && IsWindowVisible(window) != 0 ? window : nullptr;
}

} // namespace

RunningProgram::~RunningProgram()
{
    m_process.kill();
    m_process.waitForFinished();
}

void RunningProgram::start(const QString &path)
{
    m_process.start(path, QStringList());
    QVERIFY(m_process.waitForStarted());
    QTRY_VERIFY_WITH_TIMEOUT((m_window = visibleWindow()) != nullptr, 20000);
}

void RunningProgram::close()
{
    QVERIFY(PostMessageW(m_window, WM_CLOSE, 0, 0) != 0);
    QVERIFY(m_process.waitForFinished());
    QCOMPARE(m_process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(m_process.exitCode(), 0);
}
