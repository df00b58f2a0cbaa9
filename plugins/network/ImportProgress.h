// The progress of an import across its phases.
#pragma once

#include <algorithm>
#include <cstddef>

#include "platform/arx/DbStorage.h"

namespace Orvane::Network {

/// Reading the file is the first half of an import, adding to the drawing the second. Cheap to call
/// often: the host's progress is only updated every 1024 entities.
class ImportProgress {
public:
    explicit ImportProgress(AcDbProgress progress) : m_progress(std::move(progress)) {}

    /// Progress callback for the reader; takes 0 to 100.
    AcDbProgress Reading() {
        return [this](int percent) { return Tell(percent / 2); };
    }
    void ExpectAdding(std::size_t count) { m_nExpected = std::max<std::size_t>(count, 1); }
    /// Counts one added entity. False once the user has stopped the import.
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
