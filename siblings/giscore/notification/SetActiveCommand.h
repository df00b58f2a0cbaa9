// Marks a user command as running.
#pragma once

#include "siblings/giscore/Api.h"

namespace Orvane::Notification {

/// The framework regards the named command as running during the lifetime of this object. Objects
/// nest and must be destroyed in reverse order, as locals are.
class GISCORE_API SetActiveCommand {
public:
    explicit SetActiveCommand(const wchar_t* name);
    ~SetActiveCommand();
    SetActiveCommand(const SetActiveCommand&) = delete;
    SetActiveCommand& operator=(const SetActiveCommand&) = delete;
};

} // namespace Orvane::Notification
