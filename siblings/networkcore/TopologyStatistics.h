// Computes the statistics of systems from the entities of their drawings. Internal to this
// module.
#pragma once

#include <array>
#include <cstdint>

#include "siblings/giscore/systems/SystemStatistics.h"

namespace Orvane::Topology {

class CTopologyStorage;

/// Caches the values of the last system queried until its drawing changes.
class TopologyStatistics final : public System::ISystemStatistics {
public:
    std::optional<double> GetStatistic(const System::CGisSystem& system,
                                       System::enmStatistic statistic) override;

private:
    static constexpr std::size_t kCount = 16;
    using Figures = std::array<std::optional<double>, kCount>;
    static Figures ComputeNetwork(const CTopologyStorage& storage, int systemId);
    static Figures ComputePolygons(const CTopologyStorage& storage, int systemId);

    std::uint64_t m_nStamp = 0; ///< change stamp of the storage
    int m_nSystemId = 0;
    Figures m_figures;
};

} // namespace Orvane::Topology
