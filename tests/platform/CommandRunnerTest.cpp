#include "platform/arx/CommandRunner.h"

#include <functional>
#include <gtest/gtest.h>
#include <stdexcept>

#include "platform/arx/ApDocManager.h"
#include "platform/arx/DbUndo.h"
#include "platform/arx/EdProgress.h"
#include "platform/arx/Guard.h"
#include "tests/support/TestHost.h"

namespace {

std::function<void()> s_work;

void Work() {
    s_work();
}

void Fail() {
    acedSetCommandFailed();
}

void AddPoint() {
    AcDbDatabase& database = *acDocManagerPtr()->curDocument()->database();
    database.appendEntity(std::make_unique<AcDbPoint>());
}

class Source final : public IEdCommandSource {
public:
    CommandOutcome Run(const wchar_t* name) override {
        if (CString(name).CompareNoCase(L"elsewhere") != 0) {
            return CommandOutcome::Unknown;
        }
        s_work();
        return CommandOutcome::Done;
    }
    std::vector<EdSourceCommand> List() const override { return {}; }
};

class CommandsTest : public testing::Test {
protected:
    CommandsTest() {
        m_stack.addCommand(L"G", L"WORK", L"WORK", 0, Work);
        m_stack.addCommand(L"G", L"ALONE", L"ALONE", ACRX_CMD_NO_UNDO_GROUP, Work);
        m_stack.addCommand(L"G", L"FAIL", L"FAIL", 0, Fail);
        m_stack.addSource(&m_source);
    }
    ~CommandsTest() override {
        while (AcApDocument* const pDoc = acDocManagerPtr()->curDocument()) {
            acDocManagerPtr()->closeDocument(pDoc);
        }
    }
    CommandsTest(const CommandsTest&) = delete;
    CommandsTest& operator=(const CommandsTest&) = delete;

    CommandOutcome Run(const wchar_t* name) { return m_runner.Run({name}); }

