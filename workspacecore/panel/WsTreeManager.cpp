#include "workspacecore/panel/WsTreeManager.h"

#include "platform/mfc/TreeCtrl.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/systems/SystemManager.h"
#include "siblings/giscore/topology/TopologyConfiguration.h"
#include "workspacecore/tree/FamilyOrder.h"

namespace Orvane::Workspace {

CWsTreeManager::CWsTreeManager()
    : m_pTreeItemDefinitionList(new CWsTreeItemDefinitionList), m_familyOrder(LoadFamilyOrder()) {}

CWsTreeManager::~CWsTreeManager() {
    m_pTreeItemDefinitionList->Clear();
}

CWsTreeItemData* CWsTreeManager::Data(enmTree tree, HTREEITEM item) const {
    return m_views[tree] && item
               ? PointerOf<CWsTreeItemData>(static_cast<LPARAM>(m_views[tree]->GetItemData(item)))
               : nullptr;
}

HTREEITEM CWsTreeManager::Selected(enmTree tree) const {
    return m_views[tree] ? m_views[tree]->GetSelectedItem() : nullptr;
}

HTREEITEM CWsTreeManager::UnderCursor(enmTree tree) const {
    if (!m_views[tree]) {
        return nullptr;
    }
    return m_views[tree]->HitTest(m_views[tree]->ScreenToClient(GetMessagePos()));
}

void CWsTreeManager::Delete(enmTree tree, HTREEITEM item) const {
    CTreeCtrl* const pView = m_views[tree];
    if (!pView || !item) {
        return;
    }
    HTREEITEM child = pView->GetChildItem(item);
    if (!child) {
        pView->DeleteItem(item);
    }
    // A child with children of its own is emptied by the first call and deleted by the next one.
    // The item itself stays.
    for (; child; child = pView->GetChildItem(item)) {
        Delete(tree, child);
    }
}

void CWsTreeManager::SortTreeTemplate(const CWsTreeTemplate::Ptr& treeTemplate) const {
    if (treeTemplate) {
        SortByFamily(*treeTemplate->GetChildren(), m_familyOrder);
    }
}

HICON CWsTreeManager::GetSystemManagerIcon() {
    return m_icons.Get(TreeIcons::SystemManagerIcon);
}
HICON CWsTreeManager::GetSystemIcon() {
    return m_icons.Get(TreeIcons::SystemIcon);
}
HICON CWsTreeManager::GetDiskRepositoryIcon() {
    return m_icons.Get(TreeIcons::DiskRepositoryIcon);
}
HICON CWsTreeManager::GetSystemToolIcon() {
    return m_icons.Get(TreeIcons::SystemToolIcon);
}
HICON CWsTreeManager::GetSystemTool_DrawIcon() {
    return m_icons.Get(TreeIcons::DrawToolIcon);
}
HICON CWsTreeManager::GetSystemTool_SetDataIcon() {
    return m_icons.Get(TreeIcons::SetDataToolIcon);
}
HICON CWsTreeManager::GetSystemTool_EditIcon() {
    return m_icons.Get(TreeIcons::EditToolIcon);
}
HICON CWsTreeManager::GetSystemTool_ManagerIcon() {
    return m_icons.Get(TreeIcons::ManagerToolIcon);
}
HICON CWsTreeManager::GetFastCommandIcon() {
    return m_icons.Get(TreeIcons::FastCommandIcon);
}

HICON CWsTreeManager::GetSystemIcon(enmTopologyType type) {
    return m_icons.Get(type);
}

HICON CWsTreeManager::GetEntityTypeIcon(enmEntityType type) {
    return m_icons.Get(type);
}

CString CWsTreeManager::GetEntityTypeName(enmEntityType type) const {
    return CModuleConfiguration::Instance()->GetTopologyConfiguration()->GetEntityTypeName(
        type, System::CSystemManager::Instance()->GetActiveSystem());
}

} // namespace Orvane::Workspace
