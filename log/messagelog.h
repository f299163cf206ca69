#pragma once

#include "displaypace.h"
#include "logitem.h"

#include <QObject>
#include <QStringList>
#include <QVector>

#include <array>
#include <functional>

class LogTable;

/// The message log: a row for each frame sent or received, numbered, in a table that empties
/// itself.
///
/// The first rows of each display frame come into the table at once. What a flood brings beyond
/// them waits for the next display frame, so that rows which the log would empty again before
/// anybody could see them are never built; and the table moves on once in a display frame, however
/// many rows it brought. Whoever reads the log through this class sees every row.
class MessageLog : public QObject
{
    Q_OBJECT

public:
    /// Rows that it is filled with before it empties itself.
    static constexpr int mostRows = 1025;

    /// Which way a row's bytes went; an event has none.
    enum class Direction { None, Sent, Received };

    /// Sets the table up; it must outlive the log.
    explicit MessageLog(LogTable &table, QObject *parent = nullptr);

    /// What is asked before the table moves on. While it says true, the table waits, but no longer
    /// than 50 ms.
    void setHold(std::function<bool()> hold);

    /// Appends a sent frame's hex text, cut into its fields.
    void appendSent(const QString &hexText, bool withCrc);

    /// Appends a received frame's hex text, cut into its fields.
    void appendReceived(const QString &hexText, bool withCrc);

    /// Appends received data that form no frame.
    void appendNotice(const QString &text);

    /// Appends something that happened to a link. Its row shows the link's name instead of a
    /// number.
    void appendEvent(const QString &linkName, const QString &text);

    /// Empties the log; numbers start from 1 again.
    void clear();

    /// Rows that are filled.
    int count() const { return m_count; }

    /// The texts of columns 0 to 6 of all filled rows.
    QVector<std::array<QString, 7>> rows();

    /// Which way the bytes of a filled row went.
    Direction direction(int row) const { return m_directions.at(row); }

    /// Brings rows that wait for the display into the table.
    void bringIn();

signals:
    /// The number of filled rows has changed; once in a display frame at most.
    void countChanged(int used);

private:
    struct Entry
    {
        enum class Kind { Sent, Received, Notice };
        Kind kind = Kind::Sent;
        QString label;
        QString text;
        bool withCrc = false;
    };

    void append(Entry::Kind kind, const QString &text, bool withCrc);
    void append(Entry entry, Direction direction);
    void makeRoom();
    void forgetAll();
    void moveOn();
    void showBlankTable();
    void fillRow(int row, const Entry &entry);
    static LogItem::Colour colourOf(Entry::Kind kind, int column);
    static QStringList textsOf(const Entry &entry);

    LogTable &m_table;
    int m_count = 0;
    int m_nextNumber = 1;
    QVector<Direction> m_directions;
    QVector<Entry> m_waiting;
    bool m_tableIsStale = false;
    int m_rowsThisFrame = 0;
    int m_announcedCount = 0;
    DisplayPace m_pace;
};
