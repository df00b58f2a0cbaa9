// All user-visible texts, by number, in the user's language.
//
// The host and all modules share one catalogue. It reads the compiled files "tessaly_LANGUAGE.qm"
// of share/messages; the setting "language" selects the language.
#pragma once

#include <type_traits>
#include <vector>

#include "platform/win/String.h"

/// Selects the language of all texts; anything other than letters and "_" selects English. English
/// is also the fallback for missing texts. Until the first call the texts are English, loaded from
/// the folder of the platform library.
/// \param folder with a trailing separator
/// \return one problem for each message file that cannot be read
PLATFORM_API std::vector<CString> UseLanguage(const CString& folder, const CString& language);

/// The same, with the language set in a settings file.
PLATFORM_API std::vector<CString> UseLanguageOf(const wchar_t* settingsFile, const CString& folder);

/// The language code selected last, such as "de".
PLATFORM_API CString Language();

/// Returns "#ID" for an id that is in no language.
PLATFORM_API CString MessageText(int id);

/// The text of a message with its arguments inserted. Each part of the product numbers its messages
/// in an enumeration of its own.
template <class Id, class... Args>
requires std::is_enum_v<Id> CString MessageText(Id id, const Args&... args) {
    const CString format = MessageText(static_cast<int>(id));
    return sizeof...(Args) == 0 ? format : CString(FormatText(format.View(), args...));
}
