// Search for entities by what is written in them.
#pragma once

#include <vector>

#include "siblings/networkcore/TopologyStorage.h"

namespace Orvane::Panels {

/// Where a text is looked for. The numbers are those of the entries of the dialog.
enum class SearchIn { Everywhere, Name, Kind, Attributes };

struct EntitySearch {
    CString text;     ///< any part, without regard to case; empty: everything is found
    int systemId = 0; ///< 0: all systems
    SearchIn where = SearchIn::Everywhere;
};

struct FoundEntity {
    AcDbObjectId id;
    CString name;
    CString kind; ///< "Section"
    CString system;
    CString foundIn; ///< the text in which it was found, with the attribute's name
};

struct SearchResult {
    /// Those named as the text first, then those whose names begin so; as many as were asked
    /// for at most.
    std::vector<FoundEntity> entities;
    std::size_t count = 0; ///< all that were found
};

/// Nodes, sections and polygons of systems. Each node once, whichever systems share it.
SearchResult SearchEntities(const Topology::CTopologyStorage& storage, const EntitySearch& search,
                            std::size_t limit);
/// In all of the current drawing.
SearchResult SearchDrawing(const EntitySearch& search, std::size_t limit);

} // namespace Orvane::Panels
