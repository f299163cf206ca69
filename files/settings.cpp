#include "files/settings.h"

#include "files/filesaver.h"
#include "files/settingstext.h"
#include "system/filereader.h"

#include <QFileInfo>

#include <utility>

SettingsFile::SettingsFile(QString path)
    : m_path(std::move(path))
{}

Settings SettingsFile::load() const
{
    return settingsIn(readFile(m_path, largestSettingsFile).bytes);
}

void SettingsFile::save(const Settings &settings) const
{
    const FileContent former = readFile(m_path, largestSettingsFile);
    const bool isMissing = !QFileInfo::exists(m_path);
    const QByteArray content = withSettings(former.bytes, settings);
    const bool canBeRead = content.size() <= largestSettingsFile;
    if ((former.outcome == FileContent::Outcome::Read || isMissing) && canBeRead) {
        saveFile(m_path, content);
    }
}
