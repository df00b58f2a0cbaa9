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

    /// One family in one place of a tree.
    class Family {
    public:
        /// The folders of the family and those of every family, in order of registration.
        DefinitionVector EntityFolders(enmEntityType type) const;
        /// The first configuration for a kind of entity; null for none.
        DefinitionPtr Configuration(enmEntityType type) const;
        /// The same for whatever kind of entity.
        DefinitionPtr Configuration() const;

    private:
        friend class TreeItemIndex;
        const TreeItemIndex* m_pIndex;
        int m_tag;
        int m_everyFamily;
        int m_topology;
    };
    /// \param topology a key of topology data; empty in trees that know no topologies
    Family In(const CString& tag, const CString& topology) const;

private:
    /// A definition and its place in the order of registration.
    struct Registered {
        std::size_t place;
        DefinitionPtr definition;
    };
    /// Family, topology and kind of entity as numbers, the texts counted as they come.
    struct Key {
        int tag;
        int topology;
        int entityType;
        bool operator==(const Key&) const = default;
    };
    struct KeyHash {
        std::size_t operator()(const Key& key) const;
    };
    using Numbers = std::unordered_map<std::wstring, int>;

    template <class Put>
    void ForEachTopology(const DefinitionPtr& definition, const Put& put);
    void AddFolder(const DefinitionPtr& definition, std::size_t place);
    void AddConfiguration(const DefinitionPtr& definition);
    const std::vector<Registered>& Folders(const Key& key) const;
    DefinitionPtr Configuration(const Key& key) const;

    bool m_byTopology;
    Numbers m_tags; ///< in lower case
    Numbers m_topologies;
    std::unordered_map<Key, std::vector<Registered>, KeyHash> m_folders;
    std::unordered_map<Key, DefinitionPtr, KeyHash> m_configurations;
};

} // namespace Orvane::Workspace
