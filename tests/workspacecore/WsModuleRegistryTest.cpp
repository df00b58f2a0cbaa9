#include <gtest/gtest.h>

#include "siblings/logging/LogEngine.h"
#include "tests/support/Rows.h"
#include "tests/support/TestHost.h"
#include "workspacecore/plugins/WsModuleRegistry.h"

namespace Orvane::Workspace {
namespace {

using ModulePtr = CWsModuleRegistry::ModulePtr;

ModulePtr Module(const wchar_t* fileName, int on = 1, int loaded = 0) {
    ModulePtr module(new CWsModule);
    module->SetFileName(fileName);
    module->SetOn(on);
    module->SetLoaded(loaded);
    return module;
}

std::wstring Files(const CWsModuleRegistry& registry) {
    std::wstring files;
    for (const ModulePtr& module : *registry.GetWsModuleVector()) {
        files += module->GetFileName().Str() + (module->GetOn() ? L"+ " : L"- ");
    }
    return files;
}

TEST(WsModuleRegistry, WritesTheFixedForm) {
    const TestHost host;
    CWsModuleRegistry registry;
    registry.AddWsModule(Module(L"a=b&c.arx", 1, 1));
    EXPECT_EQ(registry.GetXML(),
              L"<moduleRegistry ><module msgName=\"0\" on=\"1\" fileName=\"a=3Db&amp;c.arx\" "
              L"loaded=\"1\" moduleDLLInstance=\"0\" pluginInfo=\"0\" releaseModule=\"0\" >"
              L"</module></moduleRegistry>");
}

TEST(WsModuleRegistry, ReadsWhatAFileMaySayAndNothingOfTheRunTime) {
    const TestHost host;
    CWsModuleRegistry registry;
    ASSERT_EQ(registry.ParseXML(L"<moduleRegistry><module msgName='x' on='1' "
                                L"fileName='caf=EF=BF=A9.arx' loaded='1' moduleDLLInstance='7' "
                                L"pluginInfo='7' releaseModule='7'/></moduleRegistry>"),
              1);
    const CWsModule& module = *registry.GetWsModuleVector()->front();
    EXPECT_EQ(module.GetFileName(), L"caf\u00E9.arx");
    EXPECT_EQ(module.GetMsgName(), 0);
    EXPECT_EQ(module.GetLoaded(), 0);
    EXPECT_EQ(module.GetModuleDLLInstance(), nullptr);
    EXPECT_EQ(module.GetPluginInfo(), nullptr);
    EXPECT_EQ(module.GetReleaseModule(), nullptr);
    EXPECT_NE(registry.GetXML().Find(L"fileName=\"caf=EF=BF=A9.arx\""), -1);
}

TEST(WsModuleRegistry, NumbersAreReadAsFarAsTheyGo) {
    CWsModuleRegistry registry;
    registry.ParseXML(L"<moduleRegistry><module/><module on='yes' fileName='a'/>"
                      L"<module on=' 7th' fileName='b'/></moduleRegistry>");
    EXPECT_EQ(Files(registry), L"- a- b+ ");
}

TEST(WsModuleRegistry, DamagedFilesAreReportedAndKept) {
    TestHost host;
    host.Support().Write("good.xml", "<moduleRegistry><module fileName='a'/></moduleRegistry>");
    host.Support().Write("ill.xml", "<moduleRegistry><module fileName='a'></moduleRegistry>");
    host.Support().Write("empty.xml", "");
    host.Support().Write("other.xml", "<modules/>");
    host.Support().Write("cut.xml", "<moduleRegistry ><module fileName='a'></module>");
    CLogEngine::SetLogging(1, host.Support().Native("trace.log"));
    const Rows<const char*, int, const wchar_t*, const char*> cases = {
        {"missing.xml", 0, L"old+ ", nullptr},
        {"good.xml", 1, L"a- ", nullptr},
        {"ill.xml", 1, L"a- ", "End tag 'moduleRegistry'"},
        {"cut.xml", 1, L"", "Root element has sibling"},
        {"empty.xml", 0, L"", ""},
        {"other.xml", 0, L"", ""},
    };
    for (const auto& [file, result, files, itsProblem] : cases) {
        CWsModuleRegistry registry;
        registry.AddWsModule(Module(L"old"));
        const std::string before = host.Support().Read(file);
        EXPECT_EQ(registry.Load(host.Support().Wide(file)), result) << file;
        EXPECT_EQ(Files(registry), files) << file;
        const std::string aside = std::string(file) + ".damaged-1";
        const std::string problem = WideToUtf8(registry.GetProblem().View());
        EXPECT_EQ(host.Support().Has(aside), itsProblem != nullptr) << file;
        EXPECT_EQ(problem.empty(), itsProblem == nullptr) << problem;
        if (itsProblem) {
            EXPECT_EQ(host.Support().Read(aside), before) << file;
            EXPECT_NE(problem.find(itsProblem), std::string::npos) << problem;
            EXPECT_NE(problem.find(host.Support().Native(aside)), std::string::npos) << problem;
            EXPECT_NE(host.Support().Read("trace.log").find(host.Support().Native(aside)),
                      std::string::npos);
            registry.Load(host.Support().Wide("good.xml"));
            EXPECT_TRUE(registry.GetProblem().IsEmpty()) << "that of the file loaded last";
        }
    }
}

TEST(WsModuleRegistry, OnlyLoadedModulesExist) {
    CWsModuleRegistry registry;
    registry.AddWsModule(Module(L"ABC.ARX", 1, 1));
    registry.AddWsModule(Module(L"listed.arx", 1, 0));
    registry.AddWsModule(Module(L"/opt/x/Whole.arx", 1, 1));
    const Rows<const wchar_t*, int> cases = {
        {L"C:\\x\\abc.arx", 1},
        {L"/usr/lib/abc.arx", 1},
        {L"abc.arx", 1},
        {L"listed.arx", 0},
        {L"whole.arx", 0},
        {L"/OPT/x/whole.arx", 1},
        {L"/other/abc.arx.bak", 0},
        {L"", 0},
    };
    for (const auto& [file, exists] : cases) {
        EXPECT_EQ(registry.DoesModuleExist(file), exists) << WideToUtf8(file);
    }
}

TEST(WsModuleRegistry, RemovesTheRecordItIsGiven) {
    CWsModuleRegistry registry;
    const ModulePtr module = Module(L"a", 1, 1);
    registry.AddWsModule(module);
    registry.AddWsModule(Module(L"a", 0));
    CWsModuleRegistry deep;
    registry.MakeDeepCopy(deep);
    EXPECT_EQ(deep.GetWsModuleVector()->front()->GetLoaded(), 1) << "a copy looks loaded";
    registry.RemoveWsModule(module);
    registry.RemoveWsModule(module);
    EXPECT_EQ(Files(registry), L"a- ");
}

} // namespace
} // namespace Orvane::Workspace
