// Publishers by name, and which command of the user is running.
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

    /// The publisher of a name, made at the first call; never null. Every module that
    /// asks for the name gets the same one.
    CPublisher* GetPublisher(const wchar_t* name);
    /// Takes a subscriber off every publisher.
    static void UnregisterSubscriber(CSubscriber* pSubscriber);

    /// From now on no publisher tells anybody anything. There is no way back.
    static void BlockAllResponders();

    /// Non-zero while a SetActiveCommand lives.
    static int IsCommandActive();
    /// Name of the command that began last; empty if none is active.
    static CString GetActiveCommand();

private:
    friend class SetActiveCommand;
    CNotificationFramework() = default;

    std::map<CString, std::unique_ptr<CPublisher>, CStringLess> m_publishers;
    std::vector<CString> m_activeCommands;
};

} // namespace Orvane::Notification
