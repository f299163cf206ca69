#pragma once

#include "commands/listhistory.h"

#include <QObject>
#include <QString>

/// Where the command list stands: the file that it came from or went to, and whether it was changed
/// since.
class ListState : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    bool isModified() const { return m_isModified; }

    /// The list's file; empty while it has none.
    QString path() const { return m_path; }

    ListStanding standing() const { return {m_path, m_isModified}; }

    /// The name of its file, and "*" where the list was changed.
    QString title() const;

    /// The list was changed.
    void setModified() { become(m_path, true); }

    /// The list is now as it is in this file.
    void setStored(const QString &path) { become(path, false); }

    /// The list begins anew, without a file.
    void setNew() { become({}, false); }

    /// The list stands again as it did before.
    void restore(const ListStanding &standing) { become(standing.path, standing.isModified); }

signals:
    /// Another file, or another answer to whether the list was changed.
    void changed();

private:
    void become(const QString &path, bool isModified);

    QString m_path;
    bool m_isModified = false;
};
