// The standard tree items and commands, one call for each thing that a plug-in brings.
#pragma once

#include "workspacecore/tree/WsTreeItemDefinition.h"

namespace Orvane::Workspace {

class IWsCommandExecutor;

/// For plug-ins, in their hooks. Definitions and commands go to CWsManager. A command whose
/// id is taken already is dropped without a word. Executors are not owned.
class WORKSPACE_API CWsRegistrationFactory {
public:
    using TopologyDataVector = CWsTopologyDataSet::Vector;

    /// The trees in which a family stands.
    enum enmRegistrationTarget { TargetSystem = 1, TargetRepository = 2, TargetBoth = 3 };

    /// The roots of the system tree and of the repository trees.
    static void RegisterBasicItems();

    /// The item of a system.
    /// \param topologies null for every topology and function of the configuration
    /// \param registerCommands non-zero: with the commands that add, edit and delete systems
    /// \param registerTools non-zero: with the tool groups under a system
    static boost::shared_ptr<CWsTreeItemDefinition>
    RegisterSystemItem(IWsCommandExecutor* executor, TopologyDataVector* topologies,
                       int registerCommands, int registerTools);

    /// A family of repository configurations: its folders, its items and its commands.
    /// Running, double clicks and dropped queries go to `executor`; everything else is the
    /// base executor's, which has to be registered before. It also runs the items of a family
    /// that was registered with CRepositoryManager; hand it in then.
    /// \param repositoryTag names the family, and with it folder and configurations
    /// \param entityTypes bit set of the kinds of entities that it serves
    /// \param topologies null for every topology and function of the configuration
    /// \param entitySpecific non-zero: a folder for each kind of entity
    /// \param commandsPerEntity non-zero: a set of commands for each kind of entity, whose
    ///     ids end in its number
    /// \param hasSendToSystem also gives ids to the commands that send to the net and that
    ///     set the default item
    /// \param doubleClickNotEdit 0: a double click in the system tree edits
    static void RegisterRepositoryItem(
        const wchar_t* repositoryTag, const wchar_t* name, HICON icon, unsigned int entityTypes,
        IWsCommandExecutor* executor, TopologyDataVector* topologies, enmRegistrationTarget target,
        int entitySpecific, int commandsPerEntity, int hasAdd, int hasEdit, int hasDelete,
        int hasRename, int hasRun, int hasDoubleClick, int hasQueryDrop, int hasRepositoryDrop,
        int hasCopy, int hasSendToSystem, int hasSendToRepository, int doubleClickNotEdit);
};

} // namespace Orvane::Workspace
