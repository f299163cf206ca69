#pragma once

#include <QSettings>
#include <QString>

/// What the program remembers from run to run. The three switches are kept as the numbers they are
/// in the file; anything but 0 means on.
struct Settings
{
    /// Folder of the last loaded command file.
    QString lastLoadPath;
    /// Folder of the last saved file.
    QString lastSavePath;
    /// 0 for the "Uart" tab, 1 for the "HID" tab.
    int linkMode = 0;
    /// Frames go out without start bytes.
    int noAppendHeader = 0;
    /// Frames go out without a length field.
    int noAppendLength = 0;
    /// The row menu of the command table offers "edit".
    int isEditorFun = 0;
};

/// The settings file: INI format, UTF-8, group "set". A file that can't be read gives the defaults,
/// and one that can't be written is left as it is; neither is an error.
class SettingsFile
{
public:
    explicit SettingsFile(const QString &path);

    /// Any link mode but 0 is read as 1.
    Settings load() const;
    void save(const Settings &settings);

private:
    QSettings m_file;
};
