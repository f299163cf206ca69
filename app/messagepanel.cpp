#include "app/messagepanel.h"

#include "app/commandpanel.h"
#include "app/messagearea.h"
#include "app/windowmemory.h"
#include "log/logtable.h"
#include "session/session.h"

MessagePanel::MessagePanel(MessageArea &area, Session &session, QObject *parent)
    : QObject(parent)
    , m_log(area.table(), session.log(), this)
    , m_menu(area.table(), m_log, session.log(), this)
{
    area.follow(m_log);
    connect(&m_menu, &MessageMenu::findWanted, &area, &MessageArea::openFind);
    connect(&m_menu, &MessageMenu::timeWanted, this, &MessagePanel::setShownTime);
    m_log.setHold([&session] { return session.loop().isFrameNear(); });
}

void MessagePanel::goToRowsOf(CommandPanel &commands)
{
    m_menu.setRowCheck([&commands](int id) { return commands.rows().rowWithId(id) >= 0; });
    connect(&m_menu, &MessageMenu::rowWanted, &commands, &CommandPanel::goToRow);
}

void MessagePanel::remember(WindowMemory &memory)
{
    m_memory = &memory;
    m_log.setShownTime(memory.shownTime());
}

void MessagePanel::setShownTime(ShownTime shown)
{
    m_log.setShownTime(shown);
    if (m_memory != nullptr) {
        m_memory->setShownTime(shown);
    }
}
