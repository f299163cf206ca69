#include "devicewindow.h"

#include "frames/sender.h"
#include "log/receiver.h"
#include "widgets/tableitems.h"

#include <QTabWidget>

#include <algorithm>

namespace {

constexpr int mostDataBytes = 200;
constexpr int lengthStep = 37;

/// The widgets of one tab.
struct TabNames
{
    const char *list;
    const char *linkButton;
    const char *sendAllButton;
    const char *idleCaption;
    const char *eventName;
    QStringList widgets;
};

const TabNames &namesOf(DeviceWindow::Tab tab)
{
    static const TabNames uart{"comboBox_Comm",
                               "pushButton_OpenCom",
                               "pushButton_SendAll",
                               "Open Com Port",
                               "Uart",
                               {"comboBox_Comm", "comboBox_Baudrate", "comboBox_DataBit",
                                "comboBox_Parity", "comboBox_StopBit", "pushButton_OpenCom",
                                "pushButton_SendAll", "checkBox_CRC_EN", "lineEdit_SBytes"}};
    static const TabNames hid{"comboBox_Hid_Device",
                              "pushButton_ConnectHID",
                              "pushButton_SendAll_2",
                              "Open HID Device",
                              "HID",
                              {"comboBox_Hid_Device", "lineEdit_RpID", "pushButton_ConnectHID",
                               "pushButton_SendAll_2", "checkBox_CRC_EN_2", "lineEdit_SBytes_2"}};
    return tab == DeviceWindow::Tab::Uart ? uart : hid;
}

const QStringList widgetsOfBothTabs{"pushButton_LoadCommand",
                                    "pushButton_SaveCommand",
                                    "pushButton_ClearCommand",
                                    "pushButton_SaveMessage",
                                    "lineEdit_StepValue",
                                    "lineEdit_CycleTime",
                                    "tabWidget"};

QString hexNumber(int number)
{
    return QString::number(number, 16).rightJustified(4, '0');
}

/// Different bytes for each number, and lengths that end at all sorts of places in a report.
QString requestData(int number)
{
    const int length = 1 + number * lengthStep % mostDataBytes;
    QByteArray bytes;
    for (int i = 0; i < length; ++i) {
        bytes.append(static_cast<char>(number + i * lengthStep));
    }
    return QString::fromLatin1(bytes.toHex());
}

} // namespace

DeviceWindow::DeviceWindow(Tab tab)
    : m_tab(tab)
{
    find<QTabWidget>("tabWidget")->setCurrentIndex(int(tab));
    auto *sender = window().findChild<Sender *>();
    auto *receiver = window().findChild<Receiver *>();
    QObject::connect(sender, &Sender::sent, &m_counter,
                     [this](const QByteArray &frame) { m_sent.append(frame); });
    QObject::connect(receiver, &Receiver::frameReceived, &m_counter,
                     [this](const QByteArray &frame) { m_received.append(frame); });
    QObject::connect(receiver, &Receiver::strayReceived, &m_counter,
                     [this](const QByteArray &bytes) {
                         // Reports are filled up with zeros, which nobody is shown.
                         m_notices += bytes.count('\0') < bytes.size() ? 1 : 0;
                     });
}

QStringList DeviceWindow::offered() const
{
    const QComboBox *list = combo(namesOf(m_tab).list);
    QStringList names;
    for (int i = 0; i < list->count(); ++i) {
        names.append(list->itemText(i));
    }
    return names;
}

QString DeviceWindow::chosen() const
{
    return combo(namesOf(m_tab).list)->currentText();
}

void DeviceWindow::choose(const QString &name)
{
    QComboBox *list = combo(namesOf(m_tab).list);
    list->setCurrentIndex(list->findText(name));
}

void DeviceWindow::pressLinkButton()
{
    click(namesOf(m_tab).linkButton);
}

void DeviceWindow::open(const QString &name)
{
    choose(name);
    pressLinkButton();
}

bool DeviceWindow::showsOpenLink() const
{
    return button(namesOf(m_tab).linkButton)->text() == QLatin1String("Linking...");
}

bool DeviceWindow::isAtRest() const
{
    const QStringList names = widgetsOfBothTabs + namesOf(m_tab).widgets;
    return button(namesOf(m_tab).linkButton)->text() == QLatin1String(namesOf(m_tab).idleCaption) &&
           button("pushButton_Start_Loop")->text() == QLatin1String("Auto Send") &&
           std::all_of(names.begin(), names.end(), [this](const QString &name) {
               return find<QWidget>(qPrintable(name))->isEnabled();
           });
}

void DeviceWindow::writeRequests(int firstNumber)
{
    for (int row = 0; row < rowCount; ++row) {
        const int number = firstNumber + row;
        setRow(row, "42", hexNumber(number), requestData(number));
        checkRow(row);
    }
}

void DeviceWindow::sendEachRow()
{
    for (int row = 0; row < rowCount; ++row) {
        clickSend(row);
    }
}

void DeviceWindow::sendAllRows()
{
    click(namesOf(m_tab).sendAllButton);
}

void DeviceWindow::sendRequests(int count)
{
    for (int first = 0; first < count; first += 2 * rowCount) {
        writeRequests(first);
        sendEachRow();
        writeRequests(first + rowCount);
        sendAllRows();
    }
}

void DeviceWindow::startLoop()
{
    edit("lineEdit_StepValue")->setText("5");
    edit("lineEdit_CycleTime")->setText("5");
    click("pushButton_Start_Loop");
}

int DeviceWindow::events(const QString &text) const
{
    constexpr int textColumn = 5;
    const QLatin1String name(namesOf(m_tab).eventName);
    int count = 0;
    for (int row = 0; row < messages()->rowCount(); ++row) {
        const bool isEvent = cellText(*messages(), row, 0) == name;
        count += isEvent && cellText(*messages(), row, textColumn) == text ? 1 : 0;
    }
    return count;
}
