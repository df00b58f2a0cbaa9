// Numbers in support files.
#pragma once

#include <charconv>
#include <optional>

#include "platform/win/CodePage.h"
#include "platform/win/String.h"

namespace Orvane {

/// Parses the whole text as an int; nullopt otherwise, so that malformed settings are never used
/// in part.
inline std::optional<int> WholeNumber(std::wstring_view text) {
    const std::string bytes = WideToUtf8(text);
    int number = 0;
    const char* const end = bytes.data() + bytes.size();
    const auto result = std::from_chars(bytes.data(), end, number);
    if (result.ec != std::errc() || result.ptr != end) {
        return std::nullopt;
    }
    return number;
}

} // namespace Orvane
