// The standard registrations, row by row.
#include <gtest/gtest.h>

#include "siblings/giscore/RepositoryFactory.h"
#include "tests/support/TestHost.h"
#include "tests/support/TreeOutline.h"
#include "workspacecore/tree/WsRegistrationFactory.h"

namespace Orvane::Workspace {
namespace {

using Factory = CWsRegistrationFactory;

class Executor : public IWsCommandExecutor {
    boost::shared_ptr<CExecutorReturnValue> Execute(const wchar_t*, Query::CQueryDefinition*,
                                                    CWsTreeItemData*) override {
        return NeutralReturnValue();
    }
};

class WithDefaultItem : public CRepositoryFactory {
    void ReloadRepository(int) override {}
    int SupportsDefaultItem() const override { return 1; }
};

/// What RegisterRepositoryItem is asked for, all switched on.
struct Request {
    const wchar_t* tag = L"X";
    unsigned int entityTypes = 0;
    Factory::TopologyDataVector* topologies = nullptr;
    Factory::enmRegistrationTarget target = Factory::TargetBoth;
    int entitySpecific = 0;
    int commandsPerEntity = 0;
    int hasRename = 1;
    int hasSendToSystem = 1;
    int hasSendToRepository = 1;
    int doubleClickNotEdit = 1;
};

class WsRegistrationFactory : public testing::Test {
protected:
    void SetUp() override {
        m_host.Support().Write("TopologyConfiguration.ini",
                               "[line]\nentity.1=Node\nentity.2=Pipe\nfunction.10=W\n"
                               "function.11=S\n[polygon]\nentity.16=Area\nentity.32=Corner\n");
        CWsManager::Instance()->RegisterBaseExecutor(&m_base);
    }
    void Register(const Request& request) {
        Factory::RegisterRepositoryItem(request.tag, L"Name", nullptr, request.entityTypes,
                                        &m_executor, request.topologies, request.target,
                                        request.entitySpecific, request.commandsPerEntity, 1, 1, 1,
                                        request.hasRename, 1, 1, 1, 1, 1, request.hasSendToSystem,
                                        request.hasSendToRepository, request.doubleClickNotEdit);
    }
    static const auto& Definitions() {
        return *CWsManager::Instance()
                    ->TreeMgr()
                    ->GetTreeItemDefinitionList()
                    ->GetWsTreeItemDefinitionVector();
    }
    static const auto& Commands() {
        return *CWsManager::Instance()->CmdMgr()->GetCommandRegistry()->GetWsCommandVector();
    }
    template <class Record>
    static std::string Topologies(Record& record) {
        std::string keys;
        for (const auto& data : *record.GetWsTopologyDataVector()) {
            keys += " " + Narrow(data->GetMapKey());
        }
        return keys;
    }
    /// "id type<parent entity: topologies" of the definitions from one on.
    static std::vector<std::string> DefinitionLines(std::size_t from = 0) {
        std::vector<std::string> lines;
        for (std::size_t i = from; i < Definitions().size(); ++i) {
            CWsTreeItemDefinition& definition = *Definitions()[i];
            lines.push_back(
                Narrow(definition.GetId()) + " " + std::to_string(definition.GetWsItemType()) +
                "<" + std::to_string(definition.GetWsParentItemType()) + " " +
                std::to_string(definition.GetEntityType()) + ":" + Topologies(definition));
        }
        return lines;
    }
    /// "id executor group behaviour types entity" of the commands.
    std::vector<std::string> CommandLines() const {
        std::vector<std::string> lines;
        for (const auto& command : Commands()) {
            lines.push_back(Narrow(command->GetId()) +
                            (command->GetCmdExecutor() == &m_base ? " base " : " own ") +
                            std::to_string(command->GetCmdGroup()) + " " +
                            std::to_string(command->GetTreeCmdBehavior()) + " " +
                            std::to_string(command->GetWsItemTypes()) + " " +
                            std::to_string(command->GetEntityType()));
        }
        return lines;
    }

