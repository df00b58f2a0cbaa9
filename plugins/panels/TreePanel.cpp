#include "plugins/panels/TreePanel.h"

#include "platform/arx/ApDocManager.h"
#include "platform/mfc/DataExchange.h"
#include "platform/mfc/Menu.h"
#include "plugins/panels/Resources.h"
#include "plugins/panels/TreePictures.h"
#include "plugins/panels/TreeRules.h"
#include "plugins/panels/TreeState.h"
#include "siblings/giscore/notification/NotificationFramework.h"
#include "siblings/giscore/repository/RepositoryFactory.h"
#include "siblings/giscore/repository/RepositoryManager.h"
#include "siblings/giscore/repository/RepositoryStore.h"
#include "siblings/giscore/systems/SystemManager.h"
#include "workspacecore/core/WsManager.h"

namespace Orvane::Panels {

namespace {

using Workspace::CWsManager;
using Workspace::CWsOrder;
using Workspace::CWsTreeItemData;

constexpr UINT kRefreshMessage = WM_USER + 1;
constexpr DWORD_PTR kFolderTimer = 1;
constexpr UINT kFolderPause = 1000; // milliseconds
constexpr int kF2 = VK_F1 + 1;
constexpr int kF10 = VK_F1 + 9;

constexpr const wchar_t* kDialogIds[] = {L"DLG_TREE_SYSTEMS", L"DLG_TREE_DISK", L"DLG_TREE_NET"};

/// The node under the mouse in any of the trees, whichever panel hosts it.
struct TreePlace {
    CTreeCtrl* pTree = nullptr;
    HTREEITEM item = nullptr;
};

TreePlace PlaceAt(CPoint screen) {
    const Workspace::CWsTreeManager& trees = *CWsManager::Instance()->TreeMgr();
    for (CTreeCtrl* const pTree :
         {trees.GetTreeControl(), trees.GetDiskTreeControl(), trees.GetNetTreeControl()}) {
        if (pTree && pTree->IsWindowVisible()) {
            const CPoint point = pTree->ScreenToClient(screen);
            if (HTREEITEM const item =
                    pTree->GetClientRect().PtInRect(point) ? pTree->HitTest(point) : nullptr) {
                return {pTree, item};
            }
        }
    }
    return {};
}

CWsTreeItemData* DataAt(const TreePlace& place) {
    return place.pTree && place.item ? PointerOf<CWsTreeItemData>(static_cast<LPARAM>(
                                           place.pTree->GetItemData(place.item)))
                                     : nullptr;
}

void MarkDropTarget(const TreePlace& place) {
    const Workspace::CWsTreeManager& trees = *CWsManager::Instance()->TreeMgr();
    for (CTreeCtrl* const pTree :
         {trees.GetTreeControl(), trees.GetDiskTreeControl(), trees.GetNetTreeControl()}) {
        if (pTree) {
            pTree->SelectDropTarget(pTree == place.pTree ? place.item : nullptr);
        }
    }
}

boost::shared_ptr<Query::CQueryDefinition> QueryOf(const CWsTreeItemData& node) {
    CRepositoryFactory* const pFactory = CRepositoryManager::Instance()->GetRepositoryfactory(
        node.GetPtrItemDefinition()->GetRepositoryTag());
    if (!pFactory) {
        return {};
    }
    const auto store = node.IsTargetNet() ? pFactory->GetNetStore()
                       : node.GetSystem() ? pFactory->GetSystemStore(node.GetSystem())
                                          : pFactory->GetDiskStore();
    return boost::dynamic_pointer_cast<Query::CQueryDefinition>(
        store ? store->GetItem(node.GetGuid()) : CRepositoryStore::ItemPtr());
}

/// Posted, because the command may change the tree whose message is being handled.
void Give(const CWsOrder& order) {
    acedRunner().Post(MakeCommandOrder(order));
}

void RemoveSystem(CWsTreeItemData& item, const System::CGisSystem* pSystem) {
    if (!pSystem || item.GetSystem() == pSystem) {
        item.SetSystem(nullptr);
    }
}

} // namespace

const wchar_t* PanelIdOf(TreeKind kind) {
    return kDialogIds[static_cast<int>(kind)];
}

CTreePanel::CTreePanel(TreeKind kind, CWnd* parent)
    : CWsPanelDialog(kTreePanelDialog, PanelIdOf(kind), parent, nullptr), m_kind(kind) {
    AddPanelTemplates();
    CWsManager& workspace = *CWsManager::Instance();
    workspace.GetRefreshTreePbl()->RegisterSubscriber(this);
    workspace.GetRefreshAllPbl()->RegisterSubscriber(this);
    workspace.RegisterWsListener(this);
    Create(kTreePanelDialog, parent);
}

CTreePanel::~CTreePanel() {
    CWsManager::Instance()->UnregisterWsListener(this);
    Notification::CNotificationFramework::UnregisterSubscriber(this);
    RegisterTree(nullptr);
    DestroyWindow();
}

const MessageMap* CTreePanel::GetMessageMap() const {
    static constexpr MessageEntry kEntries[] = {
        MapMessage<&CTreePanel::OnSize>(WM_SIZE),
        MapMessage<&CTreePanel::OnMouseMove>(WM_MOUSEMOVE),
        MapMessage<&CTreePanel::OnLButtonUp>(WM_LBUTTONUP),
        MapMessage<&CTreePanel::OnTimer>(WM_TIMER),
        MapMessage<&CTreePanel::OnRefresh>(kRefreshMessage),
        MapMessage<&CTreePanel::OnKeepFocus>(WM_ACAD_KEEPFOCUS),
        MapNotify<&CTreePanel::OnRightClick>(NM_RCLICK, kTree),
        MapNotify<&CTreePanel::OnDoubleClick>(NM_DBLCLK, kTree),
        MapNotify<&CTreePanel::OnBeginLabelEdit>(TVN_BEGINLABELEDIT, kTree),
        MapNotify<&CTreePanel::OnEndLabelEdit>(TVN_ENDLABELEDIT, kTree),
        MapNotify<&CTreePanel::OnBeginDrag>(TVN_BEGINDRAG, kTree),
    };
    static const MessageMap kMap{CWsPanelDialog::GetMessageMap(), kEntries};
    return &kMap;
}

void CTreePanel::DoDataExchange(CDataExchange* pExchange) {
    CWsPanelDialog::DoDataExchange(pExchange);
    DDX_Control(pExchange, kTree, m_tree);
}

bool CTreePanel::OnInitDialog() {
    CWsPanelDialog::OnInitDialog();
    m_resize.Init();
    m_resize.SetResize(kTree, 0, 0, 1, 1);
    RegisterTree(&m_tree);
    Refresh();
    if (m_kind != TreeKind::Systems) {
        SetTimer(kFolderTimer, kFolderPause);
    }
    return false;
}

/// Null unregisters the panel's own tree, unless another one has replaced it.
void CTreePanel::RegisterTree(CTreeCtrl* pTree) const {
    CWsManager& workspace = *CWsManager::Instance();
    Workspace::CWsTreeManager& trees = *workspace.TreeMgr();
    const auto takes = [&](const CTreeCtrl* pNow) { return pTree || pNow == &m_tree; };
    if (m_kind == TreeKind::Systems && takes(trees.GetTreeControl())) {
        workspace.RegisterTreeControl(pTree);
    } else if (m_kind == TreeKind::Disk && takes(trees.GetDiskTreeControl())) {
        workspace.RegisterDiskTreeControl(pTree);
    } else if (m_kind == TreeKind::Net && takes(trees.GetNetTreeControl())) {
        workspace.RegisterNetTreeControl(pTree);
    }
}

void CTreePanel::OnSize(UINT type, int cx, int cy) {
    CWsPanelDialog::OnSize(type, cx, cy);
    m_resize.Size();
}

LRESULT CTreePanel::OnKeepFocus(WPARAM, LPARAM) {
    return 1;
}

/// Others may work with the same folders.
void CTreePanel::OnTimer(DWORD_PTR id) {
    if (id == kFolderTimer && m_tree.IsWindowVisible()) {
        CRepositoryManager::Instance()->LookForChanges();
    }
}

// Filling.

void CTreePanel::RequestRefresh() {
    if (!m_isRefreshPosted) {
        m_isRefreshPosted = PostMessage(kRefreshMessage);
    }
}

LRESULT CTreePanel::OnRefresh(WPARAM, LPARAM) {
    m_isRefreshPosted = false;
    m_isRefreshWanted = m_isEditing || m_dragged;
    if (!m_isRefreshWanted) {
        Refresh();
    }
    return 0;
}

void CTreePanel::Refresh() {
    const TreeNode root = TreeContent(m_kind);
    const auto keyOf = [this](HTREEITEM item) {
        const PanelItem* const pItem = ItemOf(item);
        return pItem ? pItem->key : CString();
    };
    const TreeState before(m_tree, keyOf);
    ForEachLentItem([this](CWsTreeItemData& lent) {
        for (const PanelItem& item : m_items) {
            if (lent.GetTreeItem() == item.GetTreeItem()) {
                lent.SetTreeItem(nullptr);
            }
        }
    });
    m_tree.DeleteAllItems();
    m_items.clear();
    if (root.definition) {
        Insert(root, TVI_ROOT);
    }
    m_tree.SetImageList(TreePictures::Instance().List());
    if (m_isFirstFill && m_tree.ItemHasChildren(m_tree.GetRootItem())) {
        m_isFirstFill = false;
        OpenAtFirst();
    }
    before.Restore(m_tree, keyOf);
}

void CTreePanel::Insert(const TreeNode& node, HTREEITEM parent) {
    const int picture = TreePictures::Instance().IndexOf(node);
    HTREEITEM const treeItem = m_tree.InsertItem(node.text, picture, picture, parent);
    PanelItem& item = m_items.emplace_back();
    item.SetPtrItemDefinition(node.definition);
    item.SetGuid(node.guid);
    item.SetSystem(node.pSystem);
    item.SetTargetNet(node.isTargetNet);
    item.SetRunFromSystem(m_kind == TreeKind::Systems);
    item.SetTreeItem(treeItem);
    item.name = node.name;
    item.text = node.text;
    item.key = KeyOf(node);
    m_tree.SetItemData(treeItem, reinterpret_cast<DWORD_PTR>(static_cast<CWsTreeItemData*>(&item)));
    for (const TreeNode& child : node.children) {
        Insert(child, treeItem);
    }
}

/// Expands the root and the active system.
void CTreePanel::OpenAtFirst() {
    HTREEITEM const root = m_tree.GetRootItem();
    m_tree.Expand(root, TVE_EXPAND);
    const System::CGisSystem* const pActive = System::CSystemManager::Instance()->GetActiveSystem();
    for (HTREEITEM item = m_tree.GetChildItem(root); item; item = m_tree.GetNextSiblingItem(item)) {
        if (pActive && ItemOf(item)->GetSystem() == pActive) {
            m_tree.Expand(item, TVE_EXPAND);
        }
    }
}

PanelItem* CTreePanel::ItemOf(HTREEITEM item) const {
    // All nodes of this tree were created by Insert.
    return item ? static_cast<PanelItem*>(
                      PointerOf<CWsTreeItemData>(static_cast<LPARAM>(m_tree.GetItemData(item))))
                : nullptr;
}

void CTreePanel::ForgetSystem(const System::CGisSystem* pSystem) {
    for (PanelItem& item : m_items) {
        RemoveSystem(item, pSystem);
    }
    ForEachLentItem([pSystem](CWsTreeItemData& item) { RemoveSystem(item, pSystem); });
}

void CTreePanel::OnAcadDocumentToBeDestroyed(AcApDocument* pDoc) {
    if (pDoc == acDocManagerPtr()->curDocument()) {
        ForgetSystem(nullptr);
        RequestRefresh();
    }
}

// Commands.

void CTreePanel::GiveCommand(const CString& commandId, const PanelItem& item) {
    if (!commandId.IsEmpty()) {
        Give({commandId, OrderOrigin::Tree, nullptr, {}, LendItem(item)});
    }
}

// Mouse and keyboard.

HTREEITEM CTreePanel::HitNode() const {
    return m_tree.HitTest(m_tree.ScreenToClient(GetMessagePos()));
}

void CTreePanel::OnRightClick(NMHDR*, LRESULT* pResult) {
    *pResult = 1;
    HTREEITEM const item = HitNode();
    if (const PanelItem* const pItem = ItemOf(item)) {
        m_tree.SelectItem(item);
        ShowMenu(*pItem, GetMessagePos());
    }
}

void CTreePanel::ShowMenu(const PanelItem& item, CPoint place) {
    const LentItem lent = LendItem(item);
    const Workspace::CWsTreeManager& trees = *CWsManager::Instance()->TreeMgr();
    CMenu menu;
    menu.CreatePopupMenu();
    if (trees.GetMenuBar(menu, lent.get(), lent->GetSystem()) != 1) {
        return;
    }
    const HWND self = GetSafeHwnd();
    const auto chosen =
        menu.TrackPopupMenu(TPM_RIGHTBUTTON | TPM_RETURNCMD, place.x, place.y, this);
    Workspace::CWsCommand* const pCommand = chosen ? trees.GetMenuCommand(*chosen) : nullptr;
    if (pCommand && pCommand->GetCmdExecutor() && IsWindow(self)) {
        Give({pCommand->GetId(), OrderOrigin::Tree, pCommand->GetCmdExecutor(), {}, lent});
    }
}

void CTreePanel::OnDoubleClick(NMHDR*, LRESULT*) {
    if (const PanelItem* const pItem = ItemOf(HitNode())) {
        GiveCommand(DoubleClickCommand(*pItem), *pItem);
    }
}

bool CTreePanel::PreTranslateMessage(MSG* pMsg) {
    const bool isOurs = pMsg->message == WM_KEYDOWN && GetFocus() == &m_tree && !m_isEditing;
    return (isOurs && OnKey(static_cast<int>(pMsg->wParam))) ||
           // Keys typed into a label's editor must not reach the dialog.
           (!m_isEditing && CWsPanelDialog::PreTranslateMessage(pMsg));
}

/// True if the key was handled.
bool CTreePanel::OnKey(int key) {
    PanelItem* const pItem = SelectedItem();
    if (key == VK_ESCAPE && m_dragged) {
        EndDrag();
        return true;
    }
    if (!pItem) {
        return false;
    }
    if (key == VK_RETURN) {
        const CString command = DoubleClickCommand(*pItem);
        if (command.IsEmpty()) {
            m_tree.Expand(pItem->GetTreeItem(), TVE_TOGGLE);
        }
        GiveCommand(command, *pItem);
    } else if (key == kF2) {
        m_tree.EditLabel(pItem->GetTreeItem());
    } else if (key == VK_DELETE) {
        GiveCommand(DeleteCommand(*pItem), *pItem);
    } else if (key == kF10 && GetKeyState(VK_SHIFT) < 0) {
        const CRect label = m_tree.GetItemRect(pItem->GetTreeItem(), true);
        ShowMenu(*pItem, m_tree.ClientToScreen({label.left, label.bottom}));
    } else {
        return false;
    }
    return true;
}

// Renaming.

void CTreePanel::OnBeginLabelEdit(NMHDR* pHeader, LRESULT* pResult) {
    const auto& info = *reinterpret_cast<const NMTVDISPINFO*>(pHeader);
    const PanelItem* const pItem = ItemOf(info.item);
    m_isEditing = pItem && !RenameCommand(*pItem).IsEmpty();
    *pResult = m_isEditing ? 0 : 1;
    if (m_isEditing) {
        m_tree.SetItemText(info.item, pItem->name);
    }
}

void CTreePanel::OnEndLabelEdit(NMHDR* pHeader, LRESULT* pResult) {
    const auto& info = *reinterpret_cast<const NMTVDISPINFO*>(pHeader);
    const PanelItem* const pItem = ItemOf(info.item);
    *pResult = 0;
    if (!std::exchange(m_isEditing, false) || !pItem) {
        return;
    }
    CString name = info.pszText;
    name.Trim();
    if (!info.pszText || name.IsEmpty() || name == pItem->name) {
        m_tree.SetItemText(info.item, pItem->text);
        if (m_isRefreshWanted) {
            RequestRefresh();
        }
        return;
    }
    // Keeps the typed name until the command has run; the refresh then shows the result.
    *pResult = 1;
    Give({RenameCommand(*pItem), OrderOrigin::Tree, nullptr, {}, LendItem(*pItem), name});
}

// Dragging.

void CTreePanel::OnBeginDrag(NMHDR* pHeader, LRESULT*) {
    const auto& drag = *reinterpret_cast<const NMTREEVIEW*>(pHeader);
    const PanelItem* const pItem = ItemOf(drag.itemNew);
    if (pItem && CanDrag(*pItem)) {
        m_dragged = LendItem(*pItem);
        SetCapture();
    }
}

void CTreePanel::OnMouseMove(UINT, CPoint point) {
    if (m_dragged) {
        TreePlace place = PlaceAt(ClientToScreen(point));
        const CWsTreeItemData* const pTarget = DataAt(place);
        const bool takes = pTarget && !PlanDrop(*m_dragged, *pTarget).commandId.IsEmpty();
        MarkDropTarget(takes ? place : TreePlace());
    }
}

void CTreePanel::OnLButtonUp(UINT, CPoint point) {
    if (!m_dragged) {
        return;
    }
    const LentItem dragged = m_dragged;
    EndDrag();
    const CWsTreeItemData* const pTarget = DataAt(PlaceAt(ClientToScreen(point)));
    if (!pTarget) {
        return;
    }
    const DropPlan plan = PlanDrop(*dragged, *pTarget);
    if (plan.commandId.IsEmpty()) {
        return;
    }
    CWsOrder order{plan.commandId, OrderOrigin::Tree, nullptr, {}, LendItem(*pTarget)};
    if (plan.isQuery) {
        order.query = QueryOf(*dragged);
    } else {
        order.argument = std::shared_ptr<const CWsTreeItemData>(dragged);
    }
    Give(order);
}

void CTreePanel::EndDrag() {
    ReleaseCapture();
    MarkDropTarget({});
    m_dragged.reset();
    if (m_isRefreshWanted) {
        RequestRefresh();
    }
}

} // namespace Orvane::Panels
