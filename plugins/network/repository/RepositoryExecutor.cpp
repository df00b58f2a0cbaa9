#include "plugins/network/repository/RepositoryExecutor.h"

#include <algorithm>
#include <iterator>

#include "platform/arx/EdPrompt.h"
#include "plugins/common/CommandIds.h"
#include "plugins/network/repository/RepositoryFamilies.h"
#include "plugins/network/repository/RepositoryPrompts.h"
#include "plugins/network/repository/RepositoryTarget.h"
#include "plugins/network/repository/RepositoryTexts.h"
#include "siblings/giscore/Guid.h"
#include "siblings/giscore/RepositoryManager.h"
#include "siblings/giscore/SystemManager.h"
#include "workspacecore/commands/CommandScope.h"
#include "workspacecore/tree/ItemArgument.h"
#include "workspacecore/tree/WsTreeItemData.h"

namespace Orvane::Network {

using Plugins::OwnCommandId;
using Workspace::CommandScope;

namespace {

using ItemPtr = CRepositoryStore::ItemPtr;
using ResultPtr = boost::shared_ptr<Workspace::CExecutorReturnValue>;
using Workspace::CWsTreeItemData;

/// What a command works with.
struct Call {
    RepositoryFamily& family;
    RepositoryTarget target;
    const CWsTreeItemData* pNode;
    const Query::CQueryDefinition* pQuery;
};

void Say(Msg message, const CString& name) {
    acutPrintf(L"%s\n", Text(message, name));
}

/// Ends a command that changed a store. Null, and the user is told, if it did not.
ItemPtr Done(CRepositoryStore& store, const CString& reason, Msg message, const ItemPtr& item) {
    if (!reason.IsEmpty()) {
        Refuse(reason);
        return {};
    }
    RefreshTrees(store);
    Say(message, item->GetName());
    return item;
}

/// A name that can stand in one line.
CString NameFrom(const CString& typed) {
    CString name = typed;
    std::replace_if(
        name.Str().begin(), name.Str().end(), [](wchar_t c) { return c < L' '; }, L' ');
    return name.Trim();
}

// Each carries out one verb. Null if it was not done, which the user knows.

ItemPtr AddItem(Call& call) {
    const auto name = AskText(Text(Msg::Name), L"");
    if (!name) {
        return {};
    }
    const ItemPtr item = call.family.CreateItem(NewGuid(), NameFrom(*name));
    item->SetEntityType(call.target.entityType);
    if (name->IsEmpty() || !call.family.AskContent(*item, call.target.pSystem)) {
        return {};
    }
    return Done(*call.target.store, call.target.store->Add(*item), Msg::Added, item);
}

ItemPtr EditItem(Call& call) {
    const ItemPtr item = ItemOf(call.target);
    if (!item || !call.family.AskContent(*item, call.target.pSystem)) {
        return {};
    }
    return Done(*call.target.store, call.target.store->Replace(*item), Msg::Changed, item);
}

ItemPtr DeleteItem(Call& call) {
    const ItemPtr item = ItemOf(call.target);
    if (!item || !AskYes(Text(Msg::ReallyDelete, item->GetName()))) {
        return {};
    }
    return Done(*call.target.store, call.target.store->Remove(item->GetGuid()), Msg::Deleted, item);
}

ItemPtr RenameItem(Call& call) {
    const ItemPtr item = ItemOf(call.target);
    if (!item) {
        return {};
    }
    const CString* const pNewName = Workspace::NewNameOf(call.pNode);
    const auto name = pNewName ? *pNewName : AskText(Text(Msg::Name), item->GetName());
    if (!name) {
        return {};
    }
    item->SetName(NameFrom(*name));
    return Done(*call.target.store, call.target.store->Replace(*item), Msg::Changed, item);
}

ItemPtr CopyItem(Call& call) {
    const ItemPtr item = ItemOf(call.target);
    if (!item) {
        return {};
    }
    const CString free = FreeItemName(*call.target.store, item->GetEntityType(), item->GetName());
    const auto name = AskText(Text(Msg::Name), free);
    if (!name) {
        return {};
    }
    const ItemPtr copy = CopyRepositoryItem(*item, NameFrom(*name));
    return Done(*call.target.store, call.target.store->Add(*copy), Msg::Added, copy);
}

ItemPtr SetItemAsDefault(Call& call) {
    const ItemPtr item = ItemOf(call.target);
    if (!item) {
        return {};
    }
    return Done(*call.target.store, call.target.store->SetDefault(item->GetGuid()), Msg::IsDefault,
                item);
}

/// Asks where an item is to go; null, and the user is told, if there is no such place.
CRepositoryFactory::StorePtr AskDestination(const Call& call) {
    CRepositoryFactory& factory =
        *CRepositoryManager::Instance()->GetRepositoryfactory(call.family.Tag());
    const bool isFromSystem = call.target.store->GetSystem() != nullptr;
    if (isFromSystem && call.pNode && call.pNode->GetS2D()) {
        return factory.GetDiskStore();
    }
    System::CGisSystem* const pSystem = call.target.pSystem;
    const CString usual = isFromSystem || !pSystem ? Text(Msg::Disk) : pSystem->GetSystemName();
    const auto answer = AskText(Text(Msg::SendWhere), usual);
    if (!answer) {
        return {};
    }
    const auto is = [&](const wchar_t* word, Msg shown) {
        return answer->CompareNoCase(word) == 0 || answer->CompareNoCase(Text(shown)) == 0;
    };
    const bool isNet = is(L"net", Msg::Net);
    auto store =
        isNet ? factory.GetNetStore()
        : is(L"disk", Msg::Disk)
            ? factory.GetDiskStore()
            : factory.GetSystemStore(System::CSystemManager::Instance()->GetSystemByName(*answer));
    if (!store) {
        Refuse(isNet ? Text(Msg::NoNet) : Text(Msg::NoPlace, *answer));
    }
    return store;
}

ItemPtr SendItem(Call& call) {
    const ItemPtr item = ItemOf(call.target);
    const auto destination = item ? AskDestination(call) : nullptr;
    if (!destination || !PutItem(*destination, *item)) {
        return {};
    }
    return Done(*destination, {}, Msg::Sent, item);
}

ItemPtr DropItem(Call& call) {
    const ItemPtr item = DroppedItem(call.family.Tag(), call.pQuery, call.pNode);
    if (!item) {
        Refuse(Text(Msg::NothingDropped));
        return {};
    }
    if (!PutItem(*call.target.store, *item)) {
        return {};
    }
    return Done(*call.target.store, {}, Msg::Added, item);
}

struct VerbRow {
    Verb verb;
    ItemPtr (*run)(Call&);
};
constexpr VerbRow kVerbs[] = {
    {Verb::Add, AddItem},       {Verb::Edit, EditItem},
    {Verb::Delete, DeleteItem}, {Verb::Rename, RenameItem},
    {Verb::Copy, CopyItem},     {Verb::SendTo, SendItem},
    {Verb::ItemDrop, DropItem}, {Verb::SetAsDefault, SetItemAsDefault},
};

/// Runs an item on a system; a status of 0 if there is none, which the user is told.
ResultPtr RunItem(RepositoryFamily& family, const CRepositoryItem& item,
                  System::CGisSystem* pSystem, const Query::CQueryDefinition* pOnly) {
    auto result = Workspace::NeutralReturnValue();
    if (!pSystem) {
        Refuse(Text(Msg::NoSystem));
        return result;
    }
    const enmEntityType type = item.GetEntityType();
    if (type != EntityNone &&
        !CModuleConfiguration::Instance()->DoesETbelongTT(type, pSystem->GetTopologyType())) {
        Refuse(Text(Msg::NoEntities, pSystem->GetSystemName()));
        return result;
    }
    if (const auto count = family.Run(item, *pSystem, pOnly)) {
        result->m_nStatus = 1;
        result->m_nNumber = *count;
        result->m_strText1 = item.GetGuid();
        result->m_enmEntityType = type;
    }
    return result;
}

} // namespace

ResultPtr CBaseExecutor::Execute(const wchar_t* lpszCommandId, Query::CQueryDefinition* pQuery,
                                 CWsTreeItemData* pItemData) {
    auto result = Workspace::NeutralReturnValue();
    const CString id = OwnCommandId(lpszCommandId);
    const auto command = ParseRepositoryCommandId(id.View());
    RepositoryFamily* const pFamily = command ? FindFamily(command->tag) : nullptr;
    if (!pFamily) {
        return result;
    }
    CommandScope::Run(id, [&] {
        auto target = TargetOf(*command, pItemData);
        const auto row = std::ranges::find(kVerbs, command->verb, &VerbRow::verb);
        if (!target || row == std::end(kVerbs)) {
            return;
        }
        Call call{*pFamily, std::move(*target), pItemData, pQuery};
        if (const ItemPtr item = row->run(call)) {
            result->m_nStatus = 1;
            result->m_strText1 = item->GetGuid();
            result->m_enmEntityType = item->GetEntityType();
        }
    });
    return result;
}

ResultPtr CFamilyExecutor::Execute(const wchar_t* lpszCommandId, Query::CQueryDefinition* pQuery,
                                   CWsTreeItemData* pItemData) {
    const CString id = OwnCommandId(lpszCommandId);
    const auto command = ParseRepositoryCommandId(id.View());
    if (!command || command->tag.CompareNoCase(m_family.Tag()) != 0) {
        return Workspace::NeutralReturnValue();
    }
    auto result = Workspace::NeutralReturnValue();
    CommandScope::Run(id, [&] {
        auto target = TargetOf(*command, pItemData);
        if (const ItemPtr item = target ? ItemOf(*target) : nullptr) {
            result = RunItem(m_family, *item, target->pSystem,
                             command->verb == Verb::QueryDrop ? pQuery : nullptr);
        }
    });
    return result;
}

ResultPtr CFamilyExecutor::ExecuteExplicite(const wchar_t* lpszCommandId,
                                            CRepositoryItem* pRepositoryItem,
                                            Selection::CSelectionSet* /*pSelectionSet*/,
                                            void* /*pData*/) {
    if (!pRepositoryItem ||
        pRepositoryItem->GetRepositoryTag().CompareNoCase(m_family.Tag()) != 0) {
        return Workspace::NeutralReturnValue();
    }
    auto result = Workspace::NeutralReturnValue();
    CommandScope::Run(OwnCommandId(lpszCommandId), [&] {
        result = RunItem(m_family, *pRepositoryItem,
                         System::CSystemManager::Instance()->GetActiveSystem(), nullptr);
    });
    return result;
}

} // namespace Orvane::Network
