#include "plugins/repository/RepositoryDefaults.h"

#include "platform/arx/ApDocManager.h"
#include "platform/arx/DbUndoScopes.h"
#include "platform/arx/EdPrompt.h"
#include "plugins/repository/RepositoryTexts.h"
#include "siblings/cadwrapper/DocLock.h"
#include "siblings/giscore/repository/IRepositoryFamily.h"
#include "siblings/giscore/repository/RepositoryFactory.h"
#include "siblings/giscore/repository/RepositoryManager.h"
#include "siblings/giscore/repository/RepositoryStore.h"
#include "siblings/giscore/systems/GisSystems.h"
#include "siblings/giscore/systems/SystemManager.h"

namespace Orvane::Repository {

namespace {

void ShowDefaults(const CString& tag, IRepositoryFamily& family, System::CGisSystem& system) {
    CRepositoryFactory* const pFactory = CRepositoryManager::Instance()->GetRepositoryfactory(tag);
    const auto store = pFactory && pFactory->SupportsDefaultItem()
                           ? pFactory->GetSystemStore(&system)
                           : CRepositoryFactory::StorePtr();
    if (!store) {
        return;
    }
    for (const RepositoryItemHead& head : store->GetHeads()) {
        const auto item =
            store->GetDefault(head.entityType) == head.guid ? store->GetItem(head.guid) : nullptr;
        if (item && family.ShowDefault(*item, system)) {
            acutPrintf(L"%s\n", Text(Msg::DefaultIsShown, system.GetSystemName(), head.name));
        }
    }
}

} // namespace

void DefaultsAtOpening::OnAcadDocumentBecomeCurrent(AcApDocument* pDoc) {
    System::CGisSystems* const pSystems =
        pDoc && m_seen.insert(pDoc).second
            ? System::CSystemManager::Instance()->GetSystems(pDoc->database())
            : nullptr;
    if (!pSystems) {
        return;
    }
    const CORVCDocLock lock;
    const AcDbUndoGroup step(*pDoc->database(), Text(Msg::ShowsDefaults));
    const CRepositoryManager& repositories = *CRepositoryManager::Instance();
    for (System::CGisSystem* const pSystem : pSystems->GetSystemList()) {
        for (const CString& tag : repositories.GetRepositoryFamilyTags()) {
            ShowDefaults(tag, *repositories.GetRepositoryFamily(tag), *pSystem);
        }
    }
}

void DefaultsAtOpening::OnAcadDocumentToBeDestroyed(AcApDocument* pDoc) {
    m_seen.erase(pDoc);
}

} // namespace Orvane::Repository
