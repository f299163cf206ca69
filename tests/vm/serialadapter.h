#pragma once

/// The virtual machine's USB serial adapter, with the simulated device behind it. The machine's
/// host plugs it in and pulls it out.
class SerialAdapter
{
public:
    SerialAdapter() = default;
    SerialAdapter(const SerialAdapter &) = delete;
    SerialAdapter &operator=(const SerialAdapter &) = delete;
    ~SerialAdapter();

    /// Waits until the system has the port; false if it doesn't come.
    bool plugIn();
    /// Waits until the system has lost the port; false if it doesn't go.
    bool pullOut();

private:
    bool m_pluggedIn = false;
};
