#pragma once

#include "frames/startbytes.h"

#include <QString>

#include <memory>

/// A simulated device that lives in this program, as long as this object does.
class SimulatedDevice
{
public:
    SimulatedDevice() = default;
    SimulatedDevice(const SimulatedDevice &) = delete;
    SimulatedDevice &operator=(const SimulatedDevice &) = delete;
    virtual ~SimulatedDevice() = default;

    /// The port that it answers behind.
    virtual QString portName() const = 0;
};

/// Starts one that speaks with these start bytes. Nothing where the system has no means for it.
std::unique_ptr<SimulatedDevice> startSimulatedDevice(StartBytes startBytes, bool withCrc);

/// The folder in which simulated devices publish their ports; empty where there are none.
QString simulatedPortsFolder();
