// The commands of repository families.
#pragma once

#include "plugins/repository/RepositoryFamily.h"
#include "workspacecore/commands/IWsCommandExecutor.h"

namespace Orvane::Repository {

// Both read from the node of a command where its item is kept (RepositoryTarget.h); a command
// without a node works on the active system and asks for the name of the item. A status of 1
// says that the command was carried out; the first text is then the GUID of the item, the
// number how many entities it was about. Each command is one step of the drawing's history.

/// Adding, editing, deleting, renaming, copying, sending and dropping items, and setting the
/// default one, for all families of the plug-in.
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
};

/// Running the items of one family, by command, double click or drop of a query.
class CFamilyExecutor final : public Workspace::IWsCommandExecutor {
public:
    explicit CFamilyExecutor(RepositoryFamily& family) : m_family(family) {}

    boost::shared_ptr<Workspace::CExecutorReturnValue>
    Execute(const wchar_t* lpszCommandId, Query::CQueryDefinition* pQuery,
            Workspace::CWsTreeItemData* pItemData) override;
    /// Runs an item that was handed over on the active system.
    boost::shared_ptr<Workspace::CExecutorReturnValue>
    ExecuteExplicite(const wchar_t* lpszCommandId, CRepositoryItem* pRepositoryItem,
                     Selection::CSelectionSet* pSelectionSet, void* pData) override;

private:
    RepositoryFamily& m_family;
};

} // namespace Orvane::Repository
