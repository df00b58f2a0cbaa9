// Ctrl+C as a request to stop the current operation.
#pragma once

#include <csignal>

namespace Tessaly {

/// While an instance exists, SIGINT is recorded instead of ending the program. Only one instance at
/// a time. If the signal is ignored, as in background processes, it stays ignored.
class StopSignal {
public:
    StopSignal();
    ~StopSignal();
    StopSignal(const StopSignal&) = delete;
    StopSignal& operator=(const StopSignal&) = delete;

    /// Whether the signal has arrived since construction.
    static bool WasSent();

private:
    struct sigaction m_before {};
};

} // namespace Tessaly
