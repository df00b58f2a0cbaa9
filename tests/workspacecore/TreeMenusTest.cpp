// Contents of menus, and commands by menu id.
#include <algorithm>
#include <gtest/gtest.h>

#include "platform/arx/ApDocManager.h"
#include "platform/mfc/Menu.h"
#include "siblings/giscore/systems/SystemManager.h"
#include "tests/support/Rows.h"
#include "tests/support/TestHost.h"
#include "tests/support/TreeOutline.h"
#include "workspacecore/panel/TreeMenus.h"

namespace Orvane::Workspace {
namespace {

constexpr auto kOtherGroup = static_cast<enmCommandGroup>(3);
constexpr auto kFarGroup = static_cast<enmCommandGroup>(23);

/// A command; for items of the type WsItemSystem by default.
struct Entry {
    const wchar_t* id;
    enmCommandGroup group;
    enmEntityType entityType = EntityNone;
    enmTreeCommandBehavior behavior = TreeBehaviorNone;
    const wchar_t* tag = L"";
    unsigned long itemTypes = WsItemSystem;
    std::vector<CWsTopologyData> topologies = {};
};

void Fill(CWsCommandRegistry& registry, const std::vector<Entry>& entries) {
    for (const Entry& entry : entries) {
        auto command = boost::make_shared<CWsCommand>();
        command->SetId(entry.id);
        command->SetName(entry.id);
        command->SetCmdGroup(entry.group);
        command->SetEntityType(entry.entityType);
        command->SetTreeCmdBehavior(entry.behavior);
        command->SetRepositoryTag(entry.tag);
        command->SetWsItemTypes(entry.itemTypes);
        for (const CWsTopologyData& data : entry.topologies) {
            command->AddWsTopologyData(boost::make_shared<CWsTopologyData>(data));
        }
        registry.AddWsCommand(command);
    }
}

std::string Names(const MenuEntries& entries) {
    std::string names;
    for (const MenuEntry& entry : entries) {
        names += (entry ? Narrow(entry->GetId()) : "-") + " ";
    }
    return names;
}

/// "text:id" of the items.
std::string Shown(const CMenu& menu) {
    std::string shown;
    for (UINT place = 0; place < menu.GetMenuItemCount(); ++place) {
        shown += Narrow(menu.GetMenuString(place)) + ":" +
                 std::to_string(menu.GetMenuItemID(place)) + " ";
    }
    return shown;
}

CWsTreeItemDefinition Item(enmEntityType entityType, const wchar_t* tag = L"") {
    CWsTreeItemDefinition definition;
    definition.SetWsItemType(WsItemSystem);
    definition.SetEntityType(entityType);
    definition.SetRepositoryTag(tag);
    return definition;
}

TEST(TreeMenus, SectionsAreFilteredByEntityAndDividedForTheSakeOfWhatFollows) {
    const Rows<const char*, std::vector<Entry>, enmEntityType, const char*> cases = {
        {"nothing", {}, EntityNode, ""},
        {"in order of group, then of adding, without the hidden ones",
         {{L"far", kFarGroup},
          {L"edit", CommandGroupEdit},
          {L"hidden", CommandGroupHidden},
          {L"beyond", static_cast<enmCommandGroup>(24)},
          {L"edit2", CommandGroupEdit},
          {L"add", CommandGroupAdd}},
         EntityNone,
         "add - edit edit2 - far "},
        {"an emptied section between two",
         {{L"a", CommandGroupAdd}, {L"b", CommandGroupEdit, EntitySection}, {L"c", kOtherGroup}},
         EntityNode,
         "a - c "},
        {"an emptied first section leaves its separator",
         {{L"a", CommandGroupAdd, EntitySection}, {L"b", CommandGroupEdit}},
         EntityNode,
         "- b "},
        {"an emptied last section leaves nothing",
         {{L"a", CommandGroupAdd}, {L"b", CommandGroupEdit, EntitySection}},
         EntityNode,
         "a "},
        {"all emptied", {{L"a", CommandGroupAdd, EntitySection}}, EntityNode, ""},
        {"entities: none on either side, or the same",
         {{L"all", CommandGroupAdd},
          {L"node", CommandGroupAdd, EntityNode},
          {L"pipe", CommandGroupAdd, EntitySection}},
         EntityNode,
         "all node "},
        {"an item of no kind of entity shows all",
         {{L"node", CommandGroupAdd, EntityNode}, {L"pipe", CommandGroupAdd, EntitySection}},
         EntityNone,
         "node pipe "},
    };
    for (const auto& [what, entries, item, expected] : cases) {
        CWsCommandRegistry registry;
        Fill(registry, entries);
        EXPECT_EQ(Names(TreeMenuEntries(registry, MenuTopology(), Item(item))), expected) << what;
    }
}

TEST(TreeMenus, CommandsAreAskedForByFamilyKindAndTopology) {
    const TestHost host;
    acDocManagerPtr()->newDocument(L"a.dwg");
    auto& systems = *System::CSystemManager::Instance();
    System::CGisSystem* const pWater = systems.CreateSystem(L"W", TopologyLine, 1);
    System::CGisSystem* const pSewer = systems.CreateSystem(L"S", TopologyLine, 2);
    System::CGisSystem* const pArea = systems.CreateSystem(L"A", TopologyPolygon, 0);
    const auto entry = [](const wchar_t* id, const wchar_t* tag, unsigned long itemTypes,
                          std::vector<CWsTopologyData> topologies) {
        return Entry{id,  CommandGroupAdd, EntityNone,           TreeBehaviorAdd,
                     tag, itemTypes,       std::move(topologies)};
    };
    CWsCommandRegistry& registry = *CWsManager::Instance()->CmdMgr()->GetCommandRegistry();
    Fill(registry, {entry(L"water", L"Q", WsItemSystem, {{TopologyLine, 1}}),
                    entry(L"line", L"Q", WsItemSystem, {{TopologyLine, 1}, {TopologyLine, 2}}),
                    entry(L"area", L"Q", WsItemSystem, {{TopologyPolygon, 0}}),
                    entry(L"nowhere", L"Q", WsItemSystem, {}),
                    entry(L"theme", L"THEME", WsItemSystem, {{TopologyLine, 1}}),
                    entry(L"every", L"0", WsItemSystem | WsItemRepository, {{TopologyLine, 1}}),
                    entry(L"folder", L"Q", WsItemRepository, {{TopologyLine, 1}})});
    const Rows<System::CGisSystem*, const wchar_t*, enmWSTreeItemType, const char*> cases = {
        {pWater, L"Q", WsItemSystem, "water line every "},
        {pSewer, L"Q", WsItemSystem, "line "},
        {pArea, L"Q", WsItemSystem, "area "},
        {nullptr, L"Q", WsItemSystem, "water line area nowhere every "},
        {pWater, L"THEME", WsItemSystem, "theme every "},
        {pWater, L"", WsItemSystem, "water line theme every "},
        {pWater, L"Q", WsItemRepository, "every folder "},
        {pWater, L"Q", WsItemSystemManager, ""},
    };
    for (const auto& [pSystem, itsTag, itemType, itsExpected] : cases) {
        CWsTreeItemDefinition definition = Item(EntityNone, itsTag);
        definition.SetWsItemType(itemType);
        const MenuTopology topology(pSystem);
        EXPECT_EQ(Names(TreeMenuEntries(registry, topology, definition)), itsExpected);
        const std::string added = Names(AddMenuEntries(registry, topology, &definition));
        EXPECT_EQ(added, itsExpected + std::string(*itsExpected ? "- " : ""));
        CWsTreeItemData data;
        data.SetPtrItemDefinition(boost::make_shared<CWsTreeItemDefinition>(definition));
        CMenu menu;
        menu.CreatePopupMenu();
        CWsManager::Instance()->TreeMgr()->GetMenuBar(menu, &data, pSystem);
        const std::string expected = itsExpected;
        EXPECT_EQ(menu.GetMenuItemCount(), std::count(expected.begin(), expected.end(), ' '))
            << "its entries alone, in one section";
    }
}

TEST(TreeMenus, TheAddMenuHasThreeBlocks) {
    const std::vector<Entry> entries = {
        {L"ADD_Q", CommandGroupAdd, EntityNone, TreeBehaviorAdd, L"Q"},
        {L"ADD_SEND", CommandGroupAdd, EntityNone, TreeBehaviorAdd, L"Q"},
        {L"ADD_send", CommandGroupAdd, EntityNone, TreeBehaviorAdd, L"Q"},
        {L"ADD_P", CommandGroupAdd, EntitySection, TreeBehaviorAdd, L"Q"},
        {L"EDIT_Q", CommandGroupAdd, EntityNone, TreeBehaviorEdit, L"Q"},
        {L"close1", CommandGroupLast},
        {L"SYSTEM_ADD", CommandGroupAdd, EntityNone, TreeBehaviorSystemAdd},
        {L"general3", kOtherGroup, EntityNone, TreeBehaviorSystemAdd},
        {L"closing5", CommandGroupLast, EntityNone, TreeBehaviorSystemAdd},
        {L"general1", CommandGroupAdd, EntityNone, TreeBehaviorSystemAdd}};
    CWsCommandRegistry registry;
    Fill(registry, entries);
    const CWsTreeItemDefinition selected = Item(EntityNode, L"Q");
    EXPECT_EQ(Names(AddMenuEntries(registry, MenuTopology(), &selected)),
              "ADD_Q ADD_send - SYSTEM_ADD - general3 - general1 - close1 closing5 ");
    EXPECT_EQ(Names(AddMenuEntries(registry, MenuTopology(), nullptr)),
              "SYSTEM_ADD - general3 - general1 - close1 closing5 ");

    CWsCommandRegistry other;
    Fill(other, {{L"general3", kOtherGroup, EntityNone, TreeBehaviorSystemAdd}});
    EXPECT_EQ(Names(AddMenuEntries(other, MenuTopology(), &selected)), "- general3 ")
        << "the group that counts as current is 1 at first";
    EXPECT_EQ(Names(AddMenuEntries(CWsCommandRegistry(), MenuTopology(), nullptr)), "");
}

TEST(TreeMenus, GetMenuBarAppendsAndAChosenIdLeadsBackToItsCommand) {
    const TestHost host;
    CWsManager& manager = *CWsManager::Instance();
    Fill(*manager.CmdMgr()->GetCommandRegistry(),
         {{L"b", CommandGroupEdit}, {L"a", CommandGroupAdd}});
    CMenu menu;
    menu.CreatePopupMenu();
    EXPECT_EQ(manager.TreeMgr()->GetMenuBar(menu, nullptr, nullptr), 0);
    CWsTreeItemData data;
    EXPECT_EQ(manager.TreeMgr()->GetMenuBar(menu, &data, nullptr), 0) << "no definition";
    EXPECT_EQ(menu.GetMenuItemCount(), 0U);
    data.SetPtrItemDefinition(boost::make_shared<CWsTreeItemDefinition>(Item(EntityNone)));
    menu.AppendMenu(MF_STRING, 1, L"before");
    EXPECT_EQ(manager.TreeMgr()->GetMenuBar(menu, &data, nullptr), 1);
    EXPECT_EQ(Shown(menu), "before:1 a:2 :0 b:1 ");
    EXPECT_EQ(manager.TreeMgr()->GetMenuCommand(2)->GetId(), L"a");
    EXPECT_EQ(manager.TreeMgr()->GetMenuCommand(99), nullptr);
}

} // namespace
} // namespace Orvane::Workspace
