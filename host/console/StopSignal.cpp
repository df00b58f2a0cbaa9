#include "host/console/StopSignal.h"

namespace Tessaly {

namespace {

volatile std::sig_atomic_t s_sent = 0;

void Note(int) {
    s_sent = 1;
}

} // namespace

StopSignal::StopSignal() {
    s_sent = 0;
    sigaction(SIGINT, nullptr, &m_before);
    if (m_before.sa_handler != SIG_IGN) {
        struct sigaction noting {};
        noting.sa_handler = Note;
        noting.sa_flags = SA_RESTART; // do not interrupt file input and output
        sigaction(SIGINT, &noting, nullptr);
    }
}

StopSignal::~StopSignal() {
    sigaction(SIGINT, &m_before, nullptr);
}

bool StopSignal::WasSent() {
    return s_sent != 0;
}

} // namespace Tessaly
