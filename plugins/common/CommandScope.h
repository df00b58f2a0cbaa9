// What stands around each command of a plug-in.
#pragma once

#include <optional>

#include "platform/arx/DbUndoScopes.h"
#include "siblings/cadwrapper/DocLock.h"
#include "workspacecore/core/WsManager.h"

namespace Orvane::Plugins {

/// Tells the listeners that a command runs, and that it has ended, however it does. In
/// between the drawing is locked, and what changes in it is one step of its history, also
/// from where the host makes none: the text console and the trees.
class CommandScope {
public:
    explicit CommandScope(const wchar_t* id) : m_events(id) {
        if (AcDbDatabase* const pDrawing = acdbHostApplicationServices()->workingDatabase()) {
            m_step.emplace(*pDrawing, id);
        }
    }

private:
    struct Events {
        explicit Events(const wchar_t* commandId) : id(commandId) {
            Workspace::CWsManager::Instance()->Raise_OnBeforeCommandActivated(id);
        }
        ~Events() { Workspace::CWsManager::Instance()->Raise_OnAfterCommandCompleted(id); }
        Events(const Events&) = delete;
        Events& operator=(const Events&) = delete;
        const wchar_t* id;
    };

    Events m_events;
    CORVCDocLock m_lock;
    std::optional<AcDbUndoGroup> m_step;
};

/// The command's own id: the registry also finds commands by ids with one letter too many.
/// An id that it does not know stays as it is.
inline CString OwnCommandId(const wchar_t* id) {
    const auto command =
        Workspace::CWsManager::Instance()->CmdMgr()->GetCommandRegistry()->GetWsCommandById(id);
    return command ? command->GetId() : CString(id);
}

} // namespace Orvane::Plugins
