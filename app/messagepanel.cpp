#include "app/messagepanel.h"

#include "app/messagearea.h"
#include "log/logtable.h"
#include "session/session.h"

MessagePanel::MessagePanel(MessageArea &area, Session &session, QObject *parent)
    : QObject(parent)
    , m_log(area.table(), session.log(), this)
    , m_menu(area.table(), m_log, session.log(), this)
{
    area.follow(m_log);
    connect(&m_menu, &MessageMenu::findWanted, &area, &MessageArea::openFind);
    m_log.setHold([&session] { return session.loop().isFrameNear(); });
}
