#include "siblings/networkcore/TopologyStatistics.h"

#include <algorithm>

#include "siblings/giscore/systems/GisSystem.h"
#include "siblings/networkcore/Components.h"
#include "siblings/networkcore/TopologyMultiStorage.h"

namespace Orvane::Topology {

namespace {

/// Number of section ends at a node.
struct Degrees {
    std::size_t isolated = 0;
    std::size_t ends = 0;
    std::size_t through = 0;
    std::size_t branches = 0;

    explicit Degrees(const std::vector<std::uint32_t>& counts) {
        for (const std::uint32_t count : counts) {
            ++(count == 0 ? isolated : count == 1 ? ends : count == 2 ? through : branches);
        }
    }
};

} // namespace

TopologyStatistics::Figures TopologyStatistics::ComputeNetwork(const CTopologyStorage& storage,
                                                               int systemId) {
    using namespace System;
    const std::vector<AcDbObjectId> nodes = storage.GetSystemNodes(systemId);
    const std::vector<AcDbObjectId> sections = storage.GetSystemSections(systemId);
    const auto placeOf = [&](AcDbObjectId id) {
        const auto hit = std::lower_bound(nodes.begin(), nodes.end(), id);
        return hit != nodes.end() && *hit == id ? hit - nodes.begin() : -1;
    };
    Components parts(nodes.size());
    std::vector<std::uint32_t> degrees(nodes.size());
    std::size_t whole = 0; // sections with both end nodes
    double length = 0;
    for (const AcDbObjectId id : sections) {
        const CSection section(&storage, id);
        const auto start = placeOf(section.GetStartNodeId());
        const auto end = placeOf(section.GetEndNodeId());
        for (const auto place : {start, end}) {
            if (place >= 0) {
                ++degrees[static_cast<std::size_t>(place)];
            }
        }
        if (start >= 0 && end >= 0) {
            parts.Join(static_cast<std::size_t>(start), static_cast<std::size_t>(end));
            ++whole;
        }
        length += section.GetDrawnLength();
    }
    const Degrees degree(degrees);
    Figures figures;
    const auto set = [&](enmStatistic statistic, double value) { figures[statistic] = value; };
    set(StatisticNodes, static_cast<double>(nodes.size()));
    set(StatisticSections, static_cast<double>(sections.size()));
    set(StatisticLength, length);
    set(StatisticParts, static_cast<double>(parts.Count()));
    set(StatisticLoops, static_cast<double>(whole + parts.Count() - nodes.size()));
    set(StatisticIsolatedNodes, static_cast<double>(degree.isolated));
    set(StatisticEndNodes, static_cast<double>(degree.ends));
    set(StatisticThroughNodes, static_cast<double>(degree.through));
    set(StatisticBranchNodes, static_cast<double>(degree.branches));
    return figures;
}

TopologyStatistics::Figures TopologyStatistics::ComputePolygons(const CTopologyStorage& storage,
                                                                int systemId) {
    using namespace System;
    const std::vector<AcDbObjectId> polygons = storage.GetSystemPolygons(systemId);
    std::size_t corners = 0;
    double area = 0;
    for (const AcDbObjectId id : polygons) {
        const CPolygon polygon(&storage, id);
        area += polygon.GetArea();
        for (const AcDbMPolygon::Ring& ring : polygon.GetRings()) {
            corners += ring.points.size();
        }
    }
    Figures figures;
    figures[StatisticPolygons] = static_cast<double>(polygons.size());
    figures[StatisticPolygonNodes] = static_cast<double>(corners);
    figures[StatisticArea] = area;
    return figures;
}

std::optional<double> TopologyStatistics::GetStatistic(const System::CGisSystem& system,
                                                       System::enmStatistic statistic) {
    const bool isScheme = system.GetTopologyType() == TopologyScheme;
    CTopologyMultiStorage& all = *CTopologyMultiStorage::Instance();
    const CTopologyStorage& storage = isScheme ? *all.GetAuxTopology(system.GetDatabase())
                                               : *all.GetTopology(system.GetDatabase());
    const int systemId = system.GetSystemId();
    if (statistic < 0 || static_cast<std::size_t>(statistic) >= kCount) {
        return std::nullopt;
    }
    if (m_nStamp != storage.GetChangeStamp() || m_nSystemId != systemId) {
        const bool isPolygons = system.GetTopologyType() == TopologyPolygon;
        m_figures =
            isPolygons ? ComputePolygons(storage, systemId) : ComputeNetwork(storage, systemId);
        // Alignments have statistics of their own; those for profiles are not available here.
        if (system.GetTopologyType() == TopologyLine &&
            system.GetSystemFunction() == kFunctionAlignment) {
            m_figures[System::StatisticAlignments] = m_figures[System::StatisticParts];
            m_figures[System::StatisticMainPoints] = m_figures[System::StatisticNodes];
        }
        m_nStamp = storage.GetChangeStamp();
        m_nSystemId = systemId;
    }
    return m_figures[static_cast<std::size_t>(statistic)];
}

} // namespace Orvane::Topology
