#include "workspacecore/dialogs/WsBaseDialog.h"

#include "platform/arx/ApDocManager.h"
#include "platform/mfc/ComboBox.h"
#include "platform/win/Screens.h"
#include "platform/xtp/XTPDockingPaneManager.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/notification/NotificationFramework.h"
#include "siblings/giscore/utility/Utility.h"
#include "workspacecore/dialogs/DialogHome.h"
#include "workspacecore/dialogs/DialogPlaces.h"
#include "workspacecore/dialogs/WsDialogManager.h"
#include "workspacecore/resources/Icons.h"
#include "workspacecore/resources/ModuleResources.h"

namespace Orvane::Workspace {

namespace {

constexpr int kHelpText = 50156;
constexpr int kCollapseText = 7246;
constexpr int kExpandText = 7247;
constexpr int kSettingsText = 381;

} // namespace

CWsBaseDialog::CWsBaseDialog(unsigned int, const wchar_t* dialogId, enmDialogType type,
                             int settingsButton, int, int, CWnd* parent, HINSTANCE resourceInstance,
                             unsigned int subscriberNumber)
    : CAdUiBaseDialog(0, parent, resourceInstance), CSubscriber(subscriberNumber),
      m_dialogId(dialogId), m_dialogType(type), m_hasSettingsButton(settingsButton) {
    IDialogHome& home = DialogHome();
    if (Notification::CPublisher* const pPublisher = home.RefreshPublisher()) {
        pPublisher->RegisterSubscriber(this);
    }
    home.Dialogs().RegisterWsDialog(this);
    home.RegisterWsListener(this);
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
    DialogHome().Dialogs().SaveDialogStates();
    Notification::CNotificationFramework::UnregisterSubscriber(this);
    DialogHome().Dialogs().UnregisterWsDialog(this);
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
        // To the focused control, never to the default or cancel button.
        DispatchMessage(pMsg);
        return true;
    }
    return CDialog::PreTranslateMessage(pMsg);
}

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
    // A horizontal metric, but the frame is equally thick at the top and at the sides.
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
