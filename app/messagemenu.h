#pragma once

#include "app/messagecopy.h"
#include "log/timecolumn.h"

#include <QMenu>
#include <QObject>

#include <functional>
#include <optional>

class MessageLog;
class QActionGroup;
class QTableWidget;
class RecordLog;

/// The context menu of the message log, which the mouse, the menu key and Shift+F10 open, and the
/// keys that it shows.
class MessageMenu : public QObject
{
    Q_OBJECT

public:
    /// The table is the log's, which shows the records; all must outlive this.
    MessageMenu(QTableWidget &table, MessageLog &log, const RecordLog &records,
                QObject *parent = nullptr);

    /// What tells whether the command row with an identity is still there.
    void setRowCheck(std::function<bool(int id)> isThere) { m_isThere = std::move(isThere); }

    bool eventFilter(QObject *object, QEvent *event) override;

signals:
    /// Something is to be looked for in the log.
    void findWanted();

    /// The command row with that identity is to be shown.
    void rowWanted(int id);

    /// The log's last column is to show that.
    void timeWanted(ShownTime shown);

private:
    template<typename Reaction>
    QAction *addEntry(const QString &text, const QKeySequence &key, Reaction reaction);
    void addCopyEntries();
    void addViewEntries();
    void addTimeEntries();
    void addKey(const QKeySequence &key, std::function<void()> reaction);
    void trigger(QAction &entry);
    void popUp(const QPoint &place);
    void popUpAtCurrentRow();
    void refresh();
    std::optional<LogRecord> currentRecord() const;
    int rowOfOrigin() const;

    QTableWidget &m_table;
    MessageLog &m_log;
    const RecordLog &m_records;
    MessageCopy m_copy;
    QMenu m_menu;
    QAction *m_copyRows = nullptr;
    QVector<QAction *> m_copyData;
    QActionGroup *m_times;
    QAction *m_hold = nullptr;
    QAction *m_goToRow = nullptr;
    std::function<bool(int id)> m_isThere;
};
