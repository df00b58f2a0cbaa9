// Records which call into a module an exception interrupted.
//
// Code that calls into another module opens an ActivityScope around the call. The scope catches
// nothing; if an exception leaves it, its description is kept so that the host, which catches at
// its command line, can report which module failed.
#pragma once

#include "platform/win/String.h"

class PLATFORM_API ActivityScope {
public:
    /// Both texts must outlive the scope; they are only joined when an exception leaves it.
    ActivityScope(const wchar_t* subject, const wchar_t* step);
    ~ActivityScope();
    ActivityScope(const ActivityScope&) = delete;
    ActivityScope& operator=(const ActivityScope&) = delete;

private:
    const wchar_t* m_pszSubject;
    const wchar_t* m_pszStep;
    int m_nExceptions;
};

/// The same for code that catches and rethrows: records the activity unless an inner scope already
/// has.
PLATFORM_API void NoteInterruptedActivity(const CString& subject, const wchar_t* step);

/// Returns the innermost activity that the last exception left, as "subject: step", and clears it.
/// Empty if there was none.
PLATFORM_API CString TakeInterruptedActivity();

/// Sets aside the record of an exception that is still in flight or already caught, so that only
/// activities interrupted inside this scope are recorded here. Restores it at the end.
class PLATFORM_API OwnActivities {
public:
    OwnActivities();
    ~OwnActivities();
    OwnActivities(const OwnActivities&) = delete;
    OwnActivities& operator=(const OwnActivities&) = delete;

private:
    CString m_strAside;
};
