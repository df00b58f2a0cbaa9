// Registers standard tree items and commands, one call per kind of item.
#pragma once

#include "workspacecore/tree/WsTreeItemDefinition.h"

namespace Orvane::Workspace {

class IWsCommandExecutor;

/// Called by plug-ins in their hooks. Definitions and commands are added to CWsManager. A command
/// whose id is already taken is silently ignored. Executors are not owned.
class WORKSPACE_API CWsRegistrationFactory {
public:
    using TopologyDataVector = CWsTopologyDataSet::Vector;

    /// The trees that show a family.
    enum enmRegistrationTarget { TargetSystem = 1, TargetRepository = 2, TargetBoth = 3 };

    /// The roots of the system tree and of the repository trees.
    static void RegisterBasicItems();

    /// Registers the item of a system.
    /// \param topologies null for every topology and function of the configuration
    /// \param registerCommands non-zero: also the commands that add, edit and delete systems
    /// \param registerTools non-zero: also the tool groups below a system
    static boost::shared_ptr<CWsTreeItemDefinition>
    RegisterSystemItem(IWsCommandExecutor* executor, TopologyDataVector* topologies,
                       int registerCommands, int registerTools);

    /// Registers a family of repository configurations: its folders, items and commands.
    /// `executor` runs items and handles double clicks and dropped queries; the base executor,
    /// which must be registered first, handles everything else. For a family registered with
    /// CRepositoryManager the base executor also runs the items; pass it as `executor` then.
    /// \param repositoryTag identifies the family, its folder and its configurations
    /// \param entityTypes bit set of the kinds of entities that it serves
    /// \param topologies null for every topology and function of the configuration
    /// \param entitySpecific non-zero: one folder per kind of entity
    /// \param commandsPerEntity non-zero: one set of commands per kind of entity, with its number
    /// at the end of the ids
    /// \param hasSendToSystem also assigns ids to the commands that send to the net and that set
    /// the default item
    /// \param doubleClickNotEdit 0: a double click in the system tree edits
    static void RegisterRepositoryItem(
        const wchar_t* repositoryTag, const wchar_t* name, HICON icon, unsigned int entityTypes,
        IWsCommandExecutor* executor, TopologyDataVector* topologies, enmRegistrationTarget target,
        int entitySpecific, int commandsPerEntity, int hasAdd, int hasEdit, int hasDelete,
        int hasRename, int hasRun, int hasDoubleClick, int hasQueryDrop, int hasRepositoryDrop,
        int hasCopy, int hasSendToSystem, int hasSendToRepository, int doubleClickNotEdit);
};

} // namespace Orvane::Workspace
