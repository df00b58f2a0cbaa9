// Description of a panel dialog, registered by a plug-in before the dialog exists.
#pragma once

#include "platform/win/String.h"
#include "workspacecore/Api.h"
#include "workspacecore/dialogs/DialogsTypes.h"

namespace Orvane::Workspace {

class CWsPanelDialog;

/// A plain value; copies refer to the same dialog.
class WORKSPACE_API CWsPanelDialogMetadata {
public:
    CString GetDialogId() const { return m_dialogId; }
    void SetDialogId(const wchar_t* id) { m_dialogId = id; }
    /// The requested position; unaffected when gaps are closed.
    enmPanelDialogPosition GetPanelPosition() const { return m_panelPosition; }
    void SetPanelPosition(enmPanelDialogPosition position) { m_panelPosition = position; }
    /// Name of the icon on the button.
    CString GetButtonIconId() const { return m_buttonIconId; }
    void SetButtonIconId(const wchar_t* id) { m_buttonIconId = id; }
    CString GetTooltipText() const { return m_tooltipText; }
    void SetTooltipText(const wchar_t* text) { m_tooltipText = text; }
    /// Shown as the button's tooltip.
    CString GetButtonText() const { return m_buttonText; }
    void SetButtonText(const wchar_t* text) { m_buttonText = text; }
    /// Non-zero disables the main panel's system controls while the panel is shown.
    int GetDisableSystemControls() const { return m_disableSystemControls; }
    void SetDisableSystemControls(int disable) { m_disableSystemControls = disable; }

private:
    friend class CWsPanelDialogManager;

    CString m_dialogId;
    enmPanelDialogPosition m_panelPosition = static_cast<enmPanelDialogPosition>(0);
    CString m_buttonIconId;
    CString m_tooltipText;
    CString m_buttonText;
    int m_disableSystemControls = 0;
    CWsPanelDialog* m_panelDialog = nullptr; ///< once created; not owned
};

} // namespace Orvane::Workspace
