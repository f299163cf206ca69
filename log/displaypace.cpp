#include "log/displaypace.h"

#include <utility>

namespace {

constexpr int askAgainMs = 2;
constexpr int longestHoldMs = 50;

} // namespace

DisplayPace::DisplayPace(QObject *parent, int frameMs)
    : QObject(parent)
    , m_frameMs(frameMs)
{
    m_frame.setSingleShot(true);
    m_frame.setTimerType(Qt::PreciseTimer);
    connect(&m_frame, &QTimer::timeout, this, &DisplayPace::onFrame);
}

void DisplayPace::setHold(std::function<bool()> hold)
{
    m_hold = std::move(hold);
}

void DisplayPace::request()
{
    m_requested = true;
    if (!m_frame.isActive()) {
        onFrame();
    }
}

void DisplayPace::onFrame()
{
    if (!m_requested) {
        return;
    }
    if (isHeld()) {
        m_frame.start(askAgainMs);
    } else {
        show();
    }
}

bool DisplayPace::isHeld()
{
    if (!m_hold || !m_hold()) {
        return false;
    }
    if (!m_heldSince.isValid()) {
        m_heldSince.start();
    }
    return m_heldSince.elapsed() < longestHoldMs;
}

void DisplayPace::show()
{
    m_requested = false;
    m_heldSince.invalidate();
    m_frame.start(m_frameMs);
    emit due();
}
