// Nodes of the current drawing by place.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "siblings/giscoreadds/SpatialIndex.h"
#include "siblings/networkcore/Node.h"

namespace Orvane::Selection {

/// Built when somebody asks, and again when the drawing or its nodes have changed since.
/// Main thread only.
class GISCOREADDS_API CNodeIndex {
public:
    /// Lives to the end of the process.
    static CNodeIndex* Instance();

    /// Non-zero: what was built is not to be relied on any more.
    void Changed(int changed);

    /// Nodes in a box, borders included, in the order of their ids.
    std::vector<Topology::EntityId> GetNodesInBox(const Box& box);
    /// The node nearest to a point, at most `maxDistance` away.
    std::optional<Topology::EntityId> GetNearestNode(double x, double y, double maxDistance);

private:
    CNodeIndex() = default;
    const CSpatialIndex& Index();

    std::unique_ptr<CSpatialIndex> m_pIndex;
    std::uint64_t m_nBuiltFor = 0; ///< the storage's change stamp
};

} // namespace Orvane::Selection
