// All tree item definitions, and the templates built from them.
#pragma once

#include "workspacecore/tree/WsTreeTemplate.h"

namespace Orvane::System {
class CGisSystem;
}

namespace Orvane::Workspace {

class TreeItemIndex;

/// The live list is owned by CWsTreeManager. Plug-ins register their definitions during start-up;
/// then the templates are built once. Definitions registered later appear in no template. Main
/// thread only.
class WORKSPACE_API CWsTreeItemDefinitionList {
public:
    using DefinitionPtr = boost::shared_ptr<CWsTreeItemDefinition>;
    using DefinitionVector = std::vector<DefinitionPtr>;
    using DefinitionMapByType = std::multimap<enmWSTreeItemType, DefinitionPtr>;
    using TemplatePtr = CWsTreeTemplate::Ptr;
    using TemplateMap = std::map<CString, TemplatePtr, CStringLess>;

    CWsTreeItemDefinitionList() = default;
    /// Copies share definitions and templates.
    CWsTreeItemDefinitionList(const CWsTreeItemDefinitionList&) = default;
    CWsTreeItemDefinitionList& operator=(const CWsTreeItemDefinitionList&) = default;
    virtual ~CWsTreeItemDefinitionList() = default;

    /// Ids may repeat. Null is ignored.
    void AddWsTreeItemDefinition(const DefinitionPtr& definition);
    /// Removes the first entry of the object from the vector. Templates built later still include
    /// it.
    void RemoveWsTreeItemDefinition(const DefinitionPtr& definition);
    /// Clears the vector and the system templates. The map by type and the templates of the
    /// repository trees stay.
    void Clear();
    DefinitionVector* GetWsTreeItemDefinitionVector() { return &m_wsTreeItemDefinitionVector; }
    const DefinitionVector* GetWsTreeItemDefinitionVector() const {
        return &m_wsTreeItemDefinitionVector;
    }

    /// Builds a template for each topology and function of the configuration. A second call
    /// appends the nodes again to the existing roots.
    void InitializeSystemTreeTemplate();
    /// Each does nothing if its template exists already.
    void InitializeDiskTreeTemplate();
    void InitializeNetTreeTemplate();

    // Null if the configuration has no such topology, or its template has not been built. The
    // function is ignored for a topology without functions.
    TemplatePtr GetSystemTreeTemplate(System::CGisSystem* pSystem) const;
    TemplatePtr GetSystemTreeTemplate(const CWsTopologyDataSet::Ptr& data) const;
    TemplatePtr GetSystemTreeTemplate(enmTopologyType type, int function) const;
    /// Null until built.
    TemplatePtr GetDiskTreeTemplate() const { return m_diskTreeTemplate; }
    TemplatePtr GetNetTreeTemplate() const { return m_netTreeTemplate; }

    CString GetXML() const;
    /// Clears the list and parses definitions into the vector only, so they are not used in
    /// templates. Returns 0 if the text has no list element.
    int ParseXML(const wchar_t* xml);
    /// Returns 0 and changes nothing if the file cannot be read or is not well formed.
    int Load(const wchar_t* path);
    /// Returns 0 and writes nothing if the text would not be well formed.
    int Save(const wchar_t* path) const;
    /// Storage in a drawing is not implemented: both print "Not implemented" and return 0, and
    /// the first one clears the list.
    int LoadFromDictionary();
    int SaveToDictionary() const;
    /// Copies the definitions into the target's vector, and nothing else.
    void MakeDeepCopy(CWsTreeItemDefinitionList& target) const;

private:
    void AddSystemRoots(const DefinitionPtr& systemItem);
    void AddToolGroups();
    void AddSystemRepositoryDefinition(const DefinitionPtr& definition, const TreeItemIndex& index);
    void InitializeRepositoryTree(TemplatePtr& tree);
    TemplatePtr MakeRepositoryRoot() const;
    /// The first definition in the vector of a system item, or null.
    DefinitionPtr GetSystemItem() const;

    DefinitionVector m_wsTreeItemDefinitionVector;
    DefinitionMapByType m_wsTreeItemDefinitionMapByType; ///< equal types in order of registration
    TemplateMap m_systemTreeTemplateMap;                 ///< keyed by CWsTopologyData::GetMapKey
    TemplatePtr m_diskTreeTemplate;
    TemplatePtr m_netTreeTemplate;
};

} // namespace Orvane::Workspace
