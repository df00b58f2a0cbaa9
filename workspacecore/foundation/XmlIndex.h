// The element index of an XmlDocument. Records are stored in segments, so growing never moves
// more than the last, partial segment.
#pragma once

#include <memory>

#include "workspacecore/Api.h"
#include "workspacecore/foundation/XmlNodePos.h"

namespace Orvane {

class WORKSPACE_API XmlIndex {
public:
    static constexpr int kSegmentShift = 16;
    static constexpr int kSegmentRecords = 1 << kSegmentShift;

    XmlNodePos& operator[](int nRecord) {
        return m_apElemSegments[nRecord >> kSegmentShift][nRecord & (kSegmentRecords - 1)];
    }
    const XmlNodePos& operator[](int nRecord) const {
        return m_apElemSegments[nRecord >> kSegmentShift][nRecord & (kSegmentRecords - 1)];
    }

    /// Number of records for which memory is reserved; 0 before Reserve.
    int Capacity() const { return m_nElemCapacity; }
    /// Reserves memory for at least this many records. Existing records are kept.
    void Reserve(int nRecords);
    /// Grows the capacity beyond `nUsed` records by half, but by at most one segment.
    void Grow(int nUsed);
    /// Copies the first `nUsed` records of another index. Does nothing if that has no memory
    /// reserved.
    void CopyFrom(const XmlIndex& other, int nUsed);
    void Swap(XmlIndex& other) noexcept;

private:
    using Segment = std::unique_ptr<XmlNodePos[]>;

    static int SegmentsFor(int nRecords) {
        return (nRecords + kSegmentRecords - 1) >> kSegmentShift;
    }
    void ReserveSegments(int nSegments);
    void ResizeSegment(int nSegment, int nOldRecords, int nNewRecords);

    std::unique_ptr<Segment[]> m_apElemSegments;
    int m_nElemCapacity = 0;
    int m_nSegmentCount = 0; ///< capacity of the segment array
};

} // namespace Orvane
