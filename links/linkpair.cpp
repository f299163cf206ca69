#include "links/linkpair.h"

LinkPair::LinkPair(int longestRead, const QString &deviceIdFile, QObject *parent)
    : QObject(parent)
    , m_serial(longestRead, this)
    , m_hid(deviceIdFile, this)
{}

Link &LinkPair::chosen()
{
    return m_mode == LinkMode::Uart ? static_cast<Link &>(m_serial) : m_hid;
}

void LinkPair::choose(LinkMode mode)
{
    m_mode = mode;
    if (mode == LinkMode::Uart) {
        m_hid.close();
    } else {
        m_serial.close();
    }
}

void LinkPair::close()
{
    m_serial.close();
    m_hid.close();
}
