// Which dialogs there are, who makes them, and what is done with all of them.
#include "tests/support/Rows.h"
#include "tests/workspacecore/panel/WsTestDialog.h"

#include "platform/arx/ApDocManager.h"
#include "platform/arx/DbUndo.h"
#include "siblings/cadwrapper/DictionaryPtr.h"
#include "siblings/giscore/notification/NotificationFramework.h"
#include "siblings/giscore/notification/Publisher.h"

namespace Orvane::Workspace {
namespace {

using Ids = std::vector<std::string>;

class WsDialogManagerTest : public WsDialogTest {
protected:
    static Ids Registered() {
        Ids ids;
        for (const auto& [id, pDialog] : *Manager().GetDialogRegistryMap()) {
            ids.push_back(WideToUtf8(id.View()) + (pDialog ? "" : "=null"));
        }
        return ids;
    }
};

// Finding and creating.

TEST_F(WsDialogManagerTest, ADialogIsMadeByTheFirstFactoryThatKnowsIt) {
    CWsManager& manager = *CWsManager::Instance();
    EXPECT_EQ(manager.GetDlgById(L"A"), nullptr) << "no factory";
    const auto first = AddFactory({L"A"});
    manager.RegisterWsDialogFactory(nullptr);
    const auto second = AddFactory({L"A", L"B"});
    CWsBaseDialog* const pA = manager.GetDlgById(L"A");
    ASSERT_NE(pA, nullptr);
    EXPECT_EQ(pA, first->dialogs[L"A"].get());
    EXPECT_EQ(manager.GetDlgById(L"A"), pA);
    EXPECT_EQ(first->asked, Ids{"A"}) << "it is asked once";
    EXPECT_EQ(second->asked, Ids{});
    CWsBaseDialog* const pB = manager.GetDlgById(L"B");
    ASSERT_NE(pB, nullptr);
    EXPECT_EQ(pB, second->dialogs[L"B"].get());
    EXPECT_EQ(manager.GetDlgById(L"a"), nullptr) << "case counts";
    EXPECT_EQ(second->asked, (Ids{"B", "a"}));
    EXPECT_EQ(manager.GetDlgById(L"a"), nullptr);
    EXPECT_EQ(first->asked, (Ids{"A", "B", "a", "a"})) << "who nobody makes is asked for again";
}

TEST_F(WsDialogManagerTest, ANullEntryAsksTheFactoriesEachTime) {
    const auto factory = AddFactory({L"A"});
    (*Manager().GetDialogRegistryMap())[L"A"] = nullptr;
    EXPECT_TRUE(Manager().IsDialogCreated(L"A")) << "there is an entry";
    CWsBaseDialog* const pDialog = Manager().GetDlgById(L"A");
    ASSERT_NE(pDialog, nullptr);
    EXPECT_EQ(pDialog, factory->dialogs[L"A"].get());
    EXPECT_EQ(Registered(), Ids{"A=null"}) << "no entry is replaced";
    Manager().GetDlgById(L"A");
    EXPECT_EQ(factory->asked, (Ids{"A", "A"}));
    Manager().HideAll();
    Manager().CloseAll();
    Manager().ResetDialogPositions();
}

TEST_F(WsDialogManagerTest, OfTwoDialogsOfOneIdTheFirstIsFound) {
    WsTestDialog first(L"A");
    {
        const WsTestDialog second(L"A");
        EXPECT_EQ(Manager().GetDlgById(L"A"), &first);
    }
    EXPECT_FALSE(Manager().IsDialogCreated(L"A")) << "the second takes the entry with it";
    EXPECT_EQ(Manager().GetDlgById(L"A"), nullptr);
}

// Deleting.

TEST_F(WsDialogManagerTest, TheAnswerToDeletingIsThatOfTheLastFactory) {
    EXPECT_EQ(Manager().DeleteDlgById(L"A"), 0) << "no factory";
    const auto first = AddFactory({L"A"});
    ASSERT_NE(Manager().GetDlgById(L"A"), nullptr);
    EXPECT_EQ(Manager().DeleteDlgById(L"B"), 0);
    EXPECT_EQ(Manager().DeleteDlgById(L"A"), 1);
    EXPECT_EQ(Registered(), Ids{});

    const auto second = AddFactory({L"B"});
    Manager().GetDlgById(L"A");
    Manager().GetDlgById(L"B");
    EXPECT_EQ(Manager().DeleteDlgById(L"A"), 0) << "the second one had none";
    EXPECT_EQ(Registered(), Ids{"B"});
    EXPECT_EQ(Manager().DeleteDlgById(L"B"), 1);

    CWsManager::Instance()->RegisterWsDialogFactory(nullptr);
    Manager().GetDlgById(L"B");
    EXPECT_EQ(Manager().DeleteDlgById(L"B"), 0);
    EXPECT_EQ(Registered(), Ids{});
}

TEST_F(WsDialogManagerTest, ADialogMayBeDeletedInItsOwnHandler) {
    const auto factory = AddFactory({L"A"});
    auto* const pDialog = dynamic_cast<WsTestDialog*>(Manager().GetDlgById(L"A"));
    pDialog->Show({10, 20, 310, 220});
    pDialog->onSize = [] { Manager().DeleteDlgById(L"A"); };
    pDialog->MoveWindow({10, 20, 400, 220});
    EXPECT_EQ(Registered(), Ids{});
    EXPECT_NE(m_host.Support().Read("uiStates.xml").find("\"A\""), std::string::npos);
}

TEST_F(WsDialogManagerTest, TheLastResortKeepsTenDialogs) {
    const std::vector<CString> kept = {
        L"DLG_LOGVIEWER",   L"DLG_ORVUTIL",          L"DLG_ORV_TOOLBAR",    L"DLG_ORV_UNDO",
        L"DLG_PANELSEARCH", L"DLG_PREVIEW_PANEL",    L"DLG_SINGLE_PREVIEW", L"DLG_SMALLDATAWRITER",
        L"SINGLE_INPUT",    L"WS_SYSMAN_PANELPLUGIN"};
    std::vector<CString> all = kept;
    all.insert(all.end(), {L"dlg_logviewer", L"DLG_LOGVIEWER2", L"ANY", L""});
    const auto factory = AddFactory(all);
    for (const CString& id : all) {
        ASSERT_NE(Manager().GetDlgById(id), nullptr);
    }
    Manager().DeleteAllModelessDialogs();
    Ids expected;
    for (const CString& id : kept) {
        expected.push_back(WideToUtf8(id.View()));
    }
    EXPECT_EQ(Registered(), expected);
    EXPECT_EQ(factory->dialogs.size(), kept.size());
    CWsManager::Instance()->GetRefreshAllPbl()->Notify(nullptr, nullptr);
    EXPECT_EQ(factory->dialogs[L"SINGLE_INPUT"]->TakeLog(), Ids{}) << "nobody is told any more";
}

// All at once.

TEST_F(WsDialogManagerTest, HidingAndMinimisingLeaveDialogsAlive) {
    WsTestDialog one(L"A");
    WsTestDialog other(L"B");
    const WsTestDialog withoutWindow(L"C");
    for (WsTestDialog* pDialog : {&one, &other}) {
        pDialog->Show({10, 20, 310, 220});
    }
    Manager().CloseAll();
    WINDOWPLACEMENT place;
    one.GetWindowPlacement(&place);
    EXPECT_EQ(place.showCmd, SW_SHOWMINIMIZED);
    EXPECT_EQ(place.rcNormalPosition, CRect(10, 20, 310, 220));
    Manager().HideAll();
    EXPECT_FALSE(one.IsWindowVisible());
    EXPECT_FALSE(other.IsWindowVisible());
    EXPECT_EQ(Registered(), (Ids{"A", "B", "C"}));
}

TEST_F(WsDialogManagerTest, WithTheLastDrawingDialogsAreHidden) {
    WsTestDialog dialog(L"A");
    dialog.Show({10, 20, 310, 220});
    AcApDocument* const pFirst = acDocManagerPtr()->newDocument(L"a.dwg");
    AcApDocument* const pSecond = acDocManagerPtr()->newDocument(L"b.dwg");
    acDocManagerPtr()->closeDocument(pSecond);
    dialog.ShowWindow(SW_SHOW);
    acDocManagerPtr()->closeDocument(pFirst);
    EXPECT_FALSE(dialog.IsWindowVisible());
    EXPECT_TRUE(Manager().IsDialogCreated(L"A"));
}

TEST_F(WsDialogManagerTest, ResettingMovesToTheCornerAndCleansTheDrawing) {
    CWsManager::Instance();
    AcApDocument* const pDoc = acDocManagerPtr()->newDocument(L"a.dwg");
    const auto write = [] {
        CORVCDictionaryPtr dictionary(AcDb::kForWrite);
        for (const wchar_t* name : {L"ORVZ_AG_SETTINGS", L"ORVZ_LSD_IA", L"ORVZ_OTHER"}) {
            ASSERT_EQ(dictionary.dctWriteBigString(name, L"r", L"text"), Acad::eOk);
        }
    };
    const auto kept = [] {
        const CORVCDictionaryPtr dictionary(AcDb::kForRead);
        Ids names;
        for (const wchar_t* name : {L"ORVZ_AG_SETTINGS", L"ORVZ_LSD_IA", L"ORVZ_OTHER"}) {
            CString text;
            if (dictionary.dctReadBigString(name, L"r", text) == Acad::eOk) {
                names.push_back(WideToUtf8(name));
            }
        }
        return names;
    };
    write();
    const WsTestDialog withoutWindow(L"A");
    Manager().ResetDialogPositions();
    EXPECT_EQ(kept().size(), 3U) << "only for a dialog that has a place";

    WsTestDialog one(L"B");
    WsTestDialog other(L"C", enmDialogSizableHosted);
    one.Show({500, 400, 900, 700});
    other.Show({-90, -80, 110, 20});
    other.ShowWindow(SW_HIDE);
    AcDbUndo& history = pDoc->database()->undo();
    history.beginGroup(L"POINT");
    pDoc->database()->appendEntity(std::make_unique<AcDbPoint>());
    history.endGroup();
    Manager().ResetDialogPositions();
    EXPECT_EQ(one.GetWindowRect(), CRect(0, 0, 400, 300));
    EXPECT_EQ(other.GetWindowRect(), CRect(0, 0, 200, 100));
    EXPECT_EQ(kept(), Ids{"ORVZ_OTHER"});
    ASSERT_TRUE(history.undoName());
    EXPECT_EQ(*history.undoName(), L"POINT") << "no step of its history";
    EXPECT_TRUE(history.undo());
    EXPECT_EQ(pDoc->database()->entityCount(), 0U);
    EXPECT_EQ(kept(), Ids{"ORVZ_OTHER"});
    EXPECT_FALSE(pDoc->database()->isUndoRecordingDisabled());
    EXPECT_FALSE(pDoc->isLocked());
    acDocManagerPtr()->closeDocument(pDoc);
    one.MoveWindow({500, 400, 900, 700});
    Manager().ResetDialogPositions();
    EXPECT_EQ(one.GetWindowRect(), CRect(0, 0, 400, 300)) << "without a drawing";
}

TEST_F(WsDialogManagerTest, DialogsMayGoWhileAllAreReset) {
    const auto factory = AddFactory({L"A", L"B", L"C"});
    for (const wchar_t* id : {L"A", L"B", L"C"}) {
        dynamic_cast<WsTestDialog*>(Manager().GetDlgById(id))->Show({100, 100, 400, 300});
    }
    factory->dialogs[L"A"]->onPlace = [&] {
        factory->dialogs.erase(L"B");
        factory->dialogs.erase(L"A");
    };
    Manager().ResetDialogPositions();
    EXPECT_EQ(Registered(), Ids{"C"});
    EXPECT_EQ(factory->dialogs[L"C"]->GetWindowRect().TopLeft(), CPoint());
    factory->dialogs.clear();
}

// The cascade.

class Cascade : public WsDialogManagerTest {
protected:
    /// Places a new dialog of a size and returns its position; the dialog stays alive.
    CPoint Place(CSize size, enmDialogType type = enmDialogFixedCascaded, CPoint start = {}) {
        CString id;
        id.Format(L"D%d", static_cast<int>(m_dialogs.size()));
        m_dialogs.push_back(std::make_unique<WsTestDialog>(id, type));
        m_dialogs.back()->Show(CRect(start, size));
        Manager().SetNewWindowPosition(m_dialogs.back().get());
        EXPECT_EQ(m_dialogs.back()->GetWindowRect().Size(), size);
        return m_dialogs.back()->GetWindowRect().TopLeft();
    }
    void TearDown() override {
        m_dialogs.clear();
        WsDialogManagerTest::TearDown();
    }
    std::vector<std::unique_ptr<WsTestDialog>> m_dialogs;
};

TEST_F(Cascade, ColumnsFillFromTheRight) {
    for (const CPoint& expected : {CPoint(1520, 0), CPoint(1520, 301), CPoint(1520, 602),
                                   CPoint(1120, 0), CPoint(1120, 301)}) {
        EXPECT_EQ(Place({400, 300}), expected);
    }
    EXPECT_EQ(Place({400, 300}, enmDialogSizableCascaded, {7, 9}), CPoint(1127, 611))
        << "counted from where it is";
}

TEST_F(Cascade, OnlyCascadedTypesTakePart) {
    for (const auto type :
         {enmDialogFixed, enmDialogSizable, enmDialogFixedHosted, enmDialogSizableHosted}) {
        EXPECT_EQ(Place({400, 300}, type, {50, 60}), CPoint(50, 60)) << type;
    }
    EXPECT_EQ(Place({400, 300}), CPoint(1520, 0)) << "the others took no room";
}

TEST_F(Cascade, ARememberedPlaceWinsAndTakesNoRoom) {
    auto state = boost::make_shared<CDialogState>();
    state->SetId(L"D0");
    state->SetLeft(70);
    state->SetTop(80);
    Manager().GetDialogStates()->AddDialogState(state);
    EXPECT_EQ(Place({400, 300}), CPoint(70, 80));
    EXPECT_EQ(Place({400, 300}), CPoint(1520, 0));
}

TEST_F(Cascade, OnlyWithTheCursorOnThePrimaryMonitor) {
    const Monitor primary{{0, 0, 1920, 1080}, {}};
    const Rows<const char*, std::vector<Monitor>, CPoint, CPoint> cases = {
        {"primary one", {primary, {{-1280, 56, 0, 1080}, {}}}, {0, 500}, {1520, 0}},
        {"one to the left", {primary, {{-1280, 56, 0, 1080}, {}}}, {-1, 500}, {70, 80}},
        {"one above", {primary, {{200, -900, 1800, 0}, {}}}, {500, -5}, {70, 80}},
        {"same size", {primary, {{1920, 0, 3840, 1080}, {}}}, {1920, 5}, {70, 80}},
        {"nearest to the primary",
         {primary, {{1920, 0, 2720, 600}, {}}},
         {1500, 9000},
         {1520, 301}},
        {"nearest to another", {primary, {{1920, 0, 2720, 600}, {}}}, {9000, 300}, {70, 80}},
    };
    for (const auto& [what, monitors, cursor, expected] : cases) {
        m_desktop.monitors = monitors;
        m_desktop.cursor = cursor;
        const bool moves = expected != CPoint(70, 80);
        EXPECT_EQ(Place({400, 300}, enmDialogFixedCascaded, moves ? CPoint() : CPoint(70, 80)),
                  expected)
            << what;
    }
    // Not even a saved position is restored.
    Manager().GetDialogStates()->Clear();
    auto state = boost::make_shared<CDialogState>();
    state->SetId(L"D6");
    state->SetLeft(100);
    Manager().GetDialogStates()->AddDialogState(state);
    EXPECT_EQ(Place({400, 300}, enmDialogFixedCascaded, {70, 80}), CPoint(70, 80));
}

// States.

TEST_F(WsDialogManagerTest, StatesThatNobodyAskedForAreNotWritten) {
    const std::string text = "<uiStates><dialogState id=\"OLD\" left=\"5\"/></uiStates>";
    m_host.Support().Write("uiStates.xml", text);
    { const WsTestDialog dialog(L"A"); }
    Manager().SaveDialogStates();
    Manager().ReleaseDialogs();
    EXPECT_EQ(m_host.Support().Read("uiStates.xml"), text);

    EXPECT_EQ(Manager().GetDialogStates()->GetDialogStateById(L"OLD")->GetLeft(), 5);
    EXPECT_EQ(Manager().GetDialogStates(), Manager().GetDialogStates());
    m_host.Support().Write("uiStates.xml", "");
    Manager().SaveDialogStates();
    EXPECT_NE(m_host.Support().Read("uiStates.xml").find("OLD"), std::string::npos);
}

} // namespace
} // namespace Orvane::Workspace
