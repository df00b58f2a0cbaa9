#include "siblings/giscore/notification/NotificationFramework.h"

#include "siblings/giscore/notification/SetActiveCommand.h"

namespace Orvane::Notification {

CNotificationFramework* CNotificationFramework::Instance() {
    static auto* const instance = new CNotificationFramework;
    return instance;
}

CPublisher* CNotificationFramework::GetPublisher(const wchar_t* name) {
    auto& publisher = m_publishers[CString(name)];
    if (!publisher) {
        publisher = std::make_unique<CPublisher>(name);
    }
    return publisher.get();
}

void CNotificationFramework::UnregisterSubscriber(CSubscriber* pSubscriber) {
    for (const auto& [name, publisher] : Instance()->m_publishers) {
        publisher->UnregisterSubscriber(pSubscriber);
    }
}

void CNotificationFramework::BlockAllResponders() {
    CPublisher::s_bBlocked = true;
}

int CNotificationFramework::IsCommandActive() {
    return !Instance()->m_activeCommands.empty();
}

CString CNotificationFramework::GetActiveCommand() {
    const std::vector<CString>& commands = Instance()->m_activeCommands;
    return commands.empty() ? CString() : commands.back();
}

SetActiveCommand::SetActiveCommand(const wchar_t* name) {
    CNotificationFramework::Instance()->m_activeCommands.emplace_back(name);
}

SetActiveCommand::~SetActiveCommand() {
    CNotificationFramework::Instance()->m_activeCommands.pop_back();
}

} // namespace Orvane::Notification
