#include "app/liststate.h"

#include <QFileInfo>

QString ListState::title() const
{
    const QString name = QFileInfo(m_path).fileName();
    return m_isModified ? name + QLatin1Char('*') : name;
}

void ListState::become(const QString &path, bool isModified)
{
    if (path == m_path && isModified == m_isModified) {
        return;
    }
    m_path = path;
    m_isModified = isModified;
    emit changed();
}
