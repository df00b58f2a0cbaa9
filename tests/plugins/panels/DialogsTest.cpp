// The dialogs, driven by mouse and keyboard.
#include "tests/plugins/panels/PanelsOnDesktop.h"

#include <QAbstractButton>
#include <QLineEdit>

#include "platform/arx/DbUndo.h"
#include "platform/mfc/Button.h"
#include "platform/mfc/ComboBox.h"
#include "platform/mfc/ListCtrl.h"
#include "plugins/panels/Resources.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "workspacecore/dialogs/WsBaseDialog.h"

using namespace Orvane;
using namespace Orvane::Panels;

namespace {

class Dialogs : public PanelsOnDesktop {
protected:
    static Workspace::CWsBaseDialog& Dialog(const wchar_t* id) {
        return *PanelsOnDesktop::Workspace().GetDlgById(id);
    }
    static Workspace::CWsBaseDialog& Open(const wchar_t* command, const wchar_t* id) {
        PanelsOnDesktop::Workspace().CmdMgr()->Execute(command, nullptr, nullptr);
        Settle();
        return Dialog(id);
    }
    template <class Control>
    static Control& Item(CWnd& dialog, UINT id) {
        return dynamic_cast<Control&>(*dialog.GetDlgItem(id));
    }
    static void Click(CWnd& dialog, UINT id) {
        Item<CButton>(dialog, id).Click();
        Settle();
    }
    /// The first cells of all rows.
    static std::string Rows(CWnd& dialog) {
        const auto& list = Item<CListCtrl>(dialog, kList);
        std::string text;
        for (int row = 0; row < list.GetItemCount(); ++row) {
            text += Narrow(list.GetItemText(row, 0)) + ";";
        }
        return text;
    }
    static int RowOf(CWnd& dialog, const wchar_t* text) {
        const auto& list = Item<CListCtrl>(dialog, kList);
        int row = 0;
        while (row < list.GetItemCount() && list.GetItemText(row, 0) != text) {
            ++row;
        }
        return row;
    }
    static void Select(CWnd& dialog, int row) {
        Item<CListCtrl>(dialog, kList).SetItemState(row, LVIS_SELECTED, LVIS_SELECTED);
        Settle();
    }
    static constexpr const wchar_t* kFindId = L"DLG_FIND_ENTITY";
    static constexpr const wchar_t* kPropertiesId = L"DLG_ENTITY_PROPERTIES";
};

} // namespace

TEST_F(Dialogs, FindListsWhatItMetAndShowsItsProperties) {
    CWnd& find = Open(L"SEARCH_ENTITY", kFindId);
    EXPECT_TRUE(find.IsWindowVisible());
    CWnd& text = *find.GetDlgItem(kText);
    text.SetWindowText(L"a1");
    text.SetFocus();
    Press(text, Qt::Key_Return);
    EXPECT_EQ(Rows(find), "Node A1;Node A10;Node BA1;");
    Click(find, kProperties);
    CWnd& properties = Dialog(kPropertiesId);
    EXPECT_TRUE(properties.IsWindowVisible());
    EXPECT_EQ(Narrow(properties.GetDlgItem(kTitle)->GetWindowText()), "Node A1");

    text.SetWindowText(L"nowhere");
    Click(find, kFind);
    EXPECT_EQ(Rows(find), "");
    EXPECT_EQ(Narrow(find.GetDlgItem(kSummary)->GetWindowText()), "Nothing found");
    EXPECT_FALSE(find.GetDlgItem(kShow)->IsWindowEnabled());
}

TEST_F(Dialogs, WhatWasFoundGoesWithItsDrawing) {
    CWnd& find = Open(L"SEARCH_ENTITY", kFindId);
    find.GetDlgItem(kText)->SetWindowText(L"Main");
    Click(find, kFind);
    EXPECT_EQ(Rows(find), "Section Main;");
    Click(find, kProperties);
    acDocManagerPtr()->newDocument(L"b.dwg");
    Settle();
    EXPECT_EQ(Rows(find), "");
    EXPECT_EQ(Rows(Dialog(kPropertiesId)), "");
    EXPECT_EQ(Item<CComboBox>(find, kSystem).GetCount(), 1) << "all systems";
}

