#pragma once

#include "ranprogram.h"

#include <QVector>

/// A HID device, as a test plugs it in.
struct PluggedHid
{
    QString ids = QStringLiteral("EEEF:1616");
    QString serialNumber = {};
    /// What is opened.
    QString path = QStringLiteral("/dev/hidraw-of-a-test");
    /// Whether whoever opens it is refused.
    bool refuses = false;
};

/// The HID devices that a program linked with standinhid.cpp finds: a file in a folder is an
/// attached device, which answers as the simulated device does. The program is told of the folder
/// by its environment.
class HidFolder
{
public:
    HidFolder();

    /// Attaches a device under a name of the test's own.
    void plugIn(const QString &name, const PluggedHid &device = {}) const;
    /// Detaches it; whoever has it open has no device any more.
    void pullOut(const QString &name) const;

    /// The reports that were written to a device, with their IDs in front.
    QVector<QByteArray> written(const QString &name) const;

private:
    ListFolder m_folder;
};
