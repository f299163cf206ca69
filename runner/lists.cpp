#include "runner/lists.h"

#include "frames/hextext.h"
#include "links/hid/hiddevices.h"
#include "links/serial/portlist.h"
#include "runner/simulateddevice.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr int idDigits = 4;

QByteArray jsonText(const QJsonArray &array)
{
    return QJsonDocument(array).toJson(QJsonDocument::Indented);
}

/// As --hid takes it.
QString choiceText(const DescribedHidDevice &device)
{
    const QString ids = paddedHex(device.device.ids.vendor, idDigits) + QLatin1Char(':') +
                        paddedHex(device.device.ids.product, idDigits);
    return device.serialNumber.isEmpty() ? ids : ids + QLatin1Char(':') + device.serialNumber;
}

QJsonObject objectOf(const DescribedHidDevice &device)
{
    return {{"vid", paddedHex(device.device.ids.vendor, idDigits)},
            {"pid", paddedHex(device.device.ids.product, idDigits)},
            {"serial", device.serialNumber},
            {"product", device.product},
            {"path", device.device.path}};
}

} // namespace

QByteArray portListText(bool asJson)
{
    const QStringList names = listPorts(simulatedPortsFolder()).names;
    if (!asJson) {
        return names.isEmpty() ? QByteArray() : names.join(QLatin1Char('\n')).toUtf8() + '\n';
    }
    QJsonArray array;
    for (const QString &name : names) {
        array.append(QJsonObject{{"name", name}});
    }
    return jsonText(array);
}

QByteArray hidListText(bool asJson)
{
    QByteArray text;
    QJsonArray array;
    for (const DescribedHidDevice &device : describedHidDevices()) {
        array.append(objectOf(device));
        text += QStringLiteral("%1  %2  %3\n")
                    .arg(choiceText(device), device.product, device.device.path)
                    .toUtf8();
    }
    return asJson ? jsonText(array) : text;
}
