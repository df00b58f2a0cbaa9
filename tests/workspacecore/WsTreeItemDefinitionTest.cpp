// Definitions: their copies, their text, their list.
#include <gtest/gtest.h>

#include "tests/support/TestHost.h"
#include "tests/support/TreeOutline.h"

namespace Orvane::Workspace {
namespace {

using DefinitionPtr = CWsTreeItemDefinitionList::DefinitionPtr;

DefinitionPtr FullDefinition() {
    DefinitionPtr definition(new CWsTreeItemDefinition);
    definition->SetId(L"THEME");
    definition->SetName(L"Themes <&\"");
    definition->SetDescription(L"d\u00e9");
    definition->SetWsItemType(WsItemSystemConfiguration);
    definition->SetWsParentItemType(WsItemSystemEntityFolder);
    definition->SetRepositoryTag(L"THEME");
    definition->SetAcceptQueryDrop(1);
    definition->SetAcceptRepositoryItemDrop(1);
    definition->SetAllowDragBegin(1);
    definition->SetAllowRename(1);
    definition->SetCmdIdDoubleClick(L"DBLCLICK_THEME_1");
    definition->SetCmdIdQueryDrop(L"QRYDROP_THEME_1");
    definition->SetCmdIdRepositoryItemDrop(L"RPODROP_THEME_1");
    definition->SetCmdIdRename(L"REN_THEME_1");
    definition->SetIsEntitySpecific(0);
    definition->SetIsDoubleClickActionEdit(1);
    definition->SetEntityType(EntityNode);
    definition->SetIconIndex(3);
    definition->SetGrayIconIndex(4);
    definition->AddWsTopologyData(boost::make_shared<CWsTopologyData>(TopologyLine, 2));
    return definition;
}

/// All that copies do not carry.
std::string Answers(const CWsTreeItemDefinition& definition) {
    return std::to_string(definition.GetAcceptRepositoryItemDrop()) +
           std::to_string(definition.GetAllowDragBegin()) +
           std::to_string(definition.GetAllowRename()) +
           Narrow(L" " + definition.GetCmdIdDoubleClick() + L" " + definition.GetCmdIdQueryDrop() +
                  L" " + definition.GetCmdIdRepositoryItemDrop() + L" " +
                  definition.GetCmdIdRename());
}

TEST(WsTreeItemDefinition, CopiesDoNotCarryWhatANodeAnswersTo) {
    const DefinitionPtr source = FullDefinition();
    const CWsTreeItemDefinition copy(*source);
    EXPECT_EQ(Answers(copy), "000    ");
    EXPECT_EQ(copy.GetAcceptQueryDrop(), 1);
    EXPECT_EQ(copy.GetIsDoubleClickActionEdit(), 1);
    EXPECT_EQ(copy.GetIsEntitySpecific(), 0);
    EXPECT_EQ(copy.GetEntityType(), EntityNode);
    EXPECT_EQ(copy.GetGrayIconIndex(), 4);

    CWsTreeItemDefinition assigned;
    assigned.SetCmdIdRename(L"MINE");
    assigned.SetAllowRename(7);
    assigned = *source;
    EXPECT_EQ(Answers(assigned), "007    MINE");
    EXPECT_EQ(assigned.GetWsTopologyDataVector()->front(),
              source->GetWsTopologyDataVector()->front());
    EXPECT_TRUE(assigned.DoesTopologyDataExist(source->GetWsTopologyDataVector()->front().get()));
}

TEST(WsTreeItemDefinition, ADeepCopyHasTopologiesOfItsOwnBesideWhatTheMapHeld) {
    const DefinitionPtr source = FullDefinition();
    CWsTreeItemDefinition target;
    target.AddWsTopologyData(boost::make_shared<CWsTopologyData>(TopologyPolygon, 0));
    source->MakeDeepCopy(target);
    ASSERT_EQ(target.GetWsTopologyDataVector()->size(), 1U);
    EXPECT_NE(target.GetWsTopologyDataVector()->front(),
              source->GetWsTopologyDataVector()->front());
    EXPECT_EQ(target.GetWsTopologyDataMap()->size(), 2U);
    EXPECT_EQ(Answers(target), "000    ");
}

TEST(WsTreeItemDefinition, ItsTextHoldsWhatTheFormatHas) {
    const DefinitionPtr definition = FullDefinition();
    EXPECT_EQ(Narrow(definition->GetXML()),
              "<wsTreeItemDefinition id=\"THEME\" icon=\"0\" name=\"Themes &lt;&amp;&quot;\" "
              "description=\"d=EF=BF=A9\" wsItemType=\"16\" wsParentItemType=\"8\" "
              "repositoryTag=\"THEME\" acceptQueryDrop=\"1\" "
              "cmdIdDoubleClick=\"DBLCLICK_THEME_1\" cmdIdQueryDrop=\"QRYDROP_THEME_1\" "
              "entitySpecific=\"0\" ><wsTopologyData topologyType=\"1\" topologyFunction=\"2\" >"
              "</wsTopologyData></wsTreeItemDefinition>");
}

TEST(WsTreeItemDefinitionList, WhatIsReadStandsInTheVectorAlone) {
    CWsTreeItemDefinitionList list;
    const DefinitionPtr definition = FullDefinition();
    definition->SetWsItemType(WsItemSystem);
    list.AddWsTreeItemDefinition(definition);
    CWsTreeItemDefinitionList read;
    ASSERT_EQ(read.ParseXML(list.GetXML()), 1);
    ASSERT_EQ(read.GetWsTreeItemDefinitionVector()->size(), 1U);
    CWsTreeItemDefinition& back = *read.GetWsTreeItemDefinitionVector()->front();
    EXPECT_EQ(read.GetXML(), list.GetXML());
    EXPECT_EQ(Answers(back), "000 DBLCLICK_THEME_1 QRYDROP_THEME_1  ");
    EXPECT_EQ(back.GetWsTopologyDataVector()->size(), 1U);
    EXPECT_FALSE(back.DoesTopologyDataExist(definition->GetWsTopologyDataVector()->front().get()));
    // The system item is found where it stands, in the vector; nothing hangs below it.
    const TestHost host;
    read.InitializeSystemTreeTemplate();
    EXPECT_EQ(Outline(read.GetSystemTreeTemplate(TopologyPolygon, 0)), "THEME\n");
}

TEST(WsTreeItemDefinitionList, FamiliesWithoutEntityFoldersAreKnownByTheirTag) {
    const struct {
        const char* attributes;
        int expected;
    } cases[] = {{"repositoryTag=\"QUERY\"", 0},
                 {"repositoryTag=\"LONGITUDINAL\"", 0},
                 {"repositoryTag=\"query\"", 1},
                 {"repositoryTag=\"THEME\"", 1},
                 {"", 1},
                 {"repositoryTag=\"QUERY\" entitySpecific=\"\"", 0},
                 {"repositoryTag=\"QUERY\" entitySpecific=\"1\"", 1},
                 {"repositoryTag=\"THEME\" entitySpecific=\"0\"", 0},
                 {"entitySpecific=\"99999999999\"", 2147483647},
                 {"entitySpecific=\"x\"", 0}};
    for (const auto& row : cases) {
        CWsTreeItemDefinitionList list;
        const std::string xml = std::string("<wsTreeItemDefinitionList ><wsTreeItemDefinition ") +
                                row.attributes +
                                "></wsTreeItemDefinition></wsTreeItemDefinitionList>";
        ASSERT_EQ(list.ParseXML(Utf8ToWide(xml).c_str()), 1) << row.attributes;
        EXPECT_EQ(list.GetWsTreeItemDefinitionVector()->front()->GetIsEntitySpecific(),
                  row.expected)
            << row.attributes;
    }
}

TEST(WsTreeItemDefinitionList, TextsThatAreNoListLeaveItEmpty) {
    TestHost host;
    const struct {
        const wchar_t* text;
        int result;
        std::size_t count;
    } cases[] = {{L"<wsTreeItemDefinitionList ></wsTreeItemDefinitionList>", 1, 0},
                 {L"", 0, 0},
                 {nullptr, 0, 0},
                 {L"<other ></other>", 0, 0},
                 {L"<wsTreeItemDefinitionList ><x/><wsTreeItemDefinition id=\"A\"/>"
                  L"<wsTreeItemDefinition id=\"A\"><wsTopologyData/><y/></wsTreeItemDefinition>"
                  L"</wsTreeItemDefinitionList>",
                  1, 2}};
    for (const auto& row : cases) {
        CWsTreeItemDefinitionList list;
        list.AddWsTreeItemDefinition(FullDefinition());
        list.AddWsTreeItemDefinition(nullptr);
        EXPECT_EQ(list.ParseXML(row.text), row.result);
        EXPECT_EQ(list.GetWsTreeItemDefinitionVector()->size(), row.count);
    }
    CWsTreeItemDefinitionList list;
    list.AddWsTreeItemDefinition(FullDefinition());
    EXPECT_EQ(list.Load(host.Support().Wide("missing.xml")), 0);
    EXPECT_EQ(list.GetWsTreeItemDefinitionVector()->size(), 1U) << "no file, no change";
    EXPECT_EQ(list.Save(host.Support().Wide("list.xml")), 1);
    const std::string whole = host.Support().Read("list.xml");
    for (std::size_t length = 0; length < whole.size(); length += 7) {
        host.Support().Write("cut.xml", whole.substr(0, length));
        EXPECT_EQ(list.Load(host.Support().Wide("cut.xml")), 0) << length;
    }
    EXPECT_EQ(list.SaveToDictionary(), 0);
    EXPECT_EQ(list.LoadFromDictionary(), 0);
    EXPECT_TRUE(list.GetWsTreeItemDefinitionVector()->empty());
    EXPECT_EQ(host.Alerts(), std::vector<std::wstring>(2, L"Not implemented"));
}

} // namespace
} // namespace Orvane::Workspace
