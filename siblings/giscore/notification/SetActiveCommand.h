// Marks a command of the user as running.
#pragma once

#include "siblings/giscore/Api.h"

namespace Orvane::Notification {

/// While it lives, the framework regards the named command as running. Such marks nest;
/// they have to end in the reverse order, as local objects do.
class GISCORE_API SetActiveCommand {
public:
    explicit SetActiveCommand(const wchar_t* name);
    ~SetActiveCommand();
    SetActiveCommand(const SetActiveCommand&) = delete;
    SetActiveCommand& operator=(const SetActiveCommand&) = delete;
};

} // namespace Orvane::Notification
