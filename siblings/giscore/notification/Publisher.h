// One subject that modules signal and listen to, known by name.
#pragma once

#include <vector>

#include "platform/win/String.h"
#include "siblings/giscore/Api.h"

namespace Orvane::Notification {

class CSubscriber;

/// Made and owned by CNotificationFramework. Main thread only.
class GISCORE_API CPublisher {
public:
    explicit CPublisher(CString name) : m_strName(std::move(name)) {}
    CPublisher(const CPublisher&) = delete;
    CPublisher& operator=(const CPublisher&) = delete;

    const CString& GetName() const { return m_strName; }

    /// Not owned. One that is registered already keeps its place; null is ignored.
    void RegisterSubscriber(CSubscriber* pSubscriber);
    void UnregisterSubscriber(CSubscriber* pSubscriber);

    /// Calls Update of every subscriber in the order of registration. Subscribers may come
    /// and go meanwhile: who goes is not called any more, who comes is called from the next
    /// time on. An exception of a subscriber passes out.
    void Notify(void* pHint1, void* pHint2);

private:
    friend class CNotificationFramework;
    static bool s_bBlocked; ///< all of them are

    CString m_strName;
    std::vector<CSubscriber*> m_subscribers; ///< null: has gone while somebody was being told
    int m_nRunning = 0;                      ///< calls of Notify under way
};

} // namespace Orvane::Notification
