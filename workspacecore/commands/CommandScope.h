// What stands around the work of a command, for executors of all modules.
#pragma once

#include <functional>

#include "workspacecore/Api.h"

namespace Orvane::Workspace {

/// Whom the events of commands go to.
class WORKSPACE_API ICommandEvents {
public:
    virtual void RaiseBefore(const wchar_t* commandId) = 0;
    virtual void RaiseAfter(const wchar_t* commandId) = 0;

protected:
    ~ICommandEvents() = default;
};

class WORKSPACE_API CommandScope {
public:
    /// Runs a command's work: the listeners hear before it, and after it however it ends, and
    /// in between the current drawing stays open. Inside of a scope of the same command, as an
    /// executor is that was given the command as an order, it only runs the work: a command
    /// has its events once. What the work or a listener throws passes on.
    static void Run(const wchar_t* commandId, const std::function<void()>& work);

    /// Not owned; null until the workspace is there.
    static void SetEvents(ICommandEvents* pEvents);
};

} // namespace Orvane::Workspace
