#include "plugins/repository/SystemExecutor.h"

#include "platform/arx/EdPrompt.h"
#include "plugins/common/CommandIds.h"
#include "plugins/repository/RepositoryFamilies.h"
#include "plugins/repository/RepositoryPrompts.h"
#include "plugins/repository/RepositoryTarget.h"
#include "plugins/repository/RepositoryTexts.h"
#include "siblings/giscore/query/QueryDefinition.h"
#include "siblings/giscore/repository/RepositoryManager.h"
#include "siblings/giscore/systems/SystemManager.h"
#include "siblings/giscore/topology/TopologyConfiguration.h"
#include "workspacecore/commands/CommandScope.h"
#include "workspacecore/tree/ItemArgument.h"
#include "workspacecore/tree/WsTreeItemData.h"

namespace Orvane::Repository {

using Plugins::OwnCommandId;
using Workspace::CommandScope;

namespace {

using System::CGisSystem;
using Workspace::CWsTreeItemData;

System::CSystemManager& Systems() {
    return *System::CSystemManager::Instance();
}

/// The arguments of a command.
struct Call {
    const CWsTreeItemData* pNode;
    const Query::CQueryDefinition* pQuery;
    CGisSystem* pSystem = nullptr;
};

/// Null if the user gave no name, or an unknown one, which is reported.
CGisSystem* AskSystem() {
    const CGisSystem* const pActive = Systems().GetActiveSystem();
    const auto name =
        acedAskText(Text(Msg::SystemName), pActive ? pActive->GetSystemName() : CString());
    CGisSystem* const pSystem = name ? Systems().GetSystemByName(*name) : nullptr;
    if (!pSystem && name && !name->IsEmpty()) {
        Refuse(Text(Msg::UnknownSystem, *name));
    }
    return pSystem;
}

const CTopology* AskTopology() {
    std::vector<const CTopology*> topologies;
    std::vector<PromptChoice> choices;
    for (const CTopology& topology :
         CModuleConfiguration::Instance()->GetTopologyConfiguration()->GetTopologyVector()) {
        if (topology.GetOnOff()) {
            topologies.push_back(&topology);
            choices.push_back(
                {FormatText(L"%d", topology.GetTopologyType()), topology.GetNameUI()});
        }
    }
    const auto choice = choices.empty() ? std::optional<std::size_t>()
                                        : acedAskChoice({Text(Msg::SystemKind), choices, 0});
    return choice ? topologies[*choice] : nullptr;
}

/// 0 for topologies without functions.
std::optional<int> AskFunction(const CTopology& topology) {
    if (!topology.GetHasFunctions()) {
        return 0;
    }
    std::vector<PromptChoice> choices;
    for (const CTopologyFunction& function : topology.GetTopologyFunctionVector()) {
        choices.push_back({FormatText(L"%d", function.GetId()), function.GetName()});
    }
    const auto choice = acedAskChoice({Text(Msg::SystemFunction), choices, 0});
    return choice ? std::optional(topology.GetTopologyFunctionVector()[*choice].GetId())
                  : std::nullopt;
}

bool AddSystem(Call& call) {
    const auto name = acedAskText(Text(Msg::SystemName), L"");
    const CTopology* const pTopology = name ? AskTopology() : nullptr;
    const auto function = pTopology ? AskFunction(*pTopology) : std::nullopt;
    if (!function) {
        return false;
    }
    CString reason;
    call.pSystem = Systems().CreateSystem(*name, pTopology->GetTopologyType(), *function, &reason);
    if (!call.pSystem) {
        return Refuse(reason);
    }
    acutPrintf(L"%s\n", Text(Msg::Added, call.pSystem->GetSystemName()));
    return true;
}

bool RenameSystem(Call& call) {
    const CString* const pNewName = Workspace::NewNameOf(call.pNode);
    const auto name =
        pNewName ? *pNewName : acedAskText(Text(Msg::SystemName), call.pSystem->GetSystemName());
    CString reason;
    if (!name || !Systems().RenameSystem(call.pSystem, *name, &reason)) {
        return name && Refuse(reason);
    }
    acutPrintf(L"%s\n", Text(Msg::Changed, call.pSystem->GetSystemName()));
    return true;
}

bool DeleteSystem(Call& call) {
    const CString name = call.pSystem->GetSystemName();
    Systems().DeleteSystem(call.pSystem);
    call.pSystem = nullptr;
    acutPrintf(L"%s\n", Text(Msg::Deleted, name));
    return true;
}

bool DeleteAskedSystem(Call& call) {
    return acedAskYes(Text(Msg::ReallyDelete, call.pSystem->GetSystemName())) && DeleteSystem(call);
}

bool ActivateSystem(Call& call) {
    Systems().SetSystemActive(call.pSystem);
    acutPrintf(L"%s\n", Text(Msg::IsActive, call.pSystem->GetSystemName()));
    return true;
}

bool ToggleVisibility(Call& call) {
    const bool wasVisible = call.pSystem->GetVisibility();
    wasVisible ? Systems().SetSystemInvisible(call.pSystem)
               : Systems().SetSystemVisible(call.pSystem);
    acutPrintf(L"%s\n",
               Text(wasVisible ? Msg::IsHidden : Msg::IsShown, call.pSystem->GetSystemName()));
    return true;
}

/// The tag of the dropped item's family; empty if nothing was dropped.
CString DroppedTag(const Call& call) {
    const CWsTreeItemData* const pDragged = Workspace::DroppedItemOf(call.pNode);
    if (call.pQuery) {
        return call.pQuery->GetRepositoryTag();
    }
    return pDragged && pDragged->GetPtrItemDefinition()
               ? pDragged->GetPtrItemDefinition()->GetRepositoryTag()
               : CString();
}

bool DropItem(Call& call) {
    const CString tag = DroppedTag(call);
    CRepositoryFactory* const pFactory = CRepositoryManager::Instance()->GetRepositoryfactory(tag);
    const auto store = pFactory ? pFactory->GetSystemStore(call.pSystem) : nullptr;
    const auto item = store ? DroppedItem(tag, call.pQuery, call.pNode) : nullptr;
    if (!item) {
        return Refuse(Text(Msg::NothingDropped));
    }
    if (!PutItem(*store, *item)) {
        return false;
    }
    RefreshTrees(*store);
    acutPrintf(L"%s\n", Text(Msg::Added, item->GetName()));
    return true;
}

/// How a command finds its system when it has no tree node.
enum class Otherwise { Nothing, Ask, Active };

constexpr struct {
    const wchar_t* id;
    Otherwise otherwise;
    bool (*run)(Call&);
} kCommands[] = {
    {L"SYSTEM_ADD", Otherwise::Nothing, AddSystem},
    {L"SYSTEM_EDIT", Otherwise::Ask, RenameSystem},
    {L"SYSTEM_REN", Otherwise::Ask, RenameSystem},
    {L"SYSTEM_DEL", Otherwise::Ask, DeleteAskedSystem},
    {L"SILENT_SYSTEM_DEL", Otherwise::Active, DeleteSystem},
    {L"SYSTEM_DBLCLICK", Otherwise::Ask, ActivateSystem},
    {L"SYSTEM_DROPITEM", Otherwise::Ask, DropItem},
    {L"SYSTEM_TOGGLEVISIBILITY", Otherwise::Ask, ToggleVisibility},
};

/// Reports it and returns false if the command needs a system and there is none.
bool FindSystem(Call& call, Otherwise otherwise) {
    if (otherwise == Otherwise::Nothing) {
        return true;
    }
    call.pSystem = call.pNode ? call.pNode->GetSystem() : nullptr;
    if (!call.pSystem && otherwise == Otherwise::Ask) {
        call.pSystem = AskSystem();
        return call.pSystem != nullptr;
    }
    call.pSystem = call.pSystem ? call.pSystem : Systems().GetActiveSystem();
    return call.pSystem || Refuse(Text(Msg::NoSystem));
}

} // namespace

boost::shared_ptr<Workspace::CExecutorReturnValue>
CSystemExecutor::Execute(const wchar_t* lpszCommandId, Query::CQueryDefinition* pQuery,
                         CWsTreeItemData* pItemData) {
    auto result = Workspace::NeutralReturnValue();
    const CString id = OwnCommandId(lpszCommandId);
    for (const auto& command : kCommands) {
        if (id == command.id) {
            CommandScope::Run(command.id, [&] {
                Call call{pItemData, pQuery};
                if (FindSystem(call, command.otherwise) && command.run(call)) {
                    result->m_nStatus = 1;
                    result->m_strText1 = call.pSystem ? call.pSystem->GetSystemName() : CString();
                }
            });
            break;
        }
    }
    return result;
}

} // namespace Orvane::Repository
