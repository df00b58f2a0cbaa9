// Comparison of element and attribute names.
#pragma once

#include <algorithm>
#include <cwchar>
#include <string_view>

#include "platform/win/String.h"

namespace Orvane {

inline bool IsXmlBlank(wchar_t c) {
    return c == L' ' || c == L'\t' || c == L'\n' || c == L'\r';
}

/// A name that finds an element may be shorter than the one its end tag must repeat.
inline bool EndsElementName(wchar_t c) {
    return c == L'<' || c == L'>' || c == L'=' || c == L'\\' || c == L'/' || c == L'?' ||
           c == L'!' || IsXmlBlank(c);
}

/// Whether a name in the text matches the searched name, which may continue after it:
/// "wsCommand[2]" finds wsCommand.
inline bool MatchXmlName(std::wstring_view candidate, std::wstring_view searched,
                         bool bIgnoreCase) {
    const std::size_t nLength = candidate.size();
    if (nLength > searched.size()) {
        return false;
    }
    const bool bSame =
        bIgnoreCase ? std::equal(candidate.begin(), candidate.end(), searched.begin(),
                                 [](wchar_t a, wchar_t b) { return ToLower(a) == ToLower(b); })
                    : nLength == 0 ||
                          // Most names differ here, which saves the call.
                          (candidate.front() == searched.front() &&
                           std::wmemcmp(candidate.data(), searched.data(), nLength) == 0);
    constexpr std::wstring_view kEnds = L" =/[]";
    return bSame && (nLength == searched.size() || kEnds.find(searched[nLength]) != kEnds.npos);
}

} // namespace Orvane
