#include "siblings/giscore/notification/GisEvents.h"

#include <algorithm>

namespace Orvane::System {

CGisEvents* CGisEvents::Instance() {
    static auto* const instance = new CGisEvents;
    return instance;
}

void CGisEvents::Register(ISystemEvents* pObserver) {
    if (pObserver && !IsRegistered(pObserver)) {
        m_observers.push_back(pObserver);
    }
}

void CGisEvents::Unregister(ISystemEvents* pObserver) {
    std::erase(m_observers, pObserver);
}

bool CGisEvents::IsRegistered(const ISystemEvents* pObserver) const {
    return std::find(m_observers.begin(), m_observers.end(), pObserver) != m_observers.end();
}

} // namespace Orvane::System
