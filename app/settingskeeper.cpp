#include "app/settingskeeper.h"

#include "app/listfiles.h"
#include "session/session.h"

SettingsKeeper::SettingsKeeper(const QString &path)
    : m_file(path)
    , m_settings(m_file.load())
{}

void SettingsKeeper::apply(Session &session, ListFiles &files) const
{
    session.format().setStartBytes(m_settings.noAppendHeader == 0);
    session.format().setLength(m_settings.noAppendLength == 0);
    session.use(static_cast<LinkMode>(m_settings.linkMode));
    files.takeFolders(m_settings);
}

void SettingsKeeper::save(Session &session, const ListFiles &files)
{
    files.noteFolders(m_settings);
    m_settings.linkMode = int(session.links().mode());
    m_file.save(m_settings);
}
