#include "platform/arx/CommandRunner.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "platform/arx/ApDocManager.h"
#include "platform/arx/DbUndo.h"
#include "platform/arx/EdPrompt.h"
#include "platform/arx/Guard.h"
#include "platform/arx/HostPort.h"
#include "platform/mfc/WinApp.h"
#include "platform/win/PlatformTexts.h"

namespace {

constexpr std::size_t kMostRecent = 30;
constexpr const wchar_t* kPrompt = L"> ";

/// How an order is treated, depending on its origin.
struct OriginRule {
    OrderOrigin origin;
    bool isEchoed;     ///< echoed because the command line does not show it yet
    bool isRemembered; ///< repeated by Enter and listed among the recent commands
};
constexpr OriginRule kOriginRules[] = {
    {OrderOrigin::Typed, true, true},    {OrderOrigin::Palette, true, true},
    {OrderOrigin::Menu, true, true},     {OrderOrigin::Module, true, true},
    {OrderOrigin::Tree, true, false},    {OrderOrigin::Dialog, true, false},
    {OrderOrigin::Timer, false, false},  {OrderOrigin::Console, false, false},
    {OrderOrigin::Script, false, false},
};

const OriginRule& RuleOf(OrderOrigin origin) {
    return *std::find_if(std::begin(kOriginRules), std::end(kOriginRules),
                         [origin](const OriginRule& rule) { return rule.origin == origin; });
}

/// State of the running command; nested commands have their own.
struct Running {
    bool hasFailed = false;
    CString text;
};
Running& Current() {
    static Running running;
    return running;
}

class RunningScope {
public:
    RunningScope() : m_outer(std::exchange(Current(), {})) {}
    ~RunningScope() { Current() = std::move(m_outer); }
    RunningScope(const RunningScope&) = delete;
    RunningScope& operator=(const RunningScope&) = delete;

private:
    Running m_outer;
};

/// One undo step in the drawing that is current at its start, which the command may close. Ends the
/// groups that the command left open.
class UndoStep final : public AcApDocManagerReactor {
public:
    explicit UndoStep(const wchar_t* name) : m_pDoc(acDocManagerPtr()->curDocument()) {
        if (m_pDoc) {
            acDocManagerPtr()->addReactor(this);
            m_nGroupsBefore = Undo().openGroups();
            Undo().beginGroup(name);
        }
    }
    ~UndoStep() override {
        acDocManagerPtr()->removeReactor(this);
        while (m_pDoc && Undo().openGroups() > m_nGroupsBefore) {
            Undo().endGroup();
        }
    }
    UndoStep(const UndoStep&) = delete;
    UndoStep& operator=(const UndoStep&) = delete;

    void documentToBeDestroyed(AcApDocument* pDoc) override {
        if (pDoc == m_pDoc) {
            m_pDoc = nullptr;
        }
    }

private:
    AcDbUndo& Undo() const { return m_pDoc->database()->undo(); }

    AcApDocument* m_pDoc;
    int m_nGroupsBefore = 0;
};

/// A registered command and the text after its name.
struct NamedCommand {
    std::shared_ptr<const AcEdCommand> command;
    CString text;
};

NamedCommand FindCommand(const AcEdCommandStack& stack, const CString& line) {
    NamedCommand found{stack.lookupCmd(line), CString()};
    const int blank = line.Find(L' ');
    if (!found.command && blank > 0) {
        const auto command = stack.lookupCmd(line.Left(blank));
        if (command && (command->commandFlags() & ACRX_CMD_TAKES_TEXT)) {
            found = {command, line.Mid(blank + 1)};
            found.text.Trim();
        }
    }
    return found;
}

} // namespace

void acedSetCommandFailed() {
    Current().hasFailed = true;
}

const CString& acedCommandText() {
    return Current().text;
}

void CommandRunner::Post(CommandOrder order) {
    if (m_bStopped) {
        return;
    }
    m_waiting.push_back(std::move(order));
    HostPort().CancelPrompts();
    WakeSoon();
}

void CommandRunner::Give(CommandOrder order) {
    if (IsBusy()) {
        Post(std::move(order));
    } else if (!m_bStopped) {
        Run(order);
    }
}

