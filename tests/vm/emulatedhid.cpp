#include "emulatedhid.h"

namespace {

constexpr int hidPatienceMs = 20000;

} // namespace

EmulatedHid::EmulatedHid(const QString &product, int reportSize)
    : m_arguments{product, QString::number(reportSize)}
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
}

EmulatedHid::~EmulatedHid()
{
    pullOut();
}

bool EmulatedHid::plugIn()
{
    m_process.start(TARNWICK_HID_EMULATOR, m_arguments);
    return m_process.waitForReadyRead(hidPatienceMs);
}

bool EmulatedHid::pullOut()
{
    if (m_process.state() != QProcess::Running) {
        return false;
    }
    m_process.terminate();
    return m_process.waitForFinished(hidPatienceMs) &&
           m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0;
}
