#include "plugins/network/NetworkDrawing.h"

#include <algorithm>
#include <unordered_map>

#include "platform/win/CodePage.h"
#include "siblings/giscore/systems/GisSystem.h"
#include "siblings/networkcore/TopologyMultiStorage.h"

namespace Orvane::Network {

namespace {

using Topology::AttributeData;
using Topology::CTopologyStorage;

void AddNumber(std::vector<AttributeData>& attributes, std::string_view name, double value) {
    if (value == value) {
        attributes.push_back({name, value});
    }
}

void AddOthers(std::vector<AttributeData>& attributes, const AttributeTable& table,
               std::size_t owner) {
    for (const Attribute& attribute : table.Of(static_cast<std::uint32_t>(owner))) {
        attributes.push_back({attribute.name, attribute.number ? AcDbValue(*attribute.number)
                                                               : AcDbValue(attribute.text)});
    }
}

Topology::Point Flat(const Point& point) {
    return {point.x, point.y};
}

std::vector<Topology::Point> Flat(std::span<const Point> points) {
    std::vector<Topology::Point> flat(points.size());
    std::transform(points.begin(), points.end(), flat.begin(),
                   [](const Point& point) { return Flat(point); });
    return flat;
}

std::vector<AcDbObjectId> AddNodes(CTopologyStorage& storage, System::CGisSystem& system,
                                   const NodeTable& nodes, ImportProgress& progress) {
    std::vector<AcDbObjectId> ids;
    ids.reserve(nodes.size());
    std::vector<AttributeData> attributes;
    for (std::size_t i = 0; i < nodes.size() && progress.Added(); ++i) {
        attributes.clear();
        AddNumber(attributes, kElevation, nodes.elevations[i]);
        AddOthers(attributes, nodes.attributes, i);
        const Topology::Point position{nodes.positions[i].x, nodes.positions[i].y,
                                       nodes.elevations[i]};
        ids.push_back(storage.AddNode(
            system, {nodes.names[i], position, KindName(nodes.kinds[i]), attributes}));
    }
    return ids;
}

void AddSections(CTopologyStorage& storage, System::CGisSystem& system,
                 const SectionTable& sections, const std::vector<AcDbObjectId>& nodeIds,
                 ImportProgress& progress) {
    const auto end = [&](std::int32_t node, std::string_view missingName) {
        return Topology::SectionEnd{node == kMissingNode ? AcDbObjectId() : nodeIds[node],
                                    missingName};
    };
    std::vector<AttributeData> attributes;
    for (std::size_t i = 0; i < sections.size() && progress.Added(); ++i) {
        attributes.clear();
        AddNumber(attributes, kDiameter, sections.diameters[i]);
        AddNumber(attributes, kStatedLength, sections.statedLengths[i]);
        AddOthers(attributes, sections.attributes, i);
        storage.AddSection(
            system, {sections.names[i], end(sections.startNodes[i], sections.MissingStart(i)),
                     end(sections.endNodes[i], sections.MissingEnd(i)),
                     Flat(sections.innerVertices[i]), KindName(sections.kinds[i]), attributes});
    }
}

void AddPolygons(CTopologyStorage& storage, System::CGisSystem& system,
                 const PolygonTable& polygons) {
    std::vector<AttributeData> attributes;
    std::vector<AcDbMPolygon::Ring> rings(1);
    for (std::size_t i = 0; i < polygons.size(); ++i) {
        attributes.clear();
        AddOthers(attributes, polygons.attributes, i);
        rings[0].points = Flat(polygons.rings[i]);
        storage.AddPolygon(system, {polygons.names[i], rings, {}, attributes});
    }
}

void AddLabels(CTopologyStorage& storage, System::CGisSystem& system, const LabelTable& labels) {
    for (std::size_t i = 0; i < labels.size(); ++i) {
        storage.AddText(system, {labels.texts[i], Flat(labels.positions[i])});
    }
}

} // namespace

CString AddToDrawing(const NetworkModel& model, int systemFunction, const CString& name,
                     ImportedSystems& imported, ImportProgress& progress) {
    SystemsInMaking systems;
    CString reason = systems.Make(name, systemFunction, true, model.polygons.size() > 0);
    if (!reason.IsEmpty()) {
        return reason;
    }
    imported = systems.Systems();
    progress.ExpectAdding(model.nodes.size() + model.sections.size());
    CTopologyStorage& storage = *Topology::CTopologyMultiStorage::Instance()->GetTopology();
    const std::vector<AcDbObjectId> nodeIds =
        AddNodes(storage, *imported.pNetwork, model.nodes, progress);
    if (!progress.IsStopped()) {
        AddSections(storage, *imported.pNetwork, model.sections, nodeIds, progress);
    }
    AddLabels(storage, *imported.pNetwork, model.labels);
    if (imported.pPolygons) {
        AddPolygons(storage, *imported.pPolygons, model.polygons);
    }
    if (progress.IsStopped()) {
        imported = {};
        return kStopped;
    }
    systems.Keep();
    return {};
}

SystemNetwork::SystemNetwork(const CTopologyStorage& storage, const System::CGisSystem& system)
    : m_storage(storage), m_nodeIds(storage.GetSystemNodes(system.GetSystemId())),
      m_sectionIds(storage.GetSystemSections(system.GetSystemId())) {
    ReadNodes();
    ReadSections();
}

void SystemNetwork::ReadNodes() {
    const AcDbNameId elevation = AcDbIntern(kElevation);
    for (const AcDbObjectId id : m_nodeIds) {
        const Topology::CNode node = m_storage.GetNodeById(id);
        const Topology::Point position = node.GetPosition();
        m_positions.push_back({position.x, position.y});
        m_nodeKinds.push_back(NodeKindOf(node.GetKindUtf8()));
        m_elevations.push_back(node.GetNumber(elevation).value_or(kNotStated));
    }
}

void SystemNetwork::ReadSections() {
    // Ids of a system ascend, so a node's number is found by search. A section may end at
    // a node of another system; that one joins the snapshot at its end.
    const auto ownCount = m_nodeIds.size();
    std::unordered_map<AcDbObjectId, std::int32_t> foreign;
    const auto numberOf = [&](AcDbObjectId id) -> std::int32_t {
        if (id.isNull()) {
            return kMissingNode;
        }
        const auto end = m_nodeIds.begin() + static_cast<std::ptrdiff_t>(ownCount);
        const auto hit = std::lower_bound(m_nodeIds.begin(), end, id);
        if (hit != end && *hit == id) {
            return static_cast<std::int32_t>(hit - m_nodeIds.begin());
        }
        const auto [entry, isNew] =
            foreign.emplace(id, static_cast<std::int32_t>(m_nodeIds.size()));
        if (isNew) {
            const Topology::Point position = m_storage.GetNodeById(id).GetPosition();
            m_nodeIds.push_back(id);
            m_positions.push_back({position.x, position.y});
            m_nodeKinds.push_back(NodeKindOf(m_storage.GetNodeById(id).GetKindUtf8()));
            m_elevations.push_back(kNotStated);
        }
        return entry->second;
    };
    const AcDbNameId length = AcDbIntern(kStatedLength);
    for (const AcDbObjectId id : m_sectionIds) {
        const Topology::CSection section = m_storage.GetSectionById(id);
        m_startNodes.push_back(numberOf(section.GetStartNodeId()));
        m_endNodes.push_back(numberOf(section.GetEndNodeId()));
        for (const Topology::Point& vertex : section.GetInnerVertices()) {
            m_vertices.points.push_back({vertex.x, vertex.y});
        }
        m_vertices.offsets.push_back(static_cast<std::uint32_t>(m_vertices.points.size()));
        m_sectionKinds.push_back(SectionKindOf(section.GetKindUtf8()));
        m_statedLengths.push_back(section.GetNumber(length).value_or(kNotStated));
    }
}

NetworkGeometry SystemNetwork::Geometry() const {
    NetworkGeometry geometry;
    geometry.nodes = m_positions;
    geometry.startNodes = m_startNodes;
    geometry.endNodes = m_endNodes;
    geometry.vertexOffsets = m_vertices.offsets;
    geometry.vertices = m_vertices.points;
    geometry.nodeKinds = m_nodeKinds;
    geometry.elevations = m_elevations;
    geometry.sectionKinds = m_sectionKinds;
    geometry.statedLengths = m_statedLengths;
    return geometry;
}

std::string SystemNetwork::NodeName(std::size_t node) const {
    return std::string(m_storage.GetNodeById(m_nodeIds[node]).GetNameUtf8());
}

std::string SystemNetwork::SectionName(std::size_t section) const {
    return std::string(m_storage.GetSectionById(m_sectionIds[section]).GetNameUtf8());
}

std::string SystemNetwork::MissingStart(std::size_t section) const {
    return std::string(m_storage.GetSectionById(m_sectionIds[section]).GetMissingStart());
}

std::string SystemNetwork::MissingEnd(std::size_t section) const {
    return std::string(m_storage.GetSectionById(m_sectionIds[section]).GetMissingEnd());
}

} // namespace Orvane::Network
