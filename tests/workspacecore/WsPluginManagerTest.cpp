#include <filesystem>
#include <gtest/gtest.h>

#include "platform/arx/Activity.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/logging/LogEngine.h"
#include "tests/support/TestHost.h"
#include "tests/support/TreeOutline.h"
#include "workspacecore/core/WsManager.h"
#include "workspacecore/plugins/LoadSteps.h"

namespace Orvane::Workspace {
namespace {

class PluginManagerTest : public testing::Test {
protected:
    PluginManagerTest() { SetHostOption(kHostOptionInstall, L"" TESSALY_FIXTURES_DIR "/"); }

    struct Listed {
        const char* file;
        bool on = true;
    };
    void WriteRegistry(std::initializer_list<Listed> modules) {
        std::string text = "<moduleRegistry >";
        for (const Listed& module : modules) {
            text += std::string("<module msgName=\"0\" on=\"") + (module.on ? "1" : "0") +
                    "\" fileName=\"" + module.file + "\" ></module>";
        }
        m_host.Support().Write("ModuleRegistry.xml", text + "</moduleRegistry>");
    }
    static CWsPluginManager& Plugins() { return *CWsManager::Instance()->PluginMgr(); }
    static std::string Commands() {
        std::string ids;
        for (const auto& command :
             *CWsManager::Instance()->CmdMgr()->GetCommandRegistry()->GetWsCommandVector()) {
            ids += WideToUtf8(command->GetId().View()) + " ";
        }
        return ids;
    }
    /// State of each record: "on,loaded,handle " if it runs, "off " if it is off or was unloaded.
    static std::string States() {
        std::string states;
        for (const auto& module : *Plugins().GetModuleRegistry()->GetWsModuleVector()) {
            states += module->GetOn() ? "on" : "off";
            states += module->GetLoaded() ? ",loaded" : "";
            states += module->GetModuleDLLInstance() ? ",handle " : " ";
        }
        return states;
    }

