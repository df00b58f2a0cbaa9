// The column of panels: who gets a place, how gaps close, and when dialogs are made.
#include "tests/support/Rows.h"
#include "tests/workspacecore/panel/WsTestDialog.h"

#include "siblings/giscore/notification/Publisher.h"
#include "workspacecore/dialogs/WsPanelDialog.h"

namespace Orvane::Workspace {
namespace {

constexpr enmPanelDialogPosition At(int place) {
    return static_cast<enmPanelDialogPosition>(place);
}

struct PanelFactory : WsTestFactory {
    explicit PanelFactory(CString id) : known(std::move(id)) {}
    CWsPanelDialog* CreateWsPanelDialog(CWnd* pParent, const wchar_t* id) override {
        asked.push_back(WideToUtf8(id));
        parent = pParent;
        if (known != id) {
            return nullptr;
        }
        panel = std::make_unique<CWsPanelDialog>(0, id, pParent, nullptr);
        return panel.get();
    }
    CString known;
    CWnd* parent = nullptr;
    std::unique_ptr<CWsPanelDialog> panel;
};

class WsPanelDialogManagerTest : public WsDialogTest {
protected:
    static CWsPanelDialogManager& Panels() { return *CWsManager::Instance()->PDlgMgr(); }
    static boost::shared_ptr<CWsPanelDialogMetadata> Describe(const wchar_t* id, int place) {
        auto metadata = boost::make_shared<CWsPanelDialogMetadata>();
        metadata->SetDialogId(id);
        metadata->SetPanelPosition(At(place));
        return metadata;
    }
    static boost::shared_ptr<PanelFactory> AddPanelFactory(const wchar_t* id) {
        auto factory = boost::make_shared<PanelFactory>(id);
        CWsManager::Instance()->RegisterWsDialogFactory(factory);
        return factory;
    }
    /// Ids at positions 0 to 9; "-" for a free one.
    static std::string Column(CWsPanelDialogManager& panels = Panels()) {
        std::string column;
        for (int place = 0; place < 10; ++place) {
            const auto metadata = panels.GetWsPanelMetadata(At(place));
            EXPECT_EQ(panels.IsButtonFree(At(place)), metadata ? 0 : 1) << place;
            column += metadata ? WideToUtf8(metadata->GetDialogId().View()) : "-";
        }
        return column;
    }
};

TEST_F(WsPanelDialogManagerTest, TheFirstOfAPlaceKeepsIt) {
    EXPECT_EQ(Panels().RegisterWsPanelDialog(nullptr), 0);
    EXPECT_EQ(Panels().RegisterWsPanelDialog(Describe(L"a", 3)), 1);
    EXPECT_EQ(Panels().RegisterWsPanelDialog(Describe(L"b", 3)), 0);
    CWsManager::Instance()->RegisterWsPanelDialog(Describe(L"c", 4));
    EXPECT_EQ(Column(), "---ac-----");
    EXPECT_EQ(Panels().RegisterWsPanelDialog(Describe(L"d", 7)), 1)
        << "a place that was asked about is free nevertheless";
    EXPECT_EQ(Column(), "---ac--d--");
}

TEST_F(WsPanelDialogManagerTest, GapsCloseUpward) {
    const Rows<const char*, std::vector<std::pair<const wchar_t*, int>>, const char*, const char*>
        cases = {
            {"nothing", {}, "----------", "----------"},
            {"by place, not by time", {{L"a", 5}, {L"b", 2}}, "--b--a----", "ba--------"},
            {"a full column",
             {{L"h", 7},
              {L"a", 0},
              {L"b", 1},
              {L"c", 2},
              {L"d", 3},
              {L"e", 4},
              {L"f", 5},
              {L"g", 6}},
             "abcdefgh--",
             "abcdefgh--"},
            {"beyond the column", {{L"a", 9}, {L"b", 8}, {L"c", 7}}, "-------cba", "c---------"},
            {"before the column", {{L"a", -1}, {L"b", 1}}, "-b--------", "b---------"},
        };
    for (const auto& [what, registered, before, after] : cases) {
        CWsPanelDialogManager panels = Panels();
        for (const auto& [id, place] : registered) {
            EXPECT_EQ(panels.RegisterWsPanelDialog(Describe(id, place)), 1) << what;
        }
        EXPECT_EQ(Column(panels), before) << what;
        panels.StackRegisteredPanelButtons();
        EXPECT_EQ(Column(panels), after) << what;
        panels.StackRegisteredPanelButtons();
        EXPECT_EQ(Column(panels), after) << what << ", again";
    }
}

TEST_F(WsPanelDialogManagerTest, ADialogIsMadeOnceAndByWhoKnowsIt) {
    CWsManager& manager = *CWsManager::Instance();
    const auto stranger = AddPanelFactory(L"other");
    manager.RegisterWsDialogFactory(nullptr);
    const auto maker = AddPanelFactory(L"a");
    const auto late = AddPanelFactory(L"a");
    Panels().RegisterWsPanelDialog(Describe(L"a", 3));
    EXPECT_EQ(Panels().GetWsPanelDialogByPosition(At(2)), nullptr) << "a free place";
    CWsPanelDialog* const pDialog = Panels().GetWsPanelDialogByPosition(At(3));
    ASSERT_NE(pDialog, nullptr);
    EXPECT_EQ(pDialog, maker->panel.get());
    EXPECT_EQ(pDialog->GetDialogId(), L"a");
    EXPECT_EQ(maker->parent, Panels().GetMainWorkspaceDlg());
    EXPECT_EQ(Panels().GetWsPanelDialogByPosition(At(3)), pDialog);
    EXPECT_EQ(stranger->asked.size(), 1U);
    EXPECT_EQ(maker->asked.size(), 1U);
    EXPECT_EQ(late->asked.size(), 0U);
    EXPECT_FALSE(manager.DlgMgr()->IsDialogCreated(L"a")) << "it is registered nowhere";
}

TEST_F(WsPanelDialogManagerTest, AnIdIsFoundInAnyCaseAmongFreePlaces) {
    const auto factory = AddPanelFactory(L"Ab");
    Panels().IsButtonFree(At(0));
    Panels().IsButtonFree(At(7));
    Panels().RegisterWsPanelDialog(Describe(L"Ab", 4));
    EXPECT_EQ(Panels().GetWsPanelDialogById(L""), nullptr) << "a free place has no id";
    EXPECT_EQ(Panels().GetWsPanelDialogById(L"Abc"), nullptr);
    EXPECT_EQ(factory->asked.size(), 0U);
    EXPECT_NE(Panels().GetWsPanelDialogById(L"aB"), nullptr);
    EXPECT_EQ(Panels().GetWsPanelDialogById(L"AB"), factory->panel.get());
}

TEST_F(WsPanelDialogManagerTest, AnIdLeadsToThePlaceThatWasAskedFor) {
    const auto factory = AddPanelFactory(L"a");
    Panels().RegisterWsPanelDialog(Describe(L"a", 5));
    Panels().RegisterWsPanelDialog(Describe(L"b", 1));
    Panels().RegisterWsPanelDialog(Describe(L"c", 0));
    Panels().StackRegisteredPanelButtons();
    EXPECT_EQ(Column(), "cba-------");
    EXPECT_EQ(Panels().GetWsPanelMetadata(At(2))->GetPanelPosition(), At(5));
    EXPECT_EQ(Panels().GetWsPanelDialogById(L"a"), nullptr) << "place 5 is free now";
    EXPECT_EQ(factory->asked.size(), 0U);
    EXPECT_NE(Panels().GetWsPanelDialogByPosition(At(2)), nullptr);
}

} // namespace
} // namespace Orvane::Workspace
