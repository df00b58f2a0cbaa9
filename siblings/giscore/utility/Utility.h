// Small services that all modules share.
#pragma once

#include "platform/win/StringArray.h"
#include "siblings/giscore/Api.h"

namespace Orvane::Utility {

class GISCORE_API CUtility {
public:
    /// Splits a text at every character of `separators` and puts the pieces, empty ones
    /// included, in place of what the array held. An empty text has no pieces.
    static void SplitString(const wchar_t* text, const wchar_t* separators, CStringArray& pieces);
    /// Opens the help page of a dialog, or the first page if it has none of its own, in the
    /// program that the desktop has for it. Nothing happens if there is no help at all.
    static void ShowHelp(const wchar_t* dialogId);
};

} // namespace Orvane::Utility
