// Commands of systems in the tree.
#pragma once

#include "workspacecore/commands/IWsCommandExecutor.h"

namespace Orvane::Repository {

/// Runs SYSTEM_ADD, SYSTEM_EDIT, SYSTEM_REN, SYSTEM_DEL, SILENT_SYSTEM_DEL, SYSTEM_DBLCLICK
/// (activates the system), SYSTEM_DROPITEM and SYSTEM_TOGGLEVISIBILITY. They work on the node's
/// system; without a node they ask for its name, with the active system as the default.
/// SILENT_SYSTEM_DEL never asks and uses the active system. Dropped items are found as in
/// CBaseExecutor. Status 1 means that the command was carried out; the first text is then the
/// system's name.
class CSystemExecutor final : public Workspace::IWsCommandExecutor {
public:
    boost::shared_ptr<Workspace::CExecutorReturnValue>
    Execute(const wchar_t* lpszCommandId, Query::CQueryDefinition* pQuery,
            Workspace::CWsTreeItemData* pItemData) override;
};

} // namespace Orvane::Repository
