// Events: housekeeping and delivery to the listeners.
#include "platform/arx/Guard.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/data/DataConfiguration.h"
#include "siblings/giscore/systems/GisSystem.h"
#include "siblings/networkcore/LinearDataManager.h"
#include "siblings/networkcore/TopologyMultiStorage.h"
#include "siblings/networkcore/TopologyStorage.h"
#include "workspacecore/core/HostWillClose.h"
#include "workspacecore/core/WsManager.h"
#include "workspacecore/trace/Trace.h"

// Traces the name of a system, if there is one.
#define WS_TRACE_SYSTEM_NAME(pSystem)                                                              \
    do {                                                                                           \
        if (pSystem) {                                                                             \
            WS_TRACE_TEXT((pSystem)->GetSystemName());                                             \
        }                                                                                          \
    } while (false)

namespace Orvane::Workspace {

namespace {

Topology::CTopologyStorage* MainTopology() {
    return Topology::CTopologyMultiStorage::Instance()->GetTopology();
}

} // namespace

template <auto Event, class... Args>
void CWsManager::Deliver(const wchar_t* event, Args... args) const {
    // Listeners added during the event are not called.
    const std::size_t count = m_Listeners.size();
    const unsigned int changes = m_nListenerChanges;
    IWsListener* const* const pFirst = m_Listeners.data();
    // Identifies the listener's module; the listener itself may be destroyed once it has thrown.
    const void* owner = nullptr;
    const auto call = [&](IWsListener* pListener) {
        owner = ClassAddress(*pListener);
        (pListener->*Event)(args...);
    };
    try {
        for (IWsListener* const* pNext = pFirst; pNext != pFirst + count;) {
            call(*pNext++);
            if (changes != m_nListenerChanges) [[unlikely]] {
                // A listener broke its contract and registered or unregistered another one:
                // continue by index, so no dangling pointer is used.
                for (auto i = static_cast<std::size_t>(pNext - pFirst);
                     i < count && i < m_Listeners.size(); ++i) {
                    call(m_Listeners[i]);
                }
                return;
            }
        }
    } catch (...) {
        NoteInterruptedActivity(LibraryOfAddress(owner), event);
        throw;
    }
}

int CWsManager::Raise_OnBeforeAcadWillClose() {
    WS_TRACE_TEXT("CAD will close");
    const std::size_t count = m_Listeners.size();
    for (std::size_t i = 0; i < count && i < m_Listeners.size(); ++i) {
        IWsListener* const pListener = m_Listeners[i];
        if (CallForeign(*pListener, L"OnBeforeAcadWillClose",
                        [&] { return pListener->OnBeforeAcadWillClose(); })) {
            return 1;
        }
    }
    s_bHostWillClose = 1;
    return 0;
}

void CWsManager::Raise_OnBeginSaveAcadDocument(AcDbDatabase* pDb, const wchar_t* lpszFileName) {
    WS_TRACE_TEXT(lpszFileName);
    Deliver<&IWsListener::OnBeginSaveAcadDocument>(L"OnBeginSaveAcadDocument", pDb, lpszFileName);
}

void CWsManager::Raise_OnSaveCompletedAcadDocument(AcDbDatabase* pDb, const wchar_t* lpszFileName) {
    WS_TRACE_TEXT(lpszFileName);
    Deliver<&IWsListener::OnSaveCompletedAcadDocument>(L"OnSaveCompletedAcadDocument", pDb,
                                                       lpszFileName);
}

void CWsManager::Raise_OnAcadDocumentBecomeCurrent(AcApDocument* pActivatedDoc) {
    WS_TRACE_SCOPE();
    WS_TRACE_VALUE("pActivatedDoc", pActivatedDoc);
    if (s_bHostWillClose) {
        return;
    }
    if (pActivatedDoc) {
        Data::CDataConfiguration::Instance()->SetFloatToStrPrecision_Point(
            CModuleConfiguration::Instance()->GetNodeIndexCoorPrecision());
    }
    Deliver<&IWsListener::OnAcadDocumentBecomeCurrent>(L"OnAcadDocumentBecomeCurrent",
                                                       pActivatedDoc);
}

void CWsManager::Raise_OnAcadDocumentToBeDeactivated(AcApDocument* pDoc) {
    if (!s_bHostWillClose) {
        Deliver<&IWsListener::OnAcadDocumentToBeDeactivated>(L"OnAcadDocumentToBeDeactivated",
                                                             pDoc);
    }
}

void CWsManager::Raise_OnAcadDocumentToBeDestroyed(AcApDocument* pDocToDestroy) {
    WS_TRACE_SCOPE();
    WS_TRACE_VALUE("pDocToDestroy", pDocToDestroy);
    if (!s_bHostWillClose) {
        Deliver<&IWsListener::OnAcadDocumentToBeDestroyed>(L"OnAcadDocumentToBeDestroyed",
                                                           pDocToDestroy);
    }
}

void CWsManager::Raise_OnAcadDocumentDestroyed(const wchar_t* lpszFileName) {
    WS_TRACE_SCOPE();
    WS_TRACE_VALUE("lpszFileName", lpszFileName);
    if (!s_bHostWillClose) {
        Deliver<&IWsListener::OnAcadDocumentDestroyed>(L"OnAcadDocumentDestroyed", lpszFileName);
    }
}

void CWsManager::Raise_OnSystemChanged(System::CGisSystem* pSystem) {
    WS_TRACE_SCOPE();
    WS_TRACE_SYSTEM_NAME(pSystem);
    Deliver<&IWsListener::OnSystemChanged>(L"OnSystemChanged", pSystem);
}

void CWsManager::Raise_OnSystemBecomeActive(System::CGisSystem* pSysToBecomeActive) {
    WS_TRACE_SCOPE();
    WS_TRACE_VALUE("pSysToBecomeActive", pSysToBecomeActive);
    if (s_bHostWillClose) {
        return;
    }
    if (WS_TRACE_VERIFY(pSysToBecomeActive, "pSysToBecomeActive")) {
        WS_TRACE_TEXT(pSysToBecomeActive->GetSystemName());
    }
    Data::CLinearDataManager::Instance()->RefreshLinearDataDefinitions();
    MainTopology()->RefreshNameRules();
    MainTopology()->LoadCountersFromSystem(pSysToBecomeActive);
    Deliver<&IWsListener::OnSystemBecomeActive>(L"OnSystemBecomeActive", pSysToBecomeActive);
}

void CWsManager::Raise_OnSystemBecomeInactive(System::CGisSystem* pSystem) {
    MainTopology()->SaveCountersToSystem(pSystem);
    Deliver<&IWsListener::OnSystemBecomeInactive>(L"OnSystemBecomeInactive", pSystem);
}

void CWsManager::Raise_OnSystemBecomeHidden(System::CGisSystem* pSystem) {
    WS_TRACE_SYSTEM_NAME(pSystem);
    Deliver<&IWsListener::OnSystemBecomeHidden>(L"OnSystemBecomeHidden", pSystem);
}

void CWsManager::Raise_OnSystemBecomeShown(System::CGisSystem* pSystem) {
    WS_TRACE_SYSTEM_NAME(pSystem);
    Deliver<&IWsListener::OnSystemBecomeShown>(L"OnSystemBecomeShown", pSystem);
}

void CWsManager::Raise_OnBeforeSystemDelete(System::CGisSystem* pSystem) {
    WS_TRACE_SCOPE();
    WS_TRACE_SYSTEM_NAME(pSystem);
    Deliver<&IWsListener::OnBeforeSystemDelete>(L"OnBeforeSystemDelete", pSystem);
}

void CWsManager::Raise_OnAfterSystemDelete() {
    WS_TRACE_TEXT("Marker");
    Deliver<&IWsListener::OnAfterSystemDelete>(L"OnAfterSystemDelete");
}

void CWsManager::Raise_OnNewSystemCreated(System::CGisSystem* pNewSystem) {
    WS_TRACE_SCOPE();
    WS_TRACE_VALUE("pNewSystem", pNewSystem);
    WS_TRACE_SYSTEM_NAME(pNewSystem);
    Deliver<&IWsListener::OnNewSystemCreated>(L"OnNewSystemCreated", pNewSystem);
}

void CWsManager::Raise_OnNewConfigDefinitionAdded(System::CGisSystem* pSystem,
                                                  const wchar_t* lpszRepositoryTag,
                                                  const wchar_t* lpszNewDefinitionGuid) {
    if (pSystem) {
        WS_TRACE_VALUE("lpszRepositoryTag", lpszRepositoryTag);
        WS_TRACE_VALUE("lpszNewDefinitionGuid", lpszNewDefinitionGuid);
    }
    Deliver<&IWsListener::OnNewConfigDefinitionAdded>(L"OnNewConfigDefinitionAdded", pSystem,
                                                      lpszRepositoryTag, lpszNewDefinitionGuid);
}

void CWsManager::Raise_OnTemporaryDataRefreshed() {
    if (!s_bHostWillClose) {
        Deliver<&IWsListener::OnTemporaryDataRefreshed>(L"OnTemporaryDataRefreshed");
    }
}

void CWsManager::Raise_OnBeforeConfigDefinitionDeleted(
    System::CGisSystem* pSystem, const wchar_t* lpszRepositoryTag,
    const wchar_t* lpszDefinitionGuidToBeDeleted) {
    if (pSystem) {
        WS_TRACE_VALUE("lpszRepositoryTag", lpszRepositoryTag);
        WS_TRACE_VALUE("lpszDefinitionGuidToBeDeleted", lpszDefinitionGuidToBeDeleted);
    }
    Deliver<&IWsListener::OnBeforeConfigDefinitionDeleted>(L"OnBeforeConfigDefinitionDeleted",
                                                           pSystem, lpszRepositoryTag,
                                                           lpszDefinitionGuidToBeDeleted);
}

void CWsManager::Raise_OnConfigDefinitionChanged(System::CGisSystem* pSystem,
                                                 const wchar_t* lpszRepositoryTag,
                                                 const wchar_t* lpsChangedDefinitionGuid) {
    if (pSystem) {
        WS_TRACE_VALUE("lpszRepositoryTag", lpszRepositoryTag);
        WS_TRACE_VALUE("lpsChangedDefinitionGuid", lpsChangedDefinitionGuid);
    }
    Deliver<&IWsListener::OnConfigDefinitionChanged>(L"OnConfigDefinitionChanged", pSystem,
                                                     lpszRepositoryTag, lpsChangedDefinitionGuid);
}

void CWsManager::Raise_OnConfigBecomeDefault(System::CGisSystem* pSystem,
                                             const wchar_t* lpszRepositoryTag,
                                             const wchar_t* lpszDefaultDefinitionGuid) {
    if (pSystem) {
        WS_TRACE_VALUE("lpszRepositoryTag", lpszRepositoryTag);
        WS_TRACE_VALUE("lpszDefaultDefinitionGuid", lpszDefaultDefinitionGuid);
    }
    Deliver<&IWsListener::OnConfigBecomeDefault>(L"OnConfigBecomeDefault", pSystem,
                                                 lpszRepositoryTag, lpszDefaultDefinitionGuid);
}

void CWsManager::Raise_OnBeforeCommandActivated(const wchar_t* lpszCommandId) {
    WS_TRACE_SCOPE();
    if (!s_bHostWillClose) {
        WS_TRACE_TEXT(lpszCommandId);
        Deliver<&IWsListener::OnBeforeCommandActivated>(L"OnBeforeCommandActivated", lpszCommandId);
    }
}

void CWsManager::Raise_OnAfterCommandCompleted(const wchar_t* lpszCommandId) {
    WS_TRACE_SCOPE();
    if (!s_bHostWillClose) {
        WS_TRACE_TEXT(lpszCommandId);
        Deliver<&IWsListener::OnAfterCommandCompleted>(L"OnAfterCommandCompleted", lpszCommandId);
    }
}

void CWsManager::Raise_OnAfterGeneralSettingsChanged() {
    WS_TRACE_TEXT("Marker");
    Deliver<&IWsListener::OnAfterGeneralSettingsChanged>(L"OnAfterGeneralSettingsChanged");
}

} // namespace Orvane::Workspace
