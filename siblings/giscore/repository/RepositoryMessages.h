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

template <class... Args>
CString RepositoryMessage(int message, const Args&... args) {
    return FormatText(CModuleConfiguration::Instance()->GetMsg(message).View(), args...);
}

} // namespace Orvane
