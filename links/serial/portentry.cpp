#include "links/serial/portentry.h"

QString portNameInData(const QByteArray &data)
{
    QByteArray name = data;
    name.replace('\0', "");
    return QString::fromLatin1(name);
}

bool isFirstUsbSerial(const QString &valueName)
{
    return valueName == QLatin1String(R"(\Device\USBSER000)");
}
