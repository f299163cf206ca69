#pragma once

#include <QString>

/// What the program remembers from run to run. The three switches are kept as the numbers they are
/// in the file; anything but 0 means on. See docs/deliberate.md, Switches in a file.
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

/// The settings file: INI format, UTF-8, group "set", as QSettings reads and writes it. What else
/// is in the file stays as it is. A file that can't be read gives the defaults, and one that can't
/// be written is left as it is; neither is an error. Anything but a regular file of at most 1 MiB
/// is neither read nor written.
///
/// The values are read as text and never as QSettings would decode them: some would ask for more
/// memory than there is.
class SettingsFile
{
public:
    explicit SettingsFile(QString path);

    /// Any link mode but 0 is read as 1.
    Settings load() const;
    void save(const Settings &settings) const;

private:
    QString m_path;
};
