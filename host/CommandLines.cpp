#include "host/CommandLines.h"

#include <utility>

#include "host/ExitStatus.h"
#include "host/Texts.h"
#include "platform/arx/EdPrompt.h"
#include "platform/win/ErrorText.h"

namespace Tessaly {

namespace {

constexpr const wchar_t* kPrompt = L"> ";

bool IsComment(const CString& line) {
    return line.IsEmpty() || line.GetAt(0) == L';' || line.GetAt(0) == L'#';
}

} // namespace

CommandLines::CommandLines(ILinePort& port) : m_port(port) {
    acedRunner().AddWatcher(this);
}

CommandLines::~CommandLines() {
    acedRunner().RemoveWatcher(this);
}

void CommandLines::CommandBegins(const CommandOrder&) {
    m_lines.push_back(m_pInput ? m_pInput->LineNumber() : 0);
}

void CommandLines::CommandEnded(const CommandOrder& order, bool hasThrown) {
    const int line = m_lines.empty() ? 0 : m_lines.back();
    if (!m_lines.empty()) {
        m_lines.pop_back();
    }
    // Nested commands end first, so the innermost failure is kept.
    if (hasThrown && !m_failure) {
        m_failure = {line, order.id};
    }
}

int CommandLines::RunScript(const wchar_t* path) {
    const auto lines = FileLines(path);
    if (!lines) {
        acutPrintf(L"%s: %s\n", path, LastErrorText());
        return kExitBadUsage;
    }
    return RunLines(*lines, Mode::StopAtFailure);
}

void CommandLines::RunPrompt(IInputLines& input) {
    RunLines(input, Mode::GoOn);
}

bool CommandLines::RunLine(const CString& line) {
    m_failure.reset();
    const int number = m_pInput->LineNumber();
    const CommandOutcome outcome = acedRunner().Run({line, OrderOrigin::Script});
    if (outcome != CommandOutcome::Done && !m_failure) {
        m_failure = {number, line};
    }
    return outcome == CommandOutcome::Done;
}

int CommandLines::RunLines(IInputLines& input, Mode mode) {
    IInputLines* const pOuter = std::exchange(m_pInput, &input);
    m_port.SetInput(&input);
    int status = kExitDone;
    while (!acedRunner().IsStopped() && (status == kExitDone || mode == Mode::GoOn)) {
        acedRunner().RunWaiting();
        std::optional<CString> line = m_port.NextLine(kPrompt);
        if (!line) {
            break;
        }
        line->Trim();
        if (!IsComment(*line) && !RunLine(*line)) {
            status = kExitCommandFailed;
            if (mode == Mode::StopAtFailure) {
                PrintText(Msg::StoppedAt, input.Name(), m_failure->line, m_failure->command);
            }
        }
    }
    m_port.SetInput(nullptr);
    m_pInput = pOuter;
    return status;
}

} // namespace Tessaly
