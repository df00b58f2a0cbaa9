// The dialogs and icons of this module, current for a while.
#pragma once

#include "workspacecore/Api.h"

namespace Orvane::Workspace {

/// While it lives, this module's resources are the ones that are found first; then those
/// that were before are again, whatever way out was taken.
class WORKSPACE_API ModuleResources {
public:
    ModuleResources();
    ~ModuleResources();
    ModuleResources(const ModuleResources&) = delete;
    ModuleResources& operator=(const ModuleResources&) = delete;
};

} // namespace Orvane::Workspace
