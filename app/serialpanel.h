#pragma once

#include <QObject>

class SerialLink;
class SerialTab;
struct PortList;

/// Opens and closes the serial port as its tab says, and shows there which ports there are and
/// whether one is open.
class SerialPanel : public QObject
{
    Q_OBJECT

public:
    /// Tab and link must outlive the panel.
    SerialPanel(SerialTab &tab, SerialLink &link, QObject *parent = nullptr);

    /// Lists the ports anew and selects the chosen one again, without opening any.
    void refreshPorts(const QString &linksFolder);

    /// Opens the selected port, closing an open one first.
    void open();

    /// Closes the open port; opens the selected one where none is open.
    void toggle();

signals:
    /// The user wants the port of that name opened.
    void opening(const QString &portName);

    /// The port did not open, for this reason.
    void failed(const QString &reason);

private:
    int placeToSelect(const PortList &ports) const;

    SerialTab &m_tab;
    SerialLink &m_link;
    QString m_chosenPortName;
};
