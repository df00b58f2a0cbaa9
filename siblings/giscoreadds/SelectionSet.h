// A set of selected entities of a drawing.
#pragma once

#include <unordered_set>
#include <vector>

#include "siblings/giscore/topology/GisTypes.h"
#include "siblings/giscoreadds/Api.h"
#include "siblings/networkcore/TopologyTypes.h"

namespace Orvane::Selection {

/// Entities by id, without duplicates, in the order of selection.
class GISCOREADDS_API CSelectionSet {
public:
    /// False if it was already in the set.
    bool Add(AcDbObjectId id, enmEntityType type);
    bool Remove(AcDbObjectId id);
    void Clear();

    bool Contains(AcDbObjectId id) const;
    bool IsEmpty() const { return m_entries.empty(); }
    int GetCount() const { return static_cast<int>(m_entries.size()); }
    std::vector<AcDbObjectId> GetNodes() const { return OfType(EntityNode); }
    std::vector<AcDbObjectId> GetSections() const { return OfType(EntitySection); }
    std::vector<AcDbObjectId> GetPolygons() const { return OfType(EntityPolygon); }

private:
    struct Entry {
        AcDbObjectId id;
        enmEntityType type;
    };
    std::vector<AcDbObjectId> OfType(enmEntityType type) const;

    std::vector<Entry> m_entries;
    std::unordered_set<AcDbObjectId> m_ids; ///< for look-up
};

} // namespace Orvane::Selection
