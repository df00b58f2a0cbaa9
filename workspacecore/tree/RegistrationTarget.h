// Where the standard registrations go.
#pragma once

#include "workspacecore/commands/WsCommand.h"
#include "workspacecore/tree/TreeIcons.h"
#include "workspacecore/tree/WsTreeItemDefinition.h"

namespace Orvane::Workspace {

class IWsCommandExecutor;

/// What the registrations need of the workspace. The folder above implements it.
class IRegistrationTarget {
public:
    virtual void RegisterWsCommand(const boost::shared_ptr<CWsCommand>& command) = 0;
    virtual void RegisterWsTreeItem(const boost::shared_ptr<CWsTreeItemDefinition>& definition) = 0;
    /// Null until one was registered.
    virtual IWsCommandExecutor* GetBaseExecutor() = 0;
    virtual TreeIcons& Icons() = 0;
    /// As the active system's topology calls it.
    virtual CString GetEntityTypeName(enmEntityType type) = 0;

protected:
    ~IRegistrationTarget() = default;
};

/// Handed in once, when the module is loaded; not owned, and lives as long as the module.
void SetRegistrationTarget(IRegistrationTarget* pTarget);
IRegistrationTarget& RegistrationTarget();

} // namespace Orvane::Workspace
