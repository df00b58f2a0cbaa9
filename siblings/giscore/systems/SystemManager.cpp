#include "siblings/giscore/systems/SystemManager.h"

#include <algorithm>

#include "platform/arx/ApDocManager.h"
#include "platform/arx/EdEditor.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/notification/GisEvents.h"
#include "siblings/giscore/topology/Topology.h"

namespace Orvane::System {

namespace {

// Message ids.
constexpr int kMsgNoDrawing = 900300;
constexpr int kMsgEmptyName = 900301;
constexpr int kMsgNameTaken = 900302;       // with the name
constexpr int kMsgUnknownTopology = 900303; // with the number
constexpr int kMsgUnknownFunction = 900304; // with the number

template <class... Args>
void Explain(CString* pReason, int message, const Args&... args) {
    if (pReason) {
        pReason->Format(CModuleConfiguration::Instance()->GetMsg(message).View(), args...);
    }
}

/// Returns false and a reason if a system cannot have the name. Its current name is allowed.
bool IsNameFree(const CGisSystems& systems, const CString& name, const CGisSystem* pOwn,
                CString* pReason) {
    const CGisSystem* const pOther = systems.GetSystemByName(name);
    if (name.IsEmpty()) {
        Explain(pReason, kMsgEmptyName);
    } else if (pOther && pOther != pOwn) {
        Explain(pReason, kMsgNameTaken, pOther->GetSystemName());
    } else {
        return true;
    }
    return false;
}

/// Returns false and a reason for an unknown topology or function.
bool IsKnownKind(enmTopologyType type, int function, CString* pReason) {
    const CTopology* const pTopology = CModuleConfiguration::Instance()->GetTopology(type);
    if (!pTopology) {
        Explain(pReason, kMsgUnknownTopology, type);
    } else if (pTopology->GetHasFunctions() && !pTopology->GetTopologyFunctionById(function)) {
        Explain(pReason, kMsgUnknownFunction, function);
    } else {
        return true;
    }
    return false;
}

} // namespace

/// Drops the data of a document after it was destroyed, not before: other reactors may still use
/// it while the document closes.
class CSystemManager::DocumentReactor final : public AcApDocManagerReactor {
public:
    explicit DocumentReactor(CSystemManager& manager) : m_manager(manager) {
        acDocManagerPtr()->addReactor(this);
    }
    void documentToBeDestroyed(AcApDocument* pDoc) override { m_dying.push_back(pDoc->database()); }
    void documentDestroyed(const wchar_t*) override {
        for (AcDbDatabase* pDatabase : m_dying) {
            m_manager.m_drawings.erase(pDatabase);
        }
        m_dying.clear();
    }

private:
    CSystemManager& m_manager;
    std::vector<AcDbDatabase*> m_dying;
};

/// Writes the state of all systems into the drawing before it is saved.
class CSystemManager::SaveReactor final : public AcEditorReactor {
public:
    explicit SaveReactor(CSystemManager& manager) : m_manager(manager) {
        acedEditor()->addReactor(this);
    }
    void beginSave(AcDbDatabase* pDb, const wchar_t*) override {
        if (CGisSystems* const pSystems = m_manager.GetSystems(pDb)) {
            CGisEvents::Instance()->Raise(&ISystemEvents::OnSaveSystemContent, pSystems);
            pSystems->StoreState();
        }
    }

private:
    CSystemManager& m_manager;
};

CSystemManager::CSystemManager()
    : m_pDocumentReactor(std::make_unique<DocumentReactor>(*this)),
      m_pSaveReactor(std::make_unique<SaveReactor>(*this)) {}

CSystemManager::~CSystemManager() = default;

CSystemManager* CSystemManager::Instance() {
    static auto* const instance = new CSystemManager;
    return instance;
}

CGisSystems* CSystemManager::GetSystems() {
    return GetSystems(acdbHostApplicationServices()->workingDatabase());
}

CGisSystems* CSystemManager::GetSystems(AcDbDatabase* pDatabase) {
    if (!pDatabase) {
        return nullptr;
    }
    auto& systems = m_drawings[pDatabase];
    if (!systems) {
        systems = std::make_unique<CGisSystems>(pDatabase);
    }
    return systems.get();
}

CGisSystem* CSystemManager::CreateSystem(const wchar_t* name, enmTopologyType type, int function,
                                         CString* pReason) {
    CGisSystems* const pSystems = GetSystems();
    if (!pSystems) {
        Explain(pReason, kMsgNoDrawing);
        return nullptr;
    }
    CString trimmed = name;
    trimmed.Trim();
    if (!IsNameFree(*pSystems, trimmed, nullptr, pReason) ||
        !IsKnownKind(type, function, pReason)) {
        return nullptr;
    }
    const bool hasFunctions =
        CModuleConfiguration::Instance()->GetTopology(type)->GetHasFunctions();
    return &pSystems->Add(trimmed, type, hasFunctions ? function : 0);
}

int CSystemManager::RenameSystem(CGisSystem* pSystem, const wchar_t* name, CString* pReason) {
    CString trimmed = name;
    trimmed.Trim();
    if (!pSystem || !IsNameFree(pSystem->m_owner, trimmed, pSystem, pReason)) {
        return 0;
    }
    pSystem->m_owner.Rename(*pSystem, trimmed);
    return 1;
}

int CSystemManager::DeleteSystem(CGisSystem* pSystem) {
    if (!pSystem) {
        return 0;
    }
    pSystem->m_owner.Remove(*pSystem);
    return 1;
}

CGisSystem* CSystemManager::GetActiveSystem() {
    const CGisSystems* const pSystems = GetSystems();
    return pSystems ? pSystems->m_pActive : nullptr;
}

int CSystemManager::SetSystemActive(CGisSystem* pSystem) {
    CGisSystems* const pSystems = pSystem ? &pSystem->m_owner : GetSystems();
    if (!pSystems) {
        return 0;
    }
    pSystems->SetActive(pSystem);
    return 1;
}

int CSystemManager::SetSystemVisible(CGisSystem* pSystem) {
    if (!pSystem) {
        return 0;
    }
    pSystem->m_owner.SetVisibility(*pSystem, 1);
    return 1;
}

int CSystemManager::SetSystemInvisible(CGisSystem* pSystem) {
    if (!pSystem) {
        return 0;
    }
    pSystem->m_owner.SetVisibility(*pSystem, 0);
    return 1;
}

CGisSystem* CSystemManager::GetSystemById(int id) {
    const CGisSystems* const pSystems = GetSystems();
    return pSystems ? pSystems->GetSystemById(id) : nullptr;
}

CGisSystem* CSystemManager::GetSystemByGuid(const wchar_t* guid) {
    const CGisSystems* const pSystems = GetSystems();
    return pSystems ? pSystems->GetSystemByGuid(guid) : nullptr;
}

CGisSystem* CSystemManager::GetSystemByName(const wchar_t* name) {
    const CGisSystems* const pSystems = GetSystems();
    return pSystems ? pSystems->GetSystemByName(name) : nullptr;
}

} // namespace Orvane::System
