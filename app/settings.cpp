#include "settings.h"

#include <QTextCodec>

namespace {

const char *const lastLoadPathKey = "/set/LastLoadPath";
const char *const lastSavePathKey = "/set/LastSavePath";
const char *const linkModeKey = "/set/debuggerMode";
const char *const noAppendHeaderKey = "/set/noAppendHeader";
const char *const noAppendLengthKey = "/set/noAppendLength";
const char *const isEditorFunKey = "/set/isEditorFun";

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
    m_file.setValue(lastLoadPathKey, settings.lastLoadPath);
    m_file.setValue(lastSavePathKey, settings.lastSavePath);
    m_file.setValue(linkModeKey, settings.linkMode);
    m_file.setValue(isEditorFunKey, settings.isEditorFun);
    m_file.setValue(noAppendHeaderKey, settings.noAppendHeader);
    m_file.setValue(noAppendLengthKey, settings.noAppendLength);
    m_file.sync();
}
