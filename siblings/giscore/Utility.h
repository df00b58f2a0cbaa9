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
};

} // namespace Orvane::Utility
