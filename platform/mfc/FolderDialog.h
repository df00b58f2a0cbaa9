// Choosing a folder.
#pragma once

#include <optional>

#include "platform/win/String.h"

/// Lets the user choose a folder that is there. Without a desktop its path is asked for at the
/// prompt.
/// \param start where the choice begins; may be empty
/// \return nothing if the user cancels
PLATFORM_API std::optional<CString> AfxChooseFolder(const CString& title, const CString& start);
