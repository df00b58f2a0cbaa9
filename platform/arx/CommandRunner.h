// Runs every command, wherever the order comes from.
#pragma once

#include <deque>
#include <functional>
#include <vector>

#include "platform/arx/EdCommandStack.h"

/// Where an order comes from.
enum class OrderOrigin {
    Typed, ///< entered at the command line, which is cleared on Enter
    Palette,
    Menu,
    Tree,
    Dialog,
    Timer,
    Module,  ///< acedPostCommand
    Console, ///< the text console, which is a command itself
    Script,  ///< a line of an input that is echoed as it is read
};

/// A request to run a command.
struct CommandOrder {
    CString id; ///< as typed; also names the undo step
    OrderOrigin origin = OrderOrigin::Typed;
    /// The work to run; null runs the command registered under the id. Captures whatever the
    /// command needs.
    std::function<CommandOutcome()> work = nullptr;
    std::vector<CString> answers = {}; ///< for the command's first prompts
};

/// Notified of each command on the main thread. Not owned.
class PLATFORM_API ICommandWatcher {
public:
    virtual ~ICommandWatcher() = default;
    virtual void CommandBegins(const CommandOrder& /*order*/) {}
    /// \param hasThrown true while an exception is propagating to its handler
    virtual void CommandEnded(const CommandOrder& /*order*/, bool /*hasThrown*/) {}
};

/// Runs commands one at a time: orders given while a command runs wait for its end. A command may
/// run others as parts of itself.
///
/// The changes a command makes to the drawing that is current at its start form one undo step, even
/// if the command throws.
class PLATFORM_API CommandRunner {
public:
    explicit CommandRunner(const AcEdCommandStack& stack) : m_stack(stack) {}
    CommandRunner(const CommandRunner&) = delete;
    CommandRunner& operator=(const CommandRunner&) = delete;

    /// Queues an order; it runs from the message loop once the current activity has ended. Cancels
    /// the prompt of a command that waits at one.
    void Post(CommandOrder order);
    /// Runs the order now if nothing else is running; otherwise the same as Post.
    void Give(CommandOrder order);
    /// Runs the order now, within the running command if there is one. Exceptions are caught and
    /// reported, and so is an unknown command.
    CommandOutcome Run(const CommandOrder& order);
    /// Runs the order now as part of the running command. Exceptions propagate to that command; an
    /// unknown command is returned as such but not reported.
    CommandOutcome RunInside(const CommandOrder& order);
    /// Runs the waiting orders unless something else is running.
    void RunWaiting();
    /// Calls RunWaiting from the message loop.
    void WakeSoon();

    /// True while a command runs or a prompt waits for an answer.
    bool IsBusy() const;
    bool HasWaiting() const { return !m_waiting.empty(); }
    /// Called when the program ends: drops the waiting orders and accepts no more.
    void Stop();
    bool IsStopped() const { return m_bStopped; }

    /// Commands that users ran by name, most recent first, in upper case.
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
    int m_nDepth = 0; ///< number of nested running commands
    bool m_bStopped = false;
};

/// The runner of the host's commands.
PLATFORM_API CommandRunner& acedRunner();

/// Marks the running command as failed, for commands that are plain functions; they report the
/// reason themselves. A script stops at a failed command.
PLATFORM_API void acedSetCommandFailed();
/// The text typed after the name of the running command, trimmed. Empty unless the command accepts
/// text (ACRX_CMD_TAKES_TEXT).
PLATFORM_API const CString& acedCommandText();
