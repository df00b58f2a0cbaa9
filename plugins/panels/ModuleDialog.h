// The base class of the module's dialogs.
#pragma once

#include "platform/mfc/ListCtrl.h"
#include "platform/xtp/XTPResize.h"
#include "plugins/panels/Resources.h"
#include "workspacecore/dialogs/WsBaseDialog.h"

namespace Orvane::Panels {

struct ListColumn {
    CString heading;
    int width; ///< initial width in dialog units
    int format = LVCFMT_LEFT;
};

/// A dialog with resizing controls and a list whose column widths are restored in the next run. It
/// keeps the keyboard focus when the mouse moves over the drawing.
class CModuleDialog : public Workspace::CWsBaseDialog {
public:
    void Update(Notification::CPublisher*, void*, void*) override { RefreshContent(); }
    void OnAcadDocumentBecomeCurrent(AcApDocument*) override { RefreshContent(); }
    void OnSystemChanged(System::CGisSystem*) override { RefreshContent(); }
    void OnAfterSystemDelete() override { RefreshContent(); }
    void OnNewSystemCreated(System::CGisSystem*) override { RefreshContent(); }
    void OnAfterCommandCompleted(const wchar_t*) override { RefreshContent(); }

protected:
    CModuleDialog(const wchar_t* dialogId, Workspace::enmDialogType type, CWnd* pParent);

    /// Called when the drawing or its systems may have changed.
    virtual void RefreshContent() = 0;
    /// Saves the settings to restore in the next run.
    virtual void Remember();

    const MessageMap* GetMessageMap() const override;
    void DoDataExchange(CDataExchange* pExchange) override;
    bool OnInitDialog() override;
    void OnOK() override {}

    void SetText(UINT id, const CString& text) const;
    void MakeColumns(std::initializer_list<ListColumn> columns);

    CListCtrl m_list; ///< the control with the id kList
    CXTPResize m_resize{this};

private:
    void OnSize(UINT type, int cx, int cy);
    void OnClose();
    void OnDestroy();
    LRESULT OnKeepFocus(WPARAM wParam, LPARAM lParam);
};

/// Brings a workspace dialog to the front, at its last position. Null if no factory can create it.
Workspace::CWsBaseDialog* ShowDialog(const wchar_t* dialogId);

} // namespace Orvane::Panels
