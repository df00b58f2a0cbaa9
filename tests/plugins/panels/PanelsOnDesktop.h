// The real plug-ins on an in-memory desktop, with a small network in the drawing.
#pragma once

#include "platform/arx/ApDocManager.h"
#include "platform/arx/RxDynamicLinker.h"
#include "platform/mfc/TreeCtrl.h"
#include "platform/win/CodePage.h"
#include "siblings/giscore/systems/SystemManager.h"
#include "siblings/networkcore/TopologyMultiStorage.h"
#include "tests/mfc/WindowTest.h"
#include "tests/support/TestHost.h"
#include "workspacecore/core/WsManager.h"
#include "workspacecore/dialogs/WsPanelDialog.h"

/// Loads modules as the program does, so that panels and dialogs are found by their ids.
class PanelsOnDesktop : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        m_host.Support().Write("ModuleRegistry.xml",
                               R"(<moduleRegistry >
<module msgName="930000" on="1" fileName="ORVZRepository.arx" ></module>
<module msgName="900001" on="1" fileName="ORVZNetwork.arx" ></module>
<module msgName="900002" on="1" fileName="ORVZPanels.arx" ></module>
</moduleRegistry>)");
        // The configurations shipped with the program.
        const std::filesystem::path from = TESSALY_STAGE_DIR "/share/support/repository";
        std::filesystem::copy(from, m_host.Support() / "repository",
                              std::filesystem::copy_options::recursive);
        acDocManagerPtr()->newDocument(L"a.dwg");
        ASSERT_TRUE(
            acrxDynamicLinker()->loadModule(CString(L"" TESSALY_STAGE_DIR "/ORVZApplication.arx")));
        m_frame.Create(WS_POPUP, CRect(0, 0, 600, 700), nullptr);
        m_frame.ShowWindow(SW_SHOW);
        MakeNetwork();
    }
    void TearDown() override {
        for (const auto& factory : Factories()) {
            for (const wchar_t* id : kPanels) {
                factory->DeleteWsPanelDialog(id);
            }
            std::vector<CString> ids;
            factory->GetAllDialogIds(ids);
            for (const CString& id : ids) {
                factory->DeleteWsDialog(id);
            }
        }
        while (acDocManagerPtr()->documentCount() > 0) {
            acDocManagerPtr()->closeDocument(acDocManagerPtr()->curDocument());
        }
        m_frame.DestroyWindow();
        WindowTest::TearDown();
    }

    /// A click posts a command, which posts a refresh; each is a separate message.
    static void Settle() {
        for (int round = 0; round < 4; ++round) {
            AfxPumpMessages();
        }
    }

    static constexpr const wchar_t* kPanels[] = {L"DLG_TREE_SYSTEMS", L"DLG_TREE_DISK",
                                                 L"DLG_TREE_NET"};
    static Orvane::Workspace::CWsManager& Workspace() {
        return *Orvane::Workspace::CWsManager::Instance();
    }
    static const std::vector<boost::shared_ptr<Orvane::Workspace::IWsDialogFactory>>& Factories() {
        return *Workspace().DlgMgr()->GetDlgFactories();
    }
    static Orvane::System::CSystemManager& Systems() {
        return *Orvane::System::CSystemManager::Instance();
    }
    static Orvane::Topology::CTopologyStorage& Storage() {
        return *Orvane::Topology::CTopologyMultiStorage::Instance()->GetTopology();
    }
    static std::string Narrow(const CString& text) { return WideToUtf8(text.View()); }

    /// A panel in the lower part of the frame, or filling it.
    Orvane::Workspace::CWsPanelDialog& MakePanel(const wchar_t* id, int top = 0) {
        Orvane::Workspace::CWsPanelDialog* const pPanel =
            Factories().front()->CreateWsPanelDialog(&m_frame, id);
        pPanel->MoveWindow(CRect(0, top, 300, top + 340));
        pPanel->ShowWindow(SW_SHOW);
        Settle();
        return *pPanel;
    }

    /// The visible nodes of a tree, one per line, with "*" before the selected one.
    static std::string Shown(const CTreeCtrl& tree) {
        std::string text;
        Append(tree, tree.GetRootItem(), 0, text);
        return text;
    }
    /// Finds a node by prefixes of the texts from the root down; null if there is none.
    static HTREEITEM Find(const CTreeCtrl& tree, std::initializer_list<const wchar_t*> path) {
        HTREEITEM item = nullptr;
        HTREEITEM first = tree.GetRootItem();
        for (const wchar_t* name : path) {
            for (item = first; item && tree.GetItemText(item).Find(name) != 0;) {
                item = tree.GetNextSiblingItem(item);
            }
            first = tree.GetChildItem(item);
        }
        return item;
    }
    static QPoint PlaceOf(CTreeCtrl& tree, HTREEITEM item) {
        tree.EnsureVisible(item);
        Settle();
        const CRect label = tree.GetItemRect(item, true);
        return {label.left + 4, label.top + label.Height() / 2};
    }
    static void Press(CWnd& window, Qt::Key key, Qt::KeyboardModifiers with = {}) {
        QTest::keyClick(WidgetOf(window), key, with);
        Settle();
    }

    TestHost m_host;
    CWnd m_frame;
    Orvane::System::CGisSystem* m_pSystem = nullptr;
    AcDbObjectId m_node;
    AcDbObjectId m_pipe;

private:
    void MakeNetwork() {
        using Orvane::Topology::AttributeData;
        m_pSystem = Systems().CreateSystem(L"Town", Orvane::TopologyLine, 1);
        ASSERT_NE(m_pSystem, nullptr);
        const AttributeData high[] = {{"ELEVATION", 12.5}};
        const AttributeData thick[] = {{"DIAMETER", 400}, {"MATERIAL", "Stahl Ä"}};
        m_node = Storage().AddNode(*m_pSystem, {"A1", {0, 0}, "Tank", high});
        const auto b = Storage().AddNode(*m_pSystem, {"A10", {10, 0}});
        Storage().AddNode(*m_pSystem, {"BA1", {30, 0}, "Valve"});
        m_pipe = Storage().AddSection(*m_pSystem, {"Main", {m_node}, {b}, {}, "Pipe", thick});
    }

    static void Append(const CTreeCtrl& tree, HTREEITEM first, int depth, std::string& text) {
        for (HTREEITEM item = first; item; item = tree.GetNextSiblingItem(item)) {
            text += std::string(static_cast<std::size_t>(depth), ' ') +
                    (item == tree.GetSelectedItem() ? "*" : "") + Narrow(tree.GetItemText(item)) +
                    "\n";
            if (tree.IsExpanded(item)) {
                Append(tree, tree.GetChildItem(item), depth + 1, text);
            }
        }
    }
};
