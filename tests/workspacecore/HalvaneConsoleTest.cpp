#include <gtest/gtest.h>

#include "platform/arx/EdPrompt.h"
#include "tests/support/TestHost.h"
#include "workspacecore/core/WsManager.h"

namespace Orvane::Workspace {
namespace {

const std::string kStars = std::string(53, '*') + "\n";
const std::string kBanner = kStars +
                            "Halvane Command processor.\n"
                            "type 'exit' to quit\n"
                            "type 'list' to show available commands\n"
                            "type 'config' to show plugin dialog\n" +
                            kStars;

/// Records the commands it runs and the command line colours at that time.
class Recorder final : public IWsCommandExecutor {
public:
    boost::shared_ptr<CExecutorReturnValue> Execute(const wchar_t* id, Query::CQueryDefinition*,
                                                    CWsTreeItemData*) override {
        m_ids += CString(id) + L";";
        acedGetCurrentColors(&m_colors);
        if (CString(id) == L"FAIL") {
            throw std::runtime_error("executor");
        }
        return NeutralReturnValue();
    }
    CString m_ids;
    AcColorSettings m_colors;
};

class ConsoleTest : public testing::Test {
protected:
    /// Output of the console after its banner.
    std::string Run(std::initializer_list<const wchar_t*> answers) {
        CWsManager* const pManager = CWsManager::Instance();
        m_host.TakeOutput();
        m_host.Answer(answers);
        pManager->StartHalvaneConsole();
        EXPECT_TRUE(m_host.AllAnswered());
        const std::string output = m_host.TakeOutput();
        EXPECT_EQ(output.substr(0, kBanner.size()), kBanner);
        return output.substr(std::min(kBanner.size(), output.size()));
    }
    void Register(const wchar_t* id, const wchar_t* description, IWsCommandExecutor* pExecutor) {
        boost::shared_ptr<CWsCommand> command(new CWsCommand);
        command->SetId(id);
        command->SetDescription(description);
        command->SetCmdExecutor(pExecutor);
        CWsManager::Instance()->RegisterWsCommand(command);
    }

    TestHost m_host;
    Recorder m_recorder;
};

TEST_F(ConsoleTest, OnlyExitAndQuitLeave) {
    for (const wchar_t* word : {L"exit", L"EXIT", L"Exit", L"_quit", L"_QUIT"}) {
        EXPECT_EQ(Run({word}), "Command: ");
    }
    EXPECT_EQ(Run({L"\x1B", L"", L"quit", L"exit"}),
              "Command: Command: Unknown command!\nCommand: Unknown command!\nCommand: ");
    EXPECT_EQ(m_host.Escapes(), 6);
}

TEST_F(ConsoleTest, ListsCommandsInTheOrderOfTheRegistry) {
    EXPECT_EQ(Run({L"list", L"exit"}),
              "Command: cmdId (description)\n-------------------\nCommand: ");
    Register(L"ZOOM", L"shows all", &m_recorder);
    Register(L"BARE", L"", nullptr);
    EXPECT_EQ(Run({L"LIST", L"exit"}), "Command: cmdId (description)\n-------------------\n"
                                       "ZOOM (shows all)\nBARE ()\nCommand: ");
}

TEST_F(ConsoleTest, RunsAnyOtherTextAsAnUpperCaseId) {
    Register(L"SYSTEM_EDIT", L"", &m_recorder);
    Register(L"BARE", L"", nullptr);
    EXPECT_EQ(Run({L"system_edit", L"bare", L"system edit", L"System_Edit2", L"exit"}),
              "Command: Command: Command: Unknown command!\nCommand: Command: ");
    EXPECT_EQ(m_recorder.m_ids, L"SYSTEM_EDIT;SYSTEM_EDIT2;");
    EXPECT_EQ(CWsManager::Instance()->CmdMgr()->GetLastCommand(), L"SYSTEM_EDIT2");
}

TEST_F(ConsoleTest, ConfigListsTheModulesAndLongAnswersAreCut) {
    boost::shared_ptr<CWsModule> module(new CWsModule);
    module->SetFileName(L"a.arx");
    module->SetOn(1);
    CWsManager::Instance()->PluginMgr()->GetModuleRegistry()->AddWsModule(module);
    EXPECT_EQ(Run({L"Config", L"exit"}), "Command: a.arx (): on, not loaded\nCommand: ");
    const std::wstring id(132, L'X');
    Register(id.c_str(), L"", &m_recorder);
    Run({(id + L"YZ").c_str(), L"exit"});
    EXPECT_EQ(m_recorder.m_ids, (id + L";").c_str());
}

TEST_F(ConsoleTest, ColoursAreTheConsolesOwnWhileItRuns) {
    AcColorSettings before;
    before.m_colors.fill(7);
    acedSetCurrentColors(&before);
    Register(L"X", L"", &m_recorder);
    Run({L"x", L"exit"});
    AcColorSettings expected = before;
    expected.m_colors[5] = expected.m_colors[25] = 250;
    expected.m_colors[24] = expected.m_colors[26] = 1683425;
    EXPECT_EQ(m_recorder.m_colors, expected);
    AcColorSettings after;
    acedGetCurrentColors(&after);
    EXPECT_EQ(after, before);

    Register(L"FAIL", L"", &m_recorder);
    m_host.Answer({L"fail"});
    EXPECT_THROW(CWsManager::Instance()->StartHalvaneConsole(), std::runtime_error);
    acedGetCurrentColors(&after);
    EXPECT_EQ(after, expected) << "an exception leaves them changed";
}

} // namespace
} // namespace Orvane::Workspace
