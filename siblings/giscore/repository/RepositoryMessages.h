// Texts for the user about items of repositories. Internal to this module.
#pragma once

#include "siblings/giscore/configuration/ModuleConfiguration.h"

namespace Orvane {

inline constexpr int kMsgItemWithoutName = 900310;
inline constexpr int kMsgItemNameTaken = 900311; // with the name
inline constexpr int kMsgItemIsThere = 900312;   // with the name
inline constexpr int kMsgItemIsGone = 900313;
inline constexpr int kMsgItemNotWritten = 900314; // with the name and the reason
inline constexpr int kMsgDrawingIsBusy = 900315;
inline constexpr int kMsgNoDefaultHere = 900316;
inline constexpr int kMsgItemChanged = 962000; // with the name, who and when
inline constexpr int kMsgItemDeleted = 962001; // with the name
// Reasons why an item is not written.
inline constexpr int kMsgWriteProtected = 962002;
inline constexpr int kMsgOthersWrite = 962003;
inline constexpr int kMsgItemNotErased = 962006; // with the name and the reason

template <class... Args>
CString RepositoryMessage(int message, const Args&... args) {
    return FormatText(CModuleConfiguration::Instance()->GetMsg(message).View(), args...);
}

} // namespace Orvane
