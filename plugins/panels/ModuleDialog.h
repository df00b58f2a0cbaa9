// What the dialogs of the module have in common.
#pragma once

#include "platform/mfc/ListCtrl.h"
#include "platform/xtp/XTPResize.h"
#include "plugins/panels/Resources.h"
#include "workspacecore/dialogs/WsBaseDialog.h"

namespace Orvane::Panels {

struct ListColumn {
    CString heading;
    int width; ///< in dialog units, until the user has chosen another one
    int format = LVCFMT_LEFT;
};

/// A dialog with a list whose columns keep their widths between runs, and with controls that
/// follow its size. It keeps the keyboard focus over the drawing.
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

    /// The drawing or its systems may be others now.
    virtual void RefreshContent() = 0;
    /// Writes down what is to be there in the next run.
    virtual void Remember();

    const MessageMap* GetMessageMap() const override;
    void DoDataExchange(CDataExchange* pExchange) override;
    bool OnInitDialog() override;
    void OnOK() override {}

    void SetText(UINT id, const CString& text) const;
    void MakeColumns(std::initializer_list<ListColumn> columns);

    CListCtrl m_list; ///< the control kList
    CXTPResize m_resize{this};

private:
    void OnSize(UINT type, int cx, int cy);
    void OnClose();
    void OnDestroy();
    LRESULT OnKeepFocus(WPARAM wParam, LPARAM lParam);
};

/// Brings a dialog of the workspace to the front, where it was when it was last seen. Null if
/// nobody can make it.
Workspace::CWsBaseDialog* ShowDialog(const wchar_t* dialogId);

} // namespace Orvane::Panels
