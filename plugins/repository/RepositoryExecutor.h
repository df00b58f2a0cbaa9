// The commands of repository families.
#pragma once

#include "workspacecore/commands/IWsCommandExecutor.h"

namespace Orvane::Repository {

/// Every command on configurations: adding, editing, deleting, renaming, copying, sending,
/// dropping, setting the default one, and running by command, double click or dropped query.
/// The family is found by the tag in the command's id (CRepositoryManager), whichever plug-in
/// has brought it; what no family answers to is refused with a reason.
///
/// Item and place are read from the node of a command (RepositoryTarget.h); a command without
/// a node works on the active system and asks for the name of the item. A status of 1 says
/// that the command was carried out; the first text is then the GUID of the item, the number
/// how many entities a run was about. Each command is one step of the drawing's history.
///
/// Agreed with callers: a rename takes the new name from the node's custom data (a
/// const CString*) and asks only without it; a drop takes the item that is not a query from
/// the node at which it stood, whose CWsTreeItemData the custom data points to; a send goes
/// to the disk without a question if the node's S2D is set.
class CBaseExecutor final : public Workspace::IWsCommandExecutor {
public:
    boost::shared_ptr<Workspace::CExecutorReturnValue>
    Execute(const wchar_t* lpszCommandId, Query::CQueryDefinition* pQuery,
            Workspace::CWsTreeItemData* pItemData) override;
    /// Runs an item that was handed over on the active system.
    boost::shared_ptr<Workspace::CExecutorReturnValue>
    ExecuteExplicite(const wchar_t* lpszCommandId, CRepositoryItem* pRepositoryItem,
                     Selection::CSelectionSet* pSelectionSet, void* pData) override;
};

} // namespace Orvane::Repository
