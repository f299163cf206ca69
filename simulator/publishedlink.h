#pragma once

#include "system/lockfile.h"

#include <QString>

/// A symbolic link under which a port is found, for as long as this object lives.
///
/// Whoever publishes a name holds a lock on it (a hidden file beside the link), so a link that was
/// left behind by a device that died is told from that of a running one, even if its target exists
/// again as something else.
class PublishedLink
{
public:
    /// The link folder/name; nothing is touched before publish().
    PublishedLink(const QString &folder, const QString &name);
    PublishedLink(const PublishedLink &) = delete;
    PublishedLink &operator=(const PublishedLink &) = delete;

    /// Removes the link, unless it points elsewhere by now.
    ~PublishedLink();

    /// Makes the folder if it is missing and lets the link point to the target. A left-behind link
    /// is replaced; one of a running device, or anything else of that name, is left as it is.
    /// Returns an error in words, empty if all is well.
    QString publish(const QString &target);

    /// The absolute path of the link.
    QString path() const { return m_path; }

private:
    /// An error in words, empty if the name is ours from now on.
    QString lockName();

    QString m_folder;
    QString m_path;
    QString m_target;
    LockFile m_lock;
};

/// The folder that links are published in by default: `ports` in the folder of the program, or,
/// where that can't be written, in the user's folder for the settings of the application of that
/// name. Needs the application object.
QString defaultPortsFolder(const QString &applicationName);
