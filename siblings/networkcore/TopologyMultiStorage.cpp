#include "siblings/networkcore/TopologyMultiStorage.h"

#include <vector>

#include "platform/arx/ApDocManager.h"
#include "siblings/giscore/GisEvents.h"
#include "siblings/giscore/GisSystem.h"
#include "siblings/networkcore/TopologyStorage.h"

namespace Orvane::Topology {

/// Drops what goes: a drawing's storage once its document is gone (others may still ask
/// while they are told that it is about to go), and a system's entities.
class CTopologyMultiStorage::Watcher final : public AcApDocManagerReactor,
                                             public System::ISystemEvents {
public:
    explicit Watcher(CTopologyMultiStorage& owner) : m_owner(owner) {
        acDocManagerPtr()->addReactor(this);
        System::CGisEvents::Instance()->Register(this);
    }
    void documentToBeDestroyed(AcApDocument* pDoc) override { m_dying.push_back(pDoc->database()); }
    void documentDestroyed(const wchar_t*) override {
        for (AcDbDatabase* pDatabase : m_dying) {
            m_owner.m_storages.erase(pDatabase);
        }
        m_dying.clear();
    }
    void OnDropSystemContent(System::CGisSystem* pSystem) override {
        const auto hit = m_owner.m_storages.find(pSystem->GetDatabase());
        if (hit != m_owner.m_storages.end()) {
            hit->second->RemoveSystemEntities(pSystem->GetSystemId());
        }
    }

private:
    CTopologyMultiStorage& m_owner;
    std::vector<AcDbDatabase*> m_dying;
};

CTopologyMultiStorage::CTopologyMultiStorage() : m_pWatcher(std::make_unique<Watcher>(*this)) {}

CTopologyMultiStorage::~CTopologyMultiStorage() = default;

CTopologyMultiStorage* CTopologyMultiStorage::Instance() {
    static auto* const instance = new CTopologyMultiStorage;
    return instance;
}

CTopologyStorage* CTopologyMultiStorage::GetTopology() {
    return GetTopology(acdbHostApplicationServices()->workingDatabase());
}

CTopologyStorage* CTopologyMultiStorage::GetTopology(AcDbDatabase* pDatabase) {
    auto& storage = m_storages[pDatabase];
    if (!storage) {
        storage = std::make_unique<CTopologyStorage>(pDatabase);
    }
    return storage.get();
}

} // namespace Orvane::Topology
