#include "fakehid.h"

#include <QThread>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <hidapi.h>
#include <iterator>
#include <memory>

namespace {

bool matches(quint16 wanted, quint16 actual)
{
    return wanted == 0 || wanted == actual;
}

HidCall idsCall(quint16 vendor, quint16 product)
{
    HidCall call;
    call.vendor = vendor;
    call.product = product;
    return call;
}

HidCall bytesCall(const QByteArray &bytes)
{
    HidCall call;
    call.bytes = bytes;
    return call;
}

HidCall readCall(int size, int timeoutMs)
{
    HidCall call;
    call.size = size;
    call.timeoutMs = timeoutMs;
    return call;
}

} // namespace

FakeHid &FakeHid::instance()
{
    static FakeHid fake;
    return fake;
}

void FakeHid::reset()
{
    const std::lock_guard lock(m_lock);
    m_devices.clear();
    m_reports.clear();
    m_calls.clear();
    m_handles.clear();
    m_inUse.clear();
    m_goodWritesLeft.reset();
    m_readsFail = false;
    m_readsWait = true;
    m_recording = true;
    m_misuses = 0;
}

void FakeHid::addDevice(const QByteArray &path, quint16 vendor, quint16 product)
{
    const std::lock_guard lock(m_lock);
    m_devices.push_back({path, vendor, product, true});
}

void FakeHid::removeDevice(const QByteArray &path)
{
    const std::lock_guard lock(m_lock);
    m_devices.erase(std::remove_if(m_devices.begin(), m_devices.end(),
                                   [&path](const Device &device) { return device.path == path; }),
                    m_devices.end());
}

void FakeHid::setOpenable(const QByteArray &path, bool openable)
{
    const std::lock_guard lock(m_lock);
    for (Device &device : m_devices) {
        if (device.path == path) {
            device.openable = openable;
        }
    }
}

void FakeHid::sendReport(const QByteArray &bytes)
{
    const std::lock_guard lock(m_lock);
    m_reports.push_back(bytes);
    m_changed.notify_all();
}

int FakeHid::waitingReports() const
{
    const std::lock_guard lock(m_lock);
    return static_cast<int>(m_reports.size());
}

void FakeHid::failReads()
{
    const std::lock_guard lock(m_lock);
    m_readsFail = true;
    m_changed.notify_all();
}

void FakeHid::failWrites(int afterGoodOnes)
{
    const std::lock_guard lock(m_lock);
    m_goodWritesLeft = afterGoodOnes;
}

void FakeHid::readWithoutWaiting()
{
    const std::lock_guard lock(m_lock);
    m_readsWait = false;
    m_changed.notify_all();
}

QVector<HidCall> FakeHid::calls() const
{
    const std::lock_guard lock(m_lock);
    return {m_calls.begin(), m_calls.end()};
}

QVector<HidCall> FakeHid::calls(HidCall::Function function) const
{
    const std::lock_guard lock(m_lock);
    QVector<HidCall> found;
    std::copy_if(m_calls.begin(), m_calls.end(), std::back_inserter(found),
                 [function](const HidCall &call) { return call.function == function; });
    return found;
}

int FakeHid::count(HidCall::Function function) const
{
    const std::lock_guard lock(m_lock);
    return int(std::count_if(m_calls.begin(), m_calls.end(), [function](const HidCall &call) {
        return call.function == function;
    }));
}

QVector<QByteArray> FakeHid::written() const
{
    QVector<QByteArray> buffers;
    for (const HidCall &call : calls(HidCall::Function::Write)) {
        buffers.append(call.bytes);
    }
    return buffers;
}

int FakeHid::misuses() const
{
    const std::lock_guard lock(m_lock);
    return m_misuses;
}

int FakeHid::openHandles() const
{
    const std::lock_guard lock(m_lock);
    return int(m_handles.size());
}

void FakeHid::stopRecording()
{
    const std::lock_guard lock(m_lock);
    m_recording = false;
    m_calls.clear();
}

hid_device_info *FakeHid::enumerate(quint16 vendor, quint16 product)
{
    const std::lock_guard lock(m_lock);
    record(HidCall::Function::Enumerate, idsCall(vendor, product));
    hid_device_info *chain = nullptr;
    hid_device_info **end = &chain;
    for (const Device &device : m_devices) {
        if (matches(vendor, device.vendor) && matches(product, device.product)) {
            *end = std::make_unique<hid_device_info>().release();
            (*end)->path = qstrdup(device.path.constData());
            (*end)->vendor_id = device.vendor;
            (*end)->product_id = device.product;
            end = &(*end)->next;
        }
    }
    return chain;
}

