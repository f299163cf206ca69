#pragma once

#include <QProcess>

/// A HID device that can be plugged in and pulled out. It answers like the simulated device.
class EmulatedHid
{
public:
    /// The product ID is four hex digits; the vendor is EEEF. A report has so many data bytes.
    EmulatedHid(const QString &product, int reportSize);
    ~EmulatedHid();

    bool plugIn();
    /// Pulls the device out. False if it has been misused meanwhile, or isn't plugged in.
    bool pullOut();

private:
    QStringList m_arguments;
    QProcess m_process;
};
