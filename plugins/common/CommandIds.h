// Ids of commands as executors get them.
#pragma once

#include "workspacecore/core/WsManager.h"

namespace Orvane::Plugins {

/// The command's own id: the registry also finds commands by ids with one letter too many.
/// An id that it does not know stays as it is.
inline CString OwnCommandId(const wchar_t* id) {
    const auto command =
        Workspace::CWsManager::Instance()->CmdMgr()->GetCommandRegistry()->GetWsCommandById(id);
    return command ? command->GetId() : CString(id);
}

} // namespace Orvane::Plugins
