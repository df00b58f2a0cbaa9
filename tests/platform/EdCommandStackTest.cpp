#include "platform/arx/EdCommandStack.h"

#include <functional>
#include <gtest/gtest.h>
#include <stdexcept>

#include "platform/arx/ApDocManager.h"
#include "platform/arx/DbUndo.h"
#include "platform/arx/EdProgress.h"
#include "platform/arx/HostPort.h"

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

    Source m_source;
    AcEdCommandStack m_stack;
};

TEST_F(CommandsTest, SayWhetherTheyWereCarriedOut) {
    s_work = [] {};
    EXPECT_EQ(m_stack.run(L"work"), CommandOutcome::Done);
    EXPECT_EQ(m_stack.run(L"fail"), CommandOutcome::Failed);
    EXPECT_EQ(m_stack.run(L"work"), CommandOutcome::Done) << "the failure was the other's";
    EXPECT_EQ(m_stack.run(L"nothing"), CommandOutcome::Unknown);
    s_work = [this] { EXPECT_EQ(m_stack.run(L"fail"), CommandOutcome::Failed); };
    EXPECT_EQ(m_stack.run(L"work"), CommandOutcome::Done) << "of a command inside as well";
    s_work = [] { acedSetCommandFailed(); };
    EXPECT_EQ(m_stack.run(L"elsewhere"), CommandOutcome::Failed);
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
        std::size_t left; ///< points, of two, once the step is taken back
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
        try {
            m_stack.run(row.command);
        } catch (const std::runtime_error&) {
            // It ran far enough.
        }
        EXPECT_EQ(database.undo().openGroups(), 0);
        ASSERT_NE(database.undo().undoName(), nullptr);
        EXPECT_EQ(database.undo().undoName()->Str(), row.step);
        EXPECT_TRUE(database.undo().undo());
        EXPECT_EQ(database.entityCount(), row.left);
        while (database.undo().undo()) {
        }
    }
}

TEST_F(CommandsTest, MayCloseTheDrawingThatTheyBeganIn) {
    for (const int drawings : {1, 2}) {
        for (int i = 0; i < drawings; ++i) {
            acDocManagerPtr()->newDocument();
        }
        s_work = [] {
            AddPoint();
            acDocManagerPtr()->closeDocument(acDocManagerPtr()->curDocument());
            acDocManagerPtr()->newDocument();
        };
        EXPECT_EQ(m_stack.run(L"work"), CommandOutcome::Done);
        EXPECT_EQ(acDocManagerPtr()->curDocument()->database()->undo().openGroups(), 0);
    }
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
    void PostCommand(std::wstring_view) override {}
    bool ShowProgress(std::wstring_view what, int percent) override {
        m_log.AppendFormat(L"%s %d;", CString(what), percent);
        return percent < 50;
    }
    void EndProgress() override { m_log += L"end;"; }

    CString m_log;

private:
    IHostPort* m_pBefore;
};

TEST(Progress, IsShownUntilTheOuterWorkEnds) {
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
