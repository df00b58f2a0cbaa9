// Base class of all workspace dialogs.
#pragma once

#include <cstdint>
#include <memory>

#include "platform/mfc/AdUiBaseDialog.h"
#include "platform/mfc/CustomBitmapButton.h"
#include "siblings/giscore/data/DataBox.h"
#include "siblings/giscore/notification/Subscriber.h"
#include "workspacecore/Api.h"
#include "workspacecore/dialogs/DialogsTypes.h"
#include "workspacecore/events/IWsListener.h"

class CComboBox;

namespace Orvane::Query {
class CQueryDefinition;
}

namespace Orvane::Workspace {

class CWsTreeItemData;
class IWsDialogFactory;

/// A dialog with an id, registered with CWsDialogManager while it lives; its position and named
/// values persist between runs. While the user moves it, its edges snap to the screen and to
/// other dialogs. It has a strip of caption buttons and receives "REFRESH_CHILDREN" and all
/// workspace events.
///
/// Ids are unique among living dialogs. A dialog destroyed before the workspace must unregister
/// itself as a listener (CWsManager::UnregisterWsListener).
class WORKSPACE_API CWsBaseDialog : public CAdUiBaseDialog,
                                    public Notification::CSubscriber,
                                    public IWsListener {
public:
    /// Saves the states of all dialogs. Destroy the window before deleting the dialog, so that
    /// its last position is included.
    ~CWsBaseDialog() override;

    CString GetDialogId() const { return m_dialogId; }
    enmDialogType GetDialogType() const { return m_dialogType; }
    int IsQueryDropAllowed() const { return m_isQueryDropAllowed; }
    void SetIsQueryDropAllowed(int allowed) { m_isQueryDropAllowed = allowed; }
    /// Horizontal snapping distance in pixels; 30 by default.
    int GetXOffset() const { return m_xOffset; }
    int GetYOffset() const { return m_yOffset; }
    void SetXOffset(int offset) { m_xOffset = offset; }
    void SetYOffset(int offset) { m_yOffset = offset; }

    // Values of a dialog, by key. Kept in memory until CWsDialogManager::SaveDialogStates writes
    // them. The static functions work for any id, open or not.
    static Data::CDataBox GetStateValue(const wchar_t* dialogId, const wchar_t* key,
                                        const Data::CDataBox& defaultValue);
    Data::CDataBox GetStateValue(const wchar_t* key, const Data::CDataBox& defaultValue) const;
    static void SetStateValue(const wchar_t* dialogId, const wchar_t* key, Data::CDataBox& value);
    void SetStateValue(const wchar_t* key, Data::CDataBox& value);
    /// Selects the saved entry, or else the default one, or else the first.
    /// \return its index; -1 for an empty combo box
    int GetSavedComboState(CComboBox& combo, const wchar_t* key, int defaultSelection) const;
    void SetSavedComboState(CComboBox& combo, const wchar_t* key);

    /// Moves the window to its saved position.
    /// \return non-zero if it was moved; otherwise the caller must place it
    int LoadWindowPosition();
    void SaveWindowPosition();

    /// Expands a collapsed dialog.
    void ExpandWindow();
    void PutOnTop() { BringWindowToTop(); }

    virtual void* GetInEditSessionData(std::uint64_t) { return nullptr; }
    virtual void OnQueryDragBegin(CWsTreeItemData*) {}
    virtual void OnQueryDropEnds() {}
    virtual void OnQueryDrop(Query::CQueryDefinition*) {}
    /// Shows the help page for this dialog's id.
    virtual void ShowHelp();
    virtual void ShowGeneralSettings();
    /// Collapses the dialog to its caption, or expands it again.
    virtual void ExpandCollapse();

    void Update(Notification::CPublisher*, void*, void*) override {}
    bool PreTranslateMessage(MSG* pMsg) override;

protected:
    /// \param dialogResourceId ignored: the derived class names its template when it creates the
    /// window
    /// \param helpButton, expandButton ignored: these buttons depend on the flags below
    CWsBaseDialog(unsigned int dialogResourceId, const wchar_t* dialogId, enmDialogType type,
                  int settingsButton, int helpButton, int expandButton, CWnd* parent,
                  HINSTANCE resourceInstance, unsigned int subscriberNumber);

    const MessageMap* GetMessageMap() const override;
    void DoDataExchange(CDataExchange* pExchange) override;
    bool OnInitDialog() override;

    void OnWindowPosChanging(tagWINDOWPOS* pPlace);
    void OnClose();
    void OnDestroy();
    void OnBnClickedCaptionbn1(tagNMHDR* pHeader, LRESULT* pResult);
    void OnBnClickedCaptionbn2(tagNMHDR* pHeader, LRESULT* pResult);
    void OnBnClickedCaptionbn3(tagNMHDR* pHeader, LRESULT* pResult);

private:
    friend class CWsDialogManager;

    void SnapToDialogs(class SnapStep& step) const;
    void RememberPlace(const CRect& place);
    void DressCaptionButton(int number, unsigned int image, int tooltipMessage);
    void OnCaptionButton(int number);
    /// False if a handler destroyed the window, and possibly the dialog with it.
    bool SetHeight(int height);

    int m_yOffset = 30;
    int m_xOffset = 30;
    int m_isQueryDropAllowed = 0;
    CString m_dialogId;
    IWsDialogFactory* m_factory = nullptr; ///< factory that created it; not owned
    enmDialogType m_dialogType;
    std::unique_ptr<CCustomBitmapButton> m_captionButtons;
    int m_hasSettingsButton;
    int m_hasHelpButton = 0;
    int m_hasExpandButton = 0;
    int m_helpButtonId = -1;
    int m_expandButtonId = -1;
    int m_settingsButtonId = -1;
    int m_isCollapsed = 0;
    CRect m_expandedRect; ///< screen rectangle, saved on collapsing
};

} // namespace Orvane::Workspace
