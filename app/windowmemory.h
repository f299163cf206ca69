#pragma once

#include "app/windowplace.h"

#include <QObject>
#include <QString>

class QSplitter;
class QWidget;

/// Remembers from run to run where the window stood, how its splitter divided it, and what the user
/// chose beyond the settings, in a file of its own. A file that can't be read or written is no
/// error: the window then begins as a new one.
class WindowMemory : public QObject
{
    Q_OBJECT

public:
    /// Window and splitter must outlive the memory.
    WindowMemory(QWidget &window, QSplitter &splitter, QString path, QObject *parent = nullptr);

    /// Gives the window its place of the last run, brought onto the screens of today, or a first
    /// size that fits them. To be called before the window is shown.
    void restore();

    /// Writes down how the window stands.
    void save();

    /// The folder that recordings were last written to; empty where none was chosen yet.
    QString recordingFolder() const { return m_place.recordings; }
    void setRecordingFolder(const QString &folder) { m_place.recordings = folder; }

    /// How many passes the loop makes; 0 for an endless one.
    int repeat() const { return m_place.repeat; }
    void setRepeat(int passes) { m_place.repeat = passes; }

    /// What the log shows of the time.
    ShownTime shownTime() const { return m_place.shownTime; }
    void setShownTime(ShownTime shown) { m_place.shownTime = shown; }

    /// Whether a lost port is opened again.
    bool reopens() const { return m_place.reopens; }
    void setReopens(bool reopens) { m_place.reopens = reopens; }

    /// The command files that were used last, the last one first.
    QStringList recentFiles() const { return m_place.recentFiles; }
    void setRecentFiles(const QStringList &files) { m_place.recentFiles = files; }

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    QWidget &m_window;
    QSplitter &m_splitter;
    QString m_path;
    WindowPlace m_place;
};
