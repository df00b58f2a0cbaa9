// Access to the trees, their icons, and the user-defined order.
#include "tests/mfc/WindowTest.h"

#include <algorithm>
#include <array>
#include <cwchar>
#include <functional>

#include "platform/arx/ApDocManager.h"
#include "platform/mfc/Menu.h"
#include "platform/mfc/TreeCtrl.h"
#include "siblings/giscore/icons/Icon.h"
#include "siblings/giscore/systems/SystemManager.h"
#include "tests/mfc/TestDialog.h"
#include "tests/support/Rows.h"
#include "tests/support/TestHost.h"
#include "tests/support/TreeOutline.h"

namespace Orvane::Workspace {
namespace {

class WsTreeManagerTest : public DialogOnScreenTest {
protected:
    void SetUp() override {
        DialogOnScreenTest::SetUp();
        // The views do not overlap vertically.
        for (int i = 0; i < 3; ++i) {
            m_views[static_cast<std::size_t>(i)].Create(
                WS_CHILD | WS_VISIBLE, CRect(0, 60 * i, 100, 60 * i + 50), m_pDialog.get(),
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
    const CWsTreeManager& trees = *CWsManager::Instance()->TreeMgr();
    using Nodes = std::vector<HTREEITEM>;
    Nodes met;
    m_pDialog->onNotify = [&](NMHDR* header) -> LRESULT {
        if (header->code == NM_RCLICK) {
            met = {trees.GetItemByPosition(), trees.GetItemByPositionDisk(),
                   trees.GetItemByPositionNet()};
        }
        return 0;
    };
    for (std::size_t i = 0; i < m_views.size(); ++i) {
        CTreeCtrl& view = m_views[i];
        const HTREEITEM first = view.InsertItem(L"first");
        const HTREEITEM second = view.InsertItem(L"second");
        AfxPumpMessages();
        for (const HTREEITEM item : {second, first}) {
            const CRect line = view.GetItemRect(item, true);
            QTest::mouseClick(WidgetOf(view), Qt::RightButton, {},
                              QPoint(line.left + 2, line.top + 2));
            Nodes expected(3);
            expected[i] = item;
            EXPECT_EQ(met, expected) << "tree " << i;
        }
    }
}

TEST_F(WsTreeManagerTest, AMenuWithoutANodeIsThatOfTheSelectedSystemNode) {
    RegisterViews();
    CWsManager& manager = *CWsManager::Instance();
    std::array<CWsTreeItemData, 2> data;
    for (const int i : {0, 1}) {
        const auto type = i ? WsItemRepository : WsItemSystem;
        auto definition = boost::make_shared<CWsTreeItemDefinition>();
        definition->SetWsItemType(type);
        data[i].SetPtrItemDefinition(definition);
        auto command = boost::make_shared<CWsCommand>();
        command->SetId(std::to_wstring(i).c_str());
        command->SetName(i ? L"of the disk" : L"of the systems");
        command->SetWsItemTypes(type);
        manager.RegisterWsCommand(command);
        CTreeCtrl& view = m_views[static_cast<std::size_t>(i)];
        const HTREEITEM node = view.InsertItem(L"node");
        view.SetItemData(node, reinterpret_cast<DWORD_PTR>(&data[i]));
        view.SelectItem(node);
    }
    for (const auto& [pData, expected] :
         {std::pair<CWsTreeItemData*, const wchar_t*>(nullptr, L"of the systems"),
          std::pair<CWsTreeItemData*, const wchar_t*>(&data[1], L"of the disk")}) {
        CMenu menu;
        menu.CreatePopupMenu();
        EXPECT_EQ(manager.TreeMgr()->GetMenuBar(menu, pData, nullptr), 1);
        ASSERT_EQ(menu.GetMenuItemCount(), 1U);
        EXPECT_EQ(menu.GetMenuString(0), expected);
    }
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
    const struct {
        HICON icon;
        const wchar_t* name;
    } cases[] = {
        {trees.GetSystemManagerIcon(), L"ORV_SYSTEM_MANAGER"},
        {trees.GetSystemIcon(), L"ORV_SYSTEM"},
        {trees.GetSystemIcon(TopologyLine), L"ORV_SYSTEM"},
        {trees.GetSystemIcon(TopologyPolygon), L"ORV_SYSTEM"},
        {trees.GetSystemIcon(TopologyPoint), L"ORV_SYSTEM"},
        {trees.GetDiskRepositoryIcon(), L"IDI_DISKDATA"},
        {trees.GetSystemToolIcon(), L"ORV_IDI_TOOLBOX"},
        {trees.GetSystemTool_DrawIcon(), L"IDI_PENCIL"},
        {trees.GetSystemTool_SetDataIcon(), L"IDI_DATA_EDIT"},
        {trees.GetSystemTool_EditIcon(), L"IDI_WINDOW_EDIT"},
        {trees.GetSystemTool_ManagerIcon(), L"ORV_ID_MANAGER"},
        {trees.GetFastCommandIcon(), L"IDI_FLASH"},
        {trees.GetEntityTypeIcon(EntityNode), L"IDI_NODE"},
        {trees.GetEntityTypeIcon(EntitySection), L"IDI_SECTION"},
        {trees.GetEntityTypeIcon(EntityPolygon), L"ORV_IDI_POLYGON_16X16"},
        {trees.GetEntityTypeIcon(EntityPolygonNode), L"ORV_IDI_POLYGONNODE_16X16"},
        {trees.GetEntityTypeIcon(static_cast<enmEntityType>(64)), L"ORV_IDI_UNKNOWNENTITY"},
        {trees.GetEntityTypeIcon(EntityLongitudinalSection), L"ORV_IDI_UNKNOWNENTITY"},
    };
    for (const auto& row : cases) {
        ASSERT_NE(row.icon, nullptr) << Narrow(row.name);
        EXPECT_EQ(static_cast<const CIcon*>(row.icon)->m_strName, row.name);
    }
    for (const enmTopologyType type : {TopologyScheme, TopologyNone}) {
        EXPECT_EQ(trees.GetSystemIcon(type), nullptr);
    }
    EXPECT_EQ(trees.GetEntityTypeIcon(EntityNode), cases[12].icon) << "the same each time";
}

TEST_F(WsTreeManagerTest, EntitiesAreNamedAsTheActiveSystemDoes) {
    m_host.Support().Write("TopologyConfiguration.ini",
                           "[line]\nentity.1=Node\nfunction.1=W\n[point]\nentity.1=Tree\n");
    const CWsTreeManager& trees = *CWsManager::Instance()->TreeMgr();
    EXPECT_EQ(trees.GetEntityTypeName(EntityNode), L"Node") << "no drawing";
    acDocManagerPtr()->newDocument(L"a.dwg");
    auto& systems = *System::CSystemManager::Instance();
    systems.CreateSystem(L"Water", TopologyLine, 1);
    System::CGisSystem* const pTrees = systems.CreateSystem(L"Trees", TopologyPoint, 0);
    EXPECT_EQ(trees.GetEntityTypeName(EntityNode), L"Node") << "no active system";
    systems.SetSystemActive(pTrees);
    EXPECT_EQ(trees.GetEntityTypeName(EntityNode), L"Tree");
    EXPECT_EQ(trees.GetEntityTypeName(EntityPolygon), L"");
}

/// Sorts the children of a system's template by the file, if there is one; numbers are types of
/// tool groups, other tags are families. Returns the resulting order.
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
        const long tool = std::wcstol(tags[i], nullptr, 10);
        add(tool ? static_cast<enmWSTreeItemType>(tool) : WsItemSystemRepository, tags[i],
            std::to_wstring(i));
    }
    list.InitializeSystemTreeTemplate();
    const auto root = list.GetSystemTreeTemplate(TopologyPolygon, 0);
    auto& children = *root->GetChildren();
    // Assembly puts tool groups first; here they are in any position.
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
    const Rows<const char*, const char*, std::vector<const wchar_t*>, const char*> cases = {
        {"no file: tool groups first, as they stood",
         nullptr,
         {L"A", L"65536", L"1024", L"B", L"32768", L"16384", L"4096", L"8192"},
         "12456703"},
        {"in the order of the file, without regard to case",
         R"(<sortOrder><r tag="b"/><r tag="C"/><r tag="a"/></sortOrder>)",
         {L"A", L"B", L"4096", L"D", L"c"},
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
    for (const auto& [what, file, tags, expected] : cases) {
        EXPECT_EQ(Sorted(m_host, file, tags), expected) << what;
    }
    CWsTreeManager().SortTreeTemplate(nullptr);
}

} // namespace
} // namespace Orvane::Workspace
