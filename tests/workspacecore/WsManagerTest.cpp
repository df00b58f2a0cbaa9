#include <gtest/gtest.h>

#include "platform/arx/ApDocManager.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/notification/NotificationFramework.h"
#include "siblings/giscore/query/QueryDefinition.h"
#include "siblings/giscore/systems/GisSystem.h"
#include "siblings/giscore/systems/SystemManager.h"
#include "siblings/logging/LogEngine.h"
#include "tests/support/Rows.h"
#include "tests/support/TestHost.h"
#include "workspacecore/core/WsManager.h"

namespace Orvane::Workspace {
namespace {

class Executor : public IWsCommandExecutor {
public:
    boost::shared_ptr<CExecutorReturnValue> Execute(const wchar_t* id, Query::CQueryDefinition*,
                                                    CWsTreeItemData* pItemData) override {
        m_strId = id;
        m_pItemData = pItemData;
        if (CString(id) == L"OUTER") {
            CWsManager::Instance()->CmdMgr()->Execute(L"INNER", nullptr, nullptr);
        }
        auto result = NeutralReturnValue();
        result->m_nStatus = 3;
        return result;
    }
    boost::shared_ptr<CExecutorReturnValue> ExecuteExplicite(const wchar_t* id,
                                                             CRepositoryItem* pItem,
                                                             Selection::CSelectionSet* pSet,
                                                             void* pData) override {
        m_strId = id;
        m_explicit = {pItem, pSet, pData};
        return IWsCommandExecutor::ExecuteExplicite(id, pItem, pSet, pData);
    }
    CString m_strId;
    CWsTreeItemData* m_pItemData = nullptr;
    std::vector<void*> m_explicit;
};

boost::shared_ptr<CWsCommand> Command(const wchar_t* id, IWsCommandExecutor* pExecutor = nullptr) {
    boost::shared_ptr<CWsCommand> command(new CWsCommand);
    command->SetId(id);
    command->SetCmdExecutor(pExecutor);
    return command;
}

bool IsNeutral(const CExecutorReturnValue& value) {
    return value.m_nStatus == 0 && value.m_nNumber == -1 && value.m_enmEntityType == EntityNone &&
           value.m_strText1.IsEmpty() && value.m_strText2.IsEmpty() && value.m_strText3.IsEmpty() &&
           value.m_strText4.IsEmpty() && value.m_strText5.IsEmpty() && value.m_strText6.IsEmpty();
}

TEST(WsManager, TheFirstExecutorStaysTheBaseExecutor) {
    const TestHost host;
    Executor first;
    Executor second;
    EXPECT_EQ(CWsManager::IsWSInitialized(), 0);
    CWsManager* const pManager = CWsManager::Instance();
    EXPECT_EQ(CWsManager::IsWSInitialized(), 1);
    EXPECT_EQ(pManager->CmdMgr()->GetBaseExecutor(), nullptr);
    pManager->RegisterBaseExecutor(&first);
    pManager->RegisterBaseExecutor(&second);
    EXPECT_EQ(pManager->CmdMgr()->GetBaseExecutor(), &first);
}

TEST(WsManager, RunsAfterDropOnlyForExactlyOne) {
    for (const auto& [text, expected] :
         {std::pair("", 0), std::pair("RUN_AFTER_DROP=1", 1), std::pair("RUN_AFTER_DROP=2", 0),
          std::pair("RUN_AFTER_DROP=0", 0)}) {
        const TestHost host;
        host.Support().Write("Settings.ini", std::string("[General]\n") + text + "\n");
        CModuleConfiguration::Instance()->ReloadGeneralSettings();
        EXPECT_EQ(CWsManager::Instance()->StartCommandAfterDragAndDrop(), expected) << text;
    }
}

TEST(WsManager, TheFirstCallBehindTheEndGivesABareObject) {
    const TestHost host;
    host.Support().Write("ModuleRegistry.xml",
                         "<moduleRegistry ><module on=\"1\" fileName=\"x.arx\" ></module>"
                         "</moduleRegistry>");
    // The flag survives destroying and recreating the manager.
    CWsManager::Instance()->Raise_OnBeforeAcadWillClose();
    delete CWsManager::Instance();
    EXPECT_EQ(CWsManager::IsWSInitialized(), 0);
    CLogEngine::SetLogging(1, host.Support().Native("trace.log"));
    const CWsManager* const pBare = CWsManager::Instance();
    EXPECT_EQ(CWsManager::Instance(), pBare);
    EXPECT_EQ(host.Output(), "\nx.arx") << "from the first start only";
    EXPECT_FALSE(host.Support().Has("trace.log"));
}

TEST(WsCommandManager, UnknownCommandsAndThoseWithoutExecutorGiveTheNeutralResult) {
    const TestHost host;
    CWsManager* const pManager = CWsManager::Instance();
    pManager->RegisterWsCommand(Command(L"BARE"));
    CWsCommandManager& commands = *pManager->CmdMgr();
    for (const wchar_t* id : {L"UNKNOWN", L"BARE", L""}) {
        EXPECT_TRUE(IsNeutral(*commands.Execute(id, nullptr, nullptr)));
        EXPECT_EQ(commands.GetLastCommand(), id);
        EXPECT_TRUE(IsNeutral(*commands.ExecuteExplicite(id, nullptr, nullptr, nullptr)));
    }
    EXPECT_TRUE(IsNeutral(*commands.Execute(nullptr, nullptr, nullptr)));
    EXPECT_TRUE(IsNeutral(CExecutorReturnValue()));
    EXPECT_EQ(host.Output(), "");
}

TEST(WsCommandManager, HandsTheCallToTheExecutor) {
    const TestHost host;
    Executor executor;
    CWsManager* const pManager = CWsManager::Instance();
    for (const wchar_t* id : {L"OUTER", L"INNER"}) {
        EXPECT_EQ(pManager->RegisterWsCommand(Command(id, &executor)), 1);
    }
    EXPECT_EQ(pManager->RegisterWsCommand(Command(L"INNER")), 0);
    CWsCommandManager& commands = *pManager->CmdMgr();
    auto* const pItem = reinterpret_cast<CWsTreeItemData*>(&executor);
    EXPECT_EQ(commands.Execute(L"INNER", nullptr, pItem)->m_nStatus, 3);
    EXPECT_EQ(executor.m_pItemData, pItem);
    Query::CQueryDefinition query(L"{guid}", L"All pipes");
    auto* const pSet = reinterpret_cast<Selection::CSelectionSet*>(&query);
    EXPECT_TRUE(IsNeutral(
        *commands.ExecuteExplicite(L"INNER", &query, pSet, const_cast<TestHost*>(&host))));
    EXPECT_EQ(executor.m_explicit, (std::vector<void*>{static_cast<CRepositoryItem*>(&query), pSet,
                                                       const_cast<TestHost*>(&host)}));
    commands.Execute(L"OUTER", nullptr, nullptr);
    EXPECT_EQ(commands.GetLastCommand(), L"INNER") << "the inner id stays";
    EXPECT_EQ(commands.GetAllowStopCommand(), 1);
}

TEST(WsCommandManager, SetDataCommandsOfASystem) {
    const TestHost host;
    acDocManagerPtr()->newDocument(L"Drawing1.dwg");
    CWsManager* const pManager = CWsManager::Instance();
    const Rows<const wchar_t*, int, int> rows = {
        {L"A", 1, 1}, {L"B", 0, 1}, {L"C", 1, 2}, {L"D", 1, 1}};
    for (const auto& [id, isSetData, function] : rows) {
        const auto command = Command(id);
        command->SetIsSetDataCommand(isSetData);
        command->AddWsTopologyData(
            boost::shared_ptr<CWsTopologyData>(new CWsTopologyData(TopologyLine, function)));
        pManager->RegisterWsCommand(command);
    }
    CWsCommandRegistry::CommandVector commands(3);
    pManager->CmdMgr()->GetSetDataCommands(commands, nullptr);
    EXPECT_TRUE(commands.empty());
    auto* const pSystem =
        System::CSystemManager::Instance()->CreateSystem(L"Water", TopologyLine, 1);
    pManager->CmdMgr()->GetSetDataCommands(commands, pSystem);
    ASSERT_EQ(commands.size(), 2U);
    EXPECT_EQ(commands[0]->GetId(), L"A");
    EXPECT_EQ(commands[1]->GetId(), L"D");
}

TEST(WsCommandManager, TracesTheIdInAScope) {
    TestHost host;
    CWsManager* const pManager = CWsManager::Instance();
    CLogEngine::SetLogging(1, host.Support().Native("trace.log"));
    Query::CQueryDefinition query(L"{guid}", L"All pipes");
    pManager->CmdMgr()->Execute(L"ID", &query, nullptr);
    pManager->CmdMgr()->ExecuteExplicite(nullptr, nullptr, nullptr, nullptr);
    const std::string trace = host.Support().Read("trace.log");
    for (const char* part : {"[Orvane::Workspace::CWsCommandManager::Execute], ID\n",
                             "CommandManager::Execute], All pipes\n",
                             "Exiting function , Orvane::Workspace::CWsCommandManager::Execute\n",
                             "CommandManager::ExecuteExplicite], Error: Bad pointer\n"}) {
        EXPECT_NE(trace.find(part), std::string::npos) << part;
    }
}

} // namespace
} // namespace Orvane::Workspace
