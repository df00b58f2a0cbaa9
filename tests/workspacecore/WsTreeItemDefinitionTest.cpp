// Definitions: copies, XML form, list.
#include <gtest/gtest.h>

#include "tests/support/Rows.h"
#include "tests/support/TestHost.h"
#include "tests/support/TreeOutline.h"

namespace Orvane::Workspace {
namespace {

using DefinitionPtr = CWsTreeItemDefinitionList::DefinitionPtr;

/// Only the lower half is written.
const HICON kIcon = reinterpret_cast<HICON>(0x50000002AULL); // NOLINT(performance-no-int-to-ptr)

DefinitionPtr FullDefinition() {
    DefinitionPtr definition(new CWsTreeItemDefinition);
    definition->SetId(L"THEME");
    definition->SetIcon(kIcon);
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

/// Everything that is not copied.
std::string Answers(const CWsTreeItemDefinition& definition) {
    return std::to_string(definition.GetAcceptRepositoryItemDrop()) +
           std::to_string(definition.GetAllowDragBegin()) +
           std::to_string(definition.GetAllowRename()) +
           Narrow(L" " + definition.GetCmdIdDoubleClick() + L" " + definition.GetCmdIdQueryDrop() +
                  L" " + definition.GetCmdIdRepositoryItemDrop() + L" " +
                  definition.GetCmdIdRename());
}

/// Everything that is copied, except topologies.
std::string Values(const CWsTreeItemDefinition& definition) {
    std::string numbers;
    for (const auto number :
         {static_cast<int>(definition.GetWsItemType()),
          static_cast<int>(definition.GetWsParentItemType()), definition.GetAcceptQueryDrop(),
          definition.GetIsEntitySpecific(), definition.GetIsDoubleClickActionEdit(),
          static_cast<int>(definition.GetEntityType()), definition.GetIconIndex(),
          definition.GetGrayIconIndex()}) {
        numbers += " " + std::to_string(number);
    }
    return Narrow(definition.GetId() + L"|" + definition.GetName() + L"|" +
                  definition.GetDescription() + L"|" + definition.GetRepositoryTag()) +
           (definition.GetIcon() == kIcon ? numbers : " another icon");
}

TEST(WsTreeItemDefinition, CopiesDoNotCarryWhatANodeAnswersTo) {
    const DefinitionPtr source = FullDefinition();
    const auto own = boost::make_shared<CWsTopologyData>(TopologyPolygon, 0);
    CWsTreeItemDefinition assigned;
    CWsTreeItemDefinition deep;
    for (CWsTreeItemDefinition* const target : {&assigned, &deep}) {
        target->SetAllowRename(7);
        target->SetCmdIdDoubleClick(L"D");
        target->SetCmdIdQueryDrop(L"Q");
        target->SetCmdIdRepositoryItemDrop(L"I");
        target->SetCmdIdRename(L"R");
        target->AddWsTopologyData(own);
    }
    assigned = *source;
    source->MakeDeepCopy(deep);
    CWsTreeItemDefinition copy(*source);
    CWsTreeItemDefinition fresh;
    source->MakeDeepCopy(fresh);
    const Rows<const char*, CWsTreeItemDefinition&, const char*, bool, std::size_t> cases = {
        {"constructor", copy, "000    ", true, 1},
        {"assignment", assigned, "007 D Q I R", true, 1},
        {"deep copy", deep, "007 D Q I R", false, 2},
        {"deep copy of nothing of its own", fresh, "000    ", false, 1}};
    const auto& topology = source->GetWsTopologyDataVector()->front();
    for (const auto& [way, made, answers, sharesTopologies, keys] : cases) {
        EXPECT_EQ(Values(made), "THEME|Themes <&\"|d\u00e9|THEME 16 8 1 0 1 1 3 4") << way;
        EXPECT_EQ(Answers(made), answers) << way;
        ASSERT_EQ(made.GetWsTopologyDataVector()->size(), 1U) << way;
        EXPECT_EQ(made.GetWsTopologyDataVector()->front() == topology, sharesTopologies) << way;
        EXPECT_TRUE(made.DoesTopologyDataExist(topology.get())) << way;
        EXPECT_EQ(made.GetWsTopologyDataMap()->size(), keys) << way;
    }
}

TEST(WsTreeItemDefinition, ItsTextHoldsWhatTheFormatHas) {
    const DefinitionPtr definition = FullDefinition();
    EXPECT_EQ(Narrow(definition->GetXML()),
              "<wsTreeItemDefinition id=\"THEME\" icon=\"42\" name=\"Themes &lt;&amp;&quot;\" "
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
    EXPECT_EQ(back.GetIcon(), nullptr) << "a handle does not outlive its process";
    back.SetIcon(kIcon);
    EXPECT_EQ(read.GetXML(), list.GetXML());
    EXPECT_EQ(Answers(back), "000 DBLCLICK_THEME_1 QRYDROP_THEME_1  ");
    EXPECT_EQ(back.GetWsTopologyDataVector()->size(), 1U);
    EXPECT_FALSE(back.DoesTopologyDataExist(definition->GetWsTopologyDataVector()->front().get()));
    // The system item is found in the vector, although no template contains it.
    const TestHost host;
    read.InitializeSystemTreeTemplate();
    EXPECT_EQ(Outline(read.GetSystemTreeTemplate(TopologyPolygon, 0)), "THEME\n");
}

TEST(WsTreeItemDefinitionList, ADeepCopyFillsTheVectorOfItsTargetAlone) {
    const TestHost host;
    CWsTreeItemDefinitionList source;
    for (const wchar_t* id : {L"FIRST", L"SECOND"}) {
        source.AddWsTreeItemDefinition(FullDefinition());
        source.GetWsTreeItemDefinitionVector()->back()->SetId(id);
    }
    CWsTreeItemDefinitionList target;
    const DefinitionPtr before = FullDefinition();
    before->SetId(L"BEFORE");
    before->SetWsItemType(WsItemRepositoryRoot);
    target.AddWsTreeItemDefinition(before);
    source.MakeDeepCopy(target);
    const auto& made = *target.GetWsTreeItemDefinitionVector();
    ASSERT_EQ(made.size(), 2U);
    for (std::size_t i = 0; i < made.size(); ++i) {
        const DefinitionPtr& original = (*source.GetWsTreeItemDefinitionVector())[i];
        EXPECT_NE(made[i], original);
        EXPECT_EQ(Values(*made[i]), Values(*original));
        EXPECT_EQ(*made[i]->GetWsTopologyDataVector(), *original->GetWsTopologyDataVector());
        EXPECT_EQ(Answers(*made[i]), "000    ");
    }
    target.InitializeDiskTreeTemplate();
    EXPECT_EQ(Outline(target.GetDiskTreeTemplate()), "BEFORE\n") << "found by type as ever";
}

TEST(WsTreeItemDefinitionList, FamiliesWithoutEntityFoldersAreKnownByTheirTag) {
    const Rows<const char*, int> cases = {{"repositoryTag=\"QUERY\"", 0},
                                          {"repositoryTag=\"LONGITUDINAL\"", 0},
                                          {"repositoryTag=\"query\"", 1},
                                          {"repositoryTag=\"THEME\"", 1},
                                          {"", 1},
                                          {"repositoryTag=\"QUERY\" entitySpecific=\"\"", 0},
                                          {"repositoryTag=\"QUERY\" entitySpecific=\"1\"", 1},
                                          {"repositoryTag=\"THEME\" entitySpecific=\"0\"", 0},
                                          {"entitySpecific=\"99999999999\"", 2147483647},
                                          {"entitySpecific=\"x\"", 0}};
    for (const auto& [attributes, expected] : cases) {
        CWsTreeItemDefinitionList list;
        const std::string xml = std::string("<wsTreeItemDefinitionList ><wsTreeItemDefinition ") +
                                attributes + "></wsTreeItemDefinition></wsTreeItemDefinitionList>";
        ASSERT_EQ(list.ParseXML(Utf8ToWide(xml).c_str()), 1) << attributes;
        EXPECT_EQ(list.GetWsTreeItemDefinitionVector()->front()->GetIsEntitySpecific(), expected)
            << attributes;
    }
}

TEST(WsTreeItemDefinitionList, AFileCutAnywhereIsNotTaken) {
    const TestHost host;
    CWsTreeItemDefinitionList list;
    list.AddWsTreeItemDefinition(FullDefinition());
    list.AddWsTreeItemDefinition(nullptr);
    EXPECT_EQ(list.Save(host.Support().Wide("list.xml")), 1);
    const std::string whole = host.Support().Read("list.xml");
    for (std::size_t length = 0; length < whole.size(); length += 7) {
        host.Support().Write("cut.xml", whole.substr(0, length));
        EXPECT_EQ(list.Load(host.Support().Wide("cut.xml")), 0) << length;
    }
    EXPECT_EQ(list.GetWsTreeItemDefinitionVector()->size(), 1U);
}

} // namespace
} // namespace Orvane::Workspace
