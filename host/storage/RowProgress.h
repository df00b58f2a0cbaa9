// How far a read is, told rarely enough to cost nothing.
#pragma once

#include <cstdint>

#include "platform/arx/DbStorage.h"

class OGRLayer;

namespace Tessaly {

/// Counts rows against what a file says that it holds. Files lie about that: a percentage
/// is a hint, nothing is made to the measure of it, and it never says that all is done.
class RowProgress {
public:
    explicit RowProgress(const AcDbProgress& progress) : m_progress(progress) {}

    /// Adds what a table says that it has, where it knows without counting.
    void Expect(OGRLayer& layer);
    void Expect(std::int64_t rows) { m_nExpected += rows; }
    /// One row more. False once the user asked to stop.
    bool Step() {
        if (++m_nDone % kRowsBetweenCalls == 0) {
            Tell();
        }
        return !m_bStopped;
    }
    bool IsStopped() const { return m_bStopped; }

private:
    static constexpr std::int64_t kRowsBetweenCalls = 4096;
    void Tell();

    const AcDbProgress& m_progress;
    std::int64_t m_nExpected = 0;
    std::int64_t m_nDone = 0;
    bool m_bStopped = false;
};

} // namespace Tessaly
