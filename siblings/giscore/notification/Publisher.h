// A named subject to which modules subscribe.
#pragma once

#include <vector>

#include "platform/win/String.h"
#include "siblings/giscore/Api.h"

namespace Orvane::Notification {

class CSubscriber;

/// Created and owned by CNotificationFramework. Main thread only.
class GISCORE_API CPublisher {
public:
    explicit CPublisher(CString name) : m_strName(std::move(name)) {}
    CPublisher(const CPublisher&) = delete;
    CPublisher& operator=(const CPublisher&) = delete;

    const CString& GetName() const { return m_strName; }

    /// Not owned. Registering again has no effect; null is ignored.
    void RegisterSubscriber(CSubscriber* pSubscriber);
    void UnregisterSubscriber(CSubscriber* pSubscriber);

    /// Calls Update of every subscriber in the order of registration. Subscribers removed during
    /// a call are skipped; new ones are called from the next event on. Exceptions of subscribers
    /// propagate.
    void Notify(void* pHint1, void* pHint2);

private:
    friend class CNotificationFramework;
    static bool s_bBlocked; ///< applies to all publishers

    CString m_strName;
    std::vector<CSubscriber*> m_subscribers; ///< null: removed during Notify
    int m_nRunning = 0;                      ///< depth of nested Notify calls
};

} // namespace Orvane::Notification