    TestHost m_host;
    Executor m_base;
    Executor m_executor;
    WithDefaultItem m_factory;
};
using Lines = std::vector<std::string>;

TEST_F(WsRegistrationFactory, BasicItemsAreTheTwoRoots) {
    Factory::RegisterBasicItems();
    EXPECT_EQ(DefinitionLines(), (Lines{"SYSTEMMANAGER 1<0 0:", "DISKREPO 32<0 0:"}));
    EXPECT_EQ(Definitions()[0]->GetAcceptRepositoryItemDrop(), 0);
    EXPECT_EQ(Definitions()[1]->GetAcceptRepositoryItemDrop(), 1);
    for (const auto& definition : Definitions()) {
        EXPECT_NE(definition->GetIcon(), nullptr) << Narrow(definition->GetId());
        EXPECT_FALSE(definition->GetName().IsEmpty());
    }
}

TEST_F(WsRegistrationFactory, ASystemBringsItsCommandsAndAToolGroupOfEachKindForEachTopology) {
    const auto system = Factory::RegisterSystemItem(&m_executor, nullptr, 1, 1);
    Lines lines = DefinitionLines();
    ASSERT_EQ(lines.size(), 19U);
    EXPECT_EQ(lines[0], "SYSTEM 2<1 0: 1:10 1:11 2:0");
    EXPECT_EQ((Lines{lines[1], lines[2], lines[3], lines[4]}),
              (Lines{"SYSTEM_TOOLDRAW_1_10 4096<2 0: 1:10", "SYSTEM_TOOLDRAW_1_11 4096<2 0: 1:11",
                     "SYSTEM_TOOLDRAW_2_0 4096<2 0: 2:0", "SYSTEM_TOOLEDIT_1_10 8192<2 0: 1:10"}));
    EXPECT_EQ(
        (Lines{lines[7], lines[10], lines[13], lines[16]}),
        (Lines{"SYSTEM_TOOLSETDATA_1_10 16384<2 0: 1:10", "SYSTEM_TOOLMANAGER_1_10 32768<2 0: 1:10",
               "SYSTEM_TOOLFASTCMD_1_10 65536<2 0: 1:10", "SYSTEM_TOOL_1_10 1024<2 0: 1:10"}));
    EXPECT_EQ(system, Definitions()[0]);
    EXPECT_EQ(system->GetCmdIdDoubleClick(), L"SYSTEM_DBLCLICK");
    EXPECT_EQ(system->GetCmdIdRename(), L"SYSTEM_REN");
    EXPECT_EQ(system->GetCmdIdRepositoryItemDrop(), L"SYSTEM_DROPITEM");
    EXPECT_EQ(CommandLines(),
              (Lines{"SYSTEM_ADD own 1 5 3 0", "SYSTEM_EDIT own 2 7 2 0", "SYSTEM_DEL own 4 6 2 0",
                     "SILENT_SYSTEM_DEL own 7 6 2 0", "SYSTEM_DBLCLICK own 7 0 2 0",
                     "SYSTEM_DROPITEM own 7 0 2 0", "SYSTEM_TOGGLEVISIBILITY own 7 0 2 0"}));
    for (const auto& command : Commands()) {
        EXPECT_EQ(*command->GetWsTopologyDataVector(), *system->GetWsTopologyDataVector())
            << Narrow(command->GetId());
    }
}

TEST_F(WsRegistrationFactory, ASystemOfGivenTopologiesWithoutCommandsAndTools) {
    Factory::TopologyDataVector topologies = {boost::make_shared<CWsTopologyData>(TopologyPoint, 5),
                                              nullptr};
    const auto system = Factory::RegisterSystemItem(nullptr, &topologies, 0, 0);
    EXPECT_EQ(DefinitionLines(), (Lines{"SYSTEM 2<1 0: 4:5"}));
    EXPECT_EQ(system->GetWsTopologyDataVector()->front(), topologies[0]);
    EXPECT_EQ(system->GetCmdIdDoubleClick(), L"");
    EXPECT_TRUE(Commands().empty());
    // A second module finds the ids taken.
    Factory::RegisterSystemItem(&m_executor, nullptr, 1, 0);
    Factory::RegisterSystemItem(&m_base, nullptr, 1, 0);
    EXPECT_EQ(Commands().size(), 7U);
    EXPECT_EQ(Topologies(*Commands()[0]), " 1:10 1:11 2:0");
    EXPECT_EQ(Definitions().size(), 3U);
}

TEST_F(WsRegistrationFactory, DefinitionsOfAFamilyByTargetAndEntities) {
    Factory::TopologyDataVector water = {boost::make_shared<CWsTopologyData>(TopologyLine, 10),
                                         boost::make_shared<CWsTopologyData>(TopologyPolygon, 0)};
    Request request;
    const struct {
        Factory::enmRegistrationTarget target;
        int entitySpecific;
        unsigned int entityTypes;
        Factory::TopologyDataVector* topologies;
        Lines expected;
    } cases[] = {
        {Factory::TargetSystem,
         0,
         3,
         nullptr,
         {"X 4<2 0: 1:10 1:11 2:0", "X 16<4 0: 1:10 1:11 2:0"}},
        {Factory::TargetRepository, 0, 3, &water, {"X 64<32 0: 1:10 2:0", "X 256<64 0: 1:10 2:0"}},
        {Factory::TargetBoth,
         1,
         1 | 4 | 16 | 64,
         &water,
         {"X 4<2 0: 1:10 2:0", "X:ws8:et1 8<4 1: 1:10", "X:ws8:et16 8<4 16: 2:0",
          "X:ws8:et64 8<4 64:", "X 16<8 1: 1:10", "X 16<8 16: 2:0", "X 16<8 64:",
          "X 64<32 0: 1:10 2:0", "X:ws128:et1 128<64 1: 1:10", "X:ws128:et16 128<64 16: 2:0",
          "X:ws128:et64 128<64 64:", "X 256<128 1: 1:10", "X 256<128 16: 2:0", "X 256<128 64:"}},
        {Factory::TargetSystem,
         1,
         2,
         nullptr,
         {"X 4<2 0: 1:10 1:11 2:0", "X:ws8:et2 8<4 2: 1:10 1:11", "X 16<8 2: 1:10 1:11"}},
    };
    for (const auto& row : cases) {
        const std::size_t before = Definitions().size();
        request.target = row.target;
        request.entitySpecific = row.entitySpecific;
        request.entityTypes = row.entityTypes;
        request.topologies = row.topologies;
        Register(request);
        EXPECT_EQ(DefinitionLines(before), row.expected);
    }
}

TEST_F(WsRegistrationFactory, WhatNodesOfAFamilyAnswerTo) {
    Request request;
    request.entitySpecific = 1;
    request.commandsPerEntity = 1;
    request.entityTypes = EntityNode;
    request.hasRename = 0;
    request.doubleClickNotEdit = 0;
    Register(request);
    Lines lines;
    for (const auto& definition : Definitions()) {
        lines.push_back(
            std::to_string(definition->GetAcceptQueryDrop()) +
            std::to_string(definition->GetAcceptRepositoryItemDrop()) +
            std::to_string(definition->GetAllowDragBegin()) +
            std::to_string(definition->GetAllowRename()) +
            std::to_string(definition->GetIsDoubleClickActionEdit()) +
            Narrow(L" " + definition->GetCmdIdDoubleClick() + L" " +
                   definition->GetCmdIdQueryDrop() + L" " + definition->GetCmdIdRename() + L" " +
                   definition->GetCmdIdRepositoryItemDrop() + L" " + definition->GetName()));
    }
    EXPECT_EQ(lines, (Lines{"01000 DBLCLICK_X_0 QRYDROP_X_0  RPODROP_X_0 Name",
                            "01000 DBLCLICK_X_1 QRYDROP_X_1  RPODROP_X_1 Node",
                            "11101 DBLCLICK_X_1 QRYDROP_X_1  RPODROP_X_1 Name",
                            "01000 DBLCLICK_X_0 QRYDROP_X_0  RPODROP_X_0 Name",
                            "01000 DBLCLICK_X_1 QRYDROP_X_1  RPODROP_X_1 Node",
                            "11100 DBLCLICK_X_1 QRYDROP_X_1  RPODROP_X_1 Name"}));
}

TEST_F(WsRegistrationFactory, CommandsOfAFamilyInBothTrees) {
    CWsManager::Instance()->RegisterRepositoryFactory(L"x", &m_factory);
    Register(Request());
    EXPECT_EQ(CommandLines(),
              (Lines{"SETASDEFAULT_X base 5 0 16 0", "ADD_X base 1 1 28 0", "EDIT_X base 2 7 16 0",
                     "RUN_X own 5 0 16 0", "DBLCLICK_X own 7 0 16 0", "QRYDROP_X own 7 0 16 0",
                     "DEL_X base 4 2 272 0", "REN_X base 2 7 272 0", "COPY_X base 2 0 16 0",
                     "SENDTO_X base 7 1 272 0", "RPODROP_X own 7 1 24 0"}));
    for (const auto& command : Commands()) {
        EXPECT_EQ(command->GetRepositoryTag(), L"X");
        EXPECT_EQ(Topologies(*command), " 1:10 1:11 2:0") << Narrow(command->GetId());
    }
    Register(Request());
    EXPECT_EQ(Commands().size(), 11U) << "the ids are taken";
}

TEST_F(WsRegistrationFactory, ACommandSetForEachKindOfEntity) {
    CWsManager::Instance()->RegisterRepositoryFactory(L"X", &m_factory);
    Request request;
    request.entitySpecific = 1;
    request.commandsPerEntity = 1;
    request.target = Factory::TargetSystem;
    request.hasSendToRepository = 0;
    Register(request);
    EXPECT_EQ(CommandLines(), Lines()) << "no kind of entity, no command";
    request.entityTypes = EntitySection | EntityPolygon;
    Register(request);
    const Lines lines = CommandLines();
    ASSERT_EQ(lines.size(), 22U);
    EXPECT_EQ(
        Lines(lines.begin() + 11, lines.end()),
        (Lines{"SETASDEFAULT_X_16 base 5 0 16 0", "ADD_X_16 base 1 1 24 16",
               "EDIT_X_16 base 2 7 16 16", "RUN_X_16 own 5 0 16 16", "DBLCLICK_X_16 own 7 0 16 16",
               "QRYDROP_X_16 own 7 0 16 16", "DEL_X_16 base 4 2 16 16", "REN_X_16 base 2 7 16 16",
               "COPY_X_16 base 2 0 16 16", "SENDTO_X_16 base 7 1 16 16",
               "RPODROP_X_16 own 7 1 24 16"}));
}

TEST_F(WsRegistrationFactory, AFamilyOfTheRepositoryTreesAlone) {
    CWsManager::Instance()->RegisterRepositoryFactory(L"X", &m_factory);
    CWsManager::Instance()->RegisterRepositoryFactory(L"Y", &m_factory);
    Request request;
    request.target = Factory::TargetRepository;
    request.hasSendToSystem = 0;
    Register(request);
    EXPECT_EQ(CommandLines(),
              (Lines{" base 5 0 16 0", "DEL_X base 4 2 256 0", "REN_X base 2 7 256 0",
                     "COPY_X base 2 0 0 0", "RPODROP_X own 7 1 0 0"}))
        << "the command of the empty id included; sending needs the flag of the system tree";
    request.tag = L"Y";
    Register(request);
    EXPECT_EQ(Commands().size(), 9U) << "the empty id is taken";
    request.tag = L"Z";
    request.hasSendToSystem = 1;
    request.hasSendToRepository = 0;
    Register(request);
    EXPECT_EQ(CommandLines()[12], "SENDTO_Z base 7 1 0 0") << "an id, but nothing it applies to";
}

TEST_F(WsRegistrationFactory, NullNamesGiveEmptyOnes) {
    Factory::RegisterRepositoryItem(nullptr, nullptr, nullptr, ~0U, nullptr, nullptr,
                                    Factory::TargetBoth, 1, 0, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 0);
    EXPECT_EQ(Definitions().size(), 22U);
    EXPECT_EQ(Commands().front()->GetId(), L"ADD_");
    CWsManager::Instance()->RegisterWsTreeItem(nullptr);
    EXPECT_EQ(Definitions().size(), 22U);
}

} // namespace
} // namespace Orvane::Workspace
