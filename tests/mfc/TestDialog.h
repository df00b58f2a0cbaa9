// A dialog with a table of controls that logs its messages.
#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include "platform/mfc/AdUiBaseDialog.h"

inline constexpr UINT kEdit = 200;
inline constexpr UINT kCheck = 201;
inline constexpr UINT kList = 202;
inline constexpr UINT kTree = 203;
inline constexpr UINT kCombo = 204;
inline constexpr UINT kPush = 205;
inline constexpr UINT kLines = 206;
inline constexpr UINT kText = 207;

inline constexpr DialogItem kTestItems[] = {
    {enmControlKind::Button, IDOK, 130, 90, 50, 14, L"OK", BS_DEFPUSHBUTTON},
    {enmControlKind::Button, IDCANCEL, 185, 90, 50, 14, L"Cancel"},
    {enmControlKind::Edit, kEdit, 7, 7, 100, 14},
    {enmControlKind::Button, kCheck, 7, 24, 60, 14, L"&Check", BS_AUTOCHECKBOX},
    {enmControlKind::ListView, kList, 7, 40, 100, 60, L"", LVS_SHOWSELALWAYS},
    {enmControlKind::TreeView, kTree, 110, 7, 80, 60, L"", TVS_HASBUTTONS | TVS_EDITLABELS},
    {enmControlKind::ComboBox, kCombo, 195, 7, 50, 100},
    {enmControlKind::Button, kPush, 195, 25, 50, 14, L"Push"},
    {enmControlKind::ListBox, kLines, 195, 42, 50, 30, L"", LBS_SORT | LBS_EXTENDEDSEL},
    {enmControlKind::Static, kText, 7, 104, 100, 8, L"A text && more"},
};
inline constexpr DialogTemplate kTestTemplates[] = {
    {900, 250, 115, L"Test", WS_POPUP | WS_CAPTION | WS_SYSMENU, kTestItems},
    {901, 100, 50, L"", WS_CHILD, {}},
};

class TestDialog : public CAdUiBaseDialog {
public:
    explicit TestDialog(CWnd* pParent = nullptr, UINT id = 900) : CAdUiBaseDialog(id, pParent) {
        [[maybe_unused]] static const bool added = [] {
            AddDialogTemplates(nullptr, kTestTemplates);
            return true;
        }();
    }

    /// Received commands and notifications as "id:code", in order.
    std::vector<std::string> log;
    std::function<bool()> onInit = [] { return true; };
    std::function<void(UINT)> onCommand;
    std::function<LRESULT(NMHDR*)> onNotify;
    std::function<bool(MSG*)> onPreTranslate;

    using CAdUiBaseDialog::BeginEditorCommand;
    using CAdUiBaseDialog::CompleteEditorCommand;

    bool PreTranslateMessage(MSG* pMsg) override {
        return (onPreTranslate && onPreTranslate(pMsg)) || CDialog::PreTranslateMessage(pMsg);
    }
    template <class Control>
    Control& Item(UINT id) {
        return dynamic_cast<Control&>(*GetDlgItem(id));
    }
    std::vector<std::string> TakeLog() { return std::exchange(log, {}); }

protected:
    bool OnInitDialog() override {
        CAdUiBaseDialog::OnInitDialog();
        return onInit();
    }
    bool OnCommand(WPARAM wParam, LPARAM lParam) override {
        log.push_back(std::to_string(CommandId(wParam)) + ":" +
                      std::to_string(CommandCode(wParam)));
        if (onCommand) {
            onCommand(CommandId(wParam));
            return true;
        }
        return CAdUiBaseDialog::OnCommand(wParam, lParam);
    }
    bool OnNotify(WPARAM, LPARAM lParam, LRESULT* pResult) override {
        auto* const pHeader = reinterpret_cast<NMHDR*>(lParam);
        if (pHeader->code == NM_CUSTOMDRAW) {
            return false;
        }
        log.push_back(std::to_string(pHeader->idFrom) + ":" +
                      std::to_string(static_cast<int>(pHeader->code)));
        *pResult = onNotify ? onNotify(pHeader) : 0;
        return true;
    }
};

/// A test with a visible dialog, which ignores commands unless the test sets a handler.
class DialogOnScreenTest : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        m_pDialog = std::make_unique<TestDialog>();
        m_pDialog->Create();
        m_pDialog->ShowWindow(SW_SHOW);
        AfxPumpMessages();
        m_pDialog->onCommand = [](UINT) {};
    }
    void TearDown() override {
        m_pDialog.reset();
        WindowTest::TearDown();
    }
    std::unique_ptr<TestDialog> m_pDialog;
};
