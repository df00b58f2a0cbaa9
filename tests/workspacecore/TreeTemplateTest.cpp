// Structure of the tree templates.
#include <gtest/gtest.h>

#include "platform/arx/ApDocManager.h"
#include "siblings/giscore/systems/SystemManager.h"
#include "tests/support/TestHost.h"
#include "tests/support/TreeOutline.h"

namespace Orvane::Workspace {
namespace {

using DefinitionPtr = CWsTreeItemDefinitionList::DefinitionPtr;
using Topologies = std::initializer_list<CWsTopologyData>;

const CWsTopologyData kWater(TopologyLine, 10);
const CWsTopologyData kSewer(TopologyLine, 11);
const CWsTopologyData kParcels(TopologyPolygon, 0);

class TreeTemplate : public testing::Test {
protected:
    void SetUp() override {
        // The point topology has the same kind of entity as the line topology; one topology is
        // off.
        m_host.Support().Write("TopologyConfiguration.ini",
                               "[line]\nentity.1=Node\nentity.2=Pipe\nfunction.10=W\n"
                               "function.11=S\n[polygon]\nentity.16=Area\n"
                               "[point]\nentity.1=Point\n[scheme]\non=0\nentity.16=Scheme\n");
    }
    void TearDown() override {
        for (const auto& data : {kWater, kSewer, kParcels}) {
            TakeApart(
                m_list.GetSystemTreeTemplate(data.GetTopologyType(), data.GetTopologyFunction()));
        }
        TakeApart(m_list.GetDiskTreeTemplate());
        TakeApart(m_list.GetNetTreeTemplate());
    }

    DefinitionPtr Add(const wchar_t* id, enmWSTreeItemType type, const wchar_t* tag,
                      enmEntityType entityType, int entitySpecific, Topologies topologies = {}) {
        DefinitionPtr definition(new CWsTreeItemDefinition);
        definition->SetId(id);
        definition->SetWsItemType(type);
        definition->SetRepositoryTag(tag);
        definition->SetEntityType(entityType);
        definition->SetIsEntitySpecific(entitySpecific);
        for (const CWsTopologyData& data : topologies) {
            definition->AddWsTopologyData(boost::make_shared<CWsTopologyData>(data));
        }
        m_list.AddWsTreeItemDefinition(definition);
        return definition;
    }
    void AddSystem() { Add(L"SYSTEM", WsItemSystem, L"", EntityNone, 1); }
    std::string SystemTree(const CWsTopologyData& data) {
        return Outline(m_list.GetSystemTreeTemplate(boost::make_shared<CWsTopologyData>(data)));
    }

