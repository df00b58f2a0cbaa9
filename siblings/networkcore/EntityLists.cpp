#include "siblings/networkcore/EntityLists.h"

#include <algorithm>

#include "siblings/networkcore/Entity.h"

namespace Orvane::Topology {

int EntityList::SystemOf(std::uint32_t row) const {
    return CEntity(pStorage, ids[row]).GetSystemId();
}

std::string_view EntityList::NameOf(std::uint32_t row) const {
    return CEntity(pStorage, ids[row]).GetNameUtf8();
}

bool EntityList::Contains(AcDbObjectId id) const {
    return std::binary_search(ids.begin(), ids.end(), id);
}

std::uint32_t EntityList::RowOf(AcDbObjectId id) const {
    return static_cast<std::uint32_t>(std::lower_bound(ids.begin(), ids.end(), id) - ids.begin());
}

std::vector<AcDbObjectId> EntityList::OfSystem(int systemId) const {
    std::vector<AcDbObjectId> own;
    for (std::uint32_t row = 0; row < ids.size(); ++row) {
        if (SystemOf(row) == systemId) {
            own.push_back(ids[row]);
        }
    }
    return own;
}

EntityList& CTopologyStorage::Lists::Of(enmEntityType type) {
    switch (type) {
    case EntityNode:
        return nodes;
    case EntitySection:
        return sections;
    case EntityPolygon:
        return polygons;
    default:
        return texts;
    }
}

void CTopologyStorage::Lists::Clear() {
    for (EntityList* const pList : {&nodes, &sections, &polygons, &texts}) {
        pList->ids.clear();
        pList->byName = {};
    }
}

} // namespace Orvane::Topology
