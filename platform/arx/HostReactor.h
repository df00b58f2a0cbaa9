// Lets modules veto the end of the host.
#pragma once

#include "platform/Api.h"

/// Asked on the main thread when the user wants to leave. Not owned.
class PLATFORM_API AcApHostReactor {
public:
    virtual ~AcApHostReactor() = default;
    /// Returns true to veto: the host then keeps running.
    virtual bool hostToClose() = 0;
};

PLATFORM_API void acedAddHostReactor(AcApHostReactor* pReactor);
PLATFORM_API void acedRemoveHostReactor(AcApHostReactor* pReactor);

/// Asks the reactors in the order of adding, up to the first veto. True if there was none.
PLATFORM_API bool acedAskToClose();
