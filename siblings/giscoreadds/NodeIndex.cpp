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
        m_pIndex.reset(); // frees the memory; rebuilt on the next query
    }
}

void CNodeIndex::BuildSTRTree(int rebuild) {
    Changed(rebuild);
    Index();
}

const CSpatialIndex& CNodeIndex::Index() {
    const Topology::CTopologyStorage& topology =
        *Topology::CTopologyMultiStorage::Instance()->GetTopology();
    if (!m_pIndex || m_nBuiltFor != topology.GetChangeStamp(EntityNode)) {
        std::vector<BoxEntry> boxes;
        if (const AcDbDatabase* const pDatabase = topology.GetDatabase()) {
            pDatabase->forEachEntity([&](const AcDbEntity& entity) {
                if (entity.isA() == AcDbPoint::desc()) {
                    const AcGePoint3d& at = static_cast<const AcDbPoint&>(entity).position();
                    boxes.push_back({{at.x, at.y, at.x, at.y}, entity.objectId().number()});
                }
            });
        }
        m_pIndex = std::make_unique<CSpatialIndex>(boxes);
        m_nBuiltFor = topology.GetChangeStamp(EntityNode);
    }
    return *m_pIndex;
}

const AcDbPoint* CNodeIndex::GetNodeById(AcDbObjectId id) const {
    const AcDbDatabase* const pDatabase = acdbHostApplicationServices()->workingDatabase();
    const AcDbObject* const pObject = pDatabase ? pDatabase->peek(id) : nullptr;
    const bool isPoint = pObject && !pObject->isErased() && pObject->isA() == AcDbPoint::desc();
    return isPoint ? static_cast<const AcDbPoint*>(pObject) : nullptr;
}

std::vector<AcDbObjectId> CNodeIndex::GetNodesInBox(const Box& box) {
    std::vector<AcDbObjectId> nodes;
    Index().Query(box, [&](std::uint32_t id) { nodes.emplace_back(id); });
    std::sort(nodes.begin(), nodes.end());
    return nodes;
}

std::optional<AcDbObjectId> CNodeIndex::GetNearestNode(double x, double y, double maxDistance) {
    const auto hit = Index().Nearest(x, y, maxDistance);
    return hit ? std::optional(AcDbObjectId(hit->id)) : std::nullopt;
}

} // namespace Orvane::Selection
