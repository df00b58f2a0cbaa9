#include <gtest/gtest.h>

#include "tests/support/Rows.h"
#include "tests/support/TestHost.h"
#include "workspacecore/commands/WsCommandRegistry.h"

namespace Orvane::Workspace {
namespace {

using CommandPtr = CWsCommandRegistry::CommandPtr;

CommandPtr Command(const wchar_t* id) {
    CommandPtr command(new CWsCommand);
    command->SetId(id);
    return command;
}

CommandPtr Listed(const wchar_t* id, const wchar_t* tag, unsigned long types,
                  std::initializer_list<CWsTopologyData> topologies) {
    CommandPtr command = Command(id);
    command->SetRepositoryTag(tag);
    command->SetWsItemTypes(types);
    for (const CWsTopologyData& data : topologies) {
        command->AddWsTopologyData(boost::shared_ptr<CWsTopologyData>(new CWsTopologyData(data)));
    }
    return command;
}

std::wstring Ids(const CWsCommandRegistry::CommandVector& commands) {
    std::wstring ids;
    for (const CommandPtr& command : commands) {
        ids += command->GetId().Str() + L" ";
    }
    return ids;
}

TEST(WsCommandRegistry, MenuIdsCountSuccessfulAddsAndAreNeverReused) {
    CWsCommandRegistry registry;
    const CommandPtr first = Command(L"A");
    const CommandPtr duplicate = Command(L"A");
    EXPECT_EQ(registry.AddWsCommand(first), 1);
    EXPECT_EQ(registry.AddWsCommand(duplicate), 0);
    EXPECT_EQ(registry.AddWsCommand(Command(L"a")), 1) << "case counts";
    EXPECT_EQ(first->GetMenuCmdId(), 1U);
    EXPECT_EQ(duplicate->GetMenuCmdId(), 0U);
    EXPECT_EQ(Ids(*registry.GetWsCommandVector()), L"A a ");

    registry.Clear();
    const CommandPtr again = Command(L"A");
    registry.AddWsCommand(again);
    EXPECT_EQ(again->GetMenuCmdId(), 3U);
    EXPECT_EQ(registry.GetWsCommandByMenuId(1), first);
    EXPECT_FALSE(registry.GetWsCommandByMenuId(99));
}

TEST(WsCommandRegistry, LookUpByIdTriesOnceMoreWithoutTheLastCharacter) {
    CWsCommandRegistry registry;
    for (const wchar_t* id : {L"RUN_X", L"RUN_XY", L""}) {
        registry.AddWsCommand(Command(id));
    }
    const Rows<const wchar_t*, const wchar_t*> cases = {{L"RUN_X", L"RUN_X"},
                                                        {L"RUN_X1", L"RUN_X"},
                                                        {L"RUN_XY", L"RUN_XY"},
                                                        {L"", L""},
                                                        {L"Z", L""},
                                                        {L"RUN_X12", nullptr},
                                                        {L"run_x", nullptr},
                                                        {L"RUN_XYZ", L"RUN_XY"}};
    for (const auto& [asked, found] : cases) {
        const CommandPtr command = registry.GetWsCommandById(asked);
        ASSERT_EQ(command != nullptr, found != nullptr) << CString(asked).Str().size();
        if (command) {
            EXPECT_EQ(command->GetId(), found);
        }
    }
}

TEST(WsCommandRegistry, ByGroupFiltersByItemTopologyAndTag) {
    CWsCommandRegistry registry;
    const CWsTopologyData water(TopologyLine, 1);
    const CWsTopologyData parcels(TopologyPolygon, 0);
    registry.AddWsCommand(Listed(L"QUERY", L"Q", WsItemSystem, {water}));
    registry.AddWsCommand(Listed(L"ANY", L"0", WsItemSystem | WsItemRepository, {water, parcels}));
    registry.AddWsCommand(Listed(L"PLAIN", L"", WsItemSystem, {water}));
    registry.AddWsCommand(Listed(L"BARE", L"Q", WsItemSystem, {}));
    const CommandPtr moved = Listed(L"MOVED", L"Q", WsItemSystem, {water});
    registry.AddWsCommand(moved);
    moved->SetCmdGroup(CommandGroupDelete);

    constexpr auto any = static_cast<enmTopologyType>(-1);
    const Rows<enmTopologyType, int, enmWSTreeItemType, const wchar_t*, const wchar_t*> cases = {
        {TopologyLine, 1, WsItemSystem, nullptr, L"QUERY ANY PLAIN MOVED "},
        {TopologyLine, 1, WsItemSystem, L"", L"QUERY ANY PLAIN MOVED "},
        {TopologyLine, 1, WsItemSystem, L"0", L"QUERY ANY MOVED "},
        {TopologyLine, 1, WsItemSystem, L"Q", L"QUERY ANY MOVED "},
        {TopologyLine, 1, WsItemSystem, L"q", L"ANY "},
        {TopologyLine, 2, WsItemSystem, L"Q", L""},
        {TopologyPolygon, 0, WsItemSystem, L"Q", L"ANY "},
        {TopologyLine, 1, WsItemRepository, L"Q", L"ANY "},
        {any, 7, WsItemSystem, L"", L"QUERY ANY PLAIN BARE MOVED "},
    };
    for (const auto& [type, function, item, tag, expected] : cases) {
        EXPECT_EQ(Ids(registry.GetWsCommandByGroup(CommandGroupRun, type, function, item, tag)),
                  expected);
    }
    EXPECT_TRUE(registry.GetWsCommandByGroup(CommandGroupDelete, any, 0, WsItemSystem, L"").empty())
        << "the group counts as it was when the command was added";
}

TEST(WsCommandRegistry, RemovedCommandsStillAnswerByMenuIdAndGroup) {
    CWsCommandRegistry registry;
    const CommandPtr command = Listed(L"A", L"", WsItemSystem, {});
    registry.AddWsCommand(command);
    registry.RemoveWsCommand(Command(L"B"));
    EXPECT_EQ(registry.GetWsCommandVector()->size(), 1U);
    // By reference into the vector that shrinks.
    registry.RemoveWsCommand(registry.GetWsCommandVector()->front());
    EXPECT_TRUE(registry.GetWsCommandVector()->empty());
    EXPECT_FALSE(registry.GetWsCommandById(L"A"));
    EXPECT_EQ(registry.GetWsCommandByMenuId(1), command);
    EXPECT_EQ(registry
                  .GetWsCommandByGroup(CommandGroupRun, static_cast<enmTopologyType>(-1), 0,
                                       WsItemSystem, nullptr)
                  .size(),
              1U);
}

TEST(WsCommandRegistry, DeepCopiesHaveNoTopologyAndShallowOnesShareRecords) {
    CWsCommandRegistry registry;
    const CommandPtr command = Listed(L"A", L"T", WsItemSystem, {CWsTopologyData(TopologyLine, 1)});
    command->SetIsSetDataCommand(1);
    registry.AddWsCommand(command);

    CWsCommandRegistry deep;
    deep.AddWsCommand(Command(L"OLD"));
    registry.MakeDeepCopy(deep);
    const CommandPtr copy = deep.GetWsCommandById(L"A");
    ASSERT_TRUE(copy);
    EXPECT_NE(copy, command);
    EXPECT_EQ(copy->GetMenuCmdId(), 1U);
    EXPECT_TRUE(copy->IsSetDataCommand());
    EXPECT_FALSE(deep.GetWsCommandById(L"OLD"));
    EXPECT_TRUE(
        deep.GetWsCommandByGroup(CommandGroupRun, TopologyLine, 1, WsItemSystem, L"").empty());
    const CommandPtr next = Command(L"NEXT");
    deep.AddWsCommand(next);
    EXPECT_EQ(next->GetMenuCmdId(), 2U) << "the target's own count goes on";

    CWsCommandRegistry shallow(registry);
    EXPECT_EQ(shallow.GetWsCommandById(L"A"), command);
    const CommandPtr other = Command(L"OTHER");
    shallow.AddWsCommand(other);
    EXPECT_EQ(other->GetMenuCmdId(), 1U) << "the count of menu ids is not copied";

    registry.MakeDeepCopy(registry);
    EXPECT_EQ(Ids(*registry.GetWsCommandVector()), L"A ");
}

TEST(WsCommand, TopologyDataStandTwiceInTheVectorAndOnceInTheMap) {
    CWsCommand command;
    const boost::shared_ptr<CWsTopologyData> first(new CWsTopologyData(TopologyLine, 1));
    const boost::shared_ptr<CWsTopologyData> same(new CWsTopologyData(TopologyLine, 1));
    command.AddWsTopologyData(first);
    command.AddWsTopologyData(same);
    EXPECT_EQ(command.GetWsTopologyDataVector()->size(), 2U);
    EXPECT_EQ(command.GetWsTopologyDataMap()->at(L"1:1"), first);
    command.RemoveWsTopologyData(same);
    EXPECT_EQ(command.GetWsTopologyDataVector()->size(), 1U);
    EXPECT_EQ(command.DoesTopologyDataExist(first.get()), 0) << "the key goes with either";

    CWsCommand target;
    target.AddWsTopologyData(first);
    target = command;
    EXPECT_EQ(target.GetWsTopologyDataVector()->size(), 1U) << "a target keeps its own";
}

TEST(WsCommandRegistry, NothingIsPassedOver) {
    CWsCommandRegistry registry;
    EXPECT_EQ(registry.AddWsCommand(nullptr), 0);
    registry.RemoveWsCommand(nullptr);
    const auto command = Command(L"X");
    EXPECT_EQ(registry.AddWsCommand(command), 1);
    command->AddWsTopologyData(nullptr);
    command->RemoveWsTopologyData(nullptr);
    EXPECT_EQ(command->DoesTopologyDataExist(nullptr), 0);
    EXPECT_TRUE(command->GetWsTopologyDataVector()->empty());
}

TEST(WsCommandRegistryXml, WritesTheFixedForm) {
    CWsCommandRegistry registry;
    EXPECT_EQ(registry.GetXML(), L"<wsCommandRegistry ></wsCommandRegistry>");
    const CommandPtr command = Listed(L"A=B", L"0", 18, {CWsTopologyData(TopologyLine, 1)});
    command->SetName(L"a<b &amp; c & \u00E8");
    command->SetTreeCmdBehavior(TreeBehaviorEdit);
    command->SetIsSetDataCommand(1);
    registry.AddWsCommand(command);
    EXPECT_EQ(registry.GetXML(),
              L"<wsCommandRegistry ><wsCommand id=\"A=3DB\" name=\"a&lt;b &amp; c &amp; "
              L"=EF=BF=A8\" description=\"\" icon=\"0\" repoCmdBehavior=\"7\" cmdGroup=\"5\" "
              L"repositoryTag=\"0\" wsItemTypes=\"18\" cmdExecutor=\"0\" setCmd=\"1\" >"
              L"</wsCommand></wsCommandRegistry>");
    EXPECT_EQ(CWsTopologyData(TopologyPolygon, 3).GetXML(),
              L"<wsTopologyData topologyType=\"2\" topologyFunction=\"3\" ></wsTopologyData>");
}

TEST(WsCommandRegistryXml, TheReaderTakesNumbersAsFarAsTheyGoAndNoTopologies) {
    CWsCommandRegistry registry;
    const CommandPtr command = Listed(L"A", L"T<", 258, {CWsTopologyData(TopologyLine, 1)});
    command->SetName(L"n=\"1\" \u20AC &amp; c");
    command->SetCmdGroup(CommandGroupDelete);
    command->SetIsSetDataCommand(1);
    registry.AddWsCommand(command);
    CWsCommandRegistry read;
    ASSERT_EQ(read.ParseXML(registry.GetXML()), 1);
    CommandPtr back = read.GetWsCommandById(L"A");
    ASSERT_TRUE(back);
    EXPECT_EQ(back->GetName(), L"n=\"1\" \u20AC & c") << "a reference stands for its character";
    EXPECT_EQ(back->GetRepositoryTag(), L"T<");
    EXPECT_EQ(back->GetCmdGroup(), CommandGroupDelete);
    EXPECT_EQ(back->GetWsItemTypes(), 258UL);
    EXPECT_EQ(back->IsSetDataCommand(), 0);
    EXPECT_TRUE(back->GetWsTopologyDataVector()->empty());

    read.ParseXML(L"<wsCommandRegistry><wsCommand id='A' cmdGroup=' 12x' wsItemTypes='-1'/>"
                  L"<wsCommand id='B'/></wsCommandRegistry>");
    back = read.GetWsCommandById(L"A");
    EXPECT_EQ(static_cast<int>(back->GetCmdGroup()), 12);
    EXPECT_EQ(back->GetWsItemTypes(), 0xFFFFFFFFUL);
    EXPECT_EQ(static_cast<int>(read.GetWsCommandById(L"B")->GetCmdGroup()), 0)
        << "a missing number is no default";
}

} // namespace
} // namespace Orvane::Workspace