CommandOutcome CommandRunner::Run(const CommandOrder& order) {
    CommandOutcome outcome = CommandOutcome::Failed;
    const bool ended = Guarded(order.id, [&] { outcome = RunInside(order); });
    if (ended && outcome == CommandOutcome::Unknown) {
        acutPrintf(L"%s\n", MessageText(PlatformMsg::UnknownCommand, order.id));
    }
    return outcome;
}

CommandOutcome CommandRunner::RunInside(const CommandOrder& order) {
    CommandOutcome outcome = CommandOutcome::Unknown;
    Begin(order);
    try {
        outcome = Perform(order);
    } catch (...) {
        End(order, true);
        throw;
    }
    End(order, false);
    return outcome;
}

void CommandRunner::RunWaiting() {
    while (!m_waiting.empty() && !IsBusy()) {
        const CommandOrder order = std::move(m_waiting.front());
        m_waiting.pop_front();
        Run(order);
    }
}

bool CommandRunner::IsBusy() const {
    return m_nDepth > 0 || HostPort().IsPrompting();
}

void CommandRunner::Stop() {
    m_bStopped = true;
    m_waiting.clear();
}

void CommandRunner::Begin(const CommandOrder& order) {
    const OriginRule& rule = RuleOf(order.origin);
    if (rule.isRemembered) {
        Remember(order.id);
    }
    if (rule.isEchoed) {
        HostPort().PrintLine((kPrompt + order.id).View());
    }
    if (!order.answers.empty()) {
        HostPort().SetAnswers(order.answers);
    }
    ++m_nDepth;
    const std::vector<ICommandWatcher*> watchers = m_watchers;
    for (ICommandWatcher* pWatcher : watchers) {
        pWatcher->CommandBegins(order);
    }
}

void CommandRunner::End(const CommandOrder& order, bool hasThrown) {
    --m_nDepth;
    if (!order.answers.empty()) {
        HostPort().SetAnswers({});
    }
    const std::vector<ICommandWatcher*> watchers = m_watchers;
    for (ICommandWatcher* pWatcher : watchers) {
        pWatcher->CommandEnded(order, hasThrown);
    }
    if (!m_waiting.empty() && m_nDepth == 0) {
        WakeSoon();
    }
}

CommandOutcome CommandRunner::Perform(const CommandOrder& order) const {
    const RunningScope scope;
    CommandOutcome outcome = CommandOutcome::Unknown;
    if (order.work) {
        const UndoStep step(order.id);
        outcome = order.work();
    } else {
        outcome = RunNamed(order.id);
    }
    return outcome == CommandOutcome::Done && Current().hasFailed ? CommandOutcome::Failed
                                                                  : outcome;
}

CommandOutcome CommandRunner::RunNamed(const CString& line) const {
    if (auto [command, text] = FindCommand(m_stack, line); command) {
        Current().text = std::move(text);
        std::optional<UndoStep> step;
        constexpr int kNoStep = ACRX_CMD_NO_UNDO_GROUP | ACRX_CMD_TRANSPARENT;
        if ((command->commandFlags() & kNoStep) == 0) {
            step.emplace(command->globalName());
        }
        command->run();
        return CommandOutcome::Done;
    }
    const UndoStep step(CString(line).MakeUpper());
    const std::vector<IEdCommandSource*> sources = m_stack.sources();
    for (IEdCommandSource* pSource : sources) {
        const CommandOutcome outcome = pSource->Run(line);
        if (outcome != CommandOutcome::Unknown) {
            return outcome;
        }
    }
    return CommandOutcome::Unknown;
}

void CommandRunner::Remember(const CString& id) {
    const CString name = CString(id).MakeUpper();
    std::erase(m_recent, name);
    m_recent.insert(m_recent.begin(), name);
    m_recent.resize(std::min(m_recent.size(), kMostRecent));
}

void CommandRunner::WakeSoon() {
    AfxCallSoon([this] { RunWaiting(); });
}

CommandRunner& acedRunner() {
    static auto* const runner = new CommandRunner(*acedRegCmds());
    return *runner;
}
