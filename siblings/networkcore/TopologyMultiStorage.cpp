#include "siblings/networkcore/TopologyMultiStorage.h"

#include <vector>

#include "platform/arx/ApDocManager.h"
#include "siblings/giscore/notification/GisEvents.h"
#include "siblings/giscore/systems/SystemManager.h"
#include "siblings/networkcore/TopologyStatistics.h"

namespace Orvane::Topology {

/// Drops a drawing's storages once its document is destroyed (not earlier: other reactors may
/// still use them while it closes), and a system's entities when it is deleted.
class CTopologyMultiStorage::Watcher final : public AcApDocManagerReactor,
                                             public System::ISystemEvents {
public:
    explicit Watcher(CTopologyMultiStorage& owner) : m_owner(owner) {
        acDocManagerPtr()->addReactor(this);
        System::CGisEvents::Instance()->Register(this);
    }
    void documentToBeDeactivated(AcApDocument* pDoc) override {
        // The active system's counters are loaded again when this drawing becomes current.
        SaveCounters(System::CSystemManager::Instance()->GetSystems(pDoc->database()));
    }
    void documentToBeDestroyed(AcApDocument* pDoc) override { m_dying.push_back(pDoc->database()); }
    void documentDestroyed(const wchar_t*) override {
        for (AcDbDatabase* pDatabase : m_dying) {
            m_owner.m_storages.erase(pDatabase);
        }
        m_dying.clear();
    }
    void OnDropSystemContent(System::CGisSystem* pSystem) override {
        // Create the storages if necessary: the drawing may hold entities even if nobody used
        // them yet.
        for (CTopologyStorage* const pStorage : {m_owner.GetTopology(pSystem->GetDatabase()),
                                                 m_owner.GetAuxTopology(pSystem->GetDatabase())}) {
            pStorage->RemoveSystemEntities(pSystem->GetSystemId());
        }
    }
    void OnSaveSystemContent(System::CGisSystems* pSystems) override { SaveCounters(pSystems); }

private:
    void SaveCounters(System::CGisSystems* pSystems) {
        for (CTopologyStorage* const pStorage : {m_owner.GetTopology(pSystems->GetDatabase()),
                                                 m_owner.GetAuxTopology(pSystems->GetDatabase())}) {
            pStorage->SaveCountersToSystem(pSystems->GetActiveSystem());
        }
    }

    CTopologyMultiStorage& m_owner;
    std::vector<AcDbDatabase*> m_dying;
};

CTopologyMultiStorage::CTopologyMultiStorage()
    : m_pWatcher(std::make_unique<Watcher>(*this)),
      m_pStatistics(std::make_unique<TopologyStatistics>()) {
    System::SetSystemStatistics(m_pStatistics.get());
}

CTopologyMultiStorage::~CTopologyMultiStorage() = default;

CTopologyMultiStorage* CTopologyMultiStorage::Instance() {
    static auto* const instance = new CTopologyMultiStorage;
    return instance;
}

CTopologyStorage* CTopologyMultiStorage::GetTopology() {
    return GetTopology(acdbHostApplicationServices()->workingDatabase());
}

CTopologyStorage* CTopologyMultiStorage::GetAuxTopology() {
    return GetAuxTopology(acdbHostApplicationServices()->workingDatabase());
}

CTopologyStorage* CTopologyMultiStorage::GetTopology(AcDbDatabase* pDatabase) {
    return Get(pDatabase, CTopologyStorage::Role::Main);
}

CTopologyStorage* CTopologyMultiStorage::GetAuxTopology(AcDbDatabase* pDatabase) {
    return Get(pDatabase, CTopologyStorage::Role::Auxiliary);
}

CTopologyStorage* CTopologyMultiStorage::Get(AcDbDatabase* pDatabase, CTopologyStorage::Role role) {
    auto& storage = m_storages[pDatabase][static_cast<std::size_t>(role)];
    if (!storage) {
        storage = std::make_unique<CTopologyStorage>(pDatabase, role);
    }
    return storage.get();
}

} // namespace Orvane::Topology
