// All kinds of tree items of a run, and the templates that are made of them.
#pragma once

#include "workspacecore/tree/WsTreeTemplate.h"

namespace Orvane::System {
class CGisSystem;
}

namespace Orvane::Workspace {

class TreeItemIndex;

/// The live list belongs to CWsTreeManager. Plug-ins register their definitions during the
/// start; then the templates are built, once, of what is there. Definitions that come later
/// stand in no template. Main thread only.
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

    /// Ids may repeat. Null is passed over.
    void AddWsTreeItemDefinition(const DefinitionPtr& definition);
    /// Takes the first entry of that object out of the vector. Templates that are built
    /// later still find it.
    void RemoveWsTreeItemDefinition(const DefinitionPtr& definition);
    /// Empties the vector and drops the system templates. The definitions by type and the
    /// templates of the repository trees stay.
    void Clear();
    DefinitionVector* GetWsTreeItemDefinitionVector() { return &m_wsTreeItemDefinitionVector; }
    const DefinitionVector* GetWsTreeItemDefinitionVector() const {
        return &m_wsTreeItemDefinitionVector;
    }

    /// Builds a template for each topology and function of the configuration. A second call
    /// appends the nodes again to the roots that are there.
    void InitializeSystemTreeTemplate();
    /// Each does nothing if its template was built already.
    void InitializeDiskTreeTemplate();
    void InitializeNetTreeTemplate();

    // Null if the configuration has no such topology, or no template was built for it. The
    // function is of no account for a topology without functions.
    TemplatePtr GetSystemTreeTemplate(System::CGisSystem* pSystem) const;
    TemplatePtr GetSystemTreeTemplate(const CWsTopologyDataSet::Ptr& data) const;
    TemplatePtr GetSystemTreeTemplate(enmTopologyType type, int function) const;
    /// Null until they were built.
    TemplatePtr GetDiskTreeTemplate() const { return m_diskTreeTemplate; }
    TemplatePtr GetNetTreeTemplate() const { return m_netTreeTemplate; }

    CString GetXML() const;
    /// Empties the list and reads definitions from a text into the vector alone: they take
    /// no part in templates. 0 if the text has no list element.
    int ParseXML(const wchar_t* xml);
    /// 0, and no change, if the file cannot be read or is not well formed.
    int Load(const wchar_t* path);
    /// 0, and nothing written, if the text would not be well formed.
    int Save(const wchar_t* path) const;
    /// There is no storage in a drawing: both show "Not implemented" and give 0, and the
    /// first one empties the list.
    int LoadFromDictionary();
    int SaveToDictionary() const;
    /// Fills the target's vector with copies of the definitions, and touches nothing else.
    void MakeDeepCopy(CWsTreeItemDefinitionList& target) const;

private:
    void AddSystemRoots(const DefinitionPtr& systemItem);
    void AddToolGroups();
    void AddSystemRepositoryDefinition(const DefinitionPtr& definition, const TreeItemIndex& index);
    void InitializeRepositoryTree(TemplatePtr& tree);
    TemplatePtr MakeRepositoryRoot() const;
    /// The first definition of the vector that stands for a system, or null.
    DefinitionPtr GetSystemItem() const;

    DefinitionVector m_wsTreeItemDefinitionVector;
    DefinitionMapByType m_wsTreeItemDefinitionMapByType; ///< equal types in order of adding
    TemplateMap m_systemTreeTemplateMap;                 ///< by CWsTopologyData::GetMapKey
    TemplatePtr m_diskTreeTemplate;
    TemplatePtr m_netTreeTemplate;
};

} // namespace Orvane::Workspace
