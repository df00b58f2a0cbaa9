// Position of a dialog: saved between runs, snapping while it is moved.
#include "platform/win/Screens.h"
#include "workspacecore/dialogs/DialogHome.h"
#include "workspacecore/dialogs/DialogPlaces.h"
#include "workspacecore/dialogs/WsBaseDialog.h"
#include "workspacecore/dialogs/WsDialogManager.h"

namespace Orvane::Workspace {

namespace {

CUiStates& States() {
    return *DialogHome().Dialogs().GetDialogStates();
}

/// A minimised window counts as visible, but nothing is displayed at its position.
bool IsInSight(const CWnd& window) {
    WINDOWPLACEMENT placement;
    return window.IsWindowVisible() && window.GetWindowPlacement(&placement) &&
           placement.showCmd != SW_SHOWMINIMIZED;
}

} // namespace

int CWsBaseDialog::LoadWindowPosition() {
    const CSize monitor = NearestMonitor(Screens().Monitors(), Screens().Cursor()).full.Size();
    const CUiStates::DialogStatePtr state = States().GetDialogStateById(m_dialogId);
    if (!state || !IsRestorable(*state, m_dialogType, monitor)) {
        return 0;
    }
    SetWindowPos(nullptr, state->GetLeft(), state->GetTop(), state->GetWidth(), state->GetHeight(),
                 SWP_NOZORDER | (state->GetResizable() ? 0 : SWP_NOSIZE));
    return 1;
}

void CWsBaseDialog::SaveWindowPosition() {
    RememberPlace(GetWindowRect());
}

void CWsBaseDialog::RememberPlace(const CRect& place) {
    const CUiStates::DialogStatePtr state = States().NeedDialogState(m_dialogId);
    state->SetLeft(place.left);
    state->SetTop(place.top);
    state->SetHeight(place.Height());
    state->SetWidth(place.Width());
    state->SetResizable(m_dialogType != enmDialogFixed && m_dialogType != enmDialogFixedCascaded &&
                        m_dialogType != enmDialogFixedHosted);
    state->SetDocked(0);
    state->SetSide(0);
    DialogHome().Dialogs().SaveDialogStatesSoon();
}

void CWsBaseDialog::OnWindowPosChanging(tagWINDOWPOS* pPlace) {
    // Snap only when the user moves the window, not the program.
    if (pPlace->flags & SWP_USERMOVE) {
        const Monitor primary = Screens().Primary();
        SnapStep step({pPlace->x, pPlace->y}, GetWindowRect().Size(), {m_xOffset, m_yOffset});
        step.ToScreen(primary.full.Size(),
                      InsetsOfTaskBar(TaskBarOf(primary), primary.full.Width()));
        SnapToDialogs(step);
        pPlace->x = step.Place().x;
        pPlace->y = step.Place().y;
        RememberPlace(CRect(step.Place(), GetWindowRect().Size()));
    }
    CAdUiBaseDialog::OnWindowPosChanging(pPlace);
}

void CWsBaseDialog::SnapToDialogs(SnapStep& step) const {
    for (const auto& [id, pDialog] : *DialogHome().Dialogs().GetDialogRegistryMap()) {
        if (pDialog && IsCascaded(pDialog->m_dialogType) && IsInSight(*pDialog) &&
            pDialog->m_dialogId != m_dialogId) {
            step.ToDialog(pDialog->GetWindowRect());
        }
    }
}

void CWsBaseDialog::OnClose() {
    SaveWindowPosition();
    CAdUiBaseDialog::OnClose();
}

void CWsBaseDialog::OnDestroy() {
    CWnd::OnDestroy();
    SaveWindowPosition();
}

} // namespace Orvane::Workspace
