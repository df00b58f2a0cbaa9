// How far an import is, over its parts.
#pragma once

#include <algorithm>
#include <cstddef>

#include "platform/arx/DbStorage.h"

namespace Orvane::Network {

/// Reading is the first half of an import, adding to the drawing the second. Asked often, it
/// looks at the clock of the host now and then only.
class ImportProgress {
public:
    explicit ImportProgress(AcDbProgress progress) : m_progress(std::move(progress)) {}

    /// For who reads and says how far from 0 to 100 that is.
    AcDbProgress Reading() {
        return [this](int percent) { return Tell(percent / 2); };
    }
    void ExpectAdding(std::size_t count) { m_nExpected = std::max<std::size_t>(count, 1); }
    /// One more was added. False once the user wants it to stop.
    bool Added() {
        constexpr std::size_t kInterval = 1024;
        ++m_nAdded;
        if (m_nAdded % kInterval == 0) {
            Tell(50 + static_cast<int>(std::min(m_nAdded, m_nExpected) * 49 / m_nExpected));
        }
        return !m_bStopped;
    }
    bool IsStopped() const { return m_bStopped; }

private:
    bool Tell(int percent) {
        m_bStopped = m_bStopped || (m_progress && !m_progress(percent));
        return !m_bStopped;
    }

    AcDbProgress m_progress;
    std::size_t m_nExpected = 1;
    std::size_t m_nAdded = 0;
    bool m_bStopped = false;
};

} // namespace Orvane::Network
