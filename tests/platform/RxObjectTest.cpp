#include "platform/arx/RxArxApp.h"

#include <gtest/gtest.h>

#include "platform/arx/CommandRunner.h"
#include "platform/arx/RxDynamicLinker.h"
#include "tests/support/TestHost.h"

namespace {

class Thing : public AcRxObject {
public:
    AcRxClass* isA() const override {
        return static_cast<AcRxClass*>(acrxClassDictionary()->at(L"Thing"));
    }
};

} // namespace

TEST(RuntimeClasses, TheHierarchyIsBuiltByNameInAnyOrder) {
    AcRxClass* const pThing = newAcRxClass(L"Thing", L"Base");
    EXPECT_FALSE(acrxBuildClassHierarchy()); // the parent is not registered yet
    EXPECT_FALSE(Thing().isKindOf(AcRxObject::desc()));
    AcRxClass* const pBase = newAcRxClass(L"Base", L"AcRxObject");
    EXPECT_TRUE(acrxBuildClassHierarchy());

    EXPECT_TRUE(Thing().isKindOf(pThing));
    EXPECT_TRUE(Thing().isKindOf(pBase));
    EXPECT_TRUE(Thing().isKindOf(AcRxObject::desc()));
    EXPECT_FALSE(Thing().isKindOf(AcRxClass::desc()));
    EXPECT_FALSE(Thing().isKindOf(nullptr));
    EXPECT_EQ(newAcRxClass(L"Thing", L"AcRxObject"), nullptr); // the name is taken

    deleteAcRxClass(pBase);
    EXPECT_EQ(acrxClassDictionary()->at(L"Base"), nullptr);
    EXPECT_EQ(pThing->myParent(), nullptr);
    EXPECT_TRUE(Thing().isKindOf(pThing));
    deleteAcRxClass(pThing);
    deleteAcRxClass(nullptr);
}

TEST(RuntimeClasses, TheSystemRegistryHasTheClassesAndTheCommands) {
    EXPECT_EQ(acrxSysRegistry()->at(L"ClassDictionary"), acrxClassDictionary());
    EXPECT_EQ(acrxSysRegistry()->at(L"ACAD_REGISTERED_COMMANDS"), acedRegCmds());
    EXPECT_EQ(acrxSysRegistry()->at(L"nothing"), nullptr);
}

namespace {

int s_nRuns = 0;
void CountRun() {
    ++s_nRuns;
}

class TestApp final : public AcRxArxApp {
protected:
    std::span<const AcRxCommandEntry> CommandTable() const override {
        static const AcRxCommandEntry commands[] = {{L"GROUP", L"GLOBAL", L"Lokal", 1, &CountRun}};
        return commands;
    }
};

/// Provides one command, and records the names it is asked for.
class Source final : public IEdCommandSource {
public:
    CommandOutcome Run(const wchar_t* name) override {
        m_asked.emplace_back(name);
        return CString(name) == L"BAD" ? CommandOutcome::Failed : CommandOutcome::Unknown;
    }
    std::vector<EdSourceCommand> List() const override { return {}; }
    std::vector<CString> m_asked;
};

} // namespace

TEST(ArxApp, CommandsExistWhileTheModuleIsLoaded) {
    TestApp app;
    EXPECT_EQ(app.Dispatch(AcRx::kInitAppMsg, nullptr), AcRx::kRetOK);
    EXPECT_EQ(acedRunner().Run({L"global"}), CommandOutcome::Done);
    EXPECT_EQ(acedRunner().Run({L"LOKAL"}), CommandOutcome::Done);
    EXPECT_EQ(s_nRuns, 2);
    EXPECT_FALSE(acedRegCmds()->addCommand(L"group", L"Global", L"x", 0, &CountRun));
    EXPECT_TRUE(acedRegCmds()->addCommand(L"OTHER", L"Global", L"x", 0, &CountRun));

    for (const int message : {0, 3, 14, 15}) {
        EXPECT_EQ(app.Dispatch(message, nullptr), AcRx::kRetOK) << message;
    }
    EXPECT_EQ(app.Dispatch(16, nullptr), 0);
    EXPECT_EQ(app.Dispatch(-1, nullptr), 0);

    EXPECT_EQ(app.Dispatch(AcRx::kUnloadAppMsg, nullptr), AcRx::kRetOK);
    EXPECT_EQ(acedRunner().Run({L"Lokal"}), CommandOutcome::Unknown);
    acedRegCmds()->removeGroup(L"other");
    EXPECT_EQ(acedRunner().Run({L"Global"}), CommandOutcome::Unknown);
}

TEST(CommandStack, SourcesAreTriedAfterCommandsInOrderOfAdding) {
    Source first;
    Source second;
    AcEdCommandStack stack;
    stack.addCommand(L"G", L"OWN", L"OWN", 0, &CountRun);
    stack.addSource(&first);
    stack.addSource(&second);
    CommandRunner runner(stack);
    EXPECT_EQ(runner.Run({L"own"}), CommandOutcome::Done);
    EXPECT_EQ(runner.Run({L"BAD"}), CommandOutcome::Failed);
    EXPECT_EQ(runner.Run({L"other"}), CommandOutcome::Unknown);
    EXPECT_EQ(first.m_asked, (std::vector<CString>{L"BAD", L"other"}));
    EXPECT_EQ(second.m_asked, (std::vector<CString>{L"other"}));
}

TEST(DynamicLinker, RefusesAFileThatIsNotAModuleWithAReason) {
    const TempFolder folder;
    folder.Write("text.arx", "no module");
    EXPECT_FALSE(acrxDynamicLinker()->loadModule(folder.Wide("text.arx")));
    EXPECT_FALSE(acrxDynamicLinker()->isModuleLoaded(folder.Wide("text.arx")));
    EXPECT_FALSE(acrxDynamicLinker()->unloadModule(folder.Wide("text.arx")));
}
