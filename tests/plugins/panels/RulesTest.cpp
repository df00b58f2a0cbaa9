// The rules of trees and dialogs, without a window.
#include <boost/make_shared.hpp>

#include "platform/win/CodePage.h"
#include "plugins/panels/DrawingReports.h"
#include "plugins/panels/EntityProperties.h"
#include "plugins/panels/EntitySearch.h"
#include "plugins/panels/EntityTexts.h"
#include "plugins/panels/TreeContent.h"
#include "plugins/panels/TreeOutline.h"
#include "plugins/panels/TreeRules.h"
#include "tests/support/TestDrawing.h"

using namespace Orvane;
using namespace Orvane::Panels;
using Workspace::CWsTreeItemData;

namespace {

std::string Narrow(const CString& text) {
    return WideToUtf8(text.View());
}

/// The test tables' description of a node.
struct Kind {
    const wchar_t* tag = L"";
    const wchar_t* guid = L"";
    bool takesQuery = false;
    bool takesItem = false;
    bool canDrag = true;
    bool canRename = true;
};

CWsTreeItemData Node(const Kind& kind) {
    const auto definition = boost::make_shared<Workspace::CWsTreeItemDefinition>();
    definition->SetRepositoryTag(kind.tag);
    definition->SetAcceptQueryDrop(kind.takesQuery);
    definition->SetAcceptRepositoryItemDrop(kind.takesItem);
    definition->SetAllowDragBegin(kind.canDrag);
    definition->SetAllowRename(kind.canRename);
    definition->SetCmdIdQueryDrop(L"QUERYDROP");
    definition->SetCmdIdRepositoryItemDrop(L"ITEMDROP");
    definition->SetCmdIdDoubleClick(L"DBLCLICK");
    definition->SetCmdIdRename(L"REN");
    CWsTreeItemData node;
    node.SetPtrItemDefinition(definition);
    node.SetGuid(kind.guid);
    return node;
}

class Rules : public TestDrawing {
protected:
    Rules() : m_system(MakeSystem(L"Town")) {
        const Topology::AttributeData high[] = {{"ELEVATION", 12.5}, {"NOTE", "Straße"}};
        const Topology::AttributeData thick[] = {{"DIAMETER", 400}, {"LENGTH", 20.0}};
        m_a = Storage().AddNode(m_system, {"A1", {0, 0}, "Tank", high});
        m_b = Storage().AddNode(m_system, {"xa1", {10, 0}});
        Storage().AddNode(m_system, {"A10", {30, 0}, "Valve"});
        m_pipe = Storage().AddSection(m_system, {"Ärmel", {m_a}, {m_b}, {}, "Pipe", thick});
        m_lone = Storage().AddSection(m_system, {"Lone", {m_a}, {{}, "gone"}, {}});
        Storage().AddNode(MakeSystem(L"Other"), {"A1", {5, 5}});
    }
    System::CGisSystem& m_system;
    AcDbObjectId m_a;
    AcDbObjectId m_b;
    AcDbObjectId m_pipe;
    AcDbObjectId m_lone;
};

} // namespace

TEST(TreePaths, LeadToTheNodeWithTheLongestNameThatFits) {
    const TestHost host;
    TreeNode root;
    root.name = L"Systems";
    const auto add = [](TreeNode& parent, const wchar_t* name) {
        TreeNode node;
        node.name = name;
        parent.children.push_back(node);
        return parent.children.size() - 1;
    };
    for (const wchar_t* name : {L"Town", L"Town/west", L"", L"Town/west/"}) {
        const std::size_t place = add(root, name);
        add(root.children[place], L"Queries");
    }
    const struct {
        const wchar_t* path;
        const char* node;
        const char* rest;
    } cases[] = {
        {L"", "Systems", ""},
        {L"Town", "Town", ""},
        {L"tOWN/queries", "Queries", ""},
        {L"Town/west", "Town/west", ""},
        {L"Town/west/Queries", "Queries", ""},
        {L"Town/", "Town", ""},
        {L"Town/wes", "Town", "wes"},
        {L"Towns", "Systems", "Towns"},
        {L"/Town", "Systems", "/Town"},
        {L"Town/Queries/x/y", "Queries", "x/y"},
    };
    for (const auto& row : cases) {
        const PathResult result = FollowPath(root, row.path);
        EXPECT_EQ(Narrow(result.pNode->name), row.node) << WideToUtf8(row.path);
        EXPECT_EQ(Narrow(result.rest), row.rest) << WideToUtf8(row.path);
    }
    EXPECT_EQ(Narrow(DeadEnd(FollowPath(root, L"Town/wes"))),
              "There is no \"wes\" in \"Town\". Available: Queries");
    EXPECT_EQ(Narrow(DeadEnd(FollowPath(root, L"Town/Queries/x"))),
              "There is no \"x\" in \"Queries\". It has no children.");
}

