// The element index of an XmlDocument: records in segments, so that a growing index
// never moves more than its last, partial segment.
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

    /// Records there is room for; 0 until Reserve was called.
    int Capacity() const { return m_nElemCapacity; }
    /// Makes room for at least so many records. The records there are keep their content.
    void Reserve(int nRecords);
    /// Makes room behind the `nUsed` records there are: for half as many again, but for no
    /// more than one further segment.
    void Grow(int nUsed);
    /// Takes over the first `nUsed` records of another index. Without room there, none here.
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
    int m_nSegmentCount = 0; ///< room of the array of segments
};

} // namespace Orvane
