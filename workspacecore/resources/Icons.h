// The pictures of this module that are known by a number.
#pragma once

#include "platform/mfc/Image.h"
#include "workspacecore/Api.h"

namespace Orvane::Workspace {

enum enmModuleIcon : UINT {
    IconSystemManager = 108,
    IconSystem = 109,
    IconCaptionCollapse = 111,
    IconCaptionExpand = 112,
    IconCaptionSettings = 113,
    IconCaptionHelp = 114,
};

/// Of a button on a dialog's caption.
inline constexpr CSize kCaptionIconSize(13, 11);

/// The icon of a number, not owned; null for a number without one.
WORKSPACE_API HICON ModuleIcon(UINT number);
/// Its picture; empty for a number without one.
WORKSPACE_API CImage ModuleImage(UINT number, CSize size);

} // namespace Orvane::Workspace
