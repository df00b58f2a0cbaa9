// The one way in which commands run, whoever asks for them.
#pragma once

#include <deque>
#include <functional>
#include <vector>

#include "platform/arx/EdCommandStack.h"

/// Who asks for a command.
enum class OrderOrigin {
    Typed, ///< at the command line, where the line is gone once it was entered
    Palette,
    Menu,
    Tree,
    Dialog,
    Timer,
    Module,  ///< acedPostCommand
    Console, ///< the text console, which is a command itself
    Script,  ///< a line of an input that is shown as it is read
};

/// A command that somebody asks for.
struct CommandOrder {
    CString id; ///< as it was typed; also names the undo step
    OrderOrigin origin = OrderOrigin::Typed;
    /// What to run; null: what the command stack has under the id. Whatever the command needs
    /// to know is in there, and nobody else's business.
    std::function<CommandOutcome()> work = nullptr;
    std::vector<CString> answers = {}; ///< for its first prompts
};

/// Is told of each command on the main thread. Not owned.
class PLATFORM_API ICommandWatcher {
public:
    virtual ~ICommandWatcher() = default;
    virtual void CommandBegins(const CommandOrder& /*order*/) {}
    /// \param hasThrown with the exception on its way to whoever contains it
    virtual void CommandEnded(const CommandOrder& /*order*/, bool /*hasThrown*/) {}
};

/// Commands run one at a time: what is asked for while one runs waits for its end. A command
/// may run others as parts of it.
///
/// What a command changes in the drawing that is current at its beginning is one step of the
/// undo history; also if it throws.
class PLATFORM_API CommandRunner {
public:
    explicit CommandRunner(const AcEdCommandStack& stack) : m_stack(stack) {}
    CommandRunner(const CommandRunner&) = delete;
    CommandRunner& operator=(const CommandRunner&) = delete;

    /// Has the command run from the message loop, once what is going on now has ended. A
    /// command that waits at a prompt is cancelled for it.
    void Post(CommandOrder order);
    /// Runs it at once if nothing else runs; otherwise as Post.
    void Give(CommandOrder order);
    /// Runs it now, within the running command if there is one. What it throws ends here; the
    /// user is told of that, and of an unknown command.
    CommandOutcome Run(const CommandOrder& order);
    /// Runs it now as a part of the running command, to which it passes on what it throws. An
    /// unknown command is only answered as such.
    CommandOutcome RunInside(const CommandOrder& order);
    /// Runs what waits, unless something else runs.
    void RunWaiting();
    /// Has RunWaiting called from the message loop.
    void WakeSoon();

    /// A command runs, or something waits for the user's answer.
    bool IsBusy() const;
    bool HasWaiting() const { return !m_waiting.empty(); }
    /// The program ends: what waits is dropped, and nothing is taken any more.
    void Stop();
    bool IsStopped() const { return m_bStopped; }

    /// Commands that users asked for by name, the one used last first, in upper case.
    const std::vector<CString>& Recent() const { return m_recent; }
    void SetRecent(std::vector<CString> recent) { m_recent = std::move(recent); }

    void AddWatcher(ICommandWatcher* pWatcher) { m_watchers.push_back(pWatcher); }
    void RemoveWatcher(ICommandWatcher* pWatcher) { std::erase(m_watchers, pWatcher); }

private:
    void Begin(const CommandOrder& order);
    void End(const CommandOrder& order, bool hasThrown);
    CommandOutcome Perform(const CommandOrder& order) const;
    CommandOutcome RunNamed(const CString& line) const;
    void Remember(const CString& id);

    const AcEdCommandStack& m_stack;
    std::deque<CommandOrder> m_waiting;
    std::vector<CString> m_recent;
    std::vector<ICommandWatcher*> m_watchers;
    int m_nDepth = 0; ///< commands that run, one inside of the other
    bool m_bStopped = false;
};

/// The runner of the host's commands.
PLATFORM_API CommandRunner& acedRunner();

/// Says that the running command was not carried out, for commands that are plain functions;
/// why is for the command to print. A script stops at it.
PLATFORM_API void acedSetCommandFailed();
/// What was typed behind the name of the running command, without blanks around it. Empty
/// unless the command takes texts (ACRX_CMD_TAKES_TEXT).
PLATFORM_API const CString& acedCommandText();
