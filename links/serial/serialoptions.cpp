#include "links/serial/serialoptions.h"

#include "frames/messages.h"

namespace SerialOptions {

QStringList baudRates()
{
    return {Messages::tr("custom"),   QStringLiteral("9600"),   QStringLiteral("19200"),
            QStringLiteral("38400"),  QStringLiteral("57600"),  QStringLiteral("115200"),
            QStringLiteral("230400"), QStringLiteral("256000"), QStringLiteral("460800"),
            QStringLiteral("921600"), QStringLiteral("1382400")};
}

QStringList dataBits()
{
    return {QStringLiteral("5"), QStringLiteral("6"), QStringLiteral("7"), QStringLiteral("8")};
}

QStringList parities()
{
    return {Messages::tr("None"), Messages::tr("Even"), Messages::tr("Odd")};
}

QStringList stopBits()
{
    return {QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("1.5")};
}

QSerialPort::DataBits dataBitsAt(int index)
{
    switch (index) {
    case 0:
        return QSerialPort::Data5;
    case 1:
        return QSerialPort::Data6;
    case 2:
        return QSerialPort::Data7;
    default:
        return QSerialPort::Data8;
    }
}

QSerialPort::Parity parityAt(int index)
{
    switch (index) {
    case 1:
        return QSerialPort::EvenParity;
    case 2:
        return QSerialPort::OddParity;
    default:
        return QSerialPort::NoParity;
    }
}

QSerialPort::StopBits stopBitsAt(int index)
{
    switch (index) {
    case 1:
        return QSerialPort::TwoStop;
    case 2:
        return QSerialPort::OneAndHalfStop;
    default:
        return QSerialPort::OneStop;
    }
}

} // namespace SerialOptions