TEST(TreeDrops, GoWhereFamilyAndTargetAllow) {
    const Kind query{L"QUERY", L"q"};
    const Kind theme{L"THEME", L"t"};
    const struct {
        const char* what;
        Kind dragged;
        Kind target;
        const char* command;
        bool isQuery;
    } cases[] = {
        {"a query on a theme", query, {L"THEME", L"x", true, true}, "QUERYDROP", true},
        {"a query on the themes", query, {L"THEME", L"", true, true}, "", false},
        {"a query on a query", query, {L"query", L"x", true, true}, "QUERYDROP", true},
        {"a query on the queries", query, {L"query", L"", false, true}, "ITEMDROP", false},
        {"a query on a system", query, {L"", L"s", false, true}, "ITEMDROP", false},
        {"a theme on a theme", theme, {L"THEME", L"x", true, true}, "ITEMDROP", false},
        {"a theme on a query", theme, {L"QUERY", L"x", true, true}, "", false},
        {"what takes nothing", theme, {L"THEME", L"x"}, "", false},
        {"a folder", {L"THEME", L""}, {L"", L"s", false, true}, "", false},
        {"what stays", {L"THEME", L"t", false, false, false}, {L"", L"s", false, true}, "", false},
    };
    for (const auto& row : cases) {
        const DropPlan plan = PlanDrop(Node(row.dragged), Node(row.target));
        EXPECT_EQ(Narrow(plan.commandId), row.command) << row.what;
        EXPECT_EQ(plan.isQuery, row.isQuery) << row.what;
    }
    const CWsTreeItemData self = Node({L"THEME", L"t", true, true});
    EXPECT_TRUE(PlanDrop(self, self).commandId.IsEmpty());
    EXPECT_TRUE(PlanDrop(CWsTreeItemData(), self).commandId.IsEmpty());
    EXPECT_TRUE(PlanDrop(self, CWsTreeItemData()).commandId.IsEmpty());
    const CWsTreeItemData folder = Node({L"THEME", L"", false, true});
    self.GetPtrItemDefinition()->SetEntityType(EntitySection);
    self.GetPtrItemDefinition()->SetCmdIdRepositoryItemDrop(L"RPODROP_THEME_2");
    EXPECT_EQ(Narrow(PlanDrop(self, folder).commandId), "RPODROP_THEME_2");
}

TEST(TreeCommands, OfAFolderAreNone) {
    const struct {
        const char* what;
        Kind node;
        const char* doubleClick;
        const char* rename;
    } cases[] = {
        {"a configuration", {L"QUERY", L"q"}, "DBLCLICK", "REN"},
        {"its folder", {L"QUERY", L""}, "", ""},
        {"a system", {L"", L"s"}, "DBLCLICK", "REN"},
        {"a tool", {L"", L""}, "DBLCLICK", ""},
        {"a fixed name", {L"QUERY", L"q", false, false, true, false}, "DBLCLICK", ""},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(Narrow(DoubleClickCommand(Node(row.node))), row.doubleClick) << row.what;
        EXPECT_EQ(Narrow(RenameCommand(Node(row.node))), row.rename) << row.what;
    }
    EXPECT_TRUE(DoubleClickCommand(CWsTreeItemData()).IsEmpty());
}

