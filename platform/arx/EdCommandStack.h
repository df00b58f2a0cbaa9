// The host's commands: those registered by modules, and those that a module provides as a source
// without registering each.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/arx/RxObject.h"

/// The command may run while another waits at a prompt. It forms no undo step: its changes belong
/// to the other command or to the commands it runs.
inline constexpr int ACRX_CMD_TRANSPARENT = 1;
/// The command forms no undo step, because it works on whole drawings or on the history itself.
inline constexpr int ACRX_CMD_NO_UNDO_GROUP = 2;
/// The command works on the current drawing, so that command lists can show why it is unavailable.
/// The runner does not enforce this; the command must check it, too.
inline constexpr int ACRX_CMD_NEEDS_DRAWING = 4;
/// Text may follow the command's name; see acedCommandText.
inline constexpr int ACRX_CMD_TAKES_TEXT = 8;

using AcRxFunctionPtr = void (*)();

/// A command of the host's command line.
class PLATFORM_API AcEdCommand final : public AcRxObject {
public:
    AcEdCommand(const wchar_t* group, const wchar_t* globalName, const wchar_t* localName,
                int flags, AcRxFunctionPtr function)
        : m_strGroup(group), m_strGlobalName(globalName), m_strLocalName(localName),
          m_nFlags(flags), m_pFunction(function) {}

    const CString& group() const { return m_strGroup; }
    const CString& globalName() const { return m_strGlobalName; }
    const CString& localName() const { return m_strLocalName; }
    int commandFlags() const { return m_nFlags; }
    void run() const { m_pFunction(); }

private:
    CString m_strGroup;
    CString m_strGlobalName;
    CString m_strLocalName;
    int m_nFlags;
    AcRxFunctionPtr m_pFunction;
};

/// Result of a command.
enum class CommandOutcome {
    Unknown, ///< no such command
    Done,
    Failed, ///< it ran but reported a failure
};

/// Description of a source's command, for command lists.
struct EdSourceCommand {
    CString name;    ///< as typed
    CString purpose; ///< heading under which it is listed
    CString title;   ///< display name; may be empty
    CString description;
    CString whyNot; ///< why it is not available now; empty if it is
};

/// Provides a set of commands defined elsewhere, such as the workspace's.
class PLATFORM_API IEdCommandSource {
public:
    virtual ~IEdCommandSource() = default;
    /// Called by the command runner.
    /// \param name as typed
    virtual CommandOutcome Run(const wchar_t* name) = 0;
    virtual std::vector<EdSourceCommand> List() const = 0;
};

class PLATFORM_API AcEdCommandStack final : public AcRxObject {
public:
    /// False if the group already has a command with this global name.
    bool addCommand(const wchar_t* group, const wchar_t* globalName, const wchar_t* localName,
                    int flags, AcRxFunctionPtr function);
    /// False if it did not exist.
    bool removeCmd(const wchar_t* group, const wchar_t* globalName);
    void removeGroup(const wchar_t* group);

    /// Finds a command by its global or local name, ignoring case; null if it does not exist.
    std::shared_ptr<const AcEdCommand> lookupCmd(const wchar_t* name) const;
    const std::vector<std::shared_ptr<const AcEdCommand>>& commands() const { return m_commands; }

    /// Sources are tried in the order of adding, after the registered commands. Not owned.
    void addSource(IEdCommandSource* pSource) { m_sources.push_back(pSource); }
    void removeSource(IEdCommandSource* pSource) { std::erase(m_sources, pSource); }
    const std::vector<IEdCommandSource*>& sources() const { return m_sources; }

private:
    std::vector<std::shared_ptr<const AcEdCommand>> m_commands;
    std::vector<IEdCommandSource*> m_sources;
};

/// The stack; also in the system registry, as "ACAD_REGISTERED_COMMANDS".
PLATFORM_API AcEdCommandStack* acedRegCmds();
