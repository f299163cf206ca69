#pragma once

#include "windowdriver.h"

#include <QObject>
#include <QVector>

/// The real window as somebody uses it who tries a device on one of its tabs.
class DeviceWindow : public WindowDriver
{
public:
    enum class Tab { Uart, Hid };

    static constexpr int rowCount = 5;
    /// How long anything may take that a device or the system does.
    static constexpr int patienceMs = 20000;

    explicit DeviceWindow(Tab tab);

    /// The names that the tab offers, and the choice of one of them.
    QStringList offered() const;
    QString chosen() const;
    void choose(const QString &name);

    /// Presses the button that opens and closes the link.
    void pressLinkButton();
    /// Chooses a device that is offered and opens it.
    void open(const QString &name);
    bool showsOpenLink() const;
    /// Whether everything can be used that a loop or an open link takes away.
    bool isAtRest() const;

    /// Writes requests into the rows, which an answer repeats. Each has the given number in it, or
    /// one of those that follow, and a length of its own.
    void writeRequests(int firstNumber = 0);
    void sendEachRow();
    void sendAllRows();
    /// Sends so many requests, half of them row by row and half in blocks of all rows.
    void sendRequests(int count);
    /// Starts the loop over the rows, as fast as it goes.
    void startLoop();

    /// Frames in the order in which they went over the link.
    QVector<QByteArray> sentFrames() const { return m_sent; }
    QVector<QByteArray> receivedFrames() const { return m_received; }

    /// How many rows of the log say so of the tab's link, such as "Insert ttyUSB0".
    int events(const QString &text) const;
    /// Rows of the log with bytes that belong to no frame.
    int notices() const { return m_notices; }

private:
    const Tab m_tab;
    QVector<QByteArray> m_sent;
    QVector<QByteArray> m_received;
    int m_notices = 0;
    /// Ends the counting first of all.
    QObject m_counter;
};
