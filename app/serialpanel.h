#pragma once

#include <QObject>

namespace Ui {
class Dialog;
}
class SerialLink;
struct SerialSettings;

/// The "Uart" tab: its option lists, the port opened as they say, and whether it is open.
class SerialPanel : public QObject
{
    Q_OBJECT

public:
    /// Fills the option lists. Form and link must outlive the panel.
    SerialPanel(Ui::Dialog &form, SerialLink &link, QObject *parent = nullptr);

    /// Lists the ports anew and selects the chosen one again, without opening any.
    void refreshPorts(const QString &linksFolder);

    /// Opens the selected port, closing an open one first.
    void open();

    /// Closes the open port; opens the selected one where none is open.
    void toggle();

    /// Makes the baud rate box ready for the rate that was picked: "custom" is typed by hand.
    void prepareBaudRate(int index);

signals:
    /// The port did not open, for this reason.
    void failed(const QString &reason);

private:
    void fillOptions();
    SerialSettings chosenSettings() const;
    qint32 baudRate() const;
    void selectPort(int index);
    void showOpen(bool open);

    Ui::Dialog &m_form;
    SerialLink &m_link;
    QString m_chosenPortName;
};
