#pragma once

#include <QObject>

namespace Ui {
class Dialog;
}
class HidLink;

/// The "HID" tab: the list of devices, the device opened as the tab says, and whether it is open.
class HidPanel : public QObject
{
    Q_OBJECT

public:
    /// Form and link must outlive the panel.
    HidPanel(Ui::Dialog &form, HidLink &link, QObject *parent = nullptr);

    /// Lists the attached devices anew; the one that was chosen stays so if it is still there.
    void refreshDevices();

    /// Opens the chosen device, closing an open one first.
    void open();

    /// Closes the open device; opens the chosen one where none is open.
    void toggle();

signals:
    /// The device did not open, for this reason.
    void failed(const QString &reason);

private:
    void showOpen(bool open);

    Ui::Dialog &m_form;
    HidLink &m_link;
};
