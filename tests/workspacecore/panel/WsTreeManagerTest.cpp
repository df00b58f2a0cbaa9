// The way to the trees, their icons, and the user's order.
#include "tests/mfc/WindowTest.h"

#include <algorithm>
#include <array>
#include <set>

#include "platform/mfc/TreeCtrl.h"
#include "tests/mfc/TestDialog.h"
#include "tests/support/TestHost.h"
#include "tests/support/TreeOutline.h"
#include "workspacecore/resources/Icons.h"

namespace Orvane::Workspace {
namespace {

class WsTreeManagerTest : public DialogOnScreenTest {
protected:
    void SetUp() override {
        DialogOnScreenTest::SetUp();
        for (std::size_t i = 0; i < m_views.size(); ++i) {
            m_views[i].Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 80), m_pDialog.get(),
                              100 + static_cast<UINT>(i));
        }
    }
    void TearDown() override {
        for (CTreeCtrl& view : m_views) {
            view.DestroyWindow();
        }
        DialogOnScreenTest::TearDown();
    }
    void RegisterViews() {
        CWsManager& manager = *CWsManager::Instance();
        manager.RegisterTreeControl(&m_views[0]);
        manager.RegisterDiskTreeControl(&m_views[1]);
        manager.RegisterNetTreeControl(&m_views[2]);
    }

    TestHost m_host;
    std::array<CTreeCtrl, 3> m_views;
};

TEST_F(WsTreeManagerTest, EachTreeAnswersForItself) {
    CWsTreeManager& trees = *CWsManager::Instance()->TreeMgr();
    const HTREEITEM stranger = m_views[0].InsertItem(L"x");
    EXPECT_EQ(trees.GetItemData(stranger), nullptr) << "no view is registered";
    EXPECT_EQ(trees.GetSelectedItemNet(), nullptr);
    EXPECT_EQ(trees.GetItemDataByPositionDisk(), nullptr);
    trees.DeleteTreeItem(stranger);
    EXPECT_EQ(m_views[0].GetCount(), 1U);

    RegisterViews();
    std::array<CWsTreeItemData, 3> data;
    std::array<HTREEITEM, 3> items{};
    for (std::size_t i = 0; i < items.size(); ++i) {
        items[i] = m_views[i].InsertItem(L"node");
        m_views[i].SetItemData(items[i], reinterpret_cast<DWORD_PTR>(&data[i]));
        m_views[i].SelectItem(items[i]);
    }
    EXPECT_EQ(trees.GetTreeControl(), &m_views[0]);
    EXPECT_EQ(trees.GetDiskTreeControl(), &m_views[1]);
    EXPECT_EQ(trees.GetNetTreeControl(), &m_views[2]);
    EXPECT_EQ(trees.GetSelectedItemData(), &data[0]);
    EXPECT_EQ(trees.GetSelectedItemDataDisk(), &data[1]);
    EXPECT_EQ(trees.GetSelectedItemDataNet(), &data[2]);
    EXPECT_EQ(trees.GetItemData(stranger), nullptr) << "a node without data";
    EXPECT_EQ(trees.GetItemData(nullptr), nullptr);
}

TEST_F(WsTreeManagerTest, TheNodeUnderTheCursorOfTheMessageInHand) {
    RegisterViews();
    const HTREEITEM first = m_views[0].InsertItem(L"first");
    const HTREEITEM second = m_views[0].InsertItem(L"second");
    AfxPumpMessages();
    CWsTreeManager& trees = *CWsManager::Instance()->TreeMgr();
    std::vector<HTREEITEM> met;
    m_pDialog->onNotify = [&](NMHDR* header) -> LRESULT {
        if (header->code == NM_RCLICK) {
            met.push_back(trees.GetItemByPosition());
        }
        return 0;
    };
    for (const HTREEITEM item : {second, first}) {
        const CRect line = m_views[0].GetItemRect(item, true);
        QTest::mouseClick(WidgetOf(m_views[0]), Qt::RightButton, {},
                          QPoint(line.left + 2, line.top + 2));
    }
    EXPECT_EQ(met, (std::vector<HTREEITEM>{second, first}));
}

TEST_F(WsTreeManagerTest, DeletingANodeWithChildrenTakesTwoCalls) {
    RegisterViews();
    CWsTreeManager& trees = *CWsManager::Instance()->TreeMgr();
    CTreeCtrl& view = m_views[1];
    const HTREEITEM root = view.InsertItem(L"root");
    for (int i = 0; i < 3; ++i) {
        view.InsertItem(L"leaf", -1, -1, view.InsertItem(L"branch", -1, -1, root));
    }
    trees.DeleteTreeItemDisk(root);
    EXPECT_EQ(view.GetCount(), 1U);
    trees.DeleteTreeItemDisk(nullptr);
    trees.DeleteTreeItemDisk(root);
    EXPECT_EQ(view.GetCount(), 0U);
}