    TestHost m_host;
    Source m_source;
    AcEdCommandStack m_stack;
    CommandRunner m_runner{m_stack};
};

TEST_F(CommandsTest, ReportWhetherTheyFailed) {
    s_work = [] {};
    EXPECT_EQ(Run(L"work"), CommandOutcome::Done);
    EXPECT_EQ(Run(L"fail"), CommandOutcome::Failed);
    EXPECT_EQ(Run(L"work"), CommandOutcome::Done) << "the other command failed";
    EXPECT_EQ(Run(L"nothing"), CommandOutcome::Unknown);
    s_work = [this] { EXPECT_EQ(Run(L"fail"), CommandOutcome::Failed); };
    EXPECT_EQ(Run(L"work"), CommandOutcome::Done) << "only the nested command failed";
    s_work = [] { acedSetCommandFailed(); };
    EXPECT_EQ(Run(L"elsewhere"), CommandOutcome::Failed);
}

TEST_F(CommandsTest, AreOneUndoStepEach) {
    AcDbDatabase& database = *acDocManagerPtr()->newDocument()->database();
    const auto work = [] {
        AddPoint();
        AddPoint();
    };
    const struct {
        const wchar_t* command;
        std::function<void()> work;
        const wchar_t* step;
        std::size_t left; ///< points, of two, after undoing the step
    } cases[] = {
        {L"work", work, L"WORK", 0},
        {L"Elsewhere", work, L"ELSEWHERE", 0},
        {L"alone", work, L"", 1},
        {L"work",
         [&] {
             database.undo().beginGroup(L"inside");
             work();
         },
         L"WORK", 0},
        {L"work",
         [&] {
             database.undo().beginGroup(L"inside");
             work();
             throw std::runtime_error("no");
         },
         L"WORK", 0},
        {L"work",
         [&] {
             work();
             acDocManagerPtr()->newDocument();
         },
         L"WORK", 0},
    };
    for (const auto& row : cases) {
        s_work = row.work;
        Run(row.command);
        EXPECT_EQ(database.undo().openGroups(), 0);
        ASSERT_NE(database.undo().undoName(), nullptr);
        EXPECT_EQ(database.undo().undoName()->Str(), row.step);
        EXPECT_TRUE(database.undo().undo());
        EXPECT_EQ(database.entityCount(), row.left);
        while (database.undo().undo()) {
        }
    }
}

TEST_F(CommandsTest, MayCloseTheDrawingTheyStartedIn) {
    for (const int drawings : {1, 2}) {
        for (int i = 0; i < drawings; ++i) {
            acDocManagerPtr()->newDocument();
        }
        s_work = [] {
            AddPoint();
            acDocManagerPtr()->closeDocument(acDocManagerPtr()->curDocument());
            acDocManagerPtr()->newDocument();
        };
        EXPECT_EQ(Run(L"work"), CommandOutcome::Done);
        EXPECT_EQ(acDocManagerPtr()->curDocument()->database()->undo().openGroups(), 0);
    }
}

TEST_F(CommandsTest, TheRunnerReportsAnythingTheyThrowInOneLine) {
    const struct {
        std::function<void()> work;
        const char* reason;
    } cases[] = {
        {[] { throw std::runtime_error("no paper"); }, "no paper"},
        {[] { throw 42; }, "unknown exception"},
    };
    for (const auto& row : cases) {
        s_work = row.work;
        EXPECT_EQ(Run(L"Work"), CommandOutcome::Failed);
        EXPECT_EQ(m_host.TakeOutput(), std::string("> Work\n\nWork failed: ") + row.reason + "\n");
        EXPECT_FALSE(m_runner.IsBusy());
    }
}

TEST_F(CommandsTest, TheFailingModuleIsKnownAfterCallsDuringUnwinding) {
    struct Watcher final : ICommandWatcher {
        void CommandEnded(const CommandOrder&, bool) override {
            Guarded(L"watcher", [] {}); // as the toolkit does for every event
        }
    } watcher;
    m_runner.AddWatcher(&watcher);
    s_work = [] {
        const ActivityScope activity(L"Module.arx", L"step");
        throw std::runtime_error("no");
    };
    for (int i = 0; i < 2; ++i) {
        Run(L"WORK");
        EXPECT_NE(m_host.TakeOutput().find("Module.arx: step failed: no"), std::string::npos);
    }
    s_work = [] { throw std::runtime_error("no"); };
    Run(L"WORK");
    EXPECT_NE(m_host.TakeOutput().find("WORK failed: no"), std::string::npos);
    m_runner.RemoveWatcher(&watcher);
}

TEST_F(CommandsTest, ExceptionsOfANestedCommandPropagateAndEndItFirst) {
    struct Watcher final : ICommandWatcher {
        void CommandEnded(const CommandOrder& order, bool hasThrown) override {
            m_ended += order.id + (hasThrown ? L" threw;" : L" ended;");
        }
        CString m_ended;
    } watcher;
    m_runner.AddWatcher(&watcher);
    int nPassed = 0;
    const auto part = [&](OrderOrigin origin) {
        try {
            m_runner.RunInside({L"PART", origin, []() -> CommandOutcome { throw 42; }});
        } catch (int) {
            ++nPassed;
            throw;
        }
    };
    s_work = [&] { part(OrderOrigin::Console); };
    EXPECT_EQ(Run(L"WORK"), CommandOutcome::Failed);
    EXPECT_EQ(nPassed, 1);
    EXPECT_EQ(watcher.m_ended.Str(), L"PART threw;WORK threw;");
    m_runner.RemoveWatcher(&watcher);
}

TEST_F(CommandsTest, OrdersGivenMeanwhileWaitAndCancelPrompts) {
    CString log;
    const auto order = [&](
                           const wchar_t* id, std::function<void()> inside = [] {}) {
        return CommandOrder{id, OrderOrigin::Tree, [&log, id, inside] {
                                log += CString(id) + L"(";
                                inside();
                                log += L")";
                                return CommandOutcome::Done;
                            }};
    };
    m_runner.Give(order(L"A", [&] {
        m_runner.Give(order(L"B", [&] { m_runner.Post(order(L"C")); }));
        EXPECT_EQ(m_host.m_nCancelled, 1);
        m_runner.RunWaiting();
        m_runner.Run(order(L"part"));
    }));
    EXPECT_EQ(log.Str(), L"A(part())");
    m_host.m_isPrompting = true;
    m_runner.RunWaiting();
    EXPECT_EQ(log.Str(), L"A(part())") << "a prompt is open";
    m_host.m_isPrompting = false;
    m_runner.RunWaiting();
    EXPECT_EQ(log.Str(), L"A(part())B()C()");
    m_runner.Post(order(L"D"));
    m_runner.Stop();
    m_runner.Give(order(L"E"));
    m_runner.RunWaiting();
    EXPECT_EQ(log.Str(), L"A(part())B()C()");
}

TEST_F(CommandsTest, AreEchoedAndRememberedDependingOnOrigin) {
    const struct {
        OrderOrigin origin;
        bool isEchoed;
        bool isRemembered;
    } cases[] = {
        {OrderOrigin::Typed, true, true},    {OrderOrigin::Palette, true, true},
        {OrderOrigin::Menu, true, true},     {OrderOrigin::Module, true, true},
        {OrderOrigin::Tree, true, false},    {OrderOrigin::Dialog, true, false},
        {OrderOrigin::Timer, false, false},  {OrderOrigin::Console, false, false},
        {OrderOrigin::Script, false, false},
    };
    s_work = [] {};
    for (const auto& row : cases) {
        m_runner.SetRecent({L"ALONE", L"WORK"});
        m_host.TakeOutput();
        m_runner.Run({L"work", row.origin});
        EXPECT_EQ(m_host.TakeOutput(), row.isEchoed ? "> work\n" : "");
        EXPECT_EQ(m_runner.Recent().front() == L"WORK", row.isRemembered);
        EXPECT_EQ(m_runner.Recent().size(), 2U);
    }
}

CString s_text;

TEST_F(CommandsTest, TextAfterTheNameRequiresTheFlag) {
    const auto read = [] { s_text = acedCommandText(); };
    m_stack.addCommand(L"G", L"TELL", L"TELL", ACRX_CMD_TAKES_TEXT, read);
    EXPECT_EQ(Run(L"tell  me more "), CommandOutcome::Done);
    EXPECT_EQ(s_text.Str(), L"me more");
    EXPECT_EQ(Run(L"TELL"), CommandOutcome::Done);
    EXPECT_EQ(s_text.Str(), L"");
    EXPECT_EQ(Run(L"WORK hard"), CommandOutcome::Unknown);
    EXPECT_NE(m_host.Output().find("Unknown command \"WORK hard\""), std::string::npos);
}

class ProgressPort final : public IHostPort {
public:
    ProgressPort() : m_pBefore(SetHostPort(this)) {}
    ~ProgressPort() override { SetHostPort(m_pBefore); }
    ProgressPort(const ProgressPort&) = delete;
    ProgressPort& operator=(const ProgressPort&) = delete;
    void Print(std::wstring_view) override {}
    PromptEnd GetString(bool, std::wstring_view, CString&) override { return PromptEnd::Cancelled; }
    void Alert(std::wstring_view, std::wstring_view) override {}
    void Escape() override {}
    bool ShowProgress(std::wstring_view what, int percent) override {
        m_log.AppendFormat(L"%s %d;", CString(what), percent);
        return percent < 50;
    }
    void EndProgress() override { m_log += L"end;"; }

    CString m_log;

private:
    IHostPort* m_pBefore;
};

TEST(Progress, IsShownUntilTheOutermostOperationEnds) {
    ProgressPort port;
    {
        const AcDbProgress outer = acedProgress(L"a");
        EXPECT_TRUE(outer(10));
        {
            const AcDbProgress inner = acedProgress(L"b");
            const AcDbProgress copy = inner; // NOLINT(performance-unnecessary-copy-initialization)
            EXPECT_FALSE(copy(50));
        }
        EXPECT_TRUE(outer(20));
    }
    acedProgress(L"c");
    EXPECT_EQ(port.m_log.Str(), L"a 0;a 10;b 0;b 50;a 20;end;c 0;end;");
}

} // namespace