    TestHost m_host;
    CWsTreeItemDefinitionList m_list;
};

TEST_F(TreeTemplate, WithoutASystemItemThereIsNoSystemTree) {
    Add(L"R", WsItemSystemRepository, L"R", EntityNone, 0, {kWater});
    m_list.InitializeSystemTreeTemplate();
    EXPECT_EQ(SystemTree(kWater), "null");
}

TEST_F(TreeTemplate, AFunctionIsOfNoAccountWhereThereAreNone) {
    AddSystem();
    m_list.InitializeSystemTreeTemplate();
    EXPECT_TRUE(m_list.GetSystemTreeTemplate(TopologyPolygon, 0));
    EXPECT_EQ(m_list.GetSystemTreeTemplate(TopologyPolygon, 7),
              m_list.GetSystemTreeTemplate(TopologyPolygon, 0));
    EXPECT_NE(m_list.GetSystemTreeTemplate(TopologyLine, 10),
              m_list.GetSystemTreeTemplate(TopologyLine, 11));
    EXPECT_FALSE(m_list.GetSystemTreeTemplate(TopologyLine, 12));
    EXPECT_FALSE(m_list.GetSystemTreeTemplate(static_cast<enmTopologyType>(3), 0));
    EXPECT_FALSE(m_list.GetSystemTreeTemplate(static_cast<System::CGisSystem*>(nullptr)));
    acDocManagerPtr()->newDocument(L"a.dwg");
    auto& systems = *System::CSystemManager::Instance();
    EXPECT_EQ(m_list.GetSystemTreeTemplate(systems.CreateSystem(L"Sewer", TopologyLine, 11)),
              m_list.GetSystemTreeTemplate(TopologyLine, 11));
    EXPECT_TRUE(m_list.GetSystemTreeTemplate(systems.CreateSystem(L"Area", TopologyPolygon, 0)));
}

TEST_F(TreeTemplate, ToolGroupsStandInTheirOwnOrderThenFoldersAsRegistered) {
    AddSystem();
    Add(L"FOLDER", WsItemSystemRepository, L"F", EntityNone, 0, {kWater, kParcels});
    // In order of registration, which differs from the order in the tree.
    Add(L"fast", WsItemSystemToolFastCommand, L"", EntityNone, 1, {kWater});
    Add(L"tool", WsItemSystemTool, L"", EntityNone, 1, {kWater, {TopologyLine, 99}});
    Add(L"manager", WsItemSystemToolManager, L"", EntityNone, 1, {kWater});
    Add(L"setdata", WsItemSystemToolSetData, L"", EntityNone, 1, {kWater});
    Add(L"edit", WsItemSystemToolEdit, L"", EntityNone, 1, {kWater});
    Add(L"draw2", WsItemSystemToolDraw, L"", EntityNone, 1, {kWater, kSewer});
    Add(L"draw1", WsItemSystemToolDraw, L"", EntityNone, 1, {kWater});
    m_list.InitializeSystemTreeTemplate();
    EXPECT_EQ(SystemTree(kWater), "SYSTEM\n  draw2\n  draw1\n  edit\n  setdata\n  manager\n"
                                  "  tool\n  fast\n  FOLDER +-\n");
    EXPECT_EQ(SystemTree(kSewer), "SYSTEM\n  draw2\n");
    EXPECT_EQ(SystemTree(kParcels), "SYSTEM\n  FOLDER +-\n");
    const auto root = m_list.GetSystemTreeTemplate(TopologyLine, 10);
    EXPECT_NE(root->GetChildren()->back(),
              m_list.GetSystemTreeTemplate(TopologyPolygon, 0)->GetChildren()->front());
}

TEST_F(TreeTemplate, EntityFoldersFollowTheTopologyAndTheWildcardWidensTheTagAlone) {
    AddSystem();
    Add(L"T", WsItemSystemRepository, L"Theme", EntityNone, 1, {kWater});
    Add(L"any2", WsItemSystemEntityFolder, L"0", EntitySection, 1, {kWater});
    Add(L"pipes", WsItemSystemEntityFolder, L"THEME", EntitySection, 1, {kWater});
    Add(L"nodes", WsItemSystemEntityFolder, L"theme", EntityNode, 1, {kWater, kSewer});
    Add(L"elsewhere", WsItemSystemEntityFolder, L"0", EntityNode, 1, {kSewer});
    Add(L"areas", WsItemSystemEntityFolder, L"0", EntityPolygon, 1, {kWater});
    Add(L"other", WsItemSystemEntityFolder, L"LABEL", EntityNode, 1, {kWater});
    Add(L"conf-other", WsItemSystemConfiguration, L"0", EntitySection, 1, {kWater});
    Add(L"conf-sewer", WsItemSystemConfiguration, L"THEME", EntityNode, 1, {kSewer});
    Add(L"conf-node", WsItemSystemConfiguration, L"theme", EntityNode, 1, {kWater});
    m_list.InitializeSystemTreeTemplate();
    EXPECT_EQ(SystemTree(kWater), "SYSTEM\n  T\n    nodes +16/1 e1\n    any2 +- e2\n"
                                  "    pipes +- e2\n");
    EXPECT_EQ(m_list.GetSystemTreeTemplate(TopologyLine, 10)
                  ->GetChildren()
                  ->front()
                  ->GetChildren()
                  ->front()
                  ->GetConfigurationDefinition()
                  ->GetId(),
              L"conf-node");
}

TEST_F(TreeTemplate, AFamilyWithoutEntityFoldersTakesTheFirstConfigurationOfItsTopology) {
    AddSystem();
    Add(L"Q", WsItemSystemRepository, L"QUERY", EntityNone, 0, {kWater, kSewer});
    Add(L"wild", WsItemSystemConfiguration, L"0", EntityNone, 0, {kWater});
    Add(L"first", WsItemSystemConfiguration, L"query", EntitySection, 0, {kWater});
    Add(L"second", WsItemSystemConfiguration, L"QUERY", EntityNone, 0, {kWater, kSewer});
    m_list.InitializeSystemTreeTemplate();
    EXPECT_EQ(SystemTree(kWater), "SYSTEM\n  Q +16/2\n");
    EXPECT_EQ(SystemTree(kSewer), "SYSTEM\n  Q +16/0\n");
}

TEST_F(TreeTemplate, RepositoryTreesKnowNoTopologiesAndRepeatWhatTwoHave) {
    Add(L"ROOT", WsItemRepositoryRoot, L"", EntityNone, 1);
    Add(L"T", WsItemRepository, L"T", EntityNone, 1);
    Add(L"L", WsItemRepository, L"L", EntityNone, 0);
    Add(L"tn", WsItemRepositoryEntityFolder, L"t", EntityNode, 1);
    Add(L"all", WsItemRepositoryEntityFolder, L"0", EntityPolygon, 1);
    Add(L"ct", WsItemRepositoryConfiguration, L"T", EntityNode, 1);
    Add(L"cl", WsItemRepositoryConfiguration, L"l", EntitySection, 0);
    m_list.InitializeDiskTreeTemplate();
    m_list.InitializeNetTreeTemplate();
    // Nodes are in the line and the point topology; the scheme is disabled.
    const std::string expected = "ROOT\n  T\n    tn +256/1 e1\n    all +- e16\n    tn +256/1 e1\n"
                                 "  L +256/2\n";
    EXPECT_EQ(Outline(m_list.GetDiskTreeTemplate()), expected);
    EXPECT_EQ(Outline(m_list.GetNetTreeTemplate()), expected);
    EXPECT_NE(m_list.GetDiskTreeTemplate(), m_list.GetNetTreeTemplate());
}

TEST_F(TreeTemplate, TheRepositoryRootIsTheFirstItemOfNoSystemKind) {
    m_list.InitializeDiskTreeTemplate();
    EXPECT_EQ(Outline(m_list.GetDiskTreeTemplate()), "(none)\n");
    Add(L"R", WsItemRepository, L"R", EntityNone, 0);
    m_list.InitializeDiskTreeTemplate();
    EXPECT_EQ(Outline(m_list.GetDiskTreeTemplate()), "(none)\n") << "built once";
    m_list.InitializeNetTreeTemplate();
    EXPECT_EQ(Outline(m_list.GetNetTreeTemplate()), "R\n  R +-\n");
}

TEST_F(TreeTemplate, ASecondBuildAppendsAndAClearForgetsTheSystemTreesAlone) {
    AddSystem();
    const DefinitionPtr folder = Add(L"R", WsItemSystemRepository, L"R", EntityNone, 0, {kWater});
    m_list.InitializeSystemTreeTemplate();
    m_list.InitializeDiskTreeTemplate();
    m_list.RemoveWsTreeItemDefinition(folder);
    m_list.InitializeSystemTreeTemplate();
    EXPECT_EQ(SystemTree(kWater), "SYSTEM\n  R +-\n  R +-\n") << "a removed one is still found";
    TakeApart(m_list.GetSystemTreeTemplate(TopologyLine, 10));
    m_list.Clear();
    EXPECT_EQ(SystemTree(kWater), "null");
    EXPECT_TRUE(m_list.GetDiskTreeTemplate());
    m_list.InitializeSystemTreeTemplate();
    EXPECT_EQ(SystemTree(kWater), "null") << "the system item is looked for in the vector";
    AddSystem();
    m_list.InitializeSystemTreeTemplate();
    EXPECT_EQ(SystemTree(kWater), "SYSTEM\n  R +-\n");
}

} // namespace
} // namespace Orvane::Workspace