TEST_F(Dialogs, FindComesBackAsItWasLeft) {
    {
        CWnd& find = Open(L"SEARCH_ENTITY", kFindId);
        find.GetDlgItem(kText)->SetWindowText(L"Ä;b\"<");
        Item<CComboBox>(find, kSystem).SetCurSel(1);
        Item<CComboBox>(find, kWhere).SetCurSel(3);
        Item<CListCtrl>(find, kList).SetColumnWidth(0, 77);
        find.SendMessage(WM_CLOSE);
        EXPECT_FALSE(find.IsWindowVisible());
        Factories().front()->DeleteWsDialog(kFindId);
    }
    CWnd& find = Open(L"SEARCH_ENTITY", kFindId);
    EXPECT_EQ(Narrow(find.GetDlgItem(kText)->GetWindowText()), "Ä;b\"<");
    EXPECT_EQ(Item<CComboBox>(find, kSystem).GetCurSel(), 1);
    EXPECT_EQ(Item<CComboBox>(find, kWhere).GetCurSel(), 3);
    EXPECT_EQ(Item<CListCtrl>(find, kList).GetColumnWidth(0), 77);
    EXPECT_TRUE(m_host.Support().Has("uiStates.xml"));
}

TEST_F(Dialogs, APropertyIsChangedAndTheChangeIsOneStep) {
    CWnd& find = Open(L"SEARCH_ENTITY", kFindId);
    find.GetDlgItem(kText)->SetWindowText(L"Main");
    Click(find, kFind);
    Click(find, kProperties);
    CWnd& dialog = Dialog(kPropertiesId);
    EXPECT_EQ(Rows(dialog), "Name;Type;System;Kind;From node;To node;Drawn length;DIAMETER;"
                            "MATERIAL;");
    Select(dialog, RowOf(dialog, L"Type"));
    EXPECT_FALSE(dialog.GetDlgItem(kSet)->IsWindowEnabled());

    Select(dialog, RowOf(dialog, L"DIAMETER"));
    CWnd& value = *dialog.GetDlgItem(kValue);
    EXPECT_EQ(Narrow(value.GetWindowText()), "400");
    value.SetWindowText(L"wide");
    Click(dialog, kSet);
    EXPECT_EQ(m_host.Alerts().size(), 1U);
    value.SetWindowText(L"250");
    value.SetFocus();
    Press(value, Qt::Key_Return);
    const auto diameter = [&] {
        return Storage().GetSectionById(m_pipe).GetNumber(AcDbIntern("DIAMETER"));
    };
    EXPECT_EQ(diameter(), 250);
    EXPECT_EQ(Narrow(Item<CListCtrl>(dialog, kList).GetItemText(RowOf(dialog, L"DIAMETER"), 1)),
              "250");
    EXPECT_TRUE(acDocManagerPtr()->curDocument()->database()->undo().undo());
    EXPECT_EQ(diameter(), 400);
}

TEST_F(Dialogs, StatisticsFollowTheActiveSystem) {
    CWnd& dialog = Open(L"SYSTEM_STATISTICS", L"DLG_SYSTEM_STATISTICS");
    EXPECT_EQ(Rows(dialog), "");
    Systems().SetSystemActive(m_pSystem);
    Settle();
    const auto& list = Item<CListCtrl>(dialog, kList);
    EXPECT_EQ(Narrow(list.GetItemText(RowOf(dialog, L"Nodes"), 1)), "3");
    EXPECT_EQ(Narrow(list.GetItemText(RowOf(dialog, L"Total length"), 1)), "10.00");
    Click(dialog, kClose);
    EXPECT_FALSE(dialog.IsWindowVisible());
}

TEST_F(Dialogs, GeneralSettingsAreWrittenOnlyIfTheyMakeSense) {
    m_host.Support().Write("Settings.ini", "; mine\n[General]\nPT_MARK_COLOR=4\n");
    CModuleConfiguration& configuration = *CModuleConfiguration::Instance();
    configuration.ReloadGeneralSettings();
    const auto show = [&](const char* color, std::initializer_list<const char*> buttons) {
        Later([=] {
            QWidget* const pDialog = QApplication::activeModalWidget();
            ASSERT_NE(pDialog, nullptr);
            // The control after the autosave interval.
            pDialog->findChildren<QLineEdit*>().at(1)->setText(QLatin1String(color));
            for (const char* const button : buttons) {
                for (auto* const pButton : pDialog->findChildren<QAbstractButton*>()) {
                    if (pButton->text() == QLatin1String(button)) {
                        pButton->click();
                    }
                }
            }
        });
        configuration.ShowGSDialog(L"");
    };
    show("9", {"Cancel"});
    EXPECT_EQ(m_host.Support().Read("Settings.ini"), "; mine\n[General]\nPT_MARK_COLOR=4\n");
    show("256", {"OK", "Cancel"});
    EXPECT_EQ(m_host.Alerts().size(), 1U);
    show("9", {"OK"});
    EXPECT_EQ(m_host.Support().Read("Settings.ini"), "; mine\n[General]\nPT_MARK_COLOR=9\n");
    int color = 0;
    EXPECT_TRUE(configuration.GetGSValueInt(L"PT_MARK_COLOR", color));
    EXPECT_EQ(color, 9);
}
