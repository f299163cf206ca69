#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <set>
#include <vector>

struct hid_device_;
struct hid_device_info;

/// One call of a hidapi function, as the program made it.
struct HidCall
{
    enum class Function { Enumerate, FreeEnumeration, Open, OpenPath, Write, Read, Close };

    Function function = Function::Read;
    Qt::HANDLE thread = nullptr;
    /// What was written, or the path to open.
    QByteArray bytes;
    quint16 vendor = 0;
    quint16 product = 0;
    /// How many bytes a read asked for.
    int size = 0;
    int timeoutMs = 0;
};

/// Stands in for the hidapi library in a test program: devices that can be listed and opened, read
/// from a script, and write into a record. It may be used from any thread.
class FakeHid
{
public:
    static FakeHid &instance();

    /// Forgets devices, scripts and records.
    void reset();

    void addDevice(const QByteArray &path, quint16 vendor, quint16 product);
    void removeDevice(const QByteArray &path);
    /// Until the device is removed or made openable again, opening it fails.
    void setOpenable(const QByteArray &path, bool openable);

    /// The next read returns these bytes. Reads without anything to return time out.
    void sendReport(const QByteArray &bytes);
    /// Reports that no read has returned yet.
    int waitingReports() const;
    /// From now on reads fail at once instead of timing out.
    void failReads();
    /// From now on writes fail, after so many more good ones.
    void failWrites(int afterGoodOnes = 0);
    /// From now on a read without anything to return comes back at once.
    void readWithoutWaiting();

    QVector<HidCall> calls() const;
    QVector<HidCall> calls(HidCall::Function function) const;
    int count(HidCall::Function function) const;
    QVector<QByteArray> written() const;
    /// How often a handle was used that was not open, or closed while it was in use.
    int misuses() const;
    int openHandles() const;
    /// Keeps memory flat when millions of calls are made.
    void stopRecording();

    // What the hidapi functions do.
    hid_device_info *enumerate(quint16 vendor, quint16 product);
    void freeEnumeration(hid_device_info *chain);
    hid_device_ *open(quint16 vendor, quint16 product);
    hid_device_ *openPath(const QByteArray &path);
    int write(hid_device_ *device, const QByteArray &bytes);
    int read(hid_device_ *device, unsigned char *data, int size, int timeoutMs);
    void close(hid_device_ *device);

private:
    struct Device
    {
        QByteArray path;
        quint16 vendor = 0;
        quint16 product = 0;
        bool openable = true;
    };

    void record(HidCall::Function function, HidCall call = {});
    hid_device_ *newHandle();
    bool isMisuse(hid_device_ *device);
    int takeReport(unsigned char *data, int size);

    mutable std::mutex m_lock;
    std::condition_variable m_changed;
    std::vector<Device> m_devices;
    std::deque<QByteArray> m_reports;
    std::vector<HidCall> m_calls;
    std::set<hid_device_ *> m_handles;
    std::set<hid_device_ *> m_inUse;
    quintptr m_lastHandle = 0;
    std::optional<int> m_goodWritesLeft;
    bool m_readsFail = false;
    bool m_readsWait = true;
    bool m_recording = true;
    int m_misuses = 0;
};
