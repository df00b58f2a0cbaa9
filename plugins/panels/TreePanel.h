// A panel that shows one of the three trees.
#pragma once

#include <deque>

#include "platform/mfc/TreeCtrl.h"
#include "platform/xtp/XTPResize.h"
#include "plugins/panels/LentItems.h"
#include "plugins/panels/TreeContent.h"
#include "workspacecore/core/WsOrder.h"
#include "workspacecore/dialogs/WsPanelDialog.h"

namespace Orvane::Panels {

/// The panel's id in the factory.
const wchar_t* PanelIdOf(TreeKind kind);

/// The data attached to a node of a panel's tree.
struct PanelItem : Workspace::CWsTreeItemData {
    CString name; ///< for editing, without marks
    CString text;
    CString key; ///< KeyOf
};

/// Fills its tree from TreeContent and refills it after every relevant change, keeping what is
/// expanded and selected. Refreshes are posted, and wait while a label is being edited or a node
/// dragged.
class CTreePanel final : public Workspace::CWsPanelDialog {
public:
    CTreePanel(TreeKind kind, CWnd* parent);
    ~CTreePanel() override;

    void Update(Notification::CPublisher*, void*, void*) override { RequestRefresh(); }
    bool PreTranslateMessage(MSG* pMsg) override;

protected:
    const MessageMap* GetMessageMap() const override;
    void DoDataExchange(CDataExchange* pExchange) override;
    bool OnInitDialog() override;
    void OnOK() override {}
    void OnCancel() override {}

private:
    // Messages.
    void OnSize(UINT type, int cx, int cy);
    void OnRightClick(NMHDR* pHeader, LRESULT* pResult);
    void OnDoubleClick(NMHDR* pHeader, LRESULT* pResult);
    void OnBeginLabelEdit(NMHDR* pHeader, LRESULT* pResult);
    void OnEndLabelEdit(NMHDR* pHeader, LRESULT* pResult);
    void OnBeginDrag(NMHDR* pHeader, LRESULT* pResult);
    void OnMouseMove(UINT flags, CPoint point);
    void OnLButtonUp(UINT flags, CPoint point);
    void OnTimer(DWORD_PTR id);
    LRESULT OnRefresh(WPARAM wParam, LPARAM lParam);
    LRESULT OnKeepFocus(WPARAM wParam, LPARAM lParam);

    // Events.
    void OnAcadDocumentBecomeCurrent(AcApDocument*) override { RequestRefresh(); }
    void OnAcadDocumentToBeDestroyed(AcApDocument* pDoc) override;
    void OnSystemChanged(System::CGisSystem*) override { RequestRefresh(); }
    void OnSystemBecomeActive(System::CGisSystem*) override { RequestRefresh(); }
    void OnSystemBecomeInactive(System::CGisSystem*) override { RequestRefresh(); }
    void OnSystemBecomeHidden(System::CGisSystem*) override { RequestRefresh(); }
    void OnSystemBecomeShown(System::CGisSystem*) override { RequestRefresh(); }
    void OnBeforeSystemDelete(System::CGisSystem* pSystem) override { ForgetSystem(pSystem); }
    void OnAfterSystemDelete() override { RequestRefresh(); }
    void OnNewSystemCreated(System::CGisSystem*) override { RequestRefresh(); }
    void OnNewConfigDefinitionAdded(System::CGisSystem*, const wchar_t*, const wchar_t*) override {
        RequestRefresh();
    }
    void OnBeforeConfigDefinitionDeleted(System::CGisSystem*, const wchar_t*,
                                         const wchar_t*) override {
        RequestRefresh();
    }
    void OnConfigDefinitionChanged(System::CGisSystem*, const wchar_t*, const wchar_t*) override {
        RequestRefresh();
    }
    void OnConfigBecomeDefault(System::CGisSystem*, const wchar_t*, const wchar_t*) override {
        RequestRefresh();
    }
    void OnAfterGeneralSettingsChanged() override { RequestRefresh(); }
    void OnAfterCommandCompleted(const wchar_t*) override { RequestRefresh(); }

    void RegisterTree(CTreeCtrl* pTree) const;
    void RequestRefresh();
    void Refresh();
    void Insert(const TreeNode& node, HTREEITEM parent);
    void OpenAtFirst();
    /// Resets the system in the tree's and in lent node data; null stands for all systems of the
    /// drawing.
    void ForgetSystem(const System::CGisSystem* pSystem);
    PanelItem* ItemOf(HTREEITEM item) const;
    PanelItem* SelectedItem() const { return ItemOf(m_tree.GetSelectedItem()); }
    HTREEITEM HitNode() const;

    bool OnKey(int key);
    void ShowMenu(const PanelItem& item, CPoint place);
    /// Posts the command, unless the id is empty.
    void GiveCommand(const CString& commandId, const PanelItem& item);
    void EndDrag();

    TreeKind m_kind;
    CTreeCtrl m_tree;
    CXTPResize m_resize{this};
    std::deque<PanelItem> m_items; ///< node data; a deque, because tree nodes hold pointers to it
    bool m_isFirstFill = true;     ///< the root has never had children
    bool m_isRefreshPosted = false;
    bool m_isRefreshWanted = false; ///< postponed until editing or dragging has ended
    bool m_isEditing = false;
    LentItem m_dragged;
};

} // namespace Orvane::Panels
