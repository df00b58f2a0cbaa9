// Finds, while templates are assembled, what belongs under a repository folder.
#pragma once

#include <string>
#include <unordered_map>

#include "workspacecore/tree/WsTreeItemDefinitionList.h"

namespace Orvane::Workspace {

/// Entity folders and configurations by family, kind of entity and, in the system tree,
/// topology, so that assembling costs as much as there are nodes to make. Valid as long as
/// the definitions do not change. Tags compare without regard to case.
class TreeItemIndex {
public:
    using DefinitionPtr = CWsTreeItemDefinitionList::DefinitionPtr;
    using DefinitionVector = CWsTreeItemDefinitionList::DefinitionVector;
    using DefinitionMapByType = CWsTreeItemDefinitionList::DefinitionMapByType;

    /// What a tree's entity folders and configurations are.
    struct Kinds {
        enmWSTreeItemType entityFolder;
        enmWSTreeItemType configuration;
        bool byTopology; ///< definitions stand under the topologies that they name alone
    };

    TreeItemIndex(const DefinitionMapByType& definitions, const Kinds& kinds);

    /// The folders of a family and those of every family, in order of registration.
    /// \param topology a key of topology data; empty in trees that know no topologies
    DefinitionVector EntityFolders(const CString& tag, enmEntityType type,
                                   const CString& topology) const;
    /// The first configuration of a family for a kind of entity; null for none.
    DefinitionPtr Configuration(const CString& tag, enmEntityType type,
                                const CString& topology) const;
    /// The same for whatever kind of entity.
    DefinitionPtr Configuration(const CString& tag, const CString& topology) const;

private:
    /// A definition and its place in the order of registration.
    struct Registered {
        std::size_t place;
        DefinitionPtr definition;
    };
    template <class Put>
    void ForEachTopology(const DefinitionPtr& definition, const Put& put) const;
    const std::vector<Registered>& Folders(const CString& tag, enmEntityType type,
                                           const CString& topology) const;

    bool m_byTopology;
    std::unordered_map<std::wstring, std::vector<Registered>> m_folders;
    std::unordered_map<std::wstring, DefinitionPtr> m_configurations;
};

} // namespace Orvane::Workspace
