// The observers of the GIS core.
#pragma once

#include <vector>

#include "siblings/giscore/Api.h"
#include "siblings/giscore/notification/ISystemEvents.h"

namespace Orvane::System {

/// Hands an event to every observer in the order of registration. Whoever performs what
/// an event tells of raises it. Main thread only.
class GISCORE_API CGisEvents {
public:
    /// Lives to the end of the process.
    static CGisEvents* Instance();

    /// Not owned. One that is registered already keeps its place.
    void Register(ISystemEvents* pObserver);
    void Unregister(ISystemEvents* pObserver);

    /// Raise(&ISystemEvents::OnSystemChanged, pSystem). Observers may come and go
    /// meanwhile; an exception of one passes out.
    template <class... Params, class... Args>
    void Raise(void (ISystemEvents::*event)(Params...), Args... args) {
        const std::vector<ISystemEvents*> observers = m_observers;
        for (ISystemEvents* pObserver : observers) {
            if (IsRegistered(pObserver)) {
                (pObserver->*event)(args...);
            }
        }
    }

private:
    CGisEvents() = default;
    bool IsRegistered(const ISystemEvents* pObserver) const;

    std::vector<ISystemEvents*> m_observers;
};

} // namespace Orvane::System
