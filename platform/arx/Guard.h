// Contains exceptions of foreign code where none may pass: at commands, in toolkit callbacks, and
// between the listeners of an event.
#pragma once

#include "platform/arx/Activity.h"
#include "platform/win/Library.h"
#include "platform/win/MessageCatalogue.h"

/// The message of the current exception. Call only inside a catch block.
PLATFORM_API CString CaughtReason();
/// Reports the current exception with the interrupted activity, or with `what` if none was
/// recorded. Call only inside a catch block; does not throw.
PLATFORM_API void ReportCaught(const wchar_t* what) noexcept;

/// The text of a step, given as plain text or as a message of the catalogue, which is only looked
/// up after a failure.
inline const wchar_t* StepText(const wchar_t* step) {
    return step;
}
template <class Id>
requires std::is_enum_v<Id> CString StepText(Id step) {
    return MessageText(step);
}

/// Calls a module's object. Exceptions propagate, marked with the module that defines the object's
/// class and with the step that failed.
template <class Object, class Step, class Call>
decltype(auto) CallForeign(const Object& object, Step step, Call call) {
    const void* const owner = ClassAddress(object); // the call may destroy the object
    try {
        return call();
    } catch (...) {
        NoteInterruptedActivity(LibraryOfAddress(owner), StepText(step));
        throw;
    }
}

/// Returns false, after reporting it, if the call threw anything.
template <class Step, class Call>
bool Guarded(Step what, Call call) {
    const OwnActivities scope;
    try {
        call();
        return true;
    } catch (...) {
        ReportCaught(StepText(what));
        return false;
    }
}
