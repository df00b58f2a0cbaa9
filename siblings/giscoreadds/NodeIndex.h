// Points of the current drawing by place.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "platform/arx/DbEntity.h"
#include "siblings/giscoreadds/SpatialIndex.h"

namespace Orvane::Selection {

/// The nodes of all systems, those of polygons included, and all other points of the
/// drawing. Built when somebody asks, and again when the drawing or its entities have
/// changed since. Main thread only.
class GISCOREADDS_API CNodeIndex {
public:
    /// Lives to the end of the process.
    static CNodeIndex* Instance();

    /// Non-zero: what was built is not to be relied on any more.
    void Changed(int changed);
    /// Builds it now, so that the next question is not the one that waits. Non-zero: even if
    /// what was built still holds.
    void BuildSTRTree(int rebuild);

    /// Null if the drawing has no such point. Valid until the drawing changes.
    const AcDbPoint* GetNodeById(AcDbObjectId id) const;
    /// Points in a box, borders included, in the order of their ids.
    std::vector<AcDbObjectId> GetNodesInBox(const Box& box);
    /// The point nearest to a place, at most `maxDistance` away.
    std::optional<AcDbObjectId> GetNearestNode(double x, double y, double maxDistance);

private:
    CNodeIndex() = default;
    const CSpatialIndex& Index();

    std::unique_ptr<CSpatialIndex> m_pIndex;
    std::uint64_t m_nBuiltFor = 0; ///< the main topology's change stamp
};

} // namespace Orvane::Selection
