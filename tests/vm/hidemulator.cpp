// A register device on USB HID, for the virtual machine: tarnwick-hid-emulator PRODUCT REPORTSIZE
//
// Plugs itself in, prints a line, and answers frames until it is told to end, which pulls it out. A
// report that isn't of the form that the device has is an error.

#include "frames/framebuilder.h"
#include "frames/reports.h"
#include "simulator/deviceparser.h"
#include "simulator/registerdevice.h"
#include "system/endsignals.h"
#include "uhiddevice.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <cstdio>

namespace {

constexpr quint16 vendor = 0xEEEF;
constexpr StartBytes emulatedStart{0x5A, 0xA5};
constexpr int longestReply = 0xFF;
constexpr int wrongReport = 1;
constexpr int notPluggedIn = 2;

class Emulator
{
public:
    Emulator(const UhidDevice &device, int reportSize)
        : m_device(device)
        , m_reportSize(reportSize)
        , m_parser(emulatedStart, false)
        , m_registers(longestReply)
    {
        m_layout.startBytes = emulatedStart;
    }

    void takeReport()
    {
        const std::optional<QByteArray> report = m_device.readReport();
        if (!report) {
            return;
        }
        if (report->size() != m_reportSize + 1 || report->front() != 0) {
            std::fprintf(stderr, "a report of %d bytes with ID %d\n", report->size() - 1,
                         report->isEmpty() ? -1 : report->front());
            QCoreApplication::exit(wrongReport);
            return;
        }
        for (const QByteArray &request : m_parser.take(report->mid(1))) {
            answer(request);
        }
    }

private:
    void answer(const QByteArray &request)
    {
        const QByteArray frame = frameOfPayload(m_registers.reply(request), m_layout);
        for (const QByteArray &report : splitIntoReports(frame, m_reportSize)) {
            m_device.sendReport(report);
        }
    }

    const UhidDevice &m_device;
    int m_reportSize = 0;
    FrameLayout m_layout;
    DeviceParser m_parser;
    RegisterDevice m_registers;
};

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    constexpr int patienceSeconds = 2;
    const EndSignals endSignals(patienceSeconds);
    QObject::connect(&endSignals, &EndSignals::arrived, &QCoreApplication::quit);

    const quint16 product = arguments.value(1).toUShort(nullptr, 16);
    const int reportSize = arguments.value(2).toInt();
    const auto device = UhidDevice::plugIn({vendor, product, reportSize});
    if (!device) {
        std::perror("tarnwick-hid-emulator");
        return notPluggedIn;
    }
    Emulator emulator(*device, reportSize);
    const QSocketNotifier arrival(device->descriptor(), QSocketNotifier::Read);
    QObject::connect(&arrival, &QSocketNotifier::activated, [&emulator] { emulator.takeReport(); });
    std::puts("plugged in");
    std::fflush(stdout);
    return QCoreApplication::exec();
}
