// A workspace dialog that records its events, and a factory of such dialogs.
#pragma once

#include "tests/mfc/WindowTest.h"

#include <functional>
#include <map>
#include <memory>

#include <boost/make_shared.hpp>

#include "platform/mfc/ComboBox.h"
#include "tests/support/PrintRects.h"
#include "tests/support/ScriptedScreens.h"
#include "tests/support/TestHost.h"
#include "workspacecore/core/WsManager.h"
#include "workspacecore/dialogs/WsBaseDialog.h"

namespace Orvane::Workspace {

inline constexpr UINT kWsFixed = 910;
inline constexpr UINT kWsSizable = 911;
inline constexpr UINT kWsEdit = 200;
inline constexpr UINT kWsCombo = 201;

inline constexpr DialogItem kWsItems[] = {
    {enmControlKind::Edit, kWsEdit, 7, 7, 100, 14},
    {enmControlKind::ComboBox, kWsCombo, 7, 24, 100, 100},
    {enmControlKind::Button, IDOK, 7, 40, 50, 14, L"OK", BS_DEFPUSHBUTTON},
    {enmControlKind::Button, IDCANCEL, 60, 40, 50, 14, L"Cancel"},
};
inline constexpr DialogTemplate kWsTemplates[] = {
    {kWsFixed, 120, 60, L"Test", WS_POPUP | WS_CAPTION | WS_SYSMENU, kWsItems},
    {kWsSizable, 120, 60, L"Test", WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME, kWsItems},
};

class WsTestDialog : public CWsBaseDialog {
public:
    explicit WsTestDialog(const wchar_t* id, enmDialogType type = enmDialogFixedCascaded,
                          int settingsButton = 0)
        : CWsBaseDialog(0, id, type, settingsButton, 1, 1, nullptr, nullptr, 7) {
        [[maybe_unused]] static const bool added = [] {
            AddDialogTemplates(nullptr, kWsTemplates);
            return true;
        }();
    }
    ~WsTestDialog() override {
        CWsManager::Instance()->UnregisterWsListener(this);
        DestroyWindow();
    }

    /// Creates the window and shows it at a position.
    void Show(const CRect& place, UINT templateId = kWsSizable) {
        Create(templateId);
        MoveWindow(place);
        ShowWindow(SW_SHOW);
        AfxPumpMessages();
    }

    std::vector<std::string> log;
    std::function<void()> onPlace;
    std::function<void()> onSize;
    std::function<void()> onSettings = [] {};
    std::vector<std::string> TakeLog() { return std::exchange(log, {}); }

    void ShowHelp() override { log.emplace_back("help"); }
    void ShowGeneralSettings() override {
        log.emplace_back("settings");
        onSettings();
    }
    void Update(Notification::CPublisher*, void*, void*) override { log.emplace_back("refresh"); }
    void OnAcadDocumentBecomeCurrent(AcApDocument*) override { log.emplace_back("current"); }

protected:
    const MessageMap* GetMessageMap() const override {
        static constexpr MessageEntry kEntries[] = {
            MapMessage<&WsTestDialog::OnSize>(WM_SIZE),
            MapMessage<&WsTestDialog::OnWindowPosChanging>(WM_WINDOWPOSCHANGING)};
        static const MessageMap kMap{CWsBaseDialog::GetMessageMap(), kEntries};
        return &kMap;
    }
    void OnWindowPosChanging(WINDOWPOS* pPlace) {
        CWsBaseDialog::OnWindowPosChanging(pPlace);
        if (onPlace) {
            onPlace();
        }
    }
    void OnSize(UINT type, int cx, int cy) {
        CWsBaseDialog::OnSize(type, cx, cy);
        if (onSize) {
            onSize();
        }
    }
    void OnOK() override { log.emplace_back("ok"); }
    void OnCancel() override {
        log.emplace_back("cancel");
        CWsBaseDialog::OnCancel();
    }
};

/// Creates the dialogs in its list, one per id.
class WsTestFactory : public IWsDialogFactory {
public:
    explicit WsTestFactory(std::vector<CString> ids = {}) : m_ids(std::move(ids)) {}

    CWsBaseDialog* CreateWsDialog(const wchar_t* id) override {
        asked.push_back(WideToUtf8(id));
        if (std::find(m_ids.begin(), m_ids.end(), CString(id)) == m_ids.end()) {
            return nullptr;
        }
        dialogs[id] = std::make_unique<WsTestDialog>(id, type);
        return dialogs[id].get();
    }
    int DeleteWsDialog(const wchar_t* id) override { return static_cast<int>(dialogs.erase(id)); }
    void GetAllDialogIds(std::vector<CString>& ids) override {
        ids.insert(ids.end(), m_ids.begin(), m_ids.end());
    }

    enmDialogType type = enmDialogFixedCascaded;
    std::vector<std::string> asked;
    std::map<CString, std::unique_ptr<WsTestDialog>> dialogs;

private:
    std::vector<CString> m_ids;
};

/// A workspace on a single screen of 1920 by 1080 without a task bar.
class WsDialogTest : public WindowTest {
protected:
    static CWsDialogManager& Manager() { return *CWsManager::Instance()->DlgMgr(); }
    static boost::shared_ptr<WsTestFactory> AddFactory(std::vector<CString> ids = {}) {
        auto factory = boost::make_shared<WsTestFactory>(std::move(ids));
        CWsManager::Instance()->RegisterWsDialogFactory(factory);
        return factory;
    }
    /// Ids of the saved dialog states, sorted.
    static std::string RememberedIds() {
        std::string ids;
        for (const auto& [id, state] : *Manager().GetDialogStates()->GetDialogStateMapById()) {
            ids += WideToUtf8(id.View()) + " ";
        }
        return ids;
    }

    TestHost m_host;
    ScriptedScreens m_desktop{{{{0, 0, 1920, 1080}, {0, 0, 1920, 1080}}}};
};

/// Simulates the user dragging a caption, from press to release.
class Drag {
public:
    explicit Drag(const CWnd& window) : m_pFrame(FrameOf(window)) {
        const CRect place = window.GetWindowRect();
        m_grip = QPoint(place.left + 60, place.top + 10);
        m_corner = place.TopLeft();
        Send(QEvent::MouseButtonPress, m_grip);
    }
    ~Drag() {
        if (m_pFrame) {
            Send(QEvent::MouseButtonRelease, m_grip);
        }
    }
    Drag(const Drag&) = delete;
    Drag& operator=(const Drag&) = delete;

    /// Moves the mouse so that the window's corner would be here without snapping.
    void To(CPoint corner) {
        Send(QEvent::MouseMove, m_grip + QPoint(corner.x - m_corner.x, corner.y - m_corner.y));
    }

private:
    void Send(QEvent::Type type, QPoint onScreen) {
        QMouseEvent event(type, m_pFrame->mapFromGlobal(onScreen), onScreen, Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, {});
        QApplication::sendEvent(m_pFrame, &event);
    }

    QPointer<QWidget> m_pFrame;
    QPoint m_grip;
    CPoint m_corner;
};

} // namespace Orvane::Workspace
