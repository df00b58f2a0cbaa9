// All living dialogs, the factories that make them, and what dialogs remember.
#pragma once

#include <map>
#include <optional>

#include "workspacecore/dialogs/DialogPlaces.h"
#include "workspacecore/dialogs/IWsDialogFactory.h"
#include "workspacecore/dialogs/UiStates.h"

class CDialog;

namespace Orvane::Workspace {

/// One is held by CWsManager. Copies share the factories and the states. Nothing reports an
/// error. Main thread only.
class WORKSPACE_API CWsDialogManager {
public:
    using DialogMap = std::map<CString, CWsBaseDialog*, CStringLess>;
    using FactoryVector = std::vector<boost::shared_ptr<IWsDialogFactory>>;

    CWsDialogManager() = default;
    CWsDialogManager(const CWsDialogManager&) = default;
    CWsDialogManager& operator=(const CWsDialogManager&) = default;
    /// Saves the states.
    ~CWsDialogManager();

    /// The living dialog of an id, or the one that the first factory which knows the id
    /// makes; else null. Case counts.
    CWsBaseDialog* GetDlgById(const wchar_t* dialogId);
    /// Non-zero for a living dialog, shown or hidden.
    int IsDialogCreated(const wchar_t* dialogId) const;
    /// Asks every factory to delete its dialog of the id.
    /// \return the answer of the last factory, whichever it was that deleted; not a sign of
    ///     success
    int DeleteDlgById(const wchar_t* dialogId);
    /// Deletes all dialogs but a few that the family cannot do without. The last resort:
    /// notifications stay blocked from then on.
    void DeleteAllModelessDialogs();
    void HideAll();
    /// Minimises; the dialogs live on.
    void CloseAll();
    /// Moves every dialog to the corner of the screen and lets the drawing forget the places
    /// that are kept there.
    void ResetDialogPositions();
    /// Places a dialog of a cascaded type on the primary monitor: where it was remembered, or
    /// else next in the cascade. Does nothing while the cursor is on another monitor.
    void SetNewWindowPosition(CWsBaseDialog* pDialog);
    /// Appends what each factory can make; an id that two can make is there twice.
    void GetAllDialogs(std::vector<CString>& ids) const;

    /// Reads "uiStates.xml" of the user's folder the first time.
    boost::shared_ptr<CUiStates> GetDialogStates();
    /// Writes it, if anything has asked for the states.
    void SaveDialogStates();
    /// For modules that keep dialogs of their own; there is nothing to release here.
    void ReleaseDialogs() {}

    DialogMap* GetDialogRegistryMap() { return &m_dialogRegistry; }
    FactoryVector* GetDlgFactories() { return &m_dlgFactories; }

private:
    friend class CWsBaseDialog;
    /// Never replaces an entry. Non-zero if the dialog was entered.
    int RegisterWsDialog(CWsBaseDialog* pDialog);
    /// Takes the entry of the dialog's id out, whoever stands there.
    void UnregisterWsDialog(CWsBaseDialog* pDialog);

    template <class Action>
    void ForEachDialog(Action action);

    DialogMap m_dialogRegistry; ///< not owned
    FactoryVector m_dlgFactories;
    std::optional<DialogCascade> m_cascade; ///< starts with the first dialog, never anew
    boost::shared_ptr<CUiStates> m_uiStates;
    CString m_uiStatesPath;
};

} // namespace Orvane::Workspace
