// Numbers of support files.
#pragma once

#include <charconv>
#include <optional>

#include "platform/win/CodePage.h"
#include "platform/win/String.h"

namespace Orvane {

/// The whole text as an int, or nothing: what stands in a settings file is taken as it
/// was meant or not at all.
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
