#include "links/serial/serialline.h"

#include "links/serial/seriallink.h"

namespace {

QString parityLetter(QSerialPort::Parity parity)
{
    switch (parity) {
    case QSerialPort::EvenParity:
        return QStringLiteral("E");
    case QSerialPort::OddParity:
        return QStringLiteral("O");
    default:
        return QStringLiteral("N");
    }
}

QString stopBitsText(QSerialPort::StopBits bits)
{
    switch (bits) {
    case QSerialPort::TwoStop:
        return QStringLiteral("2");
    case QSerialPort::OneAndHalfStop:
        return QStringLiteral("1.5");
    default:
        return QStringLiteral("1");
    }
}

} // namespace

QString describeLine(const SerialSettings &settings)
{
    return QStringLiteral("%1 %2%3%4")
        .arg(QString::number(settings.baudRate), QString::number(settings.dataBits),
             parityLetter(settings.parity), stopBitsText(settings.stopBits));
}
