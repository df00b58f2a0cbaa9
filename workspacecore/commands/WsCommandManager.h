// Dispatches a command id to the executor of the plug-in.
#pragma once

#include "workspacecore/commands/IWsCommandExecutor.h"
#include "workspacecore/commands/WsCommandRegistry.h"

namespace Orvane::System {
class CGisSystem;
}

namespace Orvane::Workspace {

/// Finds the executor of a command and forwards the call. Events and locks are up to the
/// executor. Copies share the registry.
class WORKSPACE_API CWsCommandManager {
public:
    CWsCommandManager();
    CWsCommandManager(const CWsCommandManager&) = default;
    CWsCommandManager& operator=(const CWsCommandManager&) = default;
    ~CWsCommandManager();

    /// Runs a command. Any id, even an unknown one, becomes the last command. An unknown command
    /// or one without an executor gives the neutral result; exceptions of the executor propagate.
    /// Not null unless the executor breaks its contract.
    boost::shared_ptr<CExecutorReturnValue> Execute(const wchar_t* lpszCommandId,
                                                    Query::CQueryDefinition* pQuery,
                                                    CWsTreeItemData* pItemData);
    boost::shared_ptr<CExecutorReturnValue>
    ExecuteExplicite(const wchar_t* lpszCommandId, CRepositoryItem* pRepositoryItem,
                     Selection::CSelectionSet* pSelectionSet, void* pData);

    CString GetLastCommand() const { return m_strLastCommand; }
    void SetLastCommand(const wchar_t* lpszCommandId) { m_strLastCommand = lpszCommandId; }
    /// Whether a running command may be cancelled, for plug-ins to check.
    int GetAllowStopCommand() const { return m_bAllowStopCommand; }
    void SetAllowStopCommand(int bAllow) { m_bAllowStopCommand = bAllow; }

    /// Null until registered. Not owned.
    IWsCommandExecutor* GetBaseExecutor() const { return m_pBaseExecutor; }
    CWsCommandRegistry* GetCommandRegistry() const { return m_pCommandRegistry.get(); }
    /// Collects the set-data commands for a system's topology and function, in order of
    /// registration. Clears the vector first; a null system leaves it empty.
    void GetSetDataCommands(CWsCommandRegistry::CommandVector& commands,
                            System::CGisSystem* pSystem) const;

private:
    friend class CWsManager;
    IWsCommandExecutor* FindExecutor(const wchar_t* lpszCommandId) const;

    IWsCommandExecutor* m_pBaseExecutor = nullptr;
    boost::shared_ptr<CWsCommandRegistry> m_pCommandRegistry;
    int m_bAllowStopCommand = 1;
    CString m_strLastCommand;
};

} // namespace Orvane::Workspace
