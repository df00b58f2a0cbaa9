#include "siblings/networkcore/TopologyTables.h"

#include <algorithm>
#include <utility>

namespace Orvane::Topology {

std::vector<EntityId> EntityTable::OfSystem(int systemId) const {
    std::vector<EntityId> own;
    for (std::size_t row = 0; row < ids.size(); ++row) {
        if (systems[row] == systemId) {
            own.push_back(ids[row]);
        }
    }
    return own;
}

bool EntityTable::HasSystem(int systemId) const {
    return std::find(systems.begin(), systems.end(), systemId) != systems.end();
}

void EntityTable::Reserve(std::size_t rows) {
    ids.reserve(ids.size() + rows);
    systems.reserve(systems.size() + rows);
    names.reserve(names.size() + rows);
    kinds.reserve(kinds.size() + rows);
    attributes.reserve(attributes.size() + rows);
}

bool CTopologyStorage::Tables::HasSystem(int systemId) const {
    return nodes.HasSystem(systemId) || sections.HasSystem(systemId) ||
           polygons.HasSystem(systemId) || texts.HasSystem(systemId);
}

EntityTable& CTopologyStorage::Tables::TableOf(enmEntityType type) {
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

EntityTable& CTopologyStorage::Tables::TableOf(Kind kind) {
    return const_cast<EntityTable&>(std::as_const(*this).TableOf(kind));
}

const EntityTable& CTopologyStorage::Tables::TableOf(Kind kind) const {
    switch (kind) {
    case Kind::Node:
        return nodes;
    case Kind::Section:
        return sections;
    case Kind::Polygon:
        return polygons;
    default:
        return texts;
    }
}

EntityId CTopologyStorage::Tables::AddRow(Kind kind, int systemId, std::string_view name,
                                          std::string_view kindName,
                                          std::span<const AttributeData> attributeData,
                                          EntityId id) {
    EntityTable& table = TableOf(kind);
    if (table.ids.size() >= kMostRows || places.size() >= std::numeric_limits<EntityId>::max()) {
        throw std::length_error("too many entities in a drawing");
    }
    const auto row = static_cast<std::uint32_t>(table.ids.size());
    if (id == kNoEntity) {
        places.push_back(0);
        id = static_cast<EntityId>(places.size());
    }
    table.names.push_back(table.nameTexts.Add(name));
    table.kinds.push_back(kindNames.Intern(kindName));
    table.attributes.push_back(attributes.Add(attributeData));
    table.systems.push_back(systemId);
    table.ids.push_back(id);
    places[id - 1] = static_cast<std::uint32_t>(kind) << kRowBits | row;
    return id;
}

Run CTopologyStorage::Tables::AddPoints(std::span<const Point> added) {
    if (added.size() > std::numeric_limits<std::uint32_t>::max() - points.size()) {
        throw std::length_error("too many vertices in a drawing");
    }
    const Run run{static_cast<std::uint32_t>(points.size()),
                  static_cast<std::uint32_t>(added.size())};
    // A copy in between, since they may be the points of another entity.
    const std::vector<Point> copy(added.begin(), added.end());
    points.insert(points.end(), copy.begin(), copy.end());
    return run;
}

template <class Take>
void CTopologyStorage::Tables::CopyRows(const Tables& from, Kind kind, int withoutSystem,
                                        Take take) {
    const EntityTable& table = from.TableOf(kind);
    for (std::uint32_t row = 0; row < table.ids.size(); ++row) {
        if (table.systems[row] != withoutSystem) {
            AddRow(kind, table.systems[row], table.NameOf(row), from.kindNames[table.kinds[row]],
                   from.attributes.Of(table.attributes[row]), table.ids[row]);
            take(row);
        }
    }
}

void CTopologyStorage::Tables::CopySection(const Tables& from, std::uint32_t row) {
    std::array<EntityId, 2> ends = from.sectionEnds[row];
    std::array<std::string, 2> missing;
    const EntityId id = from.sections.ids[row];
    if (const auto hit = from.missingEnds.find(id); hit != from.missingEnds.end()) {
        missing = hit->second;
    }
    for (const std::size_t i : {0, 1}) {
        // The nodes that stay are here already.
        if (ends[i] != kNoEntity && KindOf(ends[i]) != Kind::Node) {
            missing[i] = from.nodes.NameOf(from.RowOf(ends[i]));
            ends[i] = kNoEntity;
        }
    }
    sectionEnds.push_back(ends);
    sectionVertices.push_back(AddPoints(from.PointsOf(from.sectionVertices[row])));
    if (!missing[0].empty() || !missing[1].empty()) {
        missingEnds.emplace(id, std::move(missing));
    }
}

std::unique_ptr<CTopologyStorage::Tables> CTopologyStorage::Tables::Without(int systemId) const {
    auto kept = std::make_unique<Tables>();
    kept->places.resize(places.size()); // so that no id is used again
    kept->CopyRows(*this, Kind::Node, systemId,
                   [&](std::uint32_t row) { kept->nodePositions.push_back(nodePositions[row]); });
    kept->CopyRows(*this, Kind::Section, systemId,
                   [&](std::uint32_t row) { kept->CopySection(*this, row); });
    kept->CopyRows(*this, Kind::Polygon, systemId, [&](std::uint32_t row) {
        kept->polygonRings.push_back(kept->AddPoints(PointsOf(polygonRings[row])));
    });
    kept->CopyRows(*this, Kind::Text, systemId,
                   [&](std::uint32_t row) { kept->textPositions.push_back(textPositions[row]); });
    return kept;
}

} // namespace Orvane::Topology
