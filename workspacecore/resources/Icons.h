// Images of this module, by resource id.
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

/// Size of a caption button's image.
inline constexpr CSize kCaptionIconSize(13, 11);

/// The icon with this id, not owned; null for an unknown id.
WORKSPACE_API HICON ModuleIcon(UINT number);
/// The image with this id; empty for an unknown id.
WORKSPACE_API CImage ModuleImage(UINT number, CSize size);

} // namespace Orvane::Workspace
