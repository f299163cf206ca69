#include "serialadapter.h"

#include <QFile>
#include <QtTest>

namespace {

constexpr int adapterPatienceMs = 20000;

/// The host looks into this file for where it is to put the adapter.
bool ask(const QByteArray &position)
{
    QFile file(qEnvironmentVariable("TARNWICK_TRIAL_SHARE") + QStringLiteral("/adapter"));
    return file.open(QIODevice::WriteOnly) && file.write(position) == position.size();
}

bool portIsThere()
{
    return QFile::exists(QStringLiteral("/dev/ttyUSB0"));
}

} // namespace

SerialAdapter::~SerialAdapter()
{
    if (m_pluggedIn) {
        pullOut();
    }
}

bool SerialAdapter::plugIn()
{
    m_pluggedIn = true;
    return ask("in") && QTest::qWaitFor(portIsThere, adapterPatienceMs);
}

bool SerialAdapter::pullOut()
{
    m_pluggedIn = false;
    return ask("out") && QTest::qWaitFor([] { return !portIsThere(); }, adapterPatienceMs);
}
