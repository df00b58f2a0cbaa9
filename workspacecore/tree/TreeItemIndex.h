// Look-up of the children of repository folders while templates are assembled.
#pragma once

#include <string>
#include <unordered_map>

#include "workspacecore/tree/WsTreeItemDefinitionList.h"

namespace Orvane::Workspace {

/// Entity folders and configurations by family, kind of entity and, in the system tree, topology,
/// so that assembly is linear in the number of nodes created. Valid while the definitions do not
/// change. Tags are case-insensitive.
class TreeItemIndex {
public:
    using DefinitionPtr = CWsTreeItemDefinitionList::DefinitionPtr;
    using DefinitionVector = CWsTreeItemDefinitionList::DefinitionVector;
    using DefinitionMapByType = CWsTreeItemDefinitionList::DefinitionMapByType;

    /// Item types of a tree's entity folders and configurations.
    struct Kinds {
        enmWSTreeItemType entityFolder;
        enmWSTreeItemType configuration;
        bool byTopology; ///< definitions apply only to the topologies they list
    };

    TreeItemIndex(const DefinitionMapByType& definitions, const Kinds& kinds);

    /// One family at one place of a tree.
    class Family {
    public:
        /// The folders of this family and those for all families, in order of registration.
        DefinitionVector EntityFolders(enmEntityType type) const;
        /// The first configuration for a kind of entity; null if there is none.
        DefinitionPtr Configuration(enmEntityType type) const;
        /// The first configuration for any kind of entity.
        DefinitionPtr Configuration() const;

    private:
        friend class TreeItemIndex;
        const TreeItemIndex* m_pIndex;
        int m_tag;
        int m_everyFamily;
        int m_topology;
    };
    /// \param topology a key of topology data; empty in trees without topologies
    Family In(const CString& tag, const CString& topology) const;

private:
    /// A definition with its registration index.
    struct Registered {
        std::size_t place;
        DefinitionPtr definition;
    };
    /// Family, topology and kind of entity, with the texts mapped to numbers.
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
    Numbers m_tags; ///< lower case
    Numbers m_topologies;
    std::unordered_map<Key, std::vector<Registered>, KeyHash> m_folders;
    std::unordered_map<Key, DefinitionPtr, KeyHash> m_configurations;
};

} // namespace Orvane::Workspace
