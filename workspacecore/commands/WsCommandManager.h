// The way from a command id to the plug-in that carries it out.
#pragma once

#include "workspacecore/commands/IWsCommandExecutor.h"
#include "workspacecore/commands/WsCommandRegistry.h"

namespace Orvane::System {
class CGisSystem;
}

namespace Orvane::Workspace {

/// Finds the executor of a command and hands the call on. What a command does, and what
/// stands around it (events, locks), is the executor's. Copies share the registry.
class WORKSPACE_API CWsCommandManager {
public:
    CWsCommandManager();
    CWsCommandManager(const CWsCommandManager&) = default;
    CWsCommandManager& operator=(const CWsCommandManager&) = default;
    ~CWsCommandManager();

    /// Runs a command. The id becomes the last command even if nobody knows it. An unknown
    /// command and one without executor give the neutral result; an exception of the
    /// executor passes through. Never null where the executor keeps its contract.
    boost::shared_ptr<CExecutorReturnValue> Execute(const wchar_t* lpszCommandId,
                                                    Query::CQueryDefinition* pQuery,
                                                    CWsTreeItemData* pItemData);
    boost::shared_ptr<CExecutorReturnValue>
    ExecuteExplicite(const wchar_t* lpszCommandId, CRepositoryItem* pRepositoryItem,
                     Selection::CSelectionSet* pSelectionSet, void* pData);

    CString GetLastCommand() const { return m_strLastCommand; }
    void SetLastCommand(const wchar_t* lpszCommandId) { m_strLastCommand = lpszCommandId; }
    /// Tells plug-ins whether a running command may be stopped.
    int GetAllowStopCommand() const { return m_bAllowStopCommand; }
    void SetAllowStopCommand(int bAllow) { m_bAllowStopCommand = bAllow; }

    /// Null until one was registered. Not owned.
    IWsCommandExecutor* GetBaseExecutor() const { return m_pBaseExecutor; }
    CWsCommandRegistry* GetCommandRegistry() const { return m_pCommandRegistry.get(); }
    /// Set-data commands of a system's topology and function, in order of adding. The
    /// vector is emptied first; a null system leaves it empty.
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
