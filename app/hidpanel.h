#pragma once

#include <QObject>

class HidLink;
class HidTab;

/// Opens and closes the HID device as its tab says, and shows there which devices there are and
/// whether one is open.
class HidPanel : public QObject
{
    Q_OBJECT

public:
    /// Tab and link must outlive the panel.
    HidPanel(HidTab &tab, HidLink &link, QObject *parent = nullptr);

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
    HidTab &m_tab;
    HidLink &m_link;
};
