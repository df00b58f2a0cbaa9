#include "workspacecore/commands/CommandScope.h"

#include <exception>
#include <vector>

#include "platform/win/String.h"
#include "siblings/cadwrapper/DocLock.h"

namespace Orvane::Workspace {

namespace {

ICommandEvents* s_pEvents = nullptr;

/// Commands whose "before" event was raised, innermost last.
std::vector<CString>& OpenScopes() {
    static auto& scopes = *new std::vector<CString>;
    return scopes;
}

class OpenScope {
public:
    explicit OpenScope(const wchar_t* commandId) { OpenScopes().emplace_back(commandId); }
    ~OpenScope() { OpenScopes().pop_back(); }
    OpenScope(const OpenScope&) = delete;
    OpenScope& operator=(const OpenScope&) = delete;
};

} // namespace

void CommandScope::Run(const wchar_t* commandId, const std::function<void()>& work) {
    if (!OpenScopes().empty() && OpenScopes().back() == commandId) {
        work();
        return;
    }
    const OpenScope scope(commandId);
    const CORVCDocLock lock;
    std::exception_ptr thrown;
    try {
        if (s_pEvents) {
            s_pEvents->RaiseBefore(commandId);
        }
        work();
    } catch (...) {
        thrown = std::current_exception();
    }
    try {
        if (s_pEvents) {
            s_pEvents->RaiseAfter(commandId);
        }
    } catch (...) {
        // The command's own exception takes precedence over a listener's.
        thrown = thrown ? thrown : std::current_exception();
    }
    if (thrown) {
        std::rethrow_exception(thrown);
    }
}

void CommandScope::SetEvents(ICommandEvents* pEvents) {
    s_pEvents = pEvents;
}

} // namespace Orvane::Workspace
