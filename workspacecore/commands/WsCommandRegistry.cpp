#include "workspacecore/commands/WsCommandRegistry.h"

#include <algorithm>

namespace Orvane::Workspace {

namespace {

constexpr std::wstring_view kWildcardTag = L"0";
constexpr int kAnyTopology = -1;

/// An empty tag means "no filter" in a search, but "no family" on a command.
bool DoesTagMatch(std::wstring_view ofCommand, std::wstring_view asked) {
    if (asked.empty() || ofCommand == kWildcardTag) {
        return true;
    }
    return asked == kWildcardTag ? !ofCommand.empty() : ofCommand == asked;
}

} // namespace

CWsCommandRegistry::CWsCommandRegistry(const CWsCommandRegistry& other) {
    *this = other;
}

CWsCommandRegistry& CWsCommandRegistry::operator=(const CWsCommandRegistry& other) {
    if (this != &other) {
        m_wsCommandVector = other.m_wsCommandVector;
        m_wsCommandMapById = other.m_wsCommandMapById;
        m_wsCommandMapByMenuId = other.m_wsCommandMapByMenuId;
        m_wsCommandMapByGroup = other.m_wsCommandMapByGroup;
    }
    return *this;
}

int CWsCommandRegistry::AddWsCommand(CommandPtr command) {
    if (!command || !m_wsCommandMapById.emplace(command->GetId(), command).second) {
        return 0;
    }
    command->m_nMenuCmdId = GetNextCmdId();
    m_wsCommandVector.push_back(command);
    m_wsCommandMapByMenuId.emplace(command->m_nMenuCmdId, command);
    m_wsCommandMapByGroup.emplace(command->m_cmdGroup, command);
    return 1;
}

void CWsCommandRegistry::RemoveWsCommand(const CommandPtr& command) {
    if (!command) {
        return;
    }
    // Copy: the argument may be the element being erased.
    const CString id = command->GetId();
    const auto hit = std::find(m_wsCommandVector.begin(), m_wsCommandVector.end(), command);
    if (hit != m_wsCommandVector.end()) {
        m_wsCommandVector.erase(hit);
    }
    m_wsCommandMapById.erase(id);
}

void CWsCommandRegistry::Clear() {
    m_wsCommandVector.clear();
    m_wsCommandMapById.clear();
}

CWsCommandRegistry::CommandPtr CWsCommandRegistry::GetWsCommandById(const wchar_t* id) const {
    const std::wstring_view wanted(id ? id : L"");
    auto hit = m_wsCommandMapById.find(wanted);
    if (hit == m_wsCommandMapById.end()) {
        hit = m_wsCommandMapById.find(wanted.substr(0, wanted.size() - !wanted.empty()));
    }
    return hit == m_wsCommandMapById.end() ? CommandPtr() : hit->second;
}

CWsCommandRegistry::CommandPtr
CWsCommandRegistry::GetWsCommandByMenuId(unsigned int menuCmdId) const {
    const auto hit = m_wsCommandMapByMenuId.find(menuCmdId);
    return hit == m_wsCommandMapByMenuId.end() ? CommandPtr() : hit->second;
}

CWsCommandRegistry::CommandVector
CWsCommandRegistry::GetWsCommandByGroup(enmCommandGroup group, enmTopologyType topologyType,
                                        int topologyFunction, enmWSTreeItemType itemType,
                                        const wchar_t* repositoryTag) const {
    const CString key = CWsTopologyData(topologyType, topologyFunction).GetMapKey();
    const std::wstring_view tag(repositoryTag ? repositoryTag : L"");
    const auto [first, last] = m_wsCommandMapByGroup.equal_range(group);
    CommandVector found;
    for (auto entry = first; entry != last; ++entry) {
        const CommandPtr& command = entry->second;
        // Cheapest test first.
        if (command->TestWsItemType(itemType) &&
            DoesTagMatch(command->m_strRepositoryTag.View(), tag) &&
            (topologyType == kAnyTopology || command->m_wsTopologyData.Contains(key))) {
            found.push_back(command);
        }
    }
    return found;
}

void CWsCommandRegistry::MakeDeepCopy(CWsCommandRegistry& target) const {
    const CommandVector source = m_wsCommandVector;
    target.Clear();
    for (const CommandPtr& command : source) {
        const CommandPtr copy(new CWsCommand(*command));
        target.m_wsCommandVector.push_back(copy);
        target.m_wsCommandMapById.emplace(copy->GetId(), copy);
        target.m_wsCommandMapByMenuId.emplace(copy->m_nMenuCmdId, copy);
        target.m_wsCommandMapByGroup.emplace(copy->m_cmdGroup, copy);
    }
}

} // namespace Orvane::Workspace
