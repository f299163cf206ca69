#pragma once

#include "commands/commandrow.h"
#include "system/lockfile.h"

#include <QObject>
#include <QString>
#include <QTimer>
#include <QVector>

#include <functional>
#include <memory>

class ListState;

/// How soon after the first change a recovery file is written, and how often from then on, in ms.
struct RecoveryPace
{
    int firstMs = 1000;
    int everyMs = 30'000;
};

/// Keeps the command list in a recovery file of the data folder for as long as it is modified, so
/// that it outlives the program if that ends without being asked to close.
///
/// Each running program has a recovery file of its own: it holds a lock beside it, by which others
/// know that the file is not left behind. Where nothing can be written, nothing is kept.
class Recovery : public QObject
{
    Q_OBJECT

public:
    /// The list's state must outlive this; its rows are asked for when they are to be written.
    Recovery(QString dataFolder, const ListState &list, std::function<QVector<CommandRow>()> rows,
             RecoveryPace pace = {}, QObject *parent = nullptr);
    /// Removes the file, unless it is to be kept.
    ~Recovery() override;

    /// Writes the file now if the list is modified, and leaves it to the next start even if the
    /// program now ends in good order.
    void keep();

    /// Writes the file now, whether the list is modified or not.
    void write();

    /// Removes the file: the list isn't needed any more.
    void discard();

    /// The newest recovery file whose program is gone; empty if there is none.
    QString leftBehind() const;

    /// The list was loaded from a file: it is kept from now on, and the file goes if it is one that
    /// was left behind.
    void takeOver(const QString &path);

private:
    void followList();
    bool claimFile();
    QString pathOf(int number) const;
    QString lockPathOf(int number) const;
    bool isLeftBehind(int number) const;

    QString m_folder;
    const ListState &m_list;
    std::function<QVector<CommandRow>()> m_rows;
    RecoveryPace m_pace;
    QTimer m_timer;
    std::unique_ptr<LockFile> m_lock;
    QString m_path;
    QByteArray m_written;
    bool m_isKept = false;
};
