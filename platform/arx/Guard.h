// Containing what foreign code throws, where nothing may pass: at the commands, at the toolkit,
// and where several listeners are told the same.
#pragma once

#include "platform/arx/Activity.h"
#include "platform/win/Library.h"
#include "platform/win/MessageCatalogue.h"

/// The text of the exception in hand. Only inside a catch block.
PLATFORM_API CString CaughtReason();
/// Prints the exception in hand: who threw it, as far as an activity tells, otherwise what was
/// going on. Only inside a catch block; throws nothing itself.
PLATFORM_API void ReportCaught(const wchar_t* what) noexcept;

/// What was going on, as a text or as a message of the catalogue, which is only looked up once
/// something failed.
inline const wchar_t* StepText(const wchar_t* step) {
    return step;
}
template <class Id>
requires std::is_enum_v<Id> CString StepText(Id step) {
    return MessageText(step);
}

/// Calls something of a module's object. What is thrown passes on, marked with the module that
/// brought the object's class and with the step in which it failed.
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

/// False, and the user is told, if the call threw anything at all.
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
