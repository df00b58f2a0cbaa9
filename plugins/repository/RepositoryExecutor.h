// The commands of repository families.
#pragma once

#include "workspacecore/commands/IWsCommandExecutor.h"

namespace Orvane::Repository {

/// Runs every command on configurations: add, edit, delete, rename, copy, send, drop, set as
/// default, and run by command, double click or dropped query. The tag in the command id selects
/// the family (CRepositoryManager), whichever plug-in has registered it; commands of unknown
/// families are refused with a reason.
///
/// The command's node defines item and place (RepositoryTarget.h); without a node, a command works
/// on the active system and asks for the item's name. Status 1 means that the command was carried
/// out; the first text is then the item's GUID, and the number is the count of entities affected by
/// a run. Each command is one undo step.
///
/// Contract with callers: a rename takes the new name from the node's custom data (a const
/// CString*) and asks only if that is null; a drop takes an item other than a query from the node
/// that the custom data points to (a CWsTreeItemData); a send goes to the disk without asking if
/// the node's S2D is set.
/// to the disk without a question if the node's S2D is set.
class CBaseExecutor final : public Workspace::IWsCommandExecutor {
public:
    boost::shared_ptr<Workspace::CExecutorReturnValue>
    Execute(const wchar_t* lpszCommandId, Query::CQueryDefinition* pQuery,
            Workspace::CWsTreeItemData* pItemData) override;
    /// Runs the given item on the active system.
    boost::shared_ptr<Workspace::CExecutorReturnValue>
    ExecuteExplicite(const wchar_t* lpszCommandId, CRepositoryItem* pRepositoryItem,
                     Selection::CSelectionSet* pSelectionSet, void* pData) override;
};

} // namespace Orvane::Repository
