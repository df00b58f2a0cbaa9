// Small services that all modules share.
#pragma once

#include "platform/win/StringArray.h"
#include "siblings/giscore/Api.h"

namespace Orvane::Utility {

class GISCORE_API CUtility {
public:
    /// Splits a text at every character of `separators` and replaces the content of the array
    /// with the pieces, including empty ones. An empty text gives no pieces.
    static void SplitString(const wchar_t* text, const wchar_t* separators, CStringArray& pieces);
    /// Opens the help page of a dialog, or the start page if it has none of its own, in the
    /// system's default browser. Does nothing if no help is installed.
    static void ShowHelp(const wchar_t* dialogId);
};

} // namespace Orvane::Utility
