// The entities of all open drawings.
#pragma once

#include <array>
#include <map>
#include <memory>

#include "siblings/networkcore/TopologyStorage.h"

namespace Orvane::Topology {

class TopologyStatistics;

/// Two storages per drawing, created on first use and dropped with the document. Deleting a
/// system erases its entities. Main thread only.
class NETWORKCORE_API CTopologyMultiStorage {
public:
    /// Lives to the end of the process.
    static CTopologyMultiStorage* Instance();

    /// The main storage of the current drawing. Never null: without a drawing it is an empty one,
    /// to which nothing can be added because there are no systems.
    CTopologyStorage* GetTopology();
    /// The auxiliary storage of the current drawing, which holds assembly schemes. Never null.
    CTopologyStorage* GetAuxTopology();
    /// The main storage of any open drawing.
    CTopologyStorage* GetTopology(AcDbDatabase* pDatabase);
    CTopologyStorage* GetAuxTopology(AcDbDatabase* pDatabase);

private:
    class Watcher;

    CTopologyMultiStorage();
    ~CTopologyMultiStorage();

    /// The storages of one drawing, indexed by CTopologyStorage::Role.
    using Storages = std::array<std::unique_ptr<CTopologyStorage>, 2>;
    CTopologyStorage* Get(AcDbDatabase* pDatabase, CTopologyStorage::Role role);

    std::map<AcDbDatabase*, Storages> m_storages;
    std::unique_ptr<Watcher> m_pWatcher;
    std::unique_ptr<TopologyStatistics> m_pStatistics;
};

} // namespace Orvane::Topology
