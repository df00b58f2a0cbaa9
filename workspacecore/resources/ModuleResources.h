// Scoped switch to the dialogs and icons of this module.
#pragma once

#include "workspacecore/Api.h"

namespace Orvane::Workspace {

/// Makes this module's resources the first to be searched; the destructor restores the previous
/// ones.
class WORKSPACE_API ModuleResources {
public:
    ModuleResources();
    ~ModuleResources();
    ModuleResources(const ModuleResources&) = delete;
    ModuleResources& operator=(const ModuleResources&) = delete;
};

} // namespace Orvane::Workspace
