#include "app/loopstatus.h"

#include "app/statusline.h"
#include "session/session.h"

namespace {

constexpr int showEveryMs = 250;

} // namespace

LoopStatus::LoopStatus(Session &session, StatusLine &status, QObject *parent)
    : QObject(parent)
    , m_pace(this, showEveryMs)
{
    m_pace.setHold([&session] { return session.loop().isFrameNear(); });
    connect(&session.replies(), &ReplyMeter::loopChanged, &m_pace, &DisplayPace::request);
    connect(&m_pace, &DisplayPace::due, this, [&session, &status] {
        status.showLoop(loopFiguresText(session.replies().loopFigures()));
    });
}
