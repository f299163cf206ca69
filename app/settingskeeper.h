#pragma once

#include "files/settings.h"

class ListFiles;
class Session;

/// The settings of this run: session and files begin with what the file says, and leave to the file
/// what they end with.
class SettingsKeeper
{
public:
    /// Reads the file of that path.
    explicit SettingsKeeper(const QString &path);

    const Settings &settings() const { return m_settings; }

    /// Frames' format and link, and the folders of dialogs.
    void apply(Session &session, ListFiles &files) const;

    /// Writes the file with the link that is in use and the folders as they are now.
    void save(Session &session, const ListFiles &files);

private:
    SettingsFile m_file;
    Settings m_settings;
};