TEST_F(Rules, SearchMeetsAnyPartAndPutsTheNameItselfFirst) {
    const int town = m_system.GetSystemId();
    const struct {
        const char* what;
        EntitySearch search;
        const char* found; ///< name and where it matched
        std::size_t count;
    } cases[] = {
        {"names", {L"a1", town, SearchIn::Name}, "A1:A1 A10:A10 xa1:xa1 ", 3},
        {"all systems", {L"A1", 0, SearchIn::Name}, "A1:A1 A1:A1 A10:A10 xa1:xa1 ", 4},
        {"kinds", {L"TANK", 0, SearchIn::Kind}, "A1:Tank ", 1},
        {"no kind is a name", {L"tank", 0, SearchIn::Name}, "", 0},
        {"numbers", {L"2.5", 0, SearchIn::Attributes}, "A1:ELEVATION = 12.5 ", 1},
        {"other letters", {L"äRM", 0, SearchIn::Everywhere}, "Ärmel:Ärmel ", 1},
        {"in a text with them", {L"STRA", 0, SearchIn::Everywhere}, "A1:NOTE = Straße ", 1},
        {"internal attributes are not searched", {L"1", 9999, SearchIn::Everywhere}, "", 0},
        {"nothing stands for all", {L"", town, SearchIn::Name}, "A1: xa1: A10: Ärmel: Lone: ", 5},
    };
    for (const auto& row : cases) {
        const SearchResult result = SearchDrawing(row.search, 10);
        std::string found;
        for (const FoundEntity& entity : result.entities) {
            found += Narrow(entity.name) + ":" + Narrow(entity.foundIn) + " ";
        }
        EXPECT_EQ(found, row.found) << row.what;
        EXPECT_EQ(result.count, row.count) << row.what;
    }
    const SearchResult few = SearchDrawing({L"a1", 0, SearchIn::Name}, 2);
    EXPECT_EQ(few.count, 4U);
    ASSERT_EQ(few.entities.size(), 2U);
    EXPECT_EQ(Narrow(few.entities[1].system), "Other") << "the best matches are kept";
}

TEST_F(Rules, PropertiesKeepTheirKind) {
    const struct {
        AcDbObjectId id;
        const wchar_t* label;
        const wchar_t* text;
        const char* reason;
        const char* value;
    } cases[] = {
        {m_a, L"Name", L" B2 ", "", "B2"},
        {m_a, L"Name", L"  ", "A name is required.", "B2"},
        {m_a, L"elevation", L"-3.25", "", "-3.25"},
        {m_a, L"ELEVATION", L"", "\"\" is not a number; ELEVATION must be one.", "-3.25"},
        {m_a, L"ELEVATION", L"1,5", "\"1,5\" is not a number; ELEVATION must be one.", "-3.25"},
        {m_a, L"NOTE", L"12", "", "12"},
        {m_a, L"NOTE", L"a \"b\"", "", "a \"b\""},
        {m_a, L"Position", L"1, 1", "\"Position\" cannot be changed.", "0.00, 0.00"},
        {m_pipe, L"DIAMETER", L"300", "", "300"},
        {m_pipe, L"DIAMETER", L"300.5", "", "300.5"},
        {m_pipe, L"From node", L"x", "\"From node\" cannot be changed.", "B2"},
        {m_lone, L"To node", L"x", "\"To node\" cannot be changed.", "gone"},
    };
    for (const auto& row : cases) {
        const auto entity = FindEntity(row.id);
        const auto before = PropertiesOf(entity);
        const EntityProperty* const pProperty = FindProperty(before, row.label);
        ASSERT_NE(pProperty, nullptr) << WideToUtf8(row.label);
        EXPECT_EQ(Narrow(SetProperty(entity, *pProperty, row.text)), row.reason);
        const auto after = PropertiesOf(entity);
        EXPECT_EQ(Narrow(FindProperty(after, row.label)->value), row.value)
            << WideToUtf8(row.label);
    }
    EXPECT_TRUE(PropertiesOf(FindEntity({})).empty());
    EXPECT_TRUE(PropertiesOf(FindEntity(Document()->database()->modelSpace())).empty());
}

TEST_F(Rules, TheLegendTellsColoursApartAndLeavesOutWhatIsOff) {
    AcDbDatabase& drawing = *Document()->database();
    AcDbEntity* pPipe = nullptr;
    ASSERT_EQ(acdbOpenObject(pPipe, m_pipe, AcDb::kForWrite, false, &drawing), Acad::eOk);
    pPipe->setColorIndex(1);
    pPipe->close();
    const auto legend = [&] {
        std::string text;
        for (const LegendRow& row : LegendOf(drawing)) {
            text += Narrow(row.layer) + " " + std::to_string(row.colorIndex) + " " +
                    std::to_string(row.count) + "; ";
        }
        return text;
    };
    EXPECT_EQ(legend(), "Town sections 150 1; Town sections 1 1; Town nodes 7 3; "
                        "Other nodes 7 1; ");
    System::CSystemManager::Instance()->SetSystemInvisible(&m_system);
    EXPECT_EQ(legend(), "Other nodes 7 1; ");
}
