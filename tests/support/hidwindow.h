#pragma once

#include "windowdriver.h"

#include <QTabWidget>

/// A window on its HID tab, with the devices listed.
class HidWindow : public WindowDriver
{
public:
    HidWindow()
    {
        find<QTabWidget>("tabWidget")->setCurrentIndex(1);
        listPorts();
    }

    /// Chooses a listed device and opens it with the button.
    void openDevice(const QByteArray &path)
    {
        combo("comboBox_Hid_Device")->setCurrentText(path);
        click("pushButton_ConnectHID");
    }

    QString linkCaption() const { return button("pushButton_ConnectHID")->text(); }
    QString loopCaption() const { return button("pushButton_Start_Loop")->text(); }
};
