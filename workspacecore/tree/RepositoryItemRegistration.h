// Registration data of a family of repository configurations.
#pragma once

#include "workspacecore/tree/WsRegistrationFactory.h"

namespace Orvane::Workspace {

/// Arguments of CWsRegistrationFactory::RegisterRepositoryItem, from which the definitions and
/// commands of the family are created.
struct RepositoryItemRegistration {
    CString repositoryTag;
    CString name;
    HICON icon;
    unsigned int entityTypes;
    IWsCommandExecutor* executor;
    const CWsTopologyDataSet::Vector* topologies;
    CWsRegistrationFactory::enmRegistrationTarget target;
    int entitySpecific;
    int commandsPerEntity;
    int hasAdd;
    int hasEdit;
    int hasDelete;
    int hasRename;
    int hasRun;
    int hasDoubleClick;
    int hasQueryDrop;
    int hasRepositoryDrop;
    int hasCopy;
    int hasSendToSystem;
};

/// Registers the definitions of the folders and items, one tree after the other.
void RegisterFamilyDefinitions(const RepositoryItemRegistration& family, int doubleClickNotEdit);
/// Registers the commands, once or per kind of entity.
void RegisterFamilyCommands(const RepositoryItemRegistration& family, int hasSendToRepository);

} // namespace Orvane::Workspace
