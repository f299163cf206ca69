#include "app/looppanel.h"

#include "app/commandarea.h"
#include "app/hidtab.h"
#include "app/looparea.h"
#include "app/serialtab.h"
#include "app/windowmemory.h"
#include "session/session.h"

#include <QPushButton>
#include <QTabWidget>

namespace {

constexpr int countEveryMs = 100;

} // namespace

LoopPanel::LoopPanel(const LoopPieces &pieces, QObject *parent)
    : QObject(parent)
    , m_pieces(pieces)
{
    m_nextCount.setSingleShot(true);
    m_nextCount.setInterval(countEveryMs);
    connect(&m_nextCount, &QTimer::timeout, this, &LoopPanel::showPass);
}

void LoopPanel::follow(Session &session)
{
    const LoopControl &loop = session.loop();
    connect(&loop, &LoopControl::started, this,
            [this, &session] { showRunning(session.links().mode()); });
    connect(&loop, &LoopControl::passBegan, this, &LoopPanel::notePass);
    connect(&loop, &LoopControl::stopped, this, &LoopPanel::showStopped);
    connect(&loop, &LoopControl::foundNothing, this, &LoopPanel::showNothingToSend);
}

void LoopPanel::remember(WindowMemory &memory)
{
    m_pieces.loop.setRepeat(memory.repeat());
    connect(&m_pieces.loop, &LoopArea::repeatChanged, this,
            [&memory](int passes) { memory.setRepeat(passes); });
}

/// What must not change under a running loop over the link can't be used meanwhile.
void LoopPanel::showRunning(LinkMode mode)
{
    m_mode = mode;
    setResting(true);
    setLinkResting(mode, true);
    m_pieces.tabs.setEnabled(false);
}

void LoopPanel::showStopped()
{
    setResting(false);
    setLinkResting(m_mode, false);
    m_pieces.tabs.setEnabled(true);
    m_pieces.serial.enableCrcBox();
}

/// After a loop that found nothing to send, only the serial tab's widgets come back, whatever the
/// link, and the tabs stay disabled. See docs/deliberate.md, Half a return.
void LoopPanel::showNothingToSend()
{
    setResting(false);
    setLinkResting(LinkMode::Uart, false);
}

void LoopPanel::setResting(bool resting)
{
    m_pieces.commands.setResting(resting);
    m_pieces.saveMessages.setDisabled(resting);
    m_pieces.loop.showRunning(resting);
    m_nextCount.stop();
    m_pass = 0;
    m_shownPass = 0;
}

void LoopPanel::notePass(qint64 pass)
{
    m_pass = pass;
    if (!m_nextCount.isActive()) {
        showPass();
    }
}

void LoopPanel::showPass()
{
    if (m_pass != m_shownPass) {
        m_shownPass = m_pass;
        m_pieces.loop.showPass(m_pass);
        m_nextCount.start();
    }
}

void LoopPanel::setLinkResting(LinkMode mode, bool resting)
{
    if (mode == LinkMode::Hid) {
        m_pieces.hid.setResting(resting);
    } else {
        m_pieces.serial.setResting(resting);
    }
}
