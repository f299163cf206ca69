#pragma once

#include <QObject>
#include <QTimer>

class HidPanel;
class SerialPanel;

/// Keeps the tabs' lists of ports and devices up to date.
class DeviceLists : public QObject
{
    Q_OBJECT

public:
    /// The lists are due for the first time in a second, so that the window is there before. Both
    /// panels must outlive this.
    DeviceLists(SerialPanel &serial, HidPanel &hid, QObject *parent = nullptr);

    /// Something has come or gone: the lists are due when nothing more has for half a second.
    void refreshSoon();

    /// Reads both lists anew now.
    void refresh();

signals:
    /// The lists are due; who shows them calls `refresh`.
    void due();

private:
    SerialPanel &m_serial;
    HidPanel &m_hid;
    QTimer m_timer;
};
