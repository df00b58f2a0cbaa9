#include "workspacecore/dialogs/WsBaseDialog.h"

#include "platform/arx/ApDocManager.h"
#include "platform/mfc/ComboBox.h"
#include "platform/win/Screens.h"
#include "platform/xtp/XTPDockingPaneManager.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/notification/NotificationFramework.h"
#include "siblings/giscore/utility/Utility.h"
#include "workspacecore/core/WsManager.h"
#include "workspacecore/dialogs/DialogPlaces.h"
#include "workspacecore/resources/Icons.h"
#include "workspacecore/resources/ModuleResources.h"

namespace Orvane::Workspace {

namespace {

constexpr int kHelpText = 50156;
constexpr int kCollapseText = 7246;
constexpr int kExpandText = 7247;
constexpr int kSettingsText = 381;

CWsDialogManager& Dialogs() {
    return *CWsManager::Instance()->DlgMgr();
}

CUiStates::DialogStatePtr FindState(const wchar_t* dialogId) {
    return Dialogs().GetDialogStates()->GetDialogStateById(dialogId);
}

/// Makes a state for a dialog that has none yet.
CUiStates::DialogStatePtr NeedState(const wchar_t* dialogId) {
    CUiStates::DialogStatePtr state = FindState(dialogId);
    if (!state) {
        state.reset(new CDialogState);
        state->SetId(dialogId);
        Dialogs().GetDialogStates()->AddDialogState(state);
    }
    return state;
}

/// A minimised window counts as a visible one, but there is nothing at its place.
bool IsInSight(const CWnd& window) {
    WINDOWPLACEMENT placement;
    return window.IsWindowVisible() && window.GetWindowPlacement(&placement) &&
           placement.showCmd != SW_SHOWMINIMIZED;
}

} // namespace

CWsBaseDialog::CWsBaseDialog(unsigned int, const wchar_t* dialogId, enmDialogType type,
                             int settingsButton, int, int, CWnd* parent, HINSTANCE resourceInstance,
                             unsigned int subscriberNumber)
    : CAdUiBaseDialog(0, parent, resourceInstance), CSubscriber(subscriberNumber),
      m_dialogId(dialogId), m_dialogType(type), m_hasSettingsButton(settingsButton) {
    CWsManager& manager = *CWsManager::Instance();
    if (Notification::CPublisher* const pPublisher = manager.GetRefreshAllPbl()) {
        pPublisher->RegisterSubscriber(this);
    }
    manager.DlgMgr()->RegisterWsDialog(this);
    manager.RegisterWsListener(this);
    int number = 1;
    for (const auto& [wanted, pId] : {std::pair(m_hasExpandButton, &m_expandButtonId),
                                      std::pair(m_hasHelpButton, &m_helpButtonId),
                                      std::pair(m_hasSettingsButton, &m_settingsButtonId)}) {
        if (wanted) {
            *pId = number++;
        }
    }
    m_captionButtons = std::make_unique<CCustomBitmapButton>();
}

CWsBaseDialog::~CWsBaseDialog() {
    Dialogs().SaveDialogStates();
    Notification::CNotificationFramework::UnregisterSubscriber(this);
    Dialogs().UnregisterWsDialog(this);
}

const MessageMap* CWsBaseDialog::GetMessageMap() const {
    static constexpr MessageEntry kEntries[] = {
        MapMessage<&CWsBaseDialog::OnWindowPosChanging>(WM_WINDOWPOSCHANGING),
        MapMessage<&CWsBaseDialog::OnClose>(WM_CLOSE),
        MapMessage<&CWsBaseDialog::OnDestroy>(WM_DESTROY),
        MapNotify<&CWsBaseDialog::OnBnClickedCaptionbn1>(NM_CLICK, 1),
        MapNotify<&CWsBaseDialog::OnBnClickedCaptionbn2>(NM_CLICK, 2),
        MapNotify<&CWsBaseDialog::OnBnClickedCaptionbn3>(NM_CLICK, 3),
    };
    static const MessageMap kMap{CAdUiBaseDialog::GetMessageMap(), kEntries};
    return &kMap;
}

void CWsBaseDialog::DoDataExchange(CDataExchange* pExchange) {
    CAdUiBaseDialog::DoDataExchange(pExchange);
}

bool CWsBaseDialog::PreTranslateMessage(MSG* pMsg) {
    if (pMsg->message == WM_KEYDOWN && (pMsg->wParam == VK_RETURN || pMsg->wParam == VK_ESCAPE)) {
        // To the control that has the focus, and never to the default or cancel button.
        DispatchMessage(pMsg);
        return true;
    }
    return CDialog::PreTranslateMessage(pMsg);
}

// Values.

Data::CDataBox CWsBaseDialog::GetStateValue(const wchar_t* dialogId, const wchar_t* key,
                                            const Data::CDataBox& defaultValue) {
    const CUiStates::DialogStatePtr state = FindState(dialogId);
    const CDialogState::AttributePtr attribute =
        state ? state->GetStateAttributeById(key) : nullptr;
    return attribute ? attribute->GetDataBox() : defaultValue;
}

Data::CDataBox CWsBaseDialog::GetStateValue(const wchar_t* key,
                                            const Data::CDataBox& defaultValue) const {
    return GetStateValue(m_dialogId, key, defaultValue);
}

void CWsBaseDialog::SetStateValue(const wchar_t* dialogId, const wchar_t* key,
                                  Data::CDataBox& value) {
    const CUiStates::DialogStatePtr state = NeedState(dialogId);
    if (const CDialogState::AttributePtr attribute = state->GetStateAttributeById(key)) {
        attribute->SetValue(value.operator CString());
        attribute->SetType(value.GetDataType());
    } else {
        const CDialogState::AttributePtr added(new CStateAttribute(key, value));
        added->SetId(key);
        state->AddStateAttribute(added);
    }
}

void CWsBaseDialog::SetStateValue(const wchar_t* key, Data::CDataBox& value) {
    SetStateValue(m_dialogId, key, value);
}

int CWsBaseDialog::GetSavedComboState(CComboBox& combo, const wchar_t* key,
                                      int defaultSelection) const {
    const int count = combo.GetCount();
    const Data::CDataBox remembered = GetStateValue(key, Data::CDataBox(defaultSelection));
    if (count == 0) {
        return -1;
    }
    int selection = remembered;
    if (selection >= count) {
        selection = defaultSelection < count ? defaultSelection : 0;
    }
    combo.SetCurSel(selection);
    return selection;
}

void CWsBaseDialog::SetSavedComboState(CComboBox& combo, const wchar_t* key) {
    const int selection = combo.GetCurSel();
    if (selection != CB_ERR) {
        Data::CDataBox value(selection);
        SetStateValue(key, value);
    }
}

// The place.

int CWsBaseDialog::LoadWindowPosition() {
    const CSize monitor = NearestMonitor(Screens().Monitors(), Screens().Cursor()).full.Size();
    const CUiStates::DialogStatePtr state = FindState(m_dialogId);
    if (!state || !IsRestorable(*state, m_dialogType, monitor)) {
        return 0;
    }
    SetWindowPos(nullptr, state->GetLeft(), state->GetTop(), state->GetWidth(), state->GetHeight(),
                 SWP_NOZORDER | (state->GetResizable() ? 0 : SWP_NOSIZE));
    return 1;
}

void CWsBaseDialog::SaveWindowPosition() {
    const CUiStates::DialogStatePtr state = NeedState(m_dialogId);
    const CRect place = GetWindowRect();
    state->SetLeft(place.left);
    state->SetTop(place.top);
    state->SetHeight(place.Height());
    state->SetWidth(place.Width());
    state->SetResizable(m_dialogType != enmDialogFixed && m_dialogType != enmDialogFixedCascaded &&
                        m_dialogType != enmDialogFixedHosted);
    state->SetDocked(0);
    state->SetSide(0);
}

void CWsBaseDialog::OnWindowPosChanging(tagWINDOWPOS* pPlace) {
    // What the program sets stands as it is.
    if (pPlace->flags & SWP_USERMOVE) {
        const Monitor primary = Screens().Primary();
        SnapStep step({pPlace->x, pPlace->y}, GetWindowRect().Size(), {m_xOffset, m_yOffset});
        step.ToScreen(primary.full.Size(),
                      InsetsOfTaskBar(TaskBarOf(primary), primary.full.Width()));
        SnapToDialogs(step);
        pPlace->x = step.Place().x;
        pPlace->y = step.Place().y;
    }
    CAdUiBaseDialog::OnWindowPosChanging(pPlace);
}

void CWsBaseDialog::SnapToDialogs(SnapStep& step) const {
    for (const auto& [id, pDialog] : *Dialogs().GetDialogRegistryMap()) {
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

// The caption strip.

bool CWsBaseDialog::OnInitDialog() {
    CAdUiBaseDialog::OnInitDialog();
    if (!m_hasSettingsButton && !m_hasHelpButton && !m_hasExpandButton) {
        return true;
    }
    const ModuleResources resources;
    m_captionButtons->Attach(this);
    int number = 1;
    for (const int wanted : {m_hasSettingsButton, m_hasExpandButton, m_hasHelpButton}) {
        if (wanted) {
            m_captionButtons->AddButton(number++);
        }
    }
    DressCaptionButton(m_helpButtonId, IconCaptionHelp, kHelpText);
    DressCaptionButton(m_expandButtonId, IconCaptionCollapse, kCollapseText);
    DressCaptionButton(m_settingsButtonId, IconCaptionSettings, kSettingsText);
    return true;
}

void CWsBaseDialog::DressCaptionButton(int number, unsigned int image, int tooltipMessage) {
    if (m_captionButtons->HasButton(number)) {
        m_captionButtons->SetBitmap(number, ModuleImage(image, kCaptionIconSize));
        m_captionButtons->SetTooltip(number,
                                     CModuleConfiguration::Instance()->GetMsg(tooltipMessage));
    }
}

void CWsBaseDialog::OnCaptionButton(int number) {
    if (m_helpButtonId == number) {
        ShowHelp();
    } else if (m_expandButtonId == number) {
        ExpandCollapse();
    } else if (m_settingsButtonId == number) {
        ShowGeneralSettings();
    }
}

void CWsBaseDialog::OnBnClickedCaptionbn1(tagNMHDR*, LRESULT*) {
    OnCaptionButton(1);
}

void CWsBaseDialog::OnBnClickedCaptionbn2(tagNMHDR*, LRESULT*) {
    OnCaptionButton(2);
}

void CWsBaseDialog::OnBnClickedCaptionbn3(tagNMHDR*, LRESULT*) {
    OnCaptionButton(3);
}

void CWsBaseDialog::ShowHelp() {
    Utility::CUtility::ShowHelp(m_dialogId);
}

void CWsBaseDialog::ShowGeneralSettings() {
    CModuleConfiguration::Instance()->ShowGSDialog(m_dialogId);
}

void CWsBaseDialog::ExpandWindow() {
    if (m_expandButtonId > 0 && m_isCollapsed) {
        ExpandCollapse();
    }
}

bool CWsBaseDialog::SetHeight(int height) {
    const HWND self = GetSafeHwnd();
    CRect place = GetWindowRect();
    place.bottom = place.top + height;
    MoveWindow(place);
    if (IsWindow(self)) {
        UpdateWindow();
    }
    return IsWindow(self);
}

void CWsBaseDialog::ExpandCollapse() {
    // A width, but the caption's edge is as thick above as it is beside.
    const int caption = GetSystemMetrics(SM_CYSIZE) + GetSystemMetrics(SM_CXFIXEDFRAME);
    const CRect place = GetWindowRect();
    if (!m_isCollapsed) {
        m_expandedRect = place;
    }
    for (const int height : m_isCollapsed
                                ? ExpandHeights(caption, place.top, m_expandedRect.Height())
                                : CollapseHeights(place.Height(), caption)) {
        if (!SetHeight(height)) {
            return;
        }
    }
    m_isCollapsed = !m_isCollapsed;
    if (m_isCollapsed) {
        DressCaptionButton(m_expandButtonId, IconCaptionExpand, kExpandText);
    } else {
        DressCaptionButton(m_expandButtonId, IconCaptionCollapse, kCollapseText);
    }
    if (CWnd* const pView = acedGetAcadDwgView()) {
        pView->SetFocus();
    }
    SetFocus();
}

} // namespace Orvane::Workspace
