// Access to the trees of the workspace and their node data.
#pragma once

#include <array>

#include "workspacecore/tree/TreeIcons.h"
#include "workspacecore/tree/WsTreeItemData.h"
#include "workspacecore/tree/WsTreeItemDefinitionList.h"

class CMenu;
class CTreeCtrl;

namespace Orvane::Workspace {

class CWsCommand;
class CWsCommandManager;

/// There are three trees: the systems of the drawing, the disk repository and the net repository.
/// Their panels create and fill them, attach a CWsTreeItemData to each node and register them
/// with CWsManager. Until then all functions return null or do nothing. Errors are not reported.
/// Main thread only.
///
/// Icons live as long as the process. If an icon cannot be found, the next call looks again.
class WORKSPACE_API CWsTreeManager {
public:
    CWsTreeManager();
    CWsTreeManager(const CWsTreeManager&) = default;
    CWsTreeManager& operator=(const CWsTreeManager&) = default;
    ~CWsTreeManager();

    // One each for the system, disk and net tree. Views are not owned.
    CTreeCtrl* GetTreeControl() const { return m_views[SystemTree]; }
    CTreeCtrl* GetDiskTreeControl() const { return m_views[DiskTree]; }
    CTreeCtrl* GetNetTreeControl() const { return m_views[NetTree]; }
    CWsTreeItemData* GetItemData(HTREEITEM item) const { return Data(SystemTree, item); }
    CWsTreeItemData* GetItemDataDisk(HTREEITEM item) const { return Data(DiskTree, item); }
    CWsTreeItemData* GetItemDataNet(HTREEITEM item) const { return Data(NetTree, item); }
    HTREEITEM GetSelectedItem() const { return Selected(SystemTree); }
    HTREEITEM GetSelectedItemDisk() const { return Selected(DiskTree); }
    HTREEITEM GetSelectedItemNet() const { return Selected(NetTree); }
    CWsTreeItemData* GetSelectedItemData() const { return GetItemData(GetSelectedItem()); }
    CWsTreeItemData* GetSelectedItemDataDisk() const {
        return GetItemDataDisk(GetSelectedItemDisk());
    }
    CWsTreeItemData* GetSelectedItemDataNet() const { return GetItemDataNet(GetSelectedItemNet()); }
    /// The node at the cursor position of the current message, anywhere in its row.
    HTREEITEM GetItemByPosition() const { return UnderCursor(SystemTree); }
    HTREEITEM GetItemByPositionDisk() const { return UnderCursor(DiskTree); }
    HTREEITEM GetItemByPositionNet() const { return UnderCursor(NetTree); }
    CWsTreeItemData* GetItemDataByPosition() const { return GetItemData(GetItemByPosition()); }
    CWsTreeItemData* GetItemDataByPositionDisk() const {
        return GetItemDataDisk(GetItemByPositionDisk());
    }
    CWsTreeItemData* GetItemDataByPositionNet() const {
        return GetItemDataNet(GetItemByPositionNet());
    }
    /// Deletes a node without children. For a node with children it deletes all descendants and
    /// keeps the node, which a second call deletes. Item data is not touched.
    void DeleteTreeItem(HTREEITEM item) const { Delete(SystemTree, item); }
    void DeleteTreeItemDisk(HTREEITEM item) const { Delete(DiskTree, item); }
    void DeleteTreeItemNet(HTREEITEM item) const { Delete(NetTree, item); }

    /// Never null.
    CWsTreeItemDefinitionList* GetTreeItemDefinitionList() const {
        return m_pTreeItemDefinitionList.get();
    }
    /// Appends the commands for a node in the context of a system, which may be null.
    /// \param pItemData null for the selected node of the system tree
    /// \return 1 if there is at least one
    int GetMenuBar(CMenu& menu, CWsTreeItemData* pItemData, System::CGisSystem* pSystem) const;
    /// The command with the id of a menu entry, or null. Owned by the registry.
    CWsCommand* GetMenuCommand(unsigned int menuCmdId) const;
    /// Sorts the direct children of a template: tool groups first, then the families in the order
    /// of "workspaceRepositoryOrder.xml", then the others.
    void SortTreeTemplate(const CWsTreeTemplate::Ptr& treeTemplate) const;

    HICON GetSystemManagerIcon();
    HICON GetSystemIcon();
    /// Null for topologies other than lines, polygons and points.
    HICON GetSystemIcon(enmTopologyType type);
    HICON GetDiskRepositoryIcon();
    HICON GetSystemToolIcon();
    HICON GetSystemTool_DrawIcon();    // NOLINT(readability-identifier-naming): the interface's
    HICON GetSystemTool_SetDataIcon(); // NOLINT(readability-identifier-naming)
    HICON GetSystemTool_EditIcon();    // NOLINT(readability-identifier-naming)
    HICON GetSystemTool_ManagerIcon(); // NOLINT(readability-identifier-naming)
    HICON GetFastCommandIcon();
    HICON GetEntityTypeIcon(enmEntityType type);
    /// As named by the active system's topology.
    CString GetEntityTypeName(enmEntityType type) const;
    TreeIcons& Icons() { return m_icons; }

private:
    friend class CWsManager;
    enum enmTree { SystemTree, DiskTree, NetTree };

    CWsTreeItemData* Data(enmTree tree, HTREEITEM item) const;
    HTREEITEM Selected(enmTree tree) const;
    HTREEITEM UnderCursor(enmTree tree) const;
    void Delete(enmTree tree, HTREEITEM item) const;

    boost::shared_ptr<CWsTreeItemDefinitionList> m_pTreeItemDefinitionList;
    std::array<CTreeCtrl*, 3> m_views{};
    TreeIcons m_icons;
    std::vector<CString> m_familyOrder; ///< tags; read once
    /// Set by the owning manager; null in other instances, which have no commands.
    const CWsCommandManager* m_pCommands = nullptr;
};

} // namespace Orvane::Workspace
