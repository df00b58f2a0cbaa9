// The general settings that the user changes in a dialog, and their file.
#pragma once

#include <map>
#include <span>

#include "platform/win/String.h"
#include "siblings/giscore/Api.h"

namespace Orvane {

/// One setting of the section "General".
struct GeneralSetting {
    enum class Kind { Text, Number, Switch };

    const wchar_t* key;
    const wchar_t* usual; ///< where the file has none
    Kind kind;
    int label;   ///< message
    int low = 0; ///< of a number
    int high = 0;
};

/// The limit of the undo history of each drawing, in megabytes; 0 for none.
inline constexpr const wchar_t* kUndoMemoryKey = L"UNDO_MEMORY";
inline constexpr int kUsualUndoMemory = 512;
inline constexpr int kMostUndoMemory = 65536;

/// Texts by key, as they stand in the file.
using GeneralSettings = std::map<CString, CString, CStringLess>;

GISCORE_API std::span<const GeneralSetting> GeneralSettingList();

/// An empty text, or why a value cannot be one of the setting, for the user.
GISCORE_API CString GeneralSettingProblem(const GeneralSetting& setting, const CString& value);

/// Writes what has changed; all else stays as it stands in the file, which may be what another
/// program has written meanwhile. False if it cannot be
/// written; LastErrorText tells why, and the file is as it was.
GISCORE_API bool WriteGeneralSettings(const CString& path, const GeneralSettings& before,
                                      const GeneralSettings& settings);

} // namespace Orvane
