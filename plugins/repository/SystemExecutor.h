// The commands of systems in the tree.
#pragma once

#include "workspacecore/commands/IWsCommandExecutor.h"

namespace Orvane::Repository {

/// SYSTEM_ADD, SYSTEM_EDIT, SYSTEM_REN, SYSTEM_DEL, SILENT_SYSTEM_DEL, SYSTEM_DBLCLICK (makes
/// it the active one), SYSTEM_DROPITEM and SYSTEM_TOGGLEVISIBILITY. They work on the system
/// of the node; without one, on the system whose name the user gives, the active one to
/// fall back on. SILENT_SYSTEM_DEL asks for nothing and takes the active one. What is dropped
/// is found as by CBaseExecutor. A status of 1 says that the command was carried out; the
/// first text is then the name of the system.
class CSystemExecutor final : public Workspace::IWsCommandExecutor {
public:
    boost::shared_ptr<Workspace::CExecutorReturnValue>
    Execute(const wchar_t* lpszCommandId, Query::CQueryDefinition* pQuery,
            Workspace::CWsTreeItemData* pItemData) override;
};

} // namespace Orvane::Repository
