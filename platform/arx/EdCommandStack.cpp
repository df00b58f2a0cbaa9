#include "platform/arx/EdCommandStack.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "platform/arx/ApDocManager.h"
#include "platform/arx/DbUndo.h"

namespace {

bool s_bFailed = false;

/// Keeps apart what is said of a command from what is said of those that it runs.
class OutcomeScope {
public:
    OutcomeScope() : m_bFailedBefore(std::exchange(s_bFailed, false)) {}
    ~OutcomeScope() { s_bFailed = m_bFailedBefore; }
    OutcomeScope(const OutcomeScope&) = delete;
    OutcomeScope& operator=(const OutcomeScope&) = delete;

    CommandOutcome Outcome(CommandOutcome outcome) const {
        return outcome == CommandOutcome::Done && s_bFailed ? CommandOutcome::Failed : outcome;
    }

private:
    bool m_bFailedBefore;
};

/// One step of the undo history of the drawing that is current at its beginning, which the
/// command may close. Groups that the command left open end with it.
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

} // namespace

void acedSetCommandFailed() {
    s_bFailed = true;
}

bool AcEdCommandStack::addCommand(const wchar_t* group, const wchar_t* globalName,
                                  const wchar_t* localName, int flags, AcRxFunctionPtr function) {
    const bool taken = std::any_of(m_commands.begin(), m_commands.end(), [&](const auto& command) {
        return command->group().CompareNoCase(group) == 0 &&
               command->globalName().CompareNoCase(globalName) == 0;
    });
    if (taken || !function) {
        return false;
    }
    m_commands.push_back(
        std::make_shared<const AcEdCommand>(group, globalName, localName, flags, function));
    return true;
}

bool AcEdCommandStack::removeCmd(const wchar_t* group, const wchar_t* globalName) {
    return std::erase_if(m_commands, [&](const auto& command) {
               return command->group().CompareNoCase(group) == 0 &&
                      command->globalName().CompareNoCase(globalName) == 0;
           }) > 0;
}

void AcEdCommandStack::removeGroup(const wchar_t* group) {
    std::erase_if(m_commands,
                  [&](const auto& command) { return command->group().CompareNoCase(group) == 0; });
}

std::shared_ptr<const AcEdCommand> AcEdCommandStack::lookupCmd(const wchar_t* name) const {
    const auto hit = std::find_if(m_commands.begin(), m_commands.end(), [&](const auto& command) {
        return command->globalName().CompareNoCase(name) == 0 ||
               command->localName().CompareNoCase(name) == 0;
    });
    return hit == m_commands.end() ? nullptr : *hit;
}

CommandOutcome AcEdCommandStack::run(const wchar_t* name) const {
    const OutcomeScope scope;
    if (const auto command = lookupCmd(name)) {
        std::optional<UndoStep> step;
        constexpr int kNoStep = ACRX_CMD_NO_UNDO_GROUP | ACRX_CMD_TRANSPARENT;
        if ((command->commandFlags() & kNoStep) == 0) {
            step.emplace(command->globalName());
        }
        command->run();
        return scope.Outcome(CommandOutcome::Done);
    }
    const UndoStep step(CString(name).MakeUpper());
    const std::vector<IEdCommandSource*> sources = m_sources;
    for (IEdCommandSource* pSource : sources) {
        const CommandOutcome outcome = pSource->Run(name);
        if (outcome != CommandOutcome::Unknown) {
            return scope.Outcome(outcome);
        }
    }
    return CommandOutcome::Unknown;
}

AcEdCommandStack* acedRegCmds() {
    static AcEdCommandStack* const stack = [] {
        auto* made = new AcEdCommandStack;
        acrxSysRegistry()->atPut(L"ACAD_REGISTERED_COMMANDS", made);
        return made;
    }();
    return stack;
}
