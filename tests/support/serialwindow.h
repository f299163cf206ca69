#pragma once

#include "windowdriver.h"

#include <QSerialPort>

/// A window on its serial tab, which it begins with.
class SerialWindow : public WindowDriver
{
public:
    /// Picks an entry as a person does, so that the box says so.
    static void pick(QComboBox *box, int index)
    {
        box->setCurrentIndex(index);
        emit box->activated(index);
    }

    QSerialPort *port() { return window().findChild<QSerialPort *>(); }
    bool looksOpen() const { return button("pushButton_OpenCom")->text() == "Linking..."; }
};
