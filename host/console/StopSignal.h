// Ctrl+C as the user's wish to stop what goes on.
#pragma once

#include <csignal>

namespace Tessaly {

/// While it lives, the interrupt signal ends no program but is noted. One at a time. Where
/// the signal is ignored, as for a program in the background, it stays so.
class StopSignal {
public:
    StopSignal();
    ~StopSignal();
    StopSignal(const StopSignal&) = delete;
    StopSignal& operator=(const StopSignal&) = delete;

    /// The signal has come since.
    static bool WasSent();

private:
    struct sigaction m_before {};
};

} // namespace Tessaly
