// The host's commands: those that modules register, and those that a module answers
// for without registering each.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/arx/RxObject.h"

/// The command may run while another one waits at a prompt. It is no step of the undo history
/// either: what it does belongs to the other one, or to the commands that it runs.
inline constexpr int ACRX_CMD_TRANSPARENT = 1;
/// The command is no step of the undo history: it works on whole drawings, or on the history
/// itself.
inline constexpr int ACRX_CMD_NO_UNDO_GROUP = 2;
/// The command works on the current drawing, so that lists of commands can tell why it cannot
/// run now. It is not kept from running: the command itself says so, too.
inline constexpr int ACRX_CMD_NEEDS_DRAWING = 4;
/// Words may be typed behind the command's name; see acedCommandText.
inline constexpr int ACRX_CMD_TAKES_TEXT = 8;

using AcRxFunctionPtr = void (*)();

/// One command of the host's command line.
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

/// How a command of a source went.
enum class CommandOutcome {
    Unknown, ///< the source has no such command
    Done,
    Failed, ///< it ran, and said that it was not carried out
};

/// What lists of commands show of one that a source has.
struct EdSourceCommand {
    CString name;    ///< as it can be typed
    CString purpose; ///< heading under which it is listed
    CString title;   ///< what users call it; may be empty
    CString description;
    CString whyNot; ///< why it cannot run now; empty if it can
};

/// Answers for a whole set of commands that live elsewhere, such as the workspace's.
class PLATFORM_API IEdCommandSource {
public:
    virtual ~IEdCommandSource() = default;
    /// Called by the command runner.
    /// \param name as it was typed
    virtual CommandOutcome Run(const wchar_t* name) = 0;
    virtual std::vector<EdSourceCommand> List() const = 0;
};

class PLATFORM_API AcEdCommandStack final : public AcRxObject {
public:
    /// False if the group has a command of this global name already.
    bool addCommand(const wchar_t* group, const wchar_t* globalName, const wchar_t* localName,
                    int flags, AcRxFunctionPtr function);
    /// False if there was none.
    bool removeCmd(const wchar_t* group, const wchar_t* globalName);
    void removeGroup(const wchar_t* group);

    /// The command of a global or local name, without regard to case; null if there is none.
    std::shared_ptr<const AcEdCommand> lookupCmd(const wchar_t* name) const;
    const std::vector<std::shared_ptr<const AcEdCommand>>& commands() const { return m_commands; }

    /// Sources are asked in order of adding, after the commands. Not owned.
    void addSource(IEdCommandSource* pSource) { m_sources.push_back(pSource); }
    void removeSource(IEdCommandSource* pSource) { std::erase(m_sources, pSource); }
    const std::vector<IEdCommandSource*>& sources() const { return m_sources; }

private:
    std::vector<std::shared_ptr<const AcEdCommand>> m_commands;
    std::vector<IEdCommandSource*> m_sources;
};

/// The stack, which also stands in the system registry as "ACAD_REGISTERED_COMMANDS".
PLATFORM_API AcEdCommandStack* acedRegCmds();
