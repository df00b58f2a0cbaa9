// The entities of all open drawings.
#pragma once

#include <map>
#include <memory>

#include "siblings/networkcore/Api.h"

class AcDbDatabase;

namespace Orvane::Topology {

class CTopologyStorage;

/// A storage for each drawing, made at its first use and dropped with the document. The
/// entities of a system go when the system is deleted. Main thread only.
class NETWORKCORE_API CTopologyMultiStorage {
public:
    /// Lives to the end of the process.
    static CTopologyMultiStorage* Instance();

    /// The main storage of the current drawing. Never null: without a drawing it is an
    /// empty one, to which nothing can be added since there are no systems.
    CTopologyStorage* GetTopology();
    /// The main storage of any open drawing.
    CTopologyStorage* GetTopology(AcDbDatabase* pDatabase);

private:
    class Watcher;

    CTopologyMultiStorage();
    ~CTopologyMultiStorage();

    std::map<AcDbDatabase*, std::unique_ptr<CTopologyStorage>> m_storages;
    std::unique_ptr<Watcher> m_pWatcher;
};

} // namespace Orvane::Topology
