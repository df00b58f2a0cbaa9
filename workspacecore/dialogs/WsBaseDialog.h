// The base of all workspace dialogs.
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

/// A dialog with an id, under which it is registered with CWsDialogManager as long as it
/// lives, a place and named values that survive the run, edges that stick to the screen and
/// to other dialogs while the user moves it, and a strip of caption buttons. It hears of
/// "REFRESH_CHILDREN" and of all workspace events.
///
/// Ids are unique among living dialogs. A dialog that goes before the workspace does has to
/// take itself off the listeners (CWsManager::UnregisterWsListener).
class WORKSPACE_API CWsBaseDialog : public CAdUiBaseDialog,
                                    public Notification::CSubscriber,
                                    public IWsListener {
public:
    /// Writes the states of all dialogs. Whoever deletes a dialog destroys its window first,
    /// so that its last place is among them.
    ~CWsBaseDialog() override;

    CString GetDialogId() const { return m_dialogId; }
    enmDialogType GetDialogType() const { return m_dialogType; }
    int IsQueryDropAllowed() const { return m_isQueryDropAllowed; }
    void SetIsQueryDropAllowed(int allowed) { m_isQueryDropAllowed = allowed; }
    /// How near an edge has to be to attract the dialog, in pixels; 30 at first.
    int GetXOffset() const { return m_xOffset; }
    int GetYOffset() const { return m_yOffset; }
    void SetXOffset(int offset) { m_xOffset = offset; }
    void SetYOffset(int offset) { m_yOffset = offset; }

    // Values of a dialog, by key. They are kept in memory and reach the disk with
    // CWsDialogManager::SaveDialogStates. The static ones work for any id, open or not.
    static Data::CDataBox GetStateValue(const wchar_t* dialogId, const wchar_t* key,
                                        const Data::CDataBox& defaultValue);
    Data::CDataBox GetStateValue(const wchar_t* key, const Data::CDataBox& defaultValue) const;
    static void SetStateValue(const wchar_t* dialogId, const wchar_t* key, Data::CDataBox& value);
    void SetStateValue(const wchar_t* key, Data::CDataBox& value);
    /// Selects the remembered entry, or the default one, or the first.
    /// \return its index; -1 for an empty combo box
    int GetSavedComboState(CComboBox& combo, const wchar_t* key, int defaultSelection) const;
    void SetSavedComboState(CComboBox& combo, const wchar_t* key);

    /// Moves the window to where it was remembered.
    /// \return whether it was moved; otherwise the caller has to find it a place
    int LoadWindowPosition();
    void SaveWindowPosition();

    /// Rolls a dialog down that was rolled up.
    void ExpandWindow();
    void PutOnTop() { BringWindowToTop(); }

    virtual void* GetInEditSessionData(std::uint64_t) { return nullptr; }
    virtual void OnQueryDragBegin(CWsTreeItemData*) {}
    virtual void OnQueryDropEnds() {}
    virtual void OnQueryDrop(Query::CQueryDefinition*) {}
    /// Of this dialog's id, as are the general settings.
    virtual void ShowHelp();
    virtual void ShowGeneralSettings();
    /// Rolls the dialog up to its caption, or down again.
    virtual void ExpandCollapse();

    void Update(Notification::CPublisher*, void*, void*) override {}
    bool PreTranslateMessage(MSG* pMsg) override;

protected:
    /// \param dialogResourceId of no account: the derived class names its template when it
    ///     creates the window
    /// \param helpButton, expandButton of no account: such buttons come with the flags below
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
    void DressCaptionButton(int number, unsigned int image, int tooltipMessage);
    void OnCaptionButton(int number);
    /// False if the window has gone over it, and the dialog perhaps with it.
    bool SetHeight(int height);

    int m_yOffset = 30;
    int m_xOffset = 30;
    int m_isQueryDropAllowed = 0;
    CString m_dialogId;
    IWsDialogFactory* m_factory = nullptr; ///< that made it; not owned
    enmDialogType m_dialogType;
    std::unique_ptr<CCustomBitmapButton> m_captionButtons;
    int m_hasSettingsButton;
    int m_hasHelpButton = 0;
    int m_hasExpandButton = 0;
    int m_helpButtonId = -1;
    int m_expandButtonId = -1;
    int m_settingsButtonId = -1;
    int m_isCollapsed = 0;
    CRect m_expandedRect; ///< on the screen, from the moment of rolling up
};

} // namespace Orvane::Workspace
