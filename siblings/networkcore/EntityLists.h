// Which entities of a drawing belong to a topology. Internal to this module.
#pragma once

#include <vector>

#include "siblings/giscore/systems/GisSystem.h"
#include "siblings/networkcore/EntityAttributes.h"
#include "siblings/networkcore/NameIndex.h"
#include "siblings/networkcore/TopologyStorage.h"

namespace Orvane::Topology {

/// Ids of the entities of one kind, ascending. Everything else is read from the drawing.
struct EntityList final : INamedRows {
    std::size_t RowCount() const override { return ids.size(); }
    int SystemOf(std::uint32_t row) const override;
    std::string_view NameOf(std::uint32_t row) const override;
    bool Contains(AcDbObjectId id) const;
    /// The row of an id, which must be in the list.
    std::uint32_t RowOf(AcDbObjectId id) const;
    std::vector<AcDbObjectId> OfSystem(int systemId) const;

    const CTopologyStorage* pStorage = nullptr;
    std::vector<AcDbObjectId> ids;
    NameIndex byName;
};

/// Everything the storage caches. Rebuilt after changes that it cannot track incrementally.
struct CTopologyStorage::Lists {
    EntityList& Of(enmEntityType type);
    void Clear();

    EntityList nodes;
    EntityList sections;
    EntityList polygons;
    EntityList texts;
    bool isStale = true;

    /// The systems of the drawing, valid for one roster stamp.
    struct System {
        int id;
        enmTopologyType type;
    };
    std::vector<System> roster;
    std::uint64_t rosterStamp = 0;
};

} // namespace Orvane::Topology
