#include "settings.h"

#include <QFileInfo>
#include <QTemporaryFile>
#include <QTextCodec>

namespace {

const char *const lastLoadPathKey = "/set/LastLoadPath";
const char *const lastSavePathKey = "/set/LastSavePath";
const char *const linkModeKey = "/set/debuggerMode";
const char *const noAppendHeaderKey = "/set/noAppendHeader";
const char *const noAppendLengthKey = "/set/noAppendLength";
const char *const isEditorFunKey = "/set/isEditorFun";

/// What the program's own keys can need, with paths of any length.
constexpr qint64 roomForOwnKeys = 16384;

/// Whether the file can be written anew beside the one that is there. QSettings does not notice a
/// full disk: it would put what little it could write in the file's place.
bool hasRoom(const QString &path)
{
    const qint64 size = QFileInfo(path).size() + roomForOwnKeys;
    QTemporaryFile probe(path);
    return probe.open() && probe.write(QByteArray(int(size), ' ')) == size && probe.flush();
}

} // namespace

SettingsFile::SettingsFile(const QString &path)
    : m_file(path, QSettings::IniFormat)
{
    m_file.setIniCodec(QTextCodec::codecForName("UTF-8"));
}

Settings SettingsFile::load() const
{
    const auto text = [this](const char *key) { return m_file.value(key).toString(); };
    const auto number = [this](const char *key) { return m_file.value(key).toInt(); };
    Settings settings;
    settings.lastLoadPath = text(lastLoadPathKey);
    settings.lastSavePath = text(lastSavePathKey);
    settings.linkMode = number(linkModeKey) != 0 ? 1 : 0;
    settings.noAppendHeader = number(noAppendHeaderKey);
    settings.noAppendLength = number(noAppendLengthKey);
    settings.isEditorFun = number(isEditorFunKey);
    return settings;
}

void SettingsFile::save(const Settings &settings)
{
    // What is set is written at the latest when the object goes, so nothing is set.
    if (!hasRoom(m_file.fileName())) {
        return;
    }
    m_file.setValue(lastLoadPathKey, settings.lastLoadPath);
    m_file.setValue(lastSavePathKey, settings.lastSavePath);
    m_file.setValue(linkModeKey, settings.linkMode);
    m_file.setValue(isEditorFunKey, settings.isEditorFun);
    m_file.setValue(noAppendHeaderKey, settings.noAppendHeader);
    m_file.setValue(noAppendLengthKey, settings.noAppendLength);
    m_file.sync();
}
