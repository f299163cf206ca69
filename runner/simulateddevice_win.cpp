#include "runner/simulateddevice.h"

// There are no pseudo-terminals here that a program could open as a port.

std::unique_ptr<SimulatedDevice> startSimulatedDevice(StartBytes /*startBytes*/, bool /*withCrc*/)
{
    return nullptr;
}

QString simulatedPortsFolder()
{
    return {};
}
