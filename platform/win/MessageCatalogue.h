// Every text that a user reads, by number, in the user's language.
//
// One catalogue serves the host and all modules. It reads the compiled files
// "tessaly_LANGUAGE.qm" of share/messages; which language counts is the setting "language".
#pragma once

#include <type_traits>
#include <vector>

#include "platform/win/String.h"

/// Chooses the language of all texts from now on; anything but letters and "_" means English.
/// English also stands in for what a language lacks. Until the first call the texts are
/// English, from beside the platform library.
/// \param folder with a separator at its end
/// \return one problem for each message file that cannot be read
PLATFORM_API std::vector<CString> UseLanguage(const CString& folder, const CString& language);

/// The same, for the language that a settings file names.
PLATFORM_API std::vector<CString> UseLanguageOf(const wchar_t* settingsFile, const CString& folder);

/// "de", as chosen last.
PLATFORM_API CString Language();

/// "#ID" for an id that no language has.
PLATFORM_API CString MessageText(int id);

/// The text of a message with its places filled; each part of the product names its messages
/// in an enumeration of its own.
template <class Id, class... Args>
requires std::is_enum_v<Id> CString MessageText(Id id, const Args&... args) {
    const CString format = MessageText(static_cast<int>(id));
    return sizeof...(Args) == 0 ? format : CString(FormatText(format.View(), args...));
}
