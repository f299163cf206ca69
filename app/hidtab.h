#pragma once

#include <QStringList>
#include <QWidget>

#include <memory>

namespace Ui {
class HidTab;
}
class QLabel;

/// The "HID" tab: which device is opened with which report ID, and the box that says whether frames
/// carry a CRC. Its field of start bytes is never read. See docs/deliberate.md, One header field.
class HidTab : public QWidget
{
    Q_OBJECT

public:
    explicit HidTab(QWidget *parent = nullptr);
    ~HidTab() override;

    /// Lists these devices; the one that was selected stays so if it is among them. Where there are
    /// none, a hint says why.
    void showDevices(const QStringList &paths);

    /// The path of the selected device; empty where there is none.
    QString devicePath() const;

    /// The report ID as typed in hex; 0 for a text that is no number.
    quint8 reportId() const;

    /// Shows whether the device is open; an open one's settings can't be changed.
    void showOpen(bool open);

    /// What must not change while frames are sent in a loop can't be used meanwhile.
    void setResting(bool resting);

    /// Whether frames carry a CRC.
    bool wantsCrc() const;

    QLabel &statusLabel() const;

private:
    std::unique_ptr<Ui::HidTab> m_form;
};
