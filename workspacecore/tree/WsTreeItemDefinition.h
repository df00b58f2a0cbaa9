// What a kind of node in the trees is: its name, its place, its commands.
#pragma once

#include "platform/win/Types.h"
#include "workspacecore/commands/WsTopologyDataSet.h"
#include "workspacecore/foundation/TreeTypes.h"

namespace Orvane::Workspace {

/// Made by whoever registers a kind of tree item, shared with the list of definitions, the
/// templates and every live node of the kind.
class WORKSPACE_API CWsTreeItemDefinition {
public:
    using TopologyDataPtr = CWsTopologyDataSet::Ptr;
    using TopologyDataVector = CWsTopologyDataSet::Vector;
    using TopologyDataMap = CWsTopologyDataSet::Map;

    CWsTreeItemDefinition() = default;
    /// Copies share the topology records. They do not carry what a node answers to (drops
    /// of repository items, drags, renaming, the ids of its commands): a fresh copy has none
    /// of it, and the target of an assignment keeps its own.
    CWsTreeItemDefinition(const CWsTreeItemDefinition& other);
    CWsTreeItemDefinition& operator=(const CWsTreeItemDefinition& other);
    virtual ~CWsTreeItemDefinition() = default;

    /// Several definitions may have the same id.
    CString GetId() const { return m_strId; }
    void SetId(const wchar_t* id) { m_strId = id; }
    HICON GetIcon() const { return m_hIcon; }
    void SetIcon(HICON icon) { m_hIcon = icon; }
    CString GetName() const { return m_strName; }
    void SetName(const wchar_t* name) { m_strName = name; }
    CString GetDescription() const { return m_strDescription; }
    void SetDescription(const wchar_t* description) { m_strDescription = description; }
    /// One kind, not a union.
    enmWSTreeItemType GetWsItemType() const { return m_wsItemType; }
    void SetWsItemType(enmWSTreeItemType type) { m_wsItemType = type; }
    /// For readers only; where a node stands follows from its own type.
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

    // Ids of the commands that answer; empty for none.
    CString GetCmdIdDoubleClick() const { return m_strCmdIdDoubleClick; }
    void SetCmdIdDoubleClick(const wchar_t* id) { m_strCmdIdDoubleClick = id; }
    CString GetCmdIdQueryDrop() const { return m_strCmdIdQueryDrop; }
    void SetCmdIdQueryDrop(const wchar_t* id) { m_strCmdIdQueryDrop = id; }
    CString GetCmdIdRepositoryItemDrop() const { return m_strCmdIdRepositoryItemDrop; }
    void SetCmdIdRepositoryItemDrop(const wchar_t* id) { m_strCmdIdRepositoryItemDrop = id; }
    CString GetCmdIdRename() const { return m_strCmdIdRename; }
    void SetCmdIdRename(const wchar_t* id) { m_strCmdIdRename = id; }

    /// Non-zero if the family has a folder for each kind of entity.
    int GetIsEntitySpecific() const { return m_bIsEntitySpecific; }
    void SetIsEntitySpecific(int specific) { m_bIsEntitySpecific = specific; }
    int GetIsDoubleClickActionEdit() const { return m_bIsDoubleClickActionEdit; }
    void SetIsDoubleClickActionEdit(int edit) { m_bIsDoubleClickActionEdit = edit; }
    /// EntityNone for items of every kind of entity.
    enmEntityType GetEntityType() const { return m_entityType; }
    void SetEntityType(enmEntityType type) { m_entityType = type; }
    /// Places in the image list of the tree that shows the item; -1 until it has one.
    int GetIconIndex() const { return m_nIconIndex; }
    void SetIconIndex(int index) { m_nIconIndex = index; }
    int GetGrayIconIndex() const { return m_nGrayIconIndex; }
    void SetGrayIconIndex(int index) { m_nGrayIconIndex = index; }

    /// A second record of the same topology and function stands in the vector again, while
    /// the map keeps the first.
    void AddWsTopologyData(const TopologyDataPtr& data) { m_wsTopologyData.Add(data); }
    void RemoveWsTopologyData(const TopologyDataPtr& data) { m_wsTopologyData.Remove(data); }
    int DoesTopologyDataExist(const CWsTopologyData* data) const {
        return data && m_wsTopologyData.Contains(data->GetMapKey()) ? 1 : 0;
    }
    TopologyDataVector* GetWsTopologyDataVector() { return &m_wsTopologyData.vector; }
    TopologyDataMap* GetWsTopologyDataMap() { return &m_wsTopologyData.map; }

    CString GetXML() const;
    /// As assignment, but the target gets topology records of its own. What its map held
    /// before stays there.
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
