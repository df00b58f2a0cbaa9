#include "plugins/repository/RepositoryTarget.h"

#include "platform/arx/EdPrompt.h"
#include "plugins/repository/RepositoryPrompts.h"
#include "plugins/repository/RepositoryTexts.h"
#include "siblings/giscore/notification/NotificationFramework.h"
#include "siblings/giscore/repository/IRepositoryFamily.h"
#include "siblings/giscore/repository/RepositoryManager.h"
#include "siblings/giscore/systems/SystemManager.h"
#include "workspacecore/tree/ItemArgument.h"
#include "workspacecore/tree/WsTreeItemData.h"

namespace Orvane::Repository {

namespace {

using Workspace::CWsTreeItemData;
using StorePtr = CRepositoryFactory::StorePtr;

constexpr unsigned long kRepositoryNodes =
    Workspace::WsItemRepositoryRoot | Workspace::WsItemRepository |
    Workspace::WsItemRepositoryEntityFolder | Workspace::WsItemRepositoryConfiguration;

bool IsOfRepositoryTree(const CWsTreeItemData* pNode) {
    return pNode && pNode->GetPtrItemDefinition() &&
           (pNode->GetPtrItemDefinition()->GetWsItemType() & kRepositoryNodes) != 0;
}

/// Returns null and reports it if there is no net repository.
StorePtr FolderStore(CRepositoryFactory& factory, bool net) {
    StorePtr store = net ? factory.GetNetStore() : factory.GetDiskStore();
    if (!store) {
        Refuse(Text(Msg::NoNet));
    }
    return store;
}

System::CGisSystem* SystemOf(const CWsTreeItemData* pNode) {
    System::CGisSystem* const pSystem = pNode ? pNode->GetSystem() : nullptr;
    return pSystem ? pSystem : System::CSystemManager::Instance()->GetActiveSystem();
}

StorePtr StoreOf(CRepositoryFactory& factory, const CWsTreeItemData* pNode,
                 System::CGisSystem* pSystem) {
    if (IsOfRepositoryTree(pNode)) {
        return FolderStore(factory, pNode->IsTargetNet());
    }
    if (!pSystem && !pNode) {
        return factory.GetDiskStore();
    }
    StorePtr store = factory.GetSystemStore(pSystem);
    if (!store) {
        Refuse(Text(Msg::NoSystem));
    }
    return store;
}

/// Also searches disk and net, where a user without a tree would expect to find the item.
CRepositoryStore::ItemPtr FindByName(RepositoryTarget& target, const CString& name) {
    CRepositoryFactory& factory =
        *CRepositoryManager::Instance()->GetRepositoryfactory(target.store->GetTag());
    for (const StorePtr& store : {target.store, factory.GetDiskStore(), factory.GetNetStore()}) {
        if (auto item = store ? store->GetItemByName(name, target.entityType) : nullptr) {
            target.store = store;
            return item;
        }
    }
    return {};
}

} // namespace

std::optional<RepositoryTarget> TargetOf(const RepositoryCommandId& command,
                                         const CWsTreeItemData* pNode) {
    CRepositoryFactory* const pFactory =
        CRepositoryManager::Instance()->GetRepositoryfactory(command.tag);
    if (!pFactory) {
        Refuse(Text(Msg::FamilyWithoutPlace, command.tag));
        return std::nullopt;
    }
    RepositoryTarget target;
    target.pSystem = SystemOf(pNode);
    target.store = StoreOf(*pFactory, pNode, target.pSystem);
    if (!target.store) {
        return std::nullopt;
    }
    const auto* const pDefinition = pNode ? pNode->GetPtrItemDefinition().get() : nullptr;
    const enmEntityType ofNode = pDefinition ? pDefinition->GetEntityType() : EntityNone;
    target.entityType = command.entityType != EntityNone ? command.entityType : ofNode;
    target.guid = pNode ? pNode->GetGuid() : CString();
    return target;
}

CRepositoryStore::ItemPtr ItemOf(RepositoryTarget& target) {
    CString name = target.guid;
    CRepositoryStore::ItemPtr item;
    if (!target.guid.IsEmpty()) {
        item = target.store->GetItem(target.guid);
        if (item && target.entityType != EntityNone && item->GetEntityType() != target.entityType) {
            name = std::exchange(item, nullptr)->GetName();
        }
    } else {
        name = acedAskText(Text(Msg::Name), L"").value_or(L"");
        item = name.IsEmpty() ? item : FindByName(target, name);
    }
    if (!item && !name.IsEmpty()) {
        Refuse(Text(Msg::NoItem, name));
    }
    return item;
}

CRepositoryStore::ItemPtr DroppedItem(const CString& tag, const CRepositoryItem* pQuery,
                                      const CWsTreeItemData* pNode) {
    CString reason;
    if (pQuery && pQuery->GetRepositoryTag().CompareNoCase(tag) == 0) {
        return ReadRepositoryItem(pQuery->GetXML(), tag, reason);
    }
    const CWsTreeItemData* const pDragged = Workspace::DroppedItemOf(pNode);
    const bool isOfFamily =
        pDragged && pDragged->GetPtrItemDefinition() &&
        pDragged->GetPtrItemDefinition()->GetRepositoryTag().CompareNoCase(tag) == 0;
    const auto source = isOfFamily ? TargetOf({Verb::ItemDrop, tag, EntityNone}, pDragged)
                                   : std::optional<RepositoryTarget>();
    return source ? source->store->GetItem(source->guid) : CRepositoryStore::ItemPtr();
}

bool HasPlaceFor(const IRepositoryFamily& family, enmEntityType type,
                 const System::CGisSystem* pSystem) {
    const bool hasPlace =
        !pSystem ||
        (family.ServesTopology(pSystem->GetTopologyType()) &&
         CModuleConfiguration::Instance()->DoesETbelongTT(type, pSystem->GetTopologyType()));
    return hasPlace || Refuse(Text(Msg::NoEntities, pSystem->GetSystemName()));
}

bool PutItem(CRepositoryStore& store, const CRepositoryItem& item) {
    const IRepositoryFamily* const pFamily =
        CRepositoryManager::Instance()->GetRepositoryFamily(store.GetTag());
    if (pFamily && !HasPlaceFor(*pFamily, item.GetEntityType(), store.GetSystem())) {
        return false;
    }
    const auto old = store.GetItem(item.GetGuid());
    if (old && old->GetXML() == item.GetXML()) {
        return Refuse(Text(Msg::SameItem, item.GetName()));
    }
    if (old && !acedAskYes(Text(Msg::ReplaceThere, old->GetName()))) {
        return false;
    }
    // It is the one there that must not have changed while the user was asked.
    item.SetOrigin(old ? old->GetOrigin() : CString());
    const CString reason = old ? store.Replace(item) : store.Add(item);
    return reason.IsEmpty() || Refuse(reason);
}

void RefreshTrees(CRepositoryStore& store) {
    Notification::CNotificationFramework::Instance()
        ->GetPublisher(L"REFRESH_CHILDREN")
        ->Notify(store.GetSystem(), const_cast<wchar_t*>(store.GetTag().GetString()));
}

} // namespace Orvane::Repository