    TestHost m_host;
};

TEST(LoadSteps, PercentAndAttempts) {
    const int expected[] = {33, 66, 100};
    for (std::size_t i = 0; i < std::size(expected); ++i) {
        EXPECT_EQ(LoadPercent(i, std::size(expected)), expected[i]);
    }
    int library = 0;
    for (const auto& [failures, attempts] : {std::pair(0, 1), std::pair(6, 7), std::pair(9, 7)}) {
        int calls = 0;
        HINSTANCE loaded = LoadWithAttempts(
            [&]() -> HINSTANCE { return ++calls > failures ? &library : nullptr; });
        EXPECT_EQ(calls, attempts);
        EXPECT_EQ(loaded, failures < 7 ? &library : nullptr);
    }
}

TEST_F(PluginManagerTest, WithoutRegistryFileTheStartGoesOn) {
    EXPECT_EQ(Plugins().IsRegistryLoaded(), 0);
    EXPECT_EQ(Plugins().LoadModules(), 0);
    EXPECT_EQ(m_host.Output(), "");
    EXPECT_EQ(CModuleConfiguration::Instance()->GetApplicationIsLoaded(), 1);
}

TEST_F(PluginManagerTest, AnEmptyRegistryIsLoadedOnce) {
    WriteRegistry({});
    CWsPluginManager plugins;
    EXPECT_EQ(plugins.IsRegistryLoaded(), 1);
    EXPECT_EQ(plugins.LoadModules(), 0);
    boost::shared_ptr<CWsModule> late(new CWsModule);
    late->SetOn(1);
    late->SetFileName(L"GoodPlugin.arx");
    plugins.GetModuleRegistry()->AddWsModule(late);
    EXPECT_EQ(plugins.LoadModules(), 0) << "there is no second run";
    EXPECT_EQ(late->GetLoaded(), 0);
}

TEST_F(PluginManagerTest, HooksRunInTheOrderOfTheStart) {
    WriteRegistry({{"GoodPlugin.arx"}});
    CWsManager::Instance();
    EXPECT_EQ(Commands(), "GOOD_6 GOOD_1 GOOD_2 GOOD_3 GOOD_4 GOOD_5 GOOD_7 GOOD_TOOLTIPS "
                          "GOOD_PANELS GOOD_EXTENDERS ");
    EXPECT_EQ(States(), "on,loaded,handle ");
    EXPECT_EQ(m_host.Output(), "\nGoodPlugin.arx");
}

TEST_F(PluginManagerTest, TemplatesAreBuiltOfWhatTheHooksRegistered) {
    WriteRegistry({{"BringsTreeItems.arx"}});
    const auto& list = *CWsManager::Instance()->TreeMgr()->GetTreeItemDefinitionList();
    EXPECT_EQ(Outline(list.GetSystemTreeTemplate(TopologyPolygon, 0)), "SYSTEM\n");
    EXPECT_EQ(Outline(list.GetDiskTreeTemplate()), "DISKREPO\n");
    EXPECT_EQ(Outline(list.GetNetTreeTemplate()), "DISKREPO\n");
}

TEST_F(PluginManagerTest, OneModuleThatFailsStopsNothing) {
    const std::filesystem::path folder(TESSALY_FIXTURES_DIR);
    std::filesystem::copy_file(folder / "GoodPlugin.arx", folder / "CutInTheMiddle.arx",
                               std::filesystem::copy_options::overwrite_existing);
    std::filesystem::resize_file(folder / "CutInTheMiddle.arx", 5000);
    CLogEngine::SetLogging(1, m_host.Support().Native("trace.log"));
    WriteRegistry({{"NotThere.arx"},
                   {"NoProvider.arx"},
                   {"CutInTheMiddle.arx"},
                   {"NullProvider.arx"},
                   {"GoodPlugin.arx", false},
                   {"NoReleaseEntry.arx"}});
    CWsManager::Instance();
    EXPECT_EQ(States(), "on off on off off on,loaded,handle ");
    EXPECT_EQ(m_host.Output(), "\nNotThere.arx\nNoProvider.arx\nCutInTheMiddle.arx"
                               "\nNullProvider.arx\nGoodPlugin.arx\nNoReleaseEntry.arx");
    std::string trace;
    std::istringstream lines(m_host.Support().Read("trace.log"));
    for (std::string line; std::getline(lines, line);) {
        const std::string text = line.substr(line.find("], ", line.find("): [")) + 3);
        // The loader's own messages contain paths of the machine.
        trace += text.find("/") == std::string::npos ? text + "\n" : "(reason)\n";
    }
    EXPECT_EQ(trace, "CWsManager - 1\nCWsManager - 2\n"
                     "Module = NotThere.arx, ON\n***NOT LOADED***\nNo such file or directory\n"
                     "Module = NoProvider.arx, ON\nDLL Loaded\n***Plugin entry NOT found***\n"
                     "---------------------------\n"
                     "Module = CutInTheMiddle.arx, ON\n***NOT LOADED***\n(reason)\n"
                     "Module = NullProvider.arx, ON\nDLL Loaded\nPlugin entry found\n"
                     "---------------------------\n"
                     "Module = GoodPlugin.arx, OFF\n"
                     "Module = NoReleaseEntry.arx, ON\nDLL Loaded\nPlugin entry found\n"
                     "---------------------------\n"
                     "CWsManager - 3\nCWsManager - 4\nCWsManager - 5\nCWsManager - 6\n"
                     "CWsManager - 7\n");
}

TEST_F(PluginManagerTest, ARecordThatAHookAppendsIsLoadedInItsTurn) {
    WriteRegistry({{"AppendsRecord.arx"}});
    CWsManager::Instance();
    EXPECT_EQ(States(), "on,loaded,handle on,loaded,handle ");
    EXPECT_NE(Commands().find("NORELEASE_6 "), std::string::npos);
}

TEST_F(PluginManagerTest, TheProviderIsAskedOnceForEachHook) {
    WriteRegistry({{"CountsProviderCalls.arx"}});
    EXPECT_NO_THROW(CWsManager::Instance());
    EXPECT_EQ(States(), "on,loaded,handle ");
}

TEST_F(PluginManagerTest, AnExceptionOfAHookLeavesTheStartWithItsName) {
    WriteRegistry({{"ThrowsInHook3.arx"}, {"GoodPlugin.arx"}});
    EXPECT_THROW(CWsManager::Instance(), std::runtime_error);
    EXPECT_EQ(TakeInterruptedActivity(), L"ThrowsInHook3.arx: PluginHook3");
    EXPECT_EQ(TakeInterruptedActivity(), L"");
    EXPECT_EQ(CWsManager::IsWSInitialized(), 1);
    EXPECT_EQ(Commands(), "THROWER_6 THROWER_1 THROWER_2 ") << "the same object, partly started";
    EXPECT_EQ(CModuleConfiguration::Instance()->GetApplicationIsLoaded(), 0);
}

TEST_F(PluginManagerTest, ASingleFileRunsItsOwnSequence) {
    WriteRegistry({{"GoodPlugin.arx", false}});
    const CString path = L"" TESSALY_FIXTURES_DIR "/GoodPlugin.arx";
    CWsManager::Instance();
    m_host.TakeOutput();
    EXPECT_EQ(Plugins().LoadModule(path), 1) << "listed, but not loaded";
    EXPECT_EQ(Commands(),
              "GOOD_7 GOOD_6 GOOD_1 GOOD_3 GOOD_4 GOOD_TOOLTIPS GOOD_PANELS GOOD_EXTENDERS ");
    EXPECT_EQ(States(), "off on,loaded,handle ");
    EXPECT_EQ(Plugins().GetModuleRegistry()->GetWsModuleVector()->back()->GetFileName(), path);
    EXPECT_EQ(m_host.Output(), "");
    for (const wchar_t* file : {path.GetString(), L"" TESSALY_FIXTURES_DIR "/NoProvider.arx",
                                L"" TESSALY_FIXTURES_DIR "/NotThere.arx"}) {
        EXPECT_EQ(Plugins().LoadModule(file), 0);
    }
    EXPECT_EQ(States(), "off on,loaded,handle ");
}

TEST_F(PluginManagerTest, ReleasedModulesStayListedAsLoaded) {
    WriteRegistry({{"GoodPlugin.arx"}, {"NotThere.arx"}});
    CWsManager::Instance();
    Plugins().ReleaseModules();
    EXPECT_EQ(States(), "off,loaded on ");
    EXPECT_EQ(Commands().find("RELEASED"), std::string::npos);
}

} // namespace
} // namespace Orvane::Workspace
