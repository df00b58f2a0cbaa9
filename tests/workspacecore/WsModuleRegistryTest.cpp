#include <gtest/gtest.h>

#include "siblings/logging/LogEngine.h"
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

TEST(WsModuleRegistry, BadTextsGiveWhatCanBeRead) {
    const TestHost host;
    const struct {
        const char* name;
        const wchar_t* text;
        int result;
        const wchar_t* files;
    } cases[] = {
        {"empty", L"", 0, L""},
        {"wrong root", L"<modules><module on='1' fileName='a'/></modules>", 0, L""},
        {"no module", L"<moduleRegistry ></moduleRegistry>", 1, L""},
        {"missing attributes", L"<moduleRegistry><module/></moduleRegistry>", 1, L"- "},
        {"bad numbers",
         L"<moduleRegistry><module on='yes' fileName='a'/><module on=' 7th' "
         L"fileName='b'/></moduleRegistry>",
         1, L"a- b+ "},
        {"entities", L"<moduleRegistry><module fileName='a&amp;lt;b&#65;'/></moduleRegistry>", 1,
         L"a<bA- "},
        // An element that is not ended keeps no children.
        {"cut", L"<moduleRegistry><module on='1' fileName='a'></module><module fileName='b", 1,
         L""},
        {"ended twice",
         L"<moduleRegistry><module on='1' fileName='a'></module></module>"
         L"</moduleRegistry>",
         1, L"a+ "},
        {"cut escape", L"<moduleRegistry><module fileName='ab=EF=B'/></moduleRegistry>", 1,
         L"ab- "},
    };
    for (const auto& row : cases) {
        CWsModuleRegistry registry;
        registry.AddWsModule(Module(L"old"));
        EXPECT_EQ(registry.ParseXML(row.text), row.result) << row.name;
        EXPECT_EQ(Files(registry), row.files) << row.name;
    }
}

TEST(WsModuleRegistry, FilesKeepTheListOnlyIfTheyCannotBeRead) {
    TestHost host;
    host.Support().Write("good.xml", "<moduleRegistry><module fileName='a'/></moduleRegistry>");
    host.Support().Write("ill.xml", "<moduleRegistry><module fileName='a'></moduleRegistry>");
    host.Support().Write("empty.xml", "");
    host.Support().Write("other.xml", "<modules/>");
    host.Support().Write("cut.xml", "<moduleRegistry ><module fileName='a'></module>");
    CLogEngine::SetLogging(1, host.Support().Native("trace.log"));
    const struct {
        const char* file;
        int result;
        const wchar_t* files;
        const char* problem; ///< of a damaged file
    } cases[] = {
        {"missing.xml", 0, L"old+ ", nullptr},
        {"", 0, L"old+ ", nullptr},
        {"good.xml", 1, L"a- ", nullptr},
        {"ill.xml", 1, L"a- ", "End tag 'moduleRegistry'"},
        {"cut.xml", 1, L"", "Root element has sibling"},
        {"empty.xml", 0, L"", ""},
        {"other.xml", 0, L"", ""},
    };
    for (const auto& row : cases) {
        CWsModuleRegistry registry;
        registry.AddWsModule(Module(L"old"));
        const std::string before = host.Support().Read(row.file);
        EXPECT_EQ(registry.Load(host.Support().Wide(row.file)), row.result) << row.file;
        EXPECT_EQ(Files(registry), row.files) << row.file;
        const std::string aside = std::string(row.file) + ".damaged-1";
        const std::string problem = WideToUtf8(registry.GetProblem().View());
        EXPECT_EQ(host.Support().Has(aside), row.problem != nullptr) << row.file;
        EXPECT_EQ(problem.empty(), row.problem == nullptr) << problem;
        if (row.problem) {
            EXPECT_EQ(host.Support().Read(aside), before) << row.file;
            EXPECT_NE(problem.find(row.problem), std::string::npos) << problem;
            EXPECT_NE(problem.find(host.Support().Native(aside)), std::string::npos) << problem;
            EXPECT_NE(host.Support().Read("trace.log").find(host.Support().Native(aside)),
                      std::string::npos);
            registry.Load(host.Support().Wide("good.xml"));
            EXPECT_TRUE(registry.GetProblem().IsEmpty()) << "that of the file loaded last";
        }
    }
    CWsModuleRegistry registry;
    registry.AddWsModule(Module(L"\u20ACa=b.arx"));
    ASSERT_EQ(registry.Save(host.Support().Wide("saved.xml")), 1);
    registry.Clear();
    ASSERT_EQ(registry.Load(host.Support().Wide("saved.xml")), 1);
    EXPECT_EQ(Files(registry), L"\u20ACa=b.arx+ ");
    EXPECT_EQ(registry.Save(host.Support().Wide("no/such/folder.xml")), 0);

    EXPECT_EQ(registry.SaveToDictionary(), 0);
    EXPECT_EQ(registry.GetWsModuleVector()->size(), 1U);
    EXPECT_EQ(registry.LoadFromDictionary(), 0);
    EXPECT_TRUE(registry.GetWsModuleVector()->empty());
    EXPECT_EQ(host.Alerts(), std::vector<std::wstring>(2, L"Not implemented"));
}

TEST(WsModuleRegistry, OnlyLoadedModulesExist) {
    CWsModuleRegistry registry;
    registry.AddWsModule(Module(L"ABC.ARX", 1, 1));
    registry.AddWsModule(Module(L"listed.arx", 1, 0));
    registry.AddWsModule(Module(L"/opt/x/Whole.arx", 1, 1));
    const struct {
        const wchar_t* file;
        int exists;
    } cases[] = {
        {L"C:\\x\\abc.arx", 1},
        {L"/usr/lib/abc.arx", 1},
        {L"abc.arx", 1},
        {L"listed.arx", 0},
        {L"whole.arx", 0},
        {L"/OPT/x/whole.arx", 1},
        {L"/other/abc.arx.bak", 0},
        {L"", 0},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(registry.DoesModuleExist(row.file), row.exists) << WideToUtf8(row.file);
    }
}

TEST(WsModuleRegistry, CopiesShareRecordsAndDeepCopiesDoNot) {
    CWsModuleRegistry registry;
    const ModulePtr module = Module(L"a", 1, 1);
    registry.AddWsModule(module);
    registry.AddWsModule(Module(L"b"));
    const CWsModuleRegistry shallow(registry);
    CWsModuleRegistry deep;
    deep.AddWsModule(Module(L"old"));
    registry.MakeDeepCopy(deep);
    registry.RemoveWsModule(module);
    registry.RemoveWsModule(module);
    EXPECT_EQ(Files(registry), L"b+ ");
    module->SetFileName(L"renamed");
    EXPECT_EQ(Files(shallow), L"renamed+ b+ ");
    EXPECT_EQ(Files(deep), L"a+ b+ ");
    EXPECT_EQ(deep.GetWsModuleVector()->front()->GetLoaded(), 1);
}

} // namespace
} // namespace Orvane::Workspace
