// The observers of the GIS core.
#pragma once

#include <vector>

#include "siblings/giscore/Api.h"
#include "siblings/giscore/notification/ISystemEvents.h"

namespace Orvane::System {

/// Delivers an event to every observer in the order of registration. The code that performs an
/// action raises its event. Main thread only.
class GISCORE_API CGisEvents {
public:
    /// Lives to the end of the process.
    static CGisEvents* Instance();

    /// Not owned. Registering again has no effect.
    void Register(ISystemEvents* pObserver);
    void Unregister(ISystemEvents* pObserver);

    /// Raise(&ISystemEvents::OnSystemChanged, pSystem). Observers may register and unregister
    /// during the call. Exceptions of observers propagate.
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
