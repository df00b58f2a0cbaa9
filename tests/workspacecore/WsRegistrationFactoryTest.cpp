// The standard registrations, row by row.
#include <array>
#include <gtest/gtest.h>

#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/icons/Icon.h"
#include "siblings/giscore/repository/RepositoryFactory.h"
#include "tests/support/Rows.h"
#include "tests/support/TestHost.h"
#include "tests/support/TreeOutline.h"
#include "workspacecore/tree/WsRegistrationFactory.h"

namespace Orvane::Workspace {
namespace {

using Factory = CWsRegistrationFactory;

CString IconName(HICON icon) {
    return icon ? static_cast<const CIcon*>(icon)->m_strName : CString(L"none");
}

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

/// The switches of RegisterRepositoryItem, in its order.
enum Flag {
    kAdd,
    kEdit,
    kDelete,
    kRename,
    kRun,
    kDoubleClick,
    kQueryDrop,
    kRepositoryDrop,
    kCopy,
    kSendToSystem,
    kSendToRepository,
    kDoubleClickNotEdit,
    kFlags
};

/// What RegisterRepositoryItem is asked for; nothing at first.
struct Request {
    Factory::enmRegistrationTarget target = Factory::TargetBoth;
    int entitySpecific = 0;
    int commandsPerEntity = 0;
    unsigned int entityTypes = 0;
    Factory::TopologyDataVector* topologies = nullptr;
    std::array<int, kFlags> flags{};
};

class WsRegistrationFactory : public testing::Test {
protected:
    void SetUp() override {
        m_host.Support().Write("TopologyConfiguration.ini",
                               "[line]\nentity.1=Node\nentity.2=Pipe\nfunction.10=W\n"
                               "function.11=S\n[polygon]\nentity.16=Area\nentity.32=Corner\n");
        CWsManager::Instance()->RegisterBaseExecutor(&m_base);
    }
    void Register(const Request& r) {
        Factory::RegisterRepositoryItem(
            L"X", L"Name", CModuleConfiguration::Instance()->GetIcon(L"IDI_THEME"), r.entityTypes,
            &m_executor, r.topologies, r.target, r.entitySpecific, r.commandsPerEntity, r.flags[0],
            r.flags[1], r.flags[2], r.flags[3], r.flags[4], r.flags[5], r.flags[6], r.flags[7],
            r.flags[8], r.flags[9], r.flags[10], r.flags[11]);
    }
    void RegisterAll(Request r) {
        r.flags.fill(1);
        Register(r);
    }
    static const auto& Definitions() { return *List().GetWsTreeItemDefinitionVector(); }
    static const auto& Commands() { return *Registry().GetWsCommandVector(); }
    /// Resets the registrations for the next row of a table.
    static void Forget() {
        List().Clear();
        Registry().Clear();
    }
    template <class Record>
    static std::string Topologies(Record& record) {
        std::string keys;
        for (const auto& data : *record.GetWsTopologyDataVector()) {
            keys += " " + Narrow(data->GetMapKey());
        }
        return keys;
    }
    /// "id name icon tag type<parent entity entitySpecific: topologies" of the definitions.
    static std::vector<std::string> DefinitionLines() {
        std::vector<std::string> lines;
        for (const auto& definition : Definitions()) {
            lines.push_back(Narrow(definition->GetId() + L" " + definition->GetName() + L" " +
                                   IconName(definition->GetIcon()) + L" " +
                                   definition->GetRepositoryTag() + L" ") +
                            std::to_string(definition->GetWsItemType()) + "<" +
                            std::to_string(definition->GetWsParentItemType()) + " " +
                            std::to_string(definition->GetEntityType()) + " " +
                            std::to_string(definition->GetIsEntitySpecific()) + ":" +
                            Topologies(*definition));
        }
        return lines;
    }
    /// "query item drag rename edit: double click, query drop, rename, item drop" of each
    /// definition: what it accepts and allows, and its command ids.
    static std::vector<std::string> AnswerLines() {
        std::vector<std::string> lines;
        for (const auto& definition : Definitions()) {
            lines.push_back(std::to_string(definition->GetAcceptQueryDrop()) +
                            std::to_string(definition->GetAcceptRepositoryItemDrop()) +
                            std::to_string(definition->GetAllowDragBegin()) +
                            std::to_string(definition->GetAllowRename()) +
                            std::to_string(definition->GetIsDoubleClickActionEdit()) +
                            Narrow(L": " + definition->GetCmdIdDoubleClick() + L"," +
                                   definition->GetCmdIdQueryDrop() + L"," +
                                   definition->GetCmdIdRename() + L"," +
                                   definition->GetCmdIdRepositoryItemDrop()));
        }
        return lines;
    }
    /// "id name executor group behaviour types entity tag" of the commands.
    std::vector<std::string> CommandLines() const {
        std::vector<std::string> lines;
        for (const auto& command : Commands()) {
            lines.push_back(Narrow(command->GetId() + L" " + command->GetName()) +
                            (command->GetCmdExecutor() == &m_base ? " base " : " own ") +
                            std::to_string(command->GetCmdGroup()) + " " +
                            std::to_string(command->GetTreeCmdBehavior()) + " " +
                            std::to_string(command->GetWsItemTypes()) + " " +
                            std::to_string(command->GetEntityType()) + " " +
                            Narrow(command->GetRepositoryTag()));
        }
        return lines;
    }
    /// "id:types:entity" of the commands.
    static std::string Reach() {
        std::string lines;
        for (const auto& command : Commands()) {
            lines += Narrow(command->GetId()) + ":" + std::to_string(command->GetWsItemTypes()) +
                     ":" + std::to_string(command->GetEntityType()) + " ";
        }
        return lines;
    }

