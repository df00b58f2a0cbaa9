// Events and document lock around a command, for executors of all modules.
#pragma once

#include <functional>

#include "workspacecore/Api.h"

namespace Orvane::Workspace {

/// Receives the events of commands.
class WORKSPACE_API ICommandEvents {
public:
    virtual void RaiseBefore(const wchar_t* commandId) = 0;
    virtual void RaiseAfter(const wchar_t* commandId) = 0;

protected:
    ~ICommandEvents() = default;
};

class WORKSPACE_API CommandScope {
public:
    /// Runs a command's work between its before and after events, with the current document
    /// locked; the after event is raised even if the work throws. Inside a scope of the same
    /// command, for instance in an executor called by an order, it only runs the work, so each
    /// command raises its events once. Exceptions of the work or a listener propagate.
    static void Run(const wchar_t* commandId, const std::function<void()>& work);

    /// Not owned; null before the workspace exists.
    static void SetEvents(ICommandEvents* pEvents);
};

} // namespace Orvane::Workspace
