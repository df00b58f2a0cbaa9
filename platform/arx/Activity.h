// What was going on when an exception passed by.
//
// Code that calls into somebody else's module says so with an ActivityScope. Nothing is
// caught there; if an exception leaves the scope, its description is kept, so that the
// host, which catches at its command line, can tell the user who failed.
#pragma once

#include "platform/win/String.h"

class PLATFORM_API ActivityScope {
public:
    /// Both texts have to outlive the scope; they are only put together when needed.
    ActivityScope(const wchar_t* subject, const wchar_t* step);
    ~ActivityScope();
    ActivityScope(const ActivityScope&) = delete;
    ActivityScope& operator=(const ActivityScope&) = delete;

private:
    const wchar_t* m_pszSubject;
    const wchar_t* m_pszStep;
    int m_nExceptions;
};

/// The same for code that catches an exception to pass it on: keeps who was at work, unless
/// somebody further inside has said so already.
PLATFORM_API void NoteInterruptedActivity(const CString& subject, const wchar_t* step);

/// The innermost activity that the last exception left, as "subject: step", and forgets it.
/// Empty if there was none.
PLATFORM_API CString TakeInterruptedActivity();

/// Sets aside what is kept of an exception that is still on its way, or that somebody has caught
/// meanwhile: what is kept in this scope is of what happens in it.
class PLATFORM_API OwnActivities {
public:
    OwnActivities();
    ~OwnActivities();
    OwnActivities(const OwnActivities&) = delete;
    OwnActivities& operator=(const OwnActivities&) = delete;

private:
    CString m_strAside;
};
