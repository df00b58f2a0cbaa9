#include "platform/win/Number.h"

#include <charconv>
#include <cmath>
#include <limits>

int TextToInt(std::wstring_view text) {
    std::size_t at = 0;
    while (at < text.size() && (text[at] == L' ' || (text[at] >= L'\t' && text[at] <= L'\r'))) {
        ++at;
    }
    const bool negative = at < text.size() && text[at] == L'-';
    if (at < text.size() && (text[at] == L'-' || text[at] == L'+')) {
        ++at;
    }
    constexpr long long kMost = std::numeric_limits<int>::max();
    long long value = 0;
    for (; at < text.size() && text[at] >= L'0' && text[at] <= L'9' && value <= kMost; ++at) {
        value = value * 10 + (text[at] - L'0');
    }
    if (negative) {
        return static_cast<int>(-std::min(value, kMost + 1));
    }
    return static_cast<int>(std::min(value, kMost));
}

std::optional<double> TextToReal(std::string_view text) {
    if (text.size() > 1 && text[0] == '+' && text[1] != '-' && text[1] != '+') {
        text.remove_prefix(1);
    }
    double value = 0;
    const char* end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, value);
    if (read.ec != std::errc() || read.ptr != end || !std::isfinite(value)) {
        return std::nullopt;
    }
    return value;
}

std::wstring RealToText(double value) {
    char buffer[32];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
    return std::wstring(buffer, end);
}