void FakeHid::freeEnumeration(hid_device_info *chain)
{
    const std::lock_guard lock(m_lock);
    record(HidCall::Function::FreeEnumeration);
    while (chain != nullptr) {
        const std::unique_ptr<hid_device_info> first(chain);
        const std::unique_ptr<char[]> path(first->path);
        chain = first->next;
    }
}

hid_device_ *FakeHid::open(quint16 vendor, quint16 product)
{
    const std::lock_guard lock(m_lock);
    record(HidCall::Function::Open, idsCall(vendor, product));
    const bool found = std::any_of(m_devices.cbegin(), m_devices.cend(), [=](const Device &device) {
        return device.openable && device.vendor == vendor && device.product == product;
    });
    return found ? newHandle() : nullptr;
}

hid_device_ *FakeHid::openPath(const QByteArray &path)
{
    const std::lock_guard lock(m_lock);
    record(HidCall::Function::OpenPath, bytesCall(path));
    const bool found =
        std::any_of(m_devices.cbegin(), m_devices.cend(), [&path](const Device &device) {
            return device.openable && device.path == path;
        });
    return found ? newHandle() : nullptr;
}

int FakeHid::write(hid_device_ *device, const QByteArray &bytes)
{
    const std::lock_guard lock(m_lock);
    record(HidCall::Function::Write, bytesCall(bytes));
    if (isMisuse(device) || m_goodWritesLeft == 0) {
        return -1;
    }
    if (m_goodWritesLeft) {
        --*m_goodWritesLeft;
    }
    return bytes.size();
}

int FakeHid::read(hid_device_ *device, unsigned char *data, int size, int timeoutMs)
{
    std::unique_lock lock(m_lock);
    record(HidCall::Function::Read, readCall(size, timeoutMs));
    if (isMisuse(device)) {
        return -1;
    }
    m_inUse.insert(device);
    m_changed.wait_for(lock, std::chrono::milliseconds(timeoutMs),
                       [this] { return !m_reports.empty() || m_readsFail || !m_readsWait; });
    m_inUse.erase(device);
    return m_readsFail ? -1 : takeReport(data, size);
}

void FakeHid::close(hid_device_ *device)
{
    const std::lock_guard lock(m_lock);
    record(HidCall::Function::Close);
    if (!isMisuse(device)) {
        m_misuses += int(m_inUse.count(device));
        m_handles.erase(device);
    }
}

void FakeHid::record(HidCall::Function function, HidCall call)
{
    if (m_recording) {
        call.function = function;
        call.thread = QThread::currentThreadId();
        m_calls.push_back(call);
    }
}

/// A handle is only a number: whoever looks into it crashes.
hid_device_ *FakeHid::newHandle()
{
    auto *handle =
        reinterpret_cast<hid_device_ *>(++m_lastHandle); // NOLINT(performance-no-int-to-ptr)
    m_handles.insert(handle);
    return handle;
}

bool FakeHid::isMisuse(hid_device_ *device)
{
    const bool misuse = m_handles.count(device) == 0;
    m_misuses += int(misuse);
    return misuse;
}

int FakeHid::takeReport(unsigned char *data, int size)
{
    if (m_reports.empty()) {
        return 0;
    }
    const QByteArray report = m_reports.front().left(size);
    m_reports.pop_front();
    std::memcpy(data, report.constData(), size_t(report.size()));
    return report.size();
}

// The functions of hidapi that the program calls, in place of the library's.
extern "C" {

hid_device_info *hid_enumerate(unsigned short vendor, unsigned short product)
{
    return FakeHid::instance().enumerate(vendor, product);
}

void hid_free_enumeration(hid_device_info *devs)
{
    FakeHid::instance().freeEnumeration(devs);
}

hid_device *hid_open(unsigned short vendor, unsigned short product, const wchar_t * /*serial*/)
{
    return FakeHid::instance().open(vendor, product);
}

hid_device *hid_open_path(const char *path)
{
    return FakeHid::instance().openPath(path);
}

int hid_write(hid_device *dev, const unsigned char *data, size_t length)
{
    return FakeHid::instance().write(dev,
                                     QByteArray(reinterpret_cast<const char *>(data), int(length)));
}

int hid_read_timeout(hid_device *dev, unsigned char *data, size_t length, int milliseconds)
{
    return FakeHid::instance().read(dev, data, int(length), milliseconds);
}

void hid_close(hid_device *dev)
{
    FakeHid::instance().close(dev);
}
}
