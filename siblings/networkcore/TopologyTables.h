// How the storage keeps entities. Internal to this module.
#pragma once

#include <array>
#include <string>
#include <unordered_map>
#include <vector>

#include "siblings/giscore/GisSystem.h"
#include "siblings/networkcore/AttributeTable.h"
#include "siblings/networkcore/NameIndex.h"
#include "siblings/networkcore/NameRules.h"
#include "siblings/networkcore/TopologyStorage.h"

namespace Orvane::Topology {

/// The columns that entities of all kinds have; one row an entity, in the order of
/// creation, which is also that of the ids.
struct EntityTable final : INamedRows {
    explicit EntityTable(enmEntityType entityType) : type(entityType) {}

    std::size_t RowCount() const override { return ids.size(); }
    int SystemOf(std::uint32_t row) const override { return systems[row]; }
    std::string_view NameOf(std::uint32_t row) const override { return nameTexts[names[row]]; }
    std::vector<EntityId> OfSystem(int systemId) const;
    bool HasSystem(int systemId) const;
    /// Room for so many rows more.
    void Reserve(std::size_t rows);

    enmEntityType type;
    std::vector<EntityId> ids;
    std::vector<int> systems;
    std::vector<TextRef> names;
    std::vector<std::uint32_t> kinds;
    std::vector<Run> attributes;
    TextPool nameTexts;
    NameIndex byName;
};

struct CTopologyStorage::Tables {
    /// Which table an entity stands in, and where; three bits and twenty-nine.
    enum class Kind : std::uint32_t { None, Node, Section, Polygon, Text };
    static constexpr std::uint32_t kRowBits = 29;
    static constexpr std::uint32_t kMostRows = 1U << kRowBits;

    Kind KindOf(EntityId id) const {
        return id != kNoEntity && id <= places.size()
                   ? static_cast<Kind>(places[id - 1] >> kRowBits)
                   : Kind::None;
    }
    /// Of an entity that exists.
    std::uint32_t RowOf(EntityId id) const { return places[id - 1] & (kMostRows - 1); }
    EntityTable& TableOf(Kind kind);
    const EntityTable& TableOf(Kind kind) const;
    EntityTable& TableOf(enmEntityType type);
    const EntityTable& TableOf(EntityId id) const { return TableOf(KindOf(id)); }
    bool HasSystem(int systemId) const;

    /// Adds what all kinds share and returns the id. A new id unless one is given.
    EntityId AddRow(Kind kind, int systemId, std::string_view name, std::string_view kindName,
                    std::span<const AttributeData> attributeData, EntityId id = kNoEntity);
    Run AddPoints(std::span<const Point> added);
    std::span<const Point> PointsOf(Run run) const {
        return std::span(points).subspan(run.first, run.count);
    }

    /// Copies of all rows but those of one system, in fresh tables without lost places.
    std::unique_ptr<Tables> Without(int systemId) const;

    std::vector<std::uint32_t> places; ///< of entity id at id - 1; 0: there is none (any more)
    EntityTable nodes{EntityNode};
    EntityTable sections{EntitySection};
    EntityTable polygons{EntityPolygon};
    EntityTable texts{EntityNone};

    std::vector<Point> nodePositions;
    std::vector<std::array<EntityId, 2>> sectionEnds; ///< start and end
    std::vector<Run> sectionVertices;
    std::vector<Run> polygonRings;
    std::vector<Point> textPositions;
    /// What sections state for nodes that do not exist; few sections do.
    std::unordered_map<EntityId, std::array<std::string, 2>> missingEnds;

    std::vector<Point> points; ///< of vertices and rings
    InternedTexts kindNames;
    AttributeTable attributes;

private:
    /// Hands take(row) the rows of other systems after their common columns were copied.
    template <class Take>
    void CopyRows(const Tables& from, Kind kind, int withoutSystem, Take take);
    void CopySection(const Tables& from, std::uint32_t row);
};

/// The name rules, and the counters in use.
struct CTopologyStorage::Naming {
    NameRules rules;
    bool rulesAreRead = false;
    int loadedSystem = 0; ///< whose counters are in use; 0: nobody's
    System::CGisSystem::Counters counters;
};

} // namespace Orvane::Topology
