// Enumerations of the tree model. They are persisted and compared, so the values must not change.
#pragma once

namespace Orvane::Workspace {

/// Types of tree items; combined as a bit set where a command or a folder serves several.
enum enmWSTreeItemType : unsigned long {
    WsItemNone = 0,
    WsItemSystemManager = 1,
    WsItemSystem = 2,
    WsItemSystemRepository = 4,
    WsItemSystemEntityFolder = 8,
    WsItemSystemConfiguration = 16,
    WsItemRepositoryRoot = 32,
    WsItemRepository = 64,
    WsItemRepositoryEntityFolder = 128,
    WsItemRepositoryConfiguration = 256,
    WsItemSystemTool = 1024,
    WsItemSystemToolDraw = 4096,
    WsItemSystemToolEdit = 8192,
    WsItemSystemToolSetData = 16384,
    WsItemSystemToolManager = 32768,
    WsItemSystemToolFastCommand = 65536,
};

} // namespace Orvane::Workspace