TEST_F(WsTreeManagerTest, IconsAreFoundByTheirKind) {
    CWsTreeManager& trees = *CWsManager::Instance()->TreeMgr();
    const HICON system = ModuleIcon(IconSystem);
    ASSERT_NE(system, nullptr);
    EXPECT_EQ(trees.GetSystemIcon(), system);
    for (const enmTopologyType type : {TopologyLine, TopologyPolygon, TopologyPoint}) {
        EXPECT_EQ(trees.GetSystemIcon(type), system);
    }
    EXPECT_EQ(trees.GetSystemIcon(TopologyScheme), nullptr);
    EXPECT_EQ(trees.GetSystemManagerIcon(), ModuleIcon(IconSystemManager));
    const HICON unknown = trees.GetEntityTypeIcon(static_cast<enmEntityType>(64));
    ASSERT_NE(unknown, nullptr);
    EXPECT_EQ(trees.GetEntityTypeIcon(EntityLongitudinalSection), unknown);
    std::set<HICON> icons = {unknown,
                             trees.GetDiskRepositoryIcon(),
                             trees.GetSystemToolIcon(),
                             trees.GetSystemTool_DrawIcon(),
                             trees.GetSystemTool_SetDataIcon(),
                             trees.GetSystemTool_EditIcon(),
                             trees.GetSystemTool_ManagerIcon(),
                             trees.GetFastCommandIcon()};
    for (const enmEntityType type : {EntityNode, EntitySection, EntityPolygon, EntityPolygonNode}) {
        icons.insert(trees.GetEntityTypeIcon(type));
    }
    EXPECT_EQ(icons.size(), 12U) << "each its own";
    EXPECT_FALSE(icons.contains(nullptr));
}

/// A system's template with its children in the given order; "tool" is a tool group, all
/// others are families. Sorted by the file, if there is one, and told by number.
std::string Sorted(const TestHost& host, const char* file, std::vector<const wchar_t*> tags) {
    if (file) {
        host.Support().Write("workspaceRepositoryOrder.xml", file);
    }
    CWsTreeManager trees;
    CWsTreeItemDefinitionList& list = *trees.GetTreeItemDefinitionList();
    const auto add = [&](enmWSTreeItemType type, const wchar_t* tag, const std::wstring& id) {
        auto definition = boost::make_shared<CWsTreeItemDefinition>();
        definition->SetId(id.c_str());
        definition->SetWsItemType(type);
        definition->SetRepositoryTag(tag);
        definition->AddWsTopologyData(boost::make_shared<CWsTopologyData>(TopologyPolygon, 0));
        list.AddWsTreeItemDefinition(definition);
    };
    add(WsItemSystem, L"", L"system");
    for (std::size_t i = 0; i < tags.size(); ++i) {
        const bool tool = CString(tags[i]) == L"tool";
        add(tool ? WsItemSystemToolFastCommand : WsItemSystemRepository, tags[i],
            std::to_wstring(i));
    }
    list.InitializeSystemTreeTemplate();
    const auto root = list.GetSystemTreeTemplate(TopologyPolygon, 0);
    auto& children = *root->GetChildren();
    // Assembly puts tool groups first; here they stand anywhere.
    std::sort(children.begin(), children.end(), [](const auto& a, const auto& b) {
        return a->GetItemDefinition()->GetId() < b->GetItemDefinition()->GetId();
    });
    trees.SortTreeTemplate(root);
    std::string order;
    for (const auto& child : children) {
        order += Narrow(child->GetItemDefinition()->GetId());
    }
    TakeApart(root);
    return order;
}

TEST_F(WsTreeManagerTest, TheUsersOrderOfFamilies) {
    const struct {
        const char* what;
        const char* file;
        std::vector<const wchar_t*> tags;
        const char* expected;
    } cases[] = {
        {"no file", nullptr, {L"A", L"tool", L"B", L"tool"}, "1302"},
        {"in the order of the file, without regard to case",
         R"(<sortOrder><r tag="b"/><r tag="C"/><r tag="a"/></sortOrder>)",
         {L"A", L"B", L"tool", L"D", L"c"},
         "21403"},
        {"a tag once takes one, twice two",
         R"(<sortOrder><r tag="B"/><r tag="B"/><r tag="A"/></sortOrder>)",
         {L"A", L"A", L"B", L"B", L"B"},
         "23014"},
        {"what is no r, and an r without a tag",
         R"(<sortOrder><x tag="A"/><r/><r tag="B"><r tag="A"/></r></sortOrder>)",
         {L"A", L"B", L""},
         "210"},
        {"another root", R"(<order><r tag="B"/></order>)", {L"A", L"B"}, "01"},
        {"cut", R"(<sortOrder><r tag="B"/><r ta)", {L"A", L"B"}, "01"},
        {"no XML at all", "\xFF\xFE<", {L"A", L"B"}, "01"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(Sorted(m_host, row.file, row.tags), row.expected) << row.what;
    }
    CWsTreeManager().SortTreeTemplate(nullptr);
}

} // namespace
} // namespace Orvane::Workspace
