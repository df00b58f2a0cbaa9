// Spatial index of the points of the current drawing.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "platform/arx/DbEntity.h"
#include "siblings/giscoreadds/SpatialIndex.h"

namespace Orvane::Selection {

/// The nodes of all systems, including polygon nodes, and all other points of the drawing. Built
/// on the first query, and rebuilt on the next one after the drawing or its entities have
/// changed. Main thread only.
class GISCOREADDS_API CNodeIndex {
public:
    /// Lives to the end of the process.
    static CNodeIndex* Instance();

    /// Non-zero marks the index as out of date.
    void Changed(int changed);
    /// Builds the index now instead of on the next query. Non-zero forces a rebuild even if it is
    /// up to date.
    void BuildSTRTree(int rebuild);

    /// Null if the drawing has no such point. Valid until the drawing changes.
    const AcDbPoint* GetNodeById(AcDbObjectId id) const;
    /// Points in a box, borders included, ordered by id.
    std::vector<AcDbObjectId> GetNodesInBox(const Box& box);
    /// The point nearest to a position, at most `maxDistance` away.
    std::optional<AcDbObjectId> GetNearestNode(double x, double y, double maxDistance);

private:
    CNodeIndex() = default;
    const CSpatialIndex& Index();

    std::unique_ptr<CSpatialIndex> m_pIndex;
    std::uint64_t m_nBuiltFor = 0; ///< change stamp of the main topology
};

} // namespace Orvane::Selection
