#include "workspacecore/foundation/XmlIndex.h"

#include <algorithm>
#include <utility>

namespace Orvane {

void XmlIndex::ReserveSegments(int nSegments) {
    if (nSegments <= m_nSegmentCount) {
        return;
    }
    const int nRoom = nSegments * 2 + 4;
    auto apSegments = std::make_unique<Segment[]>(static_cast<std::size_t>(nRoom));
    std::move(m_apElemSegments.get(), m_apElemSegments.get() + SegmentsFor(m_nElemCapacity),
              apSegments.get());
    m_apElemSegments = std::move(apSegments);
    m_nSegmentCount = nRoom;
}

void XmlIndex::ResizeSegment(int nSegment, int nOldRecords, int nNewRecords) {
    // Not initialised: a record is fully written when allocated, and most of the first estimate
    // is never touched.
    Segment pNew(new XmlNodePos[static_cast<std::size_t>(nNewRecords)]);
    std::copy_n(m_apElemSegments[nSegment].get(), nOldRecords, pNew.get());
    m_apElemSegments[nSegment] = std::move(pNew);
}

void XmlIndex::Reserve(int nRecords) {
    if (nRecords <= m_nElemCapacity) {
        return;
    }
    ReserveSegments(SegmentsFor(nRecords));
    while (m_nElemCapacity < nRecords) {
        const int nSegment = m_nElemCapacity >> kSegmentShift;
        const int nFirst = nSegment << kSegmentShift;
        const int nOldRecords = m_nElemCapacity - nFirst;
        const int nNewRecords = std::min(nRecords - nFirst, kSegmentRecords);
        ResizeSegment(nSegment, nOldRecords, nNewRecords);
        m_nElemCapacity = nFirst + nNewRecords;
    }
}

void XmlIndex::Grow(int nUsed) {
    const int nMost = (SegmentsFor(m_nElemCapacity) + 1) << kSegmentShift;
    // The minimum step only matters for an index of a few records.
    Reserve(std::min(std::max(nUsed + nUsed / 2, nUsed + 1), nMost));
}

void XmlIndex::CopyFrom(const XmlIndex& other, int nUsed) {
    constexpr int kLeastRecords = 8;
    if (other.m_nElemCapacity == 0) {
        return;
    }
    Reserve(std::max(nUsed, kLeastRecords));
    for (int nFirst = 0; nFirst < nUsed; nFirst += kSegmentRecords) {
        std::copy_n(&other[nFirst], std::min(nUsed - nFirst, kSegmentRecords), &(*this)[nFirst]);
    }
}

void XmlIndex::Swap(XmlIndex& other) noexcept {
    std::swap(m_apElemSegments, other.m_apElemSegments);
    std::swap(m_nElemCapacity, other.m_nElemCapacity);
    std::swap(m_nSegmentCount, other.m_nSegmentCount);
}

} // namespace Orvane
