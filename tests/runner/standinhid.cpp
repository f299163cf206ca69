// Stands in for the hidapi library in a program that links it: the devices are files in the folder
// that TARNWICK_TEST_HID names (see hidfolder.h).

#include "frames/framebuilder.h"
#include "frames/hextext.h"
#include "frames/reports.h"
#include "simulator/deviceparser.h"
#include "simulator/registerdevice.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>

#include <algorithm>
#include <deque>
#include <hidapi.h>
#include <memory>
#include <string>
#include <utility>

namespace {

constexpr int longestReplyPayload = 0xFF;
constexpr StartBytes startBytes{0x5A, 0xA5};

/// A file of the folder.
struct AttachedDevice
{
    QString file;
    ushort vendor = 0;
    ushort product = 0;
    std::wstring serialNumber;
    QByteArray path;
    bool opens = false;
};

QVector<AttachedDevice> attachedDevices()
{
    QVector<AttachedDevice> devices;
    const QDir folder(qEnvironmentVariable("TARNWICK_TEST_HID"));
    for (const QFileInfo &info : folder.entryInfoList({"*.device"}, QDir::Files, QDir::Name)) {
        QFile file(info.filePath());
        if (file.open(QIODevice::ReadOnly)) {
            const QStringList fields = QString::fromLocal8Bit(file.readAll()).split('\t');
            const QString ids = fields.value(0);
            devices.append({file.fileName(), ids.section(':', 0, 0).toUShort(nullptr, hexBase),
                            ids.section(':', 1).toUShort(nullptr, hexBase),
                            fields.value(1).toStdWString(), fields.value(2).toLocal8Bit(),
                            fields.value(3) == "opens"});
        }
    }
    return devices;
}

/// One entry of an enumeration, with what it points at.
struct ListedDevice
{
    explicit ListedDevice(AttachedDevice itsDevice)
        : device(std::move(itsDevice))
    {
        info.path = device.path.data();
        info.vendor_id = device.vendor;
        info.product_id = device.product;
        info.serial_number = device.serialNumber.data();
        info.product_string = product.data();
    }

    AttachedDevice device;
    std::wstring product = L"Register device";
    hid_device_info info{};
};

/// The entries of the last enumeration, which is freed before the next one is made.
std::deque<ListedDevice> &listed()
{
    static std::deque<ListedDevice> devices;
    return devices;
}

} // namespace

/// An open device.
struct hid_device_
{
    explicit hid_device_(QString itsFile)
        : file(std::move(itsFile))
    {}

    bool isAttached() const { return QFile::exists(file); }

    /// The reply has the size and the ID of the report; a device that numbers its reports has the
    /// number in front of them.
    void take(const QByteArray &report)
    {
        QFile log(QString(file).replace(".device", ".reports"));
        log.open(QIODevice::Append);
        log.write(report.toHex() + '\n');
        const QByteArray number = report.at(0) == 0 ? QByteArray() : report.left(1);
        for (const QByteArray &request : parser.take(report.mid(1))) {
            const QByteArray frame = frameOfPayload(registers.reply(request), layout);
            for (const QByteArray &part : splitIntoReports(frame, report.size() - 1)) {
                answers.push_back(number + part);
            }
        }
    }

    QString file;
    FrameLayout layout{startBytes};
    DeviceParser parser{startBytes, false};
    RegisterDevice registers{longestReplyPayload};
    std::deque<QByteArray> answers;
};

extern "C" {

hid_device_info *hid_enumerate(unsigned short vendor, unsigned short product)
{
    for (const AttachedDevice &device : attachedDevices()) {
        if ((vendor == 0 || vendor == device.vendor) &&
            (product == 0 || product == device.product)) {
            hid_device_info *const before = listed().empty() ? nullptr : &listed().back().info;
            listed().emplace_back(device);
            if (before != nullptr) {
                before->next = &listed().back().info;
            }
        }
    }
    return listed().empty() ? nullptr : &listed().front().info;
}

void hid_free_enumeration(hid_device_info * /*devs*/)
{
    listed().clear();
}

hid_device *hid_open_path(const char *path)
{
    for (const AttachedDevice &device : attachedDevices()) {
        if (device.path == path && device.opens) {
            return std::make_unique<hid_device_>(device.file).release();
        }
    }
    return nullptr;
}

hid_device *hid_open(unsigned short /*vendor*/, unsigned short /*product*/,
                     const wchar_t * /*serial*/)
{
    return nullptr;
}

int hid_write(hid_device *dev, const unsigned char *data, size_t length)
{
    if (!dev->isAttached()) {
        return -1;
    }
    dev->take({reinterpret_cast<const char *>(data), static_cast<int>(length)});
    return static_cast<int>(length);
}

int hid_read_timeout(hid_device *dev, unsigned char *data, size_t length, int milliseconds)
{
    QElapsedTimer clock;
    clock.start();
    while (dev->answers.empty() && dev->isAttached() && !clock.hasExpired(milliseconds)) {
        QThread::msleep(1);
    }
    if (!dev->isAttached()) {
        return -1;
    }
    if (dev->answers.empty()) {
        return 0;
    }
    const QByteArray report = dev->answers.front().left(static_cast<int>(length));
    dev->answers.pop_front();
    std::copy(report.begin(), report.end(), data);
    return report.size();
}

void hid_close(hid_device *dev)
{
    const std::unique_ptr<hid_device> closed(dev);
}
}
