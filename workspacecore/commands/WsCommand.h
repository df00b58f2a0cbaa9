// The record of one workspace command.
#pragma once

#include "platform/win/Types.h"
#include "workspacecore/commands/CommandsTypes.h"
#include "workspacecore/commands/WsTopologyDataSet.h"
#include "workspacecore/foundation/TreeTypes.h"

namespace Orvane::Workspace {

class IWsCommandExecutor;

/// Created by the registering code and shared with the registry. The executor is not owned and
/// must outlive every execution.
class WORKSPACE_API CWsCommand {
public:
    using TopologyDataPtr = CWsTopologyDataSet::Ptr;
    using TopologyDataVector = CWsTopologyDataSet::Vector;
    using TopologyDataMap = CWsTopologyDataSet::Map;

    CWsCommand() = default;
    /// Copies everything except the topology data: the copy starts without any, and the target of
    /// an assignment keeps its own.
    CWsCommand(const CWsCommand& other);
    CWsCommand& operator=(const CWsCommand& other);
    virtual ~CWsCommand() = default;

    CString GetId() const { return m_strId; }
    void SetId(const wchar_t* id) { m_strId = id; }
    CString GetName() const { return m_strName; }
    void SetName(const wchar_t* name) { m_strName = name; }
    CString GetDescription() const { return m_strDescription; }
    void SetDescription(const wchar_t* description) { m_strDescription = description; }
    HICON GetIcon() const { return m_hIcon; }
    void SetIcon(HICON icon) { m_hIcon = icon; }
    enmTreeCommandBehavior GetTreeCmdBehavior() const { return m_treeCmdBehavior; }
    void SetTreeCmdBehavior(enmTreeCommandBehavior behavior) { m_treeCmdBehavior = behavior; }
    enmCommandGroup GetCmdGroup() const { return m_cmdGroup; }
    /// Does not move the command between the groups of the registry.
    void SetCmdGroup(enmCommandGroup group) { m_cmdGroup = group; }
    /// Tag of the repository family: empty for none, "0" for every family.
    CString GetRepositoryTag() const { return m_strRepositoryTag; }
    void SetRepositoryTag(const wchar_t* tag) { m_strRepositoryTag = tag; }
    /// Bit set of enmWSTreeItemType.
    unsigned long GetWsItemTypes() const { return m_nWsItemTypes; }
    void SetWsItemTypes(unsigned long types) { m_nWsItemTypes = types; }
    IWsCommandExecutor* GetCmdExecutor() const { return m_pCmdExecutor; }
    void SetCmdExecutor(IWsCommandExecutor* executor) { m_pCmdExecutor = executor; }
    int IsSetDataCommand() const { return m_bIsSetDataCommand; }
    void SetIsSetDataCommand(int isSetDataCommand) { m_bIsSetDataCommand = isSetDataCommand; }
    enmEntityType GetEntityType() const { return m_entityType; }
    void SetEntityType(enmEntityType entityType) { m_entityType = entityType; }
    /// Assigned by the registry; 0 before.
    unsigned int GetMenuCmdId() const { return m_nMenuCmdId; }

    /// Non-zero if the command applies to any of the types.
    unsigned long TestWsItemType(enmWSTreeItemType types) const { return types & m_nWsItemTypes; }

    /// A duplicate topology and function is appended to the vector, while the map keeps the first
    /// record.
    void AddWsTopologyData(const TopologyDataPtr& data) { m_wsTopologyData.Add(data); }
    /// Removes the record from the vector, by pointer, and its key from the map.
    void RemoveWsTopologyData(const TopologyDataPtr& data) { m_wsTopologyData.Remove(data); }
    int DoesTopologyDataExist(const CWsTopologyData* data) const {
        return data && m_wsTopologyData.Contains(data->GetMapKey()) ? 1 : 0;
    }
    TopologyDataVector* GetWsTopologyDataVector() { return &m_wsTopologyData.vector; }
    TopologyDataMap* GetWsTopologyDataMap() { return &m_wsTopologyData.map; }
    const TopologyDataMap* GetWsTopologyDataMap() const { return &m_wsTopologyData.map; }

    CString GetXML() const;
    void MakeDeepCopy(CWsCommand& target) const { target = *this; }

private:
    friend class CWsCommandRegistry;

    CString m_strId;
    CString m_strName;
    CString m_strDescription;
    HICON m_hIcon = nullptr;
    enmTreeCommandBehavior m_treeCmdBehavior = TreeBehaviorNone;
    enmCommandGroup m_cmdGroup = CommandGroupRun;
    CString m_strRepositoryTag;
    unsigned long m_nWsItemTypes = 0;
    IWsCommandExecutor* m_pCmdExecutor = nullptr;
    int m_bIsSetDataCommand = 0;
    enmEntityType m_entityType = EntityNone;
    CWsTopologyDataSet m_wsTopologyData;
    unsigned int m_nMenuCmdId = 0;
};

} // namespace Orvane::Workspace
