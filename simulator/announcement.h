#pragma once

#include <QByteArray>
#include <QSocketNotifier>
#include <QString>

/// Prints a line on the standard output as soon as that takes it, in the event loop: a reader that
/// doesn't read holds up nothing.
class Announcement
{
public:
    explicit Announcement(const QString &line);

private:
    void print();

    QByteArray m_rest;
    QSocketNotifier m_room;
};
