#include "plugins/common/SystemNetwork.h"

#include <algorithm>
#include <unordered_map>

#include "siblings/giscore/systems/GisSystem.h"

namespace Orvane::Network {

using Topology::CTopologyStorage;

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
    // Entity ids of a system ascend, so a binary search finds a node's number. A section may end at
    // a node of another system; such nodes are appended to the snapshot.
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
