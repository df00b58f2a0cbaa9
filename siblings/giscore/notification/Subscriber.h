// Who wants to hear from a publisher.
#pragma once

namespace Orvane::Notification {

class CPublisher;

/// Has to unregister itself before it dies
/// (CNotificationFramework::UnregisterSubscriber does so with every publisher).
class CSubscriber {
public:
    /// \param number for the owner's use; the framework does not look at it
    explicit CSubscriber(unsigned int number = 0) : m_nNumber(number) {}
    virtual ~CSubscriber() = default;

    /// \param pHint1, pHint2 agreed between the publisher's users; often null
    virtual void Update(CPublisher* pPublisher, void* pHint1, void* pHint2) = 0;

    unsigned int GetSubscriberNumber() const { return m_nNumber; }

private:
    unsigned int m_nNumber;
};

} // namespace Orvane::Notification
