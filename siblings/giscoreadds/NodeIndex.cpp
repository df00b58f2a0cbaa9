#include "siblings/giscoreadds/NodeIndex.h"

#include <algorithm>

#include "siblings/networkcore/TopologyMultiStorage.h"
#include "siblings/networkcore/TopologyStorage.h"

namespace Orvane::Selection {

CNodeIndex* CNodeIndex::Instance() {
    static auto* const instance = new CNodeIndex;
    return instance;
}

void CNodeIndex::Changed(int changed) {
    if (changed) {
        m_pIndex.reset(); // its memory is not needed until somebody asks
    }
}

const CSpatialIndex& CNodeIndex::Index() {
    const Topology::CTopologyStorage& topology =
        *Topology::CTopologyMultiStorage::Instance()->GetTopology();
    if (!m_pIndex || m_nBuiltFor != topology.GetChangeStamp()) {
        std::vector<BoxEntry> boxes;
        boxes.reserve(topology.GetNodeVector().size());
        for (const Topology::CNode node : topology.GetNodeVector()) {
            const Topology::Point at = node.GetPosition();
            boxes.push_back({{at.x, at.y, at.x, at.y}, node.GetId()});
        }
        m_pIndex = std::make_unique<CSpatialIndex>(boxes);
        m_nBuiltFor = topology.GetChangeStamp();
    }
    return *m_pIndex;
}

std::vector<Topology::EntityId> CNodeIndex::GetNodesInBox(const Box& box) {
    std::vector<Topology::EntityId> nodes;
    Index().Query(box, [&](std::uint32_t id) { nodes.push_back(id); });
    std::sort(nodes.begin(), nodes.end());
    return nodes;
}

std::optional<Topology::EntityId> CNodeIndex::GetNearestNode(double x, double y,
                                                             double maxDistance) {
    const auto hit = Index().Nearest(x, y, maxDistance);
    return hit ? std::optional(hit->id) : std::nullopt;
}

} // namespace Orvane::Selection
