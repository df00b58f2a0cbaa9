// Publishers by name, and the user command that is running.
#pragma once

#include <map>
#include <memory>
#include <vector>

#include "siblings/giscore/notification/Publisher.h"

namespace Orvane::Notification {

/// Main thread only.
class GISCORE_API CNotificationFramework {
public:
    /// Lives to the end of the process.
    static CNotificationFramework* Instance();

    /// The publisher of a name, created on first use; never null. All modules get the same one
    /// for the same name.
    CPublisher* GetPublisher(const wchar_t* name);
    /// Unregisters a subscriber from every publisher.
    static void UnregisterSubscriber(CSubscriber* pSubscriber);

    /// Disables all publishers permanently.
    static void BlockAllResponders();

    /// Non-zero while a SetActiveCommand is alive.
    static int IsCommandActive();
    /// Name of the command that started last; empty if none is active.
    static CString GetActiveCommand();

private:
    friend class SetActiveCommand;
    CNotificationFramework() = default;

    std::map<CString, std::unique_ptr<CPublisher>, CStringLess> m_publishers;
    std::vector<CString> m_activeCommands;
};

} // namespace Orvane::Notification
