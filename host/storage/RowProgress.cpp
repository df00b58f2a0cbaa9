#include "host/storage/RowProgress.h"

#include <algorithm>
#include <ogrsf_frmts.h>

namespace Tessaly {

namespace {
/// A count above this is a lie, or the largest number that its writer had.
constexpr std::int64_t kMostBelievable = 1'000'000'000'000;
} // namespace

void RowProgress::Expect(OGRLayer& layer) {
    if (!m_progress || !layer.TestCapability(OLCFastFeatureCount)) {
        return;
    }
    const std::int64_t count = layer.GetFeatureCount(FALSE);
    if (count > 0 && count < kMostBelievable) {
        m_nExpected += count;
    }
}

void RowProgress::Tell() {
    if (!m_progress || m_bStopped) {
        return;
    }
    const std::int64_t percent =
        m_nExpected > 0 ? std::clamp<std::int64_t>(m_nDone * 100 / m_nExpected, 0, 99) : 0;
    m_bStopped = !m_progress(static_cast<int>(percent));
}

} // namespace Tessaly
