#include "workspacecore/commands/WsCommandManager.h"

#include <algorithm>
#include <iterator>

#include "platform/arx/Guard.h"
#include "siblings/giscore/query/QueryDefinition.h"
#include "siblings/giscore/systems/GisSystem.h"
#include "workspacecore/trace/Trace.h"

namespace Orvane::Workspace {

CWsCommandManager::CWsCommandManager() : m_pCommandRegistry(new CWsCommandRegistry) {}

CWsCommandManager::~CWsCommandManager() {
    m_pCommandRegistry->Clear();
}

IWsCommandExecutor* CWsCommandManager::FindExecutor(const wchar_t* lpszCommandId) const {
    const auto command = m_pCommandRegistry->GetWsCommandById(lpszCommandId);
    return command ? command->GetCmdExecutor() : nullptr;
}

boost::shared_ptr<CExecutorReturnValue> CWsCommandManager::Execute(const wchar_t* lpszCommandId,
                                                                   Query::CQueryDefinition* pQuery,
                                                                   CWsTreeItemData* pItemData) {
    m_strLastCommand = lpszCommandId;
    WS_TRACE_SCOPE();
    WS_TRACE_TEXT(lpszCommandId);
    if (pQuery) {
        WS_TRACE_TEXT(pQuery->GetName());
    }
    IWsCommandExecutor* const pExecutor = FindExecutor(lpszCommandId);
    if (!pExecutor) {
        return NeutralReturnValue();
    }
    return CallForeign(*pExecutor, lpszCommandId,
                       [&] { return pExecutor->Execute(lpszCommandId, pQuery, pItemData); });
}

boost::shared_ptr<CExecutorReturnValue>
CWsCommandManager::ExecuteExplicite(const wchar_t* lpszCommandId, CRepositoryItem* pRepositoryItem,
                                    Selection::CSelectionSet* pSelectionSet, void* pData) {
    m_strLastCommand = lpszCommandId;
    WS_TRACE_SCOPE();
    WS_TRACE_TEXT(lpszCommandId);
    IWsCommandExecutor* const pExecutor = FindExecutor(lpszCommandId);
    if (!pExecutor) {
        return NeutralReturnValue();
    }
    return CallForeign(*pExecutor, lpszCommandId, [&] {
        return pExecutor->ExecuteExplicite(lpszCommandId, pRepositoryItem, pSelectionSet, pData);
    });
}

void CWsCommandManager::GetSetDataCommands(CWsCommandRegistry::CommandVector& commands,
                                           System::CGisSystem* pSystem) const {
    commands.clear();
    if (!pSystem) {
        return;
    }
    const CWsTopologyData topology(pSystem->GetTopologyType(), pSystem->GetSystemFunction());
    std::ranges::copy_if(*m_pCommandRegistry->GetWsCommandVector(), std::back_inserter(commands),
                         [&](const auto& command) {
                             return command->IsSetDataCommand() &&
                                    command->DoesTopologyDataExist(&topology);
                         });
}

} // namespace Orvane::Workspace
