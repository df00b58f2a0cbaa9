#include "platform/arx/Activity.h"

#include <exception>
#include <utility>

namespace {

CString& Interrupted() {
    static CString activity;
    return activity;
}

} // namespace

ActivityScope::ActivityScope(const wchar_t* subject, const wchar_t* step)
    : m_pszSubject(subject), m_pszStep(step), m_nExceptions(std::uncaught_exceptions()) {}

ActivityScope::~ActivityScope() {
    if (std::uncaught_exceptions() > m_nExceptions) {
        NoteInterruptedActivity(m_pszSubject, m_pszStep);
    }
}

void NoteInterruptedActivity(const CString& subject, const wchar_t* step) {
    // The innermost scope is unwound first and is the most specific.
    if (Interrupted().IsEmpty()) {
        Interrupted().Format(L"%s: %s", subject, step);
    }
}

CString TakeInterruptedActivity() {
    return std::exchange(Interrupted(), CString());
}

OwnActivities::OwnActivities() : m_strAside(TakeInterruptedActivity()) {}

OwnActivities::~OwnActivities() {
    Interrupted() = std::move(m_strAside);
}
