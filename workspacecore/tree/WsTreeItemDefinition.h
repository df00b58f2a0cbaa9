// Definition of a kind of tree node: its name, position and commands.
#pragma once

#include "platform/win/Types.h"
#include "workspacecore/commands/WsTopologyDataSet.h"
#include "workspacecore/foundation/TreeTypes.h"

namespace Orvane::Workspace {

/// Created by the code that registers it, and shared with the list of definitions, the templates
/// and all nodes of the kind.
class WORKSPACE_API CWsTreeItemDefinition {
public:
    using TopologyDataPtr = CWsTopologyDataSet::Ptr;
    using TopologyDataVector = CWsTopologyDataSet::Vector;
    using TopologyDataMap = CWsTopologyDataSet::Map;

    CWsTreeItemDefinition() = default;
    /// Copies share the topology records. Reactions of a node (drops of repository items, drags,
    /// renaming, command ids) are not copied: a new copy has none, and the target of an
    /// assignment keeps its own.
    CWsTreeItemDefinition(const CWsTreeItemDefinition& other);
    CWsTreeItemDefinition& operator=(const CWsTreeItemDefinition& other);
    virtual ~CWsTreeItemDefinition() = default;

    /// Not necessarily unique.
    CString GetId() const { return m_strId; }
    void SetId(const wchar_t* id) { m_strId = id; }
    HICON GetIcon() const { return m_hIcon; }
    void SetIcon(HICON icon) { m_hIcon = icon; }
    CString GetName() const { return m_strName; }
    void SetName(const wchar_t* name) { m_strName = name; }
    CString GetDescription() const { return m_strDescription; }
    void SetDescription(const wchar_t* description) { m_strDescription = description; }
    /// A single type, not a bit set.
    enmWSTreeItemType GetWsItemType() const { return m_wsItemType; }
    void SetWsItemType(enmWSTreeItemType type) { m_wsItemType = type; }
    /// Informational only; the position of a node follows from its own type.
    enmWSTreeItemType GetWsParentItemType() const { return m_wsParentItemType; }
    void SetWsParentItemType(enmWSTreeItemType type) { m_wsParentItemType = type; }
    /// Tag of the repository family; "0" on an entity folder puts it into every family.
    CString GetRepositoryTag() const { return m_strRepositoryTag; }
    void SetRepositoryTag(const wchar_t* tag) { m_strRepositoryTag = tag; }

    int GetAcceptQueryDrop() const { return m_bAcceptQueryDrop; }
    void SetAcceptQueryDrop(int accept) { m_bAcceptQueryDrop = accept; }
    int GetAcceptRepositoryItemDrop() const { return m_bAcceptRepositoryItemDrop; }
    void SetAcceptRepositoryItemDrop(int accept) { m_bAcceptRepositoryItemDrop = accept; }
    int GetAllowDragBegin() const { return m_bAllowDragBegin; }
    void SetAllowDragBegin(int allow) { m_bAllowDragBegin = allow; }
    /// Non-zero if the label can be edited in place.
    int GetAllowRename() const { return m_bAllowRename; }
    void SetAllowRename(int allow) { m_bAllowRename = allow; }

    // Command ids; empty if the node has no such command.
    CString GetCmdIdDoubleClick() const { return m_strCmdIdDoubleClick; }
    void SetCmdIdDoubleClick(const wchar_t* id) { m_strCmdIdDoubleClick = id; }
    CString GetCmdIdQueryDrop() const { return m_strCmdIdQueryDrop; }
    void SetCmdIdQueryDrop(const wchar_t* id) { m_strCmdIdQueryDrop = id; }
    CString GetCmdIdRepositoryItemDrop() const { return m_strCmdIdRepositoryItemDrop; }
    void SetCmdIdRepositoryItemDrop(const wchar_t* id) { m_strCmdIdRepositoryItemDrop = id; }
    CString GetCmdIdRename() const { return m_strCmdIdRename; }
    void SetCmdIdRename(const wchar_t* id) { m_strCmdIdRename = id; }

    /// Non-zero if the family has one folder per kind of entity.
    int GetIsEntitySpecific() const { return m_bIsEntitySpecific; }
    void SetIsEntitySpecific(int specific) { m_bIsEntitySpecific = specific; }
    int GetIsDoubleClickActionEdit() const { return m_bIsDoubleClickActionEdit; }
    void SetIsDoubleClickActionEdit(int edit) { m_bIsDoubleClickActionEdit = edit; }
    /// EntityNone for items of all kinds of entities.
    enmEntityType GetEntityType() const { return m_entityType; }
    void SetEntityType(enmEntityType type) { m_entityType = type; }
    /// Index in the image list of the tree that shows the item; -1 until assigned.
    int GetIconIndex() const { return m_nIconIndex; }
    void SetIconIndex(int index) { m_nIconIndex = index; }
    int GetGrayIconIndex() const { return m_nGrayIconIndex; }
    void SetGrayIconIndex(int index) { m_nGrayIconIndex = index; }

    /// A duplicate topology and function is appended to the vector, while the map keeps the first
    /// record.
    void AddWsTopologyData(const TopologyDataPtr& data) { m_wsTopologyData.Add(data); }
    void RemoveWsTopologyData(const TopologyDataPtr& data) { m_wsTopologyData.Remove(data); }
    int DoesTopologyDataExist(const CWsTopologyData* data) const {
        return data && m_wsTopologyData.Contains(data->GetMapKey()) ? 1 : 0;
    }
    TopologyDataVector* GetWsTopologyDataVector() { return &m_wsTopologyData.vector; }
    TopologyDataMap* GetWsTopologyDataMap() { return &m_wsTopologyData.map; }

    CString GetXML() const;
    /// Like assignment, but with separate topology records. Existing entries of the target's map
    /// stay.
    void MakeDeepCopy(CWsTreeItemDefinition& target) const;

private:
    void CopyValues(const CWsTreeItemDefinition& other);

    CString m_strId;
    HICON m_hIcon = nullptr;
    CString m_strName;
    CString m_strDescription;
    enmWSTreeItemType m_wsItemType = WsItemNone;
    enmWSTreeItemType m_wsParentItemType = WsItemNone;
    CString m_strRepositoryTag;
    int m_bAcceptQueryDrop = 0;
    int m_bAcceptRepositoryItemDrop = 0;
    int m_bAllowDragBegin = 0;
    int m_bAllowRename = 0;
    CString m_strCmdIdDoubleClick;
    CString m_strCmdIdQueryDrop;
    CString m_strCmdIdRepositoryItemDrop;
    CString m_strCmdIdRename;
    int m_bIsEntitySpecific = 1;
    int m_bIsDoubleClickActionEdit = 0;
    enmEntityType m_entityType = EntityNone;
    int m_nIconIndex = -1;
    int m_nGrayIconIndex = -1;
    CWsTopologyDataSet m_wsTopologyData;
};

} // namespace Orvane::Workspace
