// Searches entities by name, kind and attributes.
#pragma once

#include <vector>

#include "siblings/networkcore/TopologyStorage.h"

namespace Orvane::Panels {

/// Where to search. The values are the indexes of the dialog's entries.
enum class SearchIn { Everywhere, Name, Kind, Attributes };

struct EntitySearch {
    CString text;     ///< any part, ignoring case; empty finds everything
    int systemId = 0; ///< 0 for all systems
    SearchIn where = SearchIn::Everywhere;
};

struct FoundEntity {
    AcDbObjectId id;
    CString name;
    CString kind; ///< "Section"
    CString system;
    CString foundIn; ///< the text that matched, with the attribute's name
};

struct SearchResult {
    /// Exact name matches first, then names that start with the text; at most as many as requested.
    std::vector<FoundEntity> entities;
    std::size_t count = 0; ///< of all matches
};

/// Searches nodes, sections and polygons. A node shared by several systems is found once.
SearchResult SearchEntities(const Topology::CTopologyStorage& storage, const EntitySearch& search,
                            std::size_t limit);
/// Searches the current drawing.
SearchResult SearchDrawing(const EntitySearch& search, std::size_t limit);

} // namespace Orvane::Panels
