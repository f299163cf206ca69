#include "runner/simulateddevice.h"
#include "simulator/devicesession.h"
#include "simulator/pseudoterminal.h"
#include "simulator/publishedlink.h"

namespace {

class TerminalDevice : public SimulatedDevice
{
public:
    TerminalDevice(const DeviceOptions &options, PseudoTerminal terminal)
        : m_terminal(std::move(terminal))
        , m_session(options, m_terminal)
    {}

    QString portName() const override { return m_terminal.portPath(); }

private:
    PseudoTerminal m_terminal;
    DeviceSession m_session;
};

} // namespace

std::unique_ptr<SimulatedDevice> startSimulatedDevice(StartBytes startBytes, bool withCrc)
{
    DeviceOptions options;
    options.startBytes = startBytes;
    options.withCrc = withCrc;
    std::optional<PseudoTerminal> terminal = PseudoTerminal::open();
    return terminal ? std::make_unique<TerminalDevice>(options, std::move(*terminal)) : nullptr;
}

QString simulatedPortsFolder()
{
    return defaultPortsFolder(QStringLiteral("tarnwick"));
}
