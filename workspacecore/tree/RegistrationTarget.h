// Destination of the standard registrations.
#pragma once

#include "workspacecore/commands/WsCommand.h"
#include "workspacecore/tree/TreeIcons.h"
#include "workspacecore/tree/WsTreeItemDefinition.h"

namespace Orvane::Workspace {

class IWsCommandExecutor;

/// The part of the workspace that the registrations need. Implemented in workspacecore/core.
class IRegistrationTarget {
public:
    virtual void RegisterWsCommand(const boost::shared_ptr<CWsCommand>& command) = 0;
    virtual void RegisterWsTreeItem(const boost::shared_ptr<CWsTreeItemDefinition>& definition) = 0;
    /// Null until registered.
    virtual IWsCommandExecutor* GetBaseExecutor() = 0;
    virtual TreeIcons& Icons() = 0;
    /// As named by the active system's topology.
    virtual CString GetEntityTypeName(enmEntityType type) = 0;

protected:
    ~IRegistrationTarget() = default;
};

/// Set once when the module is loaded; not owned, and lives as long as the module.
void SetRegistrationTarget(IRegistrationTarget* pTarget);
IRegistrationTarget& RegistrationTarget();

} // namespace Orvane::Workspace