    static CWsTreeItemDefinitionList& List() {
        return *CWsManager::Instance()->TreeMgr()->GetTreeItemDefinitionList();
    }
    static CWsCommandRegistry& Registry() {
        return *CWsManager::Instance()->CmdMgr()->GetCommandRegistry();
    }

    TestHost m_host;
    Executor m_base;
    Executor m_executor;
    WithDefaultItem m_factory;
};
using Lines = std::vector<std::string>;

TEST_F(WsRegistrationFactory, BasicItemsAreTheTwoRoots) {
    Factory::RegisterBasicItems();
    EXPECT_EQ(DefinitionLines(), (Lines{"SYSTEMMANAGER Systems ORV_SYSTEM_MANAGER  1<0 0 1:",
                                        "DISKREPO Repository IDI_DISKDATA  32<0 0 1:"}));
    EXPECT_EQ(AnswerLines(), (Lines{"00000: ,,,", "01000: ,,,"}));
}

TEST_F(WsRegistrationFactory, ASystemBringsItsCommandsAndToolGroups) {
    Factory::TopologyDataVector topologies = {boost::make_shared<CWsTopologyData>(TopologyPoint, 5),
                                              nullptr};
    const auto system = Factory::RegisterSystemItem(&m_executor, &topologies, 1, 1);
    EXPECT_EQ(DefinitionLines(),
              (Lines{"SYSTEM  ORV_SYSTEM  2<1 0 1: 4:5",
                     "SYSTEM_TOOLDRAW_4_5 Draw IDI_PENCIL  4096<2 0 1: 4:5",
                     "SYSTEM_TOOLEDIT_4_5 Edit IDI_WINDOW_EDIT  8192<2 0 1: 4:5",
                     "SYSTEM_TOOLSETDATA_4_5 Set data IDI_DATA_EDIT  16384<2 0 1: 4:5",
                     "SYSTEM_TOOLMANAGER_4_5 Managers ORV_ID_MANAGER  32768<2 0 1: 4:5",
                     "SYSTEM_TOOLFASTCMD_4_5 Fast commands IDI_FLASH  65536<2 0 1: 4:5",
                     "SYSTEM_TOOL_4_5 Tools ORV_IDI_TOOLBOX  1024<2 0 1: 4:5"}));
    Lines answers(7, "00000: ,,,");
    answers[0] = "01000: SYSTEM_DBLCLICK,,SYSTEM_REN,SYSTEM_DROPITEM";
    EXPECT_EQ(AnswerLines(), answers);
    EXPECT_EQ(CommandLines(),
              (Lines{"SYSTEM_ADD Add system own 1 5 3 0 ", "SYSTEM_EDIT Edit own 2 7 2 0 ",
                     "SYSTEM_DEL Delete system own 4 6 2 0 ",
                     "SILENT_SYSTEM_DEL Delete system own 7 6 2 0 ",
                     "SYSTEM_DBLCLICK Delete system own 7 0 2 0 ",
                     "SYSTEM_DROPITEM Delete system own 7 0 2 0 ",
                     "SYSTEM_TOGGLEVISIBILITY Show or hide system own 7 0 2 0 "}));
    EXPECT_EQ(system, Definitions()[0]);
    for (const auto& command : Commands()) {
        EXPECT_EQ(*command->GetWsTopologyDataVector(), Factory::TopologyDataVector{topologies[0]})
            << Narrow(command->GetId());
    }
}

TEST_F(WsRegistrationFactory, ASystemOfEveryTopologyWithoutCommands) {
    Factory::RegisterSystemItem(nullptr, nullptr, 0, 1);
    std::string ids;
    for (const auto& definition : Definitions()) {
        ids += Narrow(definition->GetId().Mid(6)) + " ";
    }
    EXPECT_EQ(ids.substr(0, ids.find("_TOOLSETDATA")),
              " _TOOLDRAW_1_10 _TOOLDRAW_1_11 _TOOLDRAW_2_0 _TOOLEDIT_1_10 _TOOLEDIT_1_11 "
              "_TOOLEDIT_2_0 ");
    EXPECT_EQ(Definitions().size(), 19U);
    EXPECT_EQ(AnswerLines()[0], "01000: ,,,");
    EXPECT_TRUE(Commands().empty());
    // The ids of a second module's commands are already taken.
    Factory::RegisterSystemItem(&m_executor, nullptr, 1, 0);
    Factory::RegisterSystemItem(&m_base, nullptr, 1, 0);
    EXPECT_EQ(Commands().size(), 7U);
    EXPECT_EQ(Commands()[0]->GetCmdExecutor(), &m_executor);
    EXPECT_EQ(Topologies(*Commands()[0]), " 1:10 1:11 2:0");
    EXPECT_EQ(Definitions().size(), 21U);
}

constexpr auto kSystem = Factory::TargetSystem;
constexpr auto kRepository = Factory::TargetRepository;
constexpr auto kBoth = Factory::TargetBoth;

TEST_F(WsRegistrationFactory, DefinitionsOfAFamilyByTargetAndEntities) {
    Factory::TopologyDataVector water = {boost::make_shared<CWsTopologyData>(TopologyLine, 10),
                                         boost::make_shared<CWsTopologyData>(TopologyPolygon, 0)};
    const Rows<Request, const char*> cases = {
        {{kSystem, 0, 0, 3},
         "X Name IDI_THEME X 4<2 0 0: 1:10 1:11 2:0;X Name IDI_THEME X 16<4 0 0: 1:10 1:11 2:0;"},
        {{kRepository, 0, 0, 3, &water},
         "X Name IDI_THEME X 64<32 0 0: 1:10 2:0;X Name IDI_THEME X 256<64 0 0: 1:10 2:0;"},
        {{kSystem, 1, 0, ~0U, &water},
         "X Name IDI_THEME X 4<2 0 1: 1:10 2:0;X:ws8:et1 Node IDI_NODE X 8<4 1 1: 1:10;"
         "X:ws8:et2 Pipe IDI_SECTION X 8<4 2 1: 1:10;"
         "X:ws8:et16 Area ORV_IDI_POLYGON_16X16 X 8<4 16 1: 2:0;"
         "X:ws8:et32 Corner ORV_IDI_POLYGONNODE_16X16 X 8<4 32 1: 2:0;"
         "X:ws8:et64  ORV_IDI_UNKNOWNENTITY X 8<4 64 1:;X Name IDI_THEME X 16<8 1 1: 1:10;"
         "X Name IDI_THEME X 16<8 2 1: 1:10;X Name IDI_THEME X 16<8 16 1: 2:0;"
         "X Name IDI_THEME X 16<8 32 1: 2:0;X Name IDI_THEME X 16<8 64 1:;"},
        {{kBoth, 1, 0, 4 | 2},
         "X Name IDI_THEME X 4<2 0 1: 1:10 1:11 2:0;"
         "X:ws8:et2 Pipe IDI_SECTION X 8<4 2 1: 1:10 1:11;"
         "X Name IDI_THEME X 16<8 2 1: 1:10 1:11;X Name IDI_THEME X 64<32 0 1: 1:10 1:11 2:0;"
         "X:ws128:et2 Pipe IDI_SECTION X 128<64 2 1: 1:10 1:11;"
         "X Name IDI_THEME X 256<128 2 1: 1:10 1:11;"},
    };
    for (const auto& [request, expected] : cases) {
        Forget();
        Register(request);
        std::string lines;
        for (const std::string& line : DefinitionLines()) {
            lines += line + ";";
        }
        EXPECT_EQ(lines, expected);
    }
}

TEST_F(WsRegistrationFactory, EachFlagAloneBringsItsOwnCommandAndAnswers) {
    CWsManager::Instance()->RegisterRepositoryFactory(L"x", &m_factory);
    const Rows<Flag, std::string, const char*, const char*, const char*> cases = {
        {kAdd, "ADD_X Add base 1 1 28 0 X", "00000: ,,,", "00101: ,,,", "00100: ,,,"},
        {kEdit, "EDIT_X Edit base 2 7 16 0 X", "00000: ,,,", "00101: ,,,", "00100: ,,,"},
        {kDelete, "DEL_X Delete base 4 2 272 0 X", "00000: ,,,", "00101: ,,,", "00100: ,,,"},
        {kRename, "REN_X Rename base 2 7 272 0 X", "00000: ,,REN_X,", "00111: ,,REN_X,",
         "00110: ,,REN_X,"},
        {kRun, "RUN_X Run own 5 0 16 0 X", "00000: ,,,", "00101: ,,,", "00100: ,,,"},
        {kDoubleClick, "DBLCLICK_X Run own 7 0 16 0 X", "00000: DBLCLICK_X,,,",
         "00101: DBLCLICK_X,,,", "00100: DBLCLICK_X,,,"},
        {kQueryDrop, "QRYDROP_X Run own 7 0 16 0 X", "00000: ,QRYDROP_X,,", "10101: ,QRYDROP_X,,",
         "10100: ,QRYDROP_X,,"},
        {kRepositoryDrop, "RPODROP_X Run base 7 1 24 0 X", "01000: ,,,RPODROP_X",
         "01101: ,,,RPODROP_X", "01100: ,,,RPODROP_X"},
        {kCopy, "COPY_X Copy base 2 0 16 0 X", "00000: ,,,", "00101: ,,,", "00100: ,,,"},
        {kSendToSystem, "SENDTO_X Send to ... base 7 1 16 0 X", "00000: ,,,", "00101: ,,,",
         "00100: ,,,"},
        {kSendToRepository, "", "00000: ,,,", "00101: ,,,", "00100: ,,,"},
        {kDoubleClickNotEdit, "", "00000: ,,,", "00100: ,,,", "00100: ,,,"},
    };
    for (const auto& [flag, command, folder, systemItem, repositoryItem] : cases) {
        SCOPED_TRACE(flag);
        Forget();
        Request request;
        request.flags[flag] = 1;
        Register(request);
        Lines commands = {std::string(flag == kSendToSystem ? "SETASDEFAULT_X" : "") +
                          " Set as default base 5 0 16 0 X"};
        if (!command.empty()) {
            commands.push_back(command);
        }
        EXPECT_EQ(CommandLines(), commands);
        EXPECT_EQ(AnswerLines(), (Lines{folder, systemItem, folder, repositoryItem}));
        for (const auto& made : Commands()) {
            EXPECT_EQ(Topologies(*made), " 1:10 1:11 2:0") << Narrow(made->GetId());
        }
    }
}

TEST_F(WsRegistrationFactory, WhereTheCommandsOfAFamilyApply) {
    CWsManager::Instance()->RegisterRepositoryFactory(L"x", &m_factory);
    const Rows<const char*, Request, int, int, const char*> cases = {
        {"one set",
         {kBoth, 0, 0, EntityNode},
         1,
         1,
         "SETASDEFAULT_X:16:0 ADD_X:28:0 EDIT_X:16:0 RUN_X:16:0 DBLCLICK_X:16:0 QRYDROP_X:16:0 "
         "DEL_X:272:0 REN_X:272:0 COPY_X:16:0 SENDTO_X:272:0 RPODROP_X:24:0 "},
        {"no kind of entity, no command", {kSystem, 1, 1, 0}, 1, 1, ""},
        {"a set for each kind of entity; sending has the reach of deleting",
         {kSystem, 1, 1, EntitySection | EntityPolygon},
         1,
         0,
         "SETASDEFAULT_X_2:16:0 ADD_X_2:24:2 EDIT_X_2:16:2 RUN_X_2:16:2 DBLCLICK_X_2:16:2 "
         "QRYDROP_X_2:16:2 DEL_X_2:16:2 REN_X_2:16:2 COPY_X_2:16:2 SENDTO_X_2:16:2 "
         "RPODROP_X_2:24:2 "
         "SETASDEFAULT_X_16:16:0 ADD_X_16:24:16 EDIT_X_16:16:16 RUN_X_16:16:16 DBLCLICK_X_16:16:16 "
         "QRYDROP_X_16:16:16 DEL_X_16:16:16 REN_X_16:16:16 COPY_X_16:16:16 SENDTO_X_16:16:16 "
         "RPODROP_X_16:24:16 "},
        {"the same without entity folders",
         {kBoth, 0, 1, EntityPolygonNode},
         1,
         0,
         "SETASDEFAULT_X_32:16:0 ADD_X_32:28:32 EDIT_X_32:16:32 RUN_X_32:16:32 DBLCLICK_X_32:16:32 "
         "QRYDROP_X_32:16:32 DEL_X_32:272:32 REN_X_32:272:32 COPY_X_32:16:32 SENDTO_X_32:272:32 "
         "RPODROP_X_32:24:32 "},
        {"the command of the empty id included; sending needs the flag of the system tree",
         {kRepository},
         0,
         1,
         ":16:0 DEL_X:256:0 REN_X:256:0 COPY_X:0:0 RPODROP_X:0:0 "},
        {"an id for sending, but nothing it applies to",
         {kRepository},
         1,
         0,
         "SETASDEFAULT_X:16:0 DEL_X:256:0 REN_X:256:0 COPY_X:0:0 SENDTO_X:0:0 RPODROP_X:0:0 "},
    };
    Request request;
    for (const auto& [what, wanted, sendToSystem, sendToRepository, expected] : cases) {
        Forget();
        request = wanted;
        request.flags.fill(1);
        request.flags[kSendToSystem] = sendToSystem;
        request.flags[kSendToRepository] = sendToRepository;
        Register(request);
        EXPECT_EQ(Reach(), expected) << what;
    }
    const std::size_t count = Commands().size();
    RegisterAll({});
    EXPECT_EQ(Commands().size(), count + 5) << "the other ids are taken";
}

TEST_F(WsRegistrationFactory, NodesAnswerForTheirKindOfEntityAndFoldersForNone) {
    RegisterAll({kSystem, 0, 1, EntityNode});
    RegisterAll({kSystem, 1, 1, EntityNode});
    const std::string none = "DBLCLICK_X_0,QRYDROP_X_0,REN_X_0,RPODROP_X_0";
    const std::string node = "DBLCLICK_X_1,QRYDROP_X_1,REN_X_1,RPODROP_X_1";
    EXPECT_EQ(AnswerLines(), (Lines{"01000: " + none, "11110: " + none, "01000: " + none,
                                    "01000: " + node, "11110: " + node}));
}

TEST_F(WsRegistrationFactory, NullNamesGiveEmptyOnesAndTheEmptyIdIsTakenOnce) {
    CWsManager::Instance()->RegisterRepositoryFactory(L"", &m_factory);
    CWsManager::Instance()->RegisterRepositoryFactory(L"Y", &m_factory);
    for (const wchar_t* tag : {static_cast<const wchar_t*>(nullptr), L"Y"}) {
        Factory::RegisterRepositoryItem(tag, nullptr, nullptr, ~0U, nullptr, nullptr,
                                        Factory::TargetBoth, 1, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
                                        0);
    }
    EXPECT_EQ(DefinitionLines()[0], "  none  4<2 0 1: 1:10 1:11 2:0");
    EXPECT_EQ(Reach(), ":16:0 ADD_:24:0 ADD_Y:24:0 ");
    CWsManager::Instance()->RegisterWsTreeItem(nullptr);
    EXPECT_EQ(Definitions().size(), 44U);
}

} // namespace
} // namespace Orvane::Workspace
