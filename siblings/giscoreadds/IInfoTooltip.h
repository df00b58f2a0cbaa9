// A tool that tells about what the cursor points at.
#pragma once

#include "platform/win/String.h"

namespace Orvane::Utility {

/// Provided by plug-ins. The order of the operations is part of the interface.
class IInfoTooltip {
public:
    /// As it stands in the menu.
    virtual CString GetName() = 0;
    /// Runs the tool until the user ends it.
    virtual void Run() = 0;
    virtual ~IInfoTooltip() = default;
};

} // namespace Orvane::Utility
