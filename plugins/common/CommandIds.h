// Command ids as passed to executors.
#pragma once

#include "workspacecore/core/WsManager.h"

namespace Orvane::Plugins {

/// The id as registered, because the registry also accepts ids with one extra letter. Unknown ids
/// are returned unchanged.
inline CString OwnCommandId(const wchar_t* id) {
    const auto command =
        Workspace::CWsManager::Instance()->CmdMgr()->GetCommandRegistry()->GetWsCommandById(id);
    return command ? command->GetId() : CString(id);
}

} // namespace Orvane::Plugins
