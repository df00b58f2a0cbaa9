// All living dialogs, their factories and their persistent states.
#pragma once

#include <map>
#include <optional>

#include "workspacecore/dialogs/DialogPlaces.h"
#include "workspacecore/dialogs/IWsDialogFactory.h"
#include "workspacecore/dialogs/UiStatesFile.h"

class CDialog;

namespace Orvane::Workspace {

/// Owned by CWsManager. Copies share the factories and the states. Errors are not reported. Main
/// thread only.
class WORKSPACE_API CWsDialogManager {
public:
    using DialogMap = std::map<CString, CWsBaseDialog*, CStringLess>;
    using FactoryVector = std::vector<boost::shared_ptr<IWsDialogFactory>>;

    CWsDialogManager() = default;
    CWsDialogManager(const CWsDialogManager&) = default;
    CWsDialogManager& operator=(const CWsDialogManager&) = default;
    /// Saves the states.
    ~CWsDialogManager();

    /// The living dialog with this id, or else one created by the first factory that knows the
    /// id; otherwise null. Case-sensitive.
    CWsBaseDialog* GetDlgById(const wchar_t* dialogId);
    /// Non-zero if the dialog exists, shown or hidden.
    int IsDialogCreated(const wchar_t* dialogId) const;
    /// Asks every factory to delete its dialog with this id.
    /// \return the last factory's answer, regardless of which one deleted the dialog; not an
    /// indication of success
    int DeleteDlgById(const wchar_t* dialogId);
    /// Deletes all dialogs except a few that are always needed. A last resort: notifications stay
    /// blocked afterwards.
    void DeleteAllModelessDialogs();
    void HideAll();
    /// Minimises the dialogs without destroying them.
    void CloseAll();
    /// Moves every dialog to the corner of the screen and erases the positions stored in the
    /// drawing.
    void ResetDialogPositions();
    /// Places a dialog of a cascaded type on the primary monitor, at its saved position or else
    /// at the next position of the cascade. Does nothing while the cursor is on another monitor.
    void SetNewWindowPosition(CWsBaseDialog* pDialog);
    /// Appends the ids from all factories; an id that two factories know appears twice.
    void GetAllDialogs(std::vector<CString>& ids) const;

    /// Reads "uiStates.xml" from the user's folder on first use.
    boost::shared_ptr<CUiStates> GetDialogStates();
    /// Writes the file, if the states were ever used; merges what other programs wrote.
    void SaveDialogStates();
    /// For whoever changed them: saves within a second.
    void SaveDialogStatesSoon();
    /// For modules with dialogs of their own; nothing to release here.
    void ReleaseDialogs() {}

    DialogMap* GetDialogRegistryMap() { return &m_dialogRegistry; }
    FactoryVector* GetDlgFactories() { return &m_dlgFactories; }

private:
    friend class CWsBaseDialog;
    /// Never replaces an entry. Returns non-zero if the dialog was added.
    int RegisterWsDialog(CWsBaseDialog* pDialog);
    /// Removes the entry with the dialog's id, whichever dialog it holds.
    void UnregisterWsDialog(CWsBaseDialog* pDialog);

    template <class Action>
    void ForEachDialog(Action action);

    DialogMap m_dialogRegistry; ///< not owned
    FactoryVector m_dlgFactories;
    std::optional<DialogCascade> m_cascade; ///< created with the first dialog, never reset
    boost::shared_ptr<UiStatesFile> m_uiStatesFile;
};

} // namespace Orvane::Workspace
