#include "workspacecore/core/CommandIdReport.h"

#include <unordered_map>

#include "platform/arx/EdCommandStack.h"
#include "platform/arx/EdPrompt.h"
#include "platform/win/Library.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "workspacecore/commands/IWsCommandExecutor.h"
#include "workspacecore/trace/Trace.h"

namespace Orvane::Workspace {

namespace {

constexpr int kMsgHostCommand = 920001;
constexpr int kMsgOtherCase = 920002;

void Report(int message, const CWsCommand& command, const CString& other) {
    const IWsCommandExecutor* const pExecutor = command.GetCmdExecutor();
    const CString module = pExecutor ? LibraryOfAddress(ClassAddress(*pExecutor)) : CString();
    const CString text =
        FormatText(CModuleConfiguration::Instance()->GetMsg(message).View(),
                   module.IsEmpty() ? CString(L"?") : module, command.GetId(), other);
    WS_TRACE_TEXT(text.GetString());
    acutPrintf(L"\n%s\n", text);
}

/// The first registered id of those that are equal ignoring case.
std::unordered_map<std::wstring, CString>& FirstIds() {
    static auto& ids = *new std::unordered_map<std::wstring, CString>;
    return ids;
}

} // namespace

void ReportConfusingId(CWsCommandRegistry& registry, const CWsCommand& command) {
    const CString id = command.GetId();
    if (id.IsEmpty()) {
        return;
    }
    if (const auto ofHost = acedRegCmds()->lookupCmd(id)) {
        Report(kMsgHostCommand, command, ofHost->globalName());
    }
    CString& first = FirstIds()[CString(id).MakeUpper().Str()];
    if (first.IsEmpty() || !registry.GetWsCommandMapById()->contains(first)) {
        first = id;
    } else if (first != id) {
        Report(kMsgOtherCase, command, first);
    }
}

} // namespace Orvane::Workspace
