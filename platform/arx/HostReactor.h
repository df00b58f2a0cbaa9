// Who is asked before the host ends.
#pragma once

#include "platform/Api.h"

/// Asked on the main thread when the user wants to leave. Not owned.
class PLATFORM_API AcApHostReactor {
public:
    virtual ~AcApHostReactor() = default;
    /// True is a veto: the host stays.
    virtual bool hostToClose() = 0;
};

PLATFORM_API void acedAddHostReactor(AcApHostReactor* pReactor);
PLATFORM_API void acedRemoveHostReactor(AcApHostReactor* pReactor);

/// Asks in the order of adding. True if nobody vetoed; after a veto nobody else is asked.
PLATFORM_API bool acedAskToClose();
