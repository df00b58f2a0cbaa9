// A tree of item definitions, from which the trees are filled.
#pragma once

#include "workspacecore/tree/WsTreeItemDefinition.h"

namespace Orvane::Workspace {

/// A node of a template. Panels traverse it to fill their trees. The levels are fixed: a root,
/// tool groups and repository folders below it, and entity folders below those that have them.
///
/// Parent and child links are both shared pointers, so a template keeps itself alive and lives as
/// long as the process.
class WORKSPACE_API CWsTreeTemplate {
public:
    using Ptr = boost::shared_ptr<CWsTreeTemplate>;
    using DefinitionPtr = boost::shared_ptr<CWsTreeItemDefinition>;
    using Children = std::vector<Ptr>;

    /// Null at a root.
    const Ptr& GetParentItem() const { return m_parentItem; }
    /// The definition shown here; null at the root of a repository tree without a root
    /// definition.
    const DefinitionPtr& GetItemDefinition() const { return m_itemDefinition; }
    /// In order of assembly unless sorted.
    Children* GetChildren() { return &m_children; }
    const Children* GetChildren() const { return &m_children; }

    /// Non-zero if configurations are attached here.
    int IsPlaceToAddConfiguration() const { return m_bIsPlaceToAddConfiguration; }
    /// Definition of those configurations; null if there are none.
    const DefinitionPtr& GetConfigurationDefinition() const { return m_configurationDefinition; }
    /// Non-zero if the configurations are for one kind of entity.
    int IsEntitySpecificConfiguration() const { return m_bIsEntitySpecificConfiguration; }
    enmEntityType GetConfigurationEntityType() const { return m_configurationEntityType; }

private:
    friend class CWsTreeItemDefinitionList;
    friend class TreeTemplateAssembly;

    Ptr m_parentItem;
    DefinitionPtr m_itemDefinition;
    Children m_children;
    int m_bIsPlaceToAddConfiguration = 0;
    DefinitionPtr m_configurationDefinition;
    int m_nTopologyType = -1; ///< set at the roots of system trees, like the function
    int m_nTopologyFunction = 0;
    int m_bIsEntitySpecificConfiguration = 0;
    enmEntityType m_configurationEntityType = EntityNone;
};

} // namespace Orvane::Workspace
