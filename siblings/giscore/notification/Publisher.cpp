#include "siblings/giscore/notification/Publisher.h"

#include <algorithm>

#include "siblings/giscore/notification/Subscriber.h"

namespace Orvane::Notification {

void CPublisher::RegisterSubscriber(CSubscriber* pSubscriber) {
    if (pSubscriber &&
        std::find(m_subscribers.begin(), m_subscribers.end(), pSubscriber) == m_subscribers.end()) {
        m_subscribers.push_back(pSubscriber);
    }
}

void CPublisher::UnregisterSubscriber(CSubscriber* pSubscriber) {
    if (m_nRunning == 0) {
        std::erase(m_subscribers, pSubscriber);
    } else {
        // Indices must stay valid during Notify; the outermost call removes the nulls.
        std::replace(m_subscribers.begin(), m_subscribers.end(), pSubscriber,
                     static_cast<CSubscriber*>(nullptr));
    }
}

bool CPublisher::s_bBlocked = false;

void CPublisher::Notify(void* pHint1, void* pHint2) {
    if (s_bBlocked) {
        return;
    }
    struct Running {
        explicit Running(CPublisher& publisher) : m_publisher(publisher) {
            ++m_publisher.m_nRunning;
        }
        ~Running() {
            if (--m_publisher.m_nRunning == 0) {
                std::erase(m_publisher.m_subscribers, nullptr);
            }
        }
        CPublisher& m_publisher;
    };
    const Running running(*this);
    const std::size_t count = m_subscribers.size();
    for (std::size_t i = 0; i < count; ++i) {
        if (CSubscriber* const pSubscriber = m_subscribers[i]) {
            pSubscriber->Update(this, pHint1, pHint2);
        }
    }
}

} // namespace Orvane::Notification
