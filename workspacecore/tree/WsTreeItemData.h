// Data attached to each node of a tree.
#pragma once

#include "workspacecore/tree/WsTreeItemDefinition.h"

struct _TREEITEM; // NOLINT(bugprone-reserved-identifier): the name in interfaces
using HTREEITEM = _TREEITEM*;

namespace Orvane::System {
class CGisSystem;
}

namespace Orvane::Workspace {

/// Connects a node with its definition and the object it represents. Created and owned by the
/// panel that fills the tree, which stores the address as the node's item data; deleting a node
/// does not delete it. Copies share the definition.
class CWsTreeItemData {
public:
    using DefinitionPtr = boost::shared_ptr<CWsTreeItemDefinition>;

    const DefinitionPtr& GetPtrItemDefinition() const { return m_ptrItemDefinition; }
    void SetPtrItemDefinition(const DefinitionPtr& definition) { m_ptrItemDefinition = definition; }
    /// GUID of the object, such as a configuration; empty for folders.
    CString GetGuid() const { return m_strGuid; }
    void SetGuid(const wchar_t* guid) { m_strGuid = guid; }
    /// The node itself; valid while it exists.
    HTREEITEM GetTreeItem() const { return m_hTreeItem; }
    void SetTreeItem(HTREEITEM item) { m_hTreeItem = item; }
    void* GetData() const { return m_pData; }
    void SetData(void* data) { m_pData = data; }
    /// Not owned.
    System::CGisSystem* GetSystem() const { return m_pSystem; }
    void SetSystem(System::CGisSystem* system) { m_pSystem = system; }
    int GetS2D() const { return m_bS2D; }
    void SetS2D(int s2d) { m_bS2D = s2d; }
    /// Non-zero for nodes of the net tree.
    int IsTargetNet() const { return m_bTargetNet; }
    void SetTargetNet(int net) { m_bTargetNet = net; }
    int GetRunFromSystem() const { return m_bRunFromSystem; }
    void SetRunFromSystem(int run) { m_bRunFromSystem = run; }
    /// Meaning agreed between a command and its caller; not owned.
    void* GetCustomData() const { return m_pCustomData; }
    void SetCustomData(void* data) { m_pCustomData = data; }

private:
    DefinitionPtr m_ptrItemDefinition;
    CString m_strGuid;
    HTREEITEM m_hTreeItem = nullptr;
    void* m_pData = nullptr;
    System::CGisSystem* m_pSystem = nullptr;
    int m_bS2D = 0;
    int m_bTargetNet = 0;
    int m_bRunFromSystem = 1;
    void* m_pCustomData = nullptr;
};

} // namespace Orvane::Workspace
