// Receives notifications from publishers.
#pragma once

namespace Orvane::Notification {

class CPublisher;

/// Must unregister before it is destroyed; CNotificationFramework::UnregisterSubscriber removes
/// it from every publisher.
class CSubscriber {
public:
    /// \param number for the owner's use; ignored by the framework
    explicit CSubscriber(unsigned int number = 0) : m_nNumber(number) {}
    virtual ~CSubscriber() = default;

    /// \param pHint1, pHint2 meaning agreed between the publisher's users; often null
    virtual void Update(CPublisher* pPublisher, void* pHint1, void* pHint2) = 0;

    unsigned int GetSubscriberNumber() const { return m_nNumber; }

private:
    unsigned int m_nNumber;
};

} // namespace Orvane::Notification
