#include "plugins/repository/RepositoryExecutor.h"

#include <algorithm>
#include <iterator>

#include "platform/arx/EdPrompt.h"
#include "plugins/common/CommandIds.h"
#include "plugins/repository/RepositoryConflicts.h"
#include "plugins/repository/RepositoryPrompts.h"
#include "plugins/repository/RepositoryTarget.h"
#include "plugins/repository/RepositoryTexts.h"
#include "siblings/giscore/repository/IRepositoryFamily.h"
#include "siblings/giscore/repository/RepositoryManager.h"
#include "siblings/giscore/systems/SystemManager.h"
#include "siblings/giscore/utility/Guid.h"
#include "workspacecore/commands/CommandScope.h"
#include "workspacecore/tree/ItemArgument.h"
#include "workspacecore/tree/WsTreeItemData.h"

namespace Orvane::Repository {

using Plugins::OwnCommandId;
using Workspace::CommandScope;

namespace {

using ItemPtr = CRepositoryStore::ItemPtr;
using ResultPtr = boost::shared_ptr<Workspace::CExecutorReturnValue>;
using Workspace::CWsTreeItemData;

/// The arguments of a verb, and its result.
struct Call {
    IRepositoryFamily& family;
    RepositoryTarget target;
    const CWsTreeItemData* pNode;
    const Query::CQueryDefinition* pQuery;
    int count = -1; ///< number of entities affected by a run
};

void Say(Msg message, const CString& name) {
    acutPrintf(L"%s\n", Text(message, name));
}

/// Completes a command that changed a store. Returns null and reports the reason if nothing
/// changed.
ItemPtr Done(CRepositoryStore& store, const CString& reason, Msg message, const ItemPtr& item) {
    if (!reason.IsEmpty()) {
        Refuse(reason);
        return {};
    }
    RefreshTrees(store);
    Say(message, item->GetName());
    return item;
}

/// Ends a command that changed an item.
ItemPtr Changed(CRepositoryStore& store, const ItemPtr& item) {
    const ItemPtr kept = GiveBack(store, item);
    return kept ? Done(store, {}, kept == item ? Msg::Changed : Msg::Added, kept) : kept;
}

/// Replaces characters that would break a line.
CString NameFrom(const CString& typed) {
    CString name = typed;
    std::replace_if(
        name.Str().begin(), name.Str().end(), [](wchar_t c) { return c < L' '; }, L' ');
    return name.Trim();
}

// One function for each verb. They return null, after reporting why, if nothing was done.

ItemPtr AddItem(Call& call) {
    if (!HasPlaceFor(call.family, call.target.entityType, call.target.store->GetSystem())) {
        return {};
    }
    const auto name = acedAskText(Text(Msg::Name), L"");
    if (!name) {
        return {};
    }
    const ItemPtr item = call.family.CreateItem(NewGuid(), NameFrom(*name));
    item->SetEntityType(call.target.entityType);
    if (name->IsEmpty() || !call.family.EditContent(*item, call.target.pSystem)) {
        return {};
    }
    return Done(*call.target.store, call.target.store->Add(*item), Msg::Added, item);
}

ItemPtr EditItem(Call& call) {
    const ItemPtr item = ItemOf(call.target);
    if (!item || !call.family.EditContent(*item, call.target.pSystem)) {
        return {};
    }
    return Changed(*call.target.store, item);
}

ItemPtr DeleteItem(Call& call) {
    const ItemPtr item = ItemOf(call.target);
    if (!item || !AskDelete(*call.target.store, *item)) {
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
    const auto name = pNewName ? *pNewName : acedAskText(Text(Msg::Name), item->GetName());
    if (!name) {
        return {};
    }
    item->SetName(NameFrom(*name));
    return Changed(*call.target.store, item);
}

ItemPtr CopyItem(Call& call) {
    const ItemPtr item = ItemOf(call.target);
    if (!item) {
        return {};
    }
    const CString free = FreeItemName(*call.target.store, item->GetEntityType(), item->GetName());
    const auto name = acedAskText(Text(Msg::Name), free);
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

/// Asks where to send an item. Returns null and reports the reason if the destination does not
/// exist.
CRepositoryFactory::StorePtr AskDestination(const Call& call) {
    CRepositoryFactory& factory =
        *CRepositoryManager::Instance()->GetRepositoryfactory(call.target.store->GetTag());
    const bool isFromSystem = call.target.store->GetSystem() != nullptr;
    if (isFromSystem && call.pNode && call.pNode->GetS2D()) {
        return factory.GetDiskStore();
    }
    System::CGisSystem* const pSystem = call.target.pSystem;
    const CString usual = isFromSystem || !pSystem ? Text(Msg::Disk) : pSystem->GetSystemName();
    const auto answer = acedAskText(Text(Msg::SendWhere), usual);
    if (!answer) {
        return {};
    }
    auto* const pNamed = System::CSystemManager::Instance()->GetSystemByName(*answer);
    const ChoicePrompt folders{
        CString(), {{L"net", Text(Msg::Net)}, {L"disk", Text(Msg::Disk)}}, std::nullopt};
    const auto folder = pNamed ? std::nullopt : FindChoice(folders, *answer);
    const bool isNet = folder == 0U;
    auto store = isNet    ? factory.GetNetStore()
                 : folder ? factory.GetDiskStore()
                          : factory.GetSystemStore(pNamed);
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
    const ItemPtr item = DroppedItem(call.target.store->GetTag(), call.pQuery, call.pNode);
    const enmEntityType type = call.target.entityType;
    if (!item || (type != EntityNone && item->GetEntityType() != type)) {
        Refuse(Text(Msg::NothingDropped));
        return {};
    }
    if (!PutItem(*call.target.store, *item)) {
        return {};
    }
    return Done(*call.target.store, {}, Msg::Added, item);
}

/// Runs an item on a system. Reports the reason and returns nothing if there is no system, or the
/// system does not have the item's entities.
std::optional<int> RunOn(IRepositoryFamily& family, const CRepositoryItem& item,
                         System::CGisSystem* pSystem, const Query::CQueryDefinition* pOnly) {
    if (!pSystem) {
        Refuse(Text(Msg::NoSystem));
        return std::nullopt;
    }
    return HasPlaceFor(family, item.GetEntityType(), pSystem) ? family.Run(item, *pSystem, pOnly)
                                                              : std::nullopt;
}

ItemPtr RunNarrowed(Call& call, const Query::CQueryDefinition* pOnly) {
    const ItemPtr item = ItemOf(call.target);
    const auto count =
        item ? RunOn(call.family, *item, call.target.pSystem, pOnly) : std::optional<int>();
    call.count = count.value_or(call.count);
    return count ? item : ItemPtr();
}

ItemPtr RunItem(Call& call) {
    return RunNarrowed(call, nullptr);
}

ItemPtr RunItemOnQuery(Call& call) {
    return RunNarrowed(call, call.pQuery);
}

constexpr struct {
    Verb verb;
    ItemPtr (*run)(Call&);
} kVerbs[] = {
    {Verb::Add, AddItem},
    {Verb::Edit, EditItem},
    {Verb::Delete, DeleteItem},
    {Verb::Rename, RenameItem},
    {Verb::Copy, CopyItem},
    {Verb::SendTo, SendItem},
    {Verb::ItemDrop, DropItem},
    {Verb::SetAsDefault, SetItemAsDefault},
    {Verb::Run, RunItem},
    {Verb::DoubleClick, RunItem},
    {Verb::QueryDrop, RunItemOnQuery},
};

ItemPtr CarryOut(Verb verb, Call& call) {
    for (const auto& row : kVerbs) {
        if (row.verb == verb) {
            return row.run(call);
        }
    }
    return {};
}

bool IsRun(Verb verb) {
    return verb == Verb::Run || verb == Verb::DoubleClick || verb == Verb::QueryDrop;
}

/// A parsed command id and its family.
struct Order {
    RepositoryCommandId command;
    IRepositoryFamily* pFamily;
};

/// Reports the reason and returns nothing if no family handles the id.
std::optional<Order> OrderOf(const CString& id) {
    const auto command = ParseRepositoryCommandId(id.View());
    if (!command) {
        Refuse(Text(Msg::NoFamilyCommand, id));
        return std::nullopt;
    }
    IRepositoryFamily* const pFamily =
        CRepositoryManager::Instance()->GetRepositoryFamily(command->tag);
    if (!pFamily) {
        Refuse(Text(Msg::UnknownFamily, command->tag));
        return std::nullopt;
    }
    return Order{*command, pFamily};
}

ResultPtr ResultOf(const CRepositoryItem& item, int count) {
    auto result = Workspace::NeutralReturnValue();
    result->m_nStatus = 1;
    result->m_nNumber = count;
    result->m_strText1 = item.GetGuid();
    result->m_enmEntityType = item.GetEntityType();
    return result;
}

} // namespace

ResultPtr CBaseExecutor::Execute(const wchar_t* lpszCommandId, Query::CQueryDefinition* pQuery,
                                 CWsTreeItemData* pItemData) {
    const CString id = OwnCommandId(lpszCommandId);
    ResultPtr result = Workspace::NeutralReturnValue();
    CommandScope::Run(id, [&] {
        const auto order = OrderOf(id);
        auto target = order ? TargetOf(order->command, pItemData) : std::nullopt;
        if (!target) {
            return;
        }
        Call call{*order->pFamily, std::move(*target), pItemData, pQuery};
        if (const ItemPtr item = CarryOut(order->command.verb, call)) {
            result = ResultOf(*item, call.count);
        }
    });
    return result;
}

ResultPtr CBaseExecutor::ExecuteExplicite(const wchar_t* lpszCommandId,
                                          CRepositoryItem* pRepositoryItem,
                                          Selection::CSelectionSet* /*pSelectionSet*/,
                                          void* /*pData*/) {
    const CString id = OwnCommandId(lpszCommandId);
    ResultPtr result = Workspace::NeutralReturnValue();
    CommandScope::Run(id, [&] {
        const auto order = OrderOf(id);
        const bool isOfFamily =
            order && IsRun(order->command.verb) && pRepositoryItem &&
            pRepositoryItem->GetRepositoryTag().CompareNoCase(order->command.tag) == 0;
        if (!isOfFamily) {
            if (order) {
                Refuse(Text(Msg::NotHandedOver, id));
            }
            return;
        }
        if (const auto count =
                RunOn(*order->pFamily, *pRepositoryItem,
                      System::CSystemManager::Instance()->GetActiveSystem(), nullptr)) {
            result = ResultOf(*pRepositoryItem, *count);
        }
    });
    return result;
}

} // namespace Orvane::Repository
