#pragma once

#include "links/serial/seriallink.h"

#include <QStringList>
#include <QWidget>

#include <memory>

namespace Ui {
class SerialTab;
}
class HeaderField;
class QLabel;

/// The "Uart" tab: the boxes that say how a port is opened, the field of the start bytes, and the
/// box that says whether frames carry a CRC.
class SerialTab : public QWidget
{
    Q_OBJECT

public:
    /// Fills the boxes that have fixed choices.
    explicit SerialTab(QWidget *parent = nullptr);
    ~SerialTab() override;

    /// Lists these ports and selects one by its place; the first one where there is no such place.
    /// The box tells nobody.
    void showPorts(const QStringList &names, int selected);

    /// The port and its settings as the boxes say.
    SerialSettings settings() const;

    /// Makes the baud rate box ready for the rate that was picked: "custom" is typed by hand.
    void prepareBaudRate(int index);

    /// Shows whether the port is open; an open one's settings can't be changed.
    void showOpen(bool open);

    /// What must not change while frames are sent in a loop can't be used meanwhile.
    void setResting(bool resting);

    /// Whether frames carry a CRC, and the box that says so can be used.
    bool wantsCrc() const;
    void enableCrcBox();

    /// Whether a lost port is to be opened again when it is back.
    void setReopens(bool reopens);

    HeaderField &header() const;
    QLabel &statusLabel() const;

signals:
    /// The user has chosen how a port is opened, but for which one.
    void lineChosen();

    void reopensChanged(bool reopens);

private:
    void fillOptions();
    void watchChoices();
    qint32 baudRate() const;

    std::unique_ptr<Ui::SerialTab> m_form;
};
