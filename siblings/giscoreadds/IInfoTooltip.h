// An interactive tool that shows information about the entity under the cursor.
#pragma once

#include "platform/win/String.h"

namespace Orvane::Utility {

/// Implemented by plug-ins. The order of the virtual functions is part of the interface.
class IInfoTooltip {
public:
    /// Name shown in the menu.
    virtual CString GetName() = 0;
    /// Runs the tool until the user ends it.
    virtual void Run() = 0;
    virtual ~IInfoTooltip() = default;
};

} // namespace Orvane::Utility
