// A line system of the drawing for statistics, checks and path searches.
#pragma once

#include <vector>

#include "plugins/common/NetworkGeometry.h"
#include "siblings/networkcore/TopologyStorage.h"

namespace Orvane::Network {

/// One line system of the drawing as arrays, for statistics and checks. A snapshot: it does not
/// follow later changes. Names are read from the drawing on demand, so the drawing must outlive it.
class SystemNetwork final : public INetworkNames {
public:
    SystemNetwork(const Topology::CTopologyStorage& storage, const System::CGisSystem& system);

    NetworkGeometry Geometry() const;
    AcDbObjectId NodeId(std::size_t node) const { return m_nodeIds[node]; }

    std::string NodeName(std::size_t node) const override;
    std::string SectionName(std::size_t section) const override;
    std::string MissingStart(std::size_t section) const override;
    std::string MissingEnd(std::size_t section) const override;

private:
    void ReadNodes();
    void ReadSections();

    const Topology::CTopologyStorage& m_storage;
    std::vector<AcDbObjectId> m_nodeIds;
    std::vector<AcDbObjectId> m_sectionIds;
    std::vector<Point> m_positions;
    std::vector<NodeKind> m_nodeKinds;
    std::vector<double> m_elevations;
    std::vector<std::int32_t> m_startNodes;
    std::vector<std::int32_t> m_endNodes;
    PointLists m_vertices;
    std::vector<SectionKind> m_sectionKinds;
    std::vector<double> m_statedLengths;
};

} // namespace Orvane::Network
