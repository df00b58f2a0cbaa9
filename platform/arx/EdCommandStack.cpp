#include "platform/arx/EdCommandStack.h"

#include <algorithm>

bool AcEdCommandStack::addCommand(const wchar_t* group, const wchar_t* globalName,
                                  const wchar_t* localName, int flags, AcRxFunctionPtr function) {
    const bool taken = std::any_of(m_commands.begin(), m_commands.end(), [&](const auto& command) {
        return command->group().CompareNoCase(group) == 0 &&
               command->globalName().CompareNoCase(globalName) == 0;
    });
    if (taken || !function) {
        return false;
    }
    m_commands.push_back(
        std::make_shared<const AcEdCommand>(group, globalName, localName, flags, function));
    return true;
}

bool AcEdCommandStack::removeCmd(const wchar_t* group, const wchar_t* globalName) {
    return std::erase_if(m_commands, [&](const auto& command) {
               return command->group().CompareNoCase(group) == 0 &&
                      command->globalName().CompareNoCase(globalName) == 0;
           }) > 0;
}

void AcEdCommandStack::removeGroup(const wchar_t* group) {
    std::erase_if(m_commands,
                  [&](const auto& command) { return command->group().CompareNoCase(group) == 0; });
}

std::shared_ptr<const AcEdCommand> AcEdCommandStack::lookupCmd(const wchar_t* name) const {
    const auto hit = std::find_if(m_commands.begin(), m_commands.end(), [&](const auto& command) {
        return command->globalName().CompareNoCase(name) == 0 ||
               command->localName().CompareNoCase(name) == 0;
    });
    return hit == m_commands.end() ? nullptr : *hit;
}

AcEdCommandStack* acedRegCmds() {
    static AcEdCommandStack* const stack = [] {
        auto* made = new AcEdCommandStack;
        acrxSysRegistry()->atPut(L"ACAD_REGISTERED_COMMANDS", made);
        return made;
    }();
    return stack;
}
