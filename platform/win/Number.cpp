#include "platform/win/Number.h"

#include <charconv>
#include <clocale>
#include <cmath>
#include <cwchar>
#include <limits>

namespace {

template <class Whole>
Whole ToWhole(std::wstring_view text) {
    std::size_t at = 0;
    while (at < text.size() && (text[at] == L' ' || (text[at] >= L'\t' && text[at] <= L'\r'))) {
        ++at;
    }
    const bool negative = at < text.size() && text[at] == L'-';
    if (at < text.size() && (text[at] == L'-' || text[at] == L'+')) {
        ++at;
    }
    constexpr Whole kLeast = std::numeric_limits<Whole>::min();
    constexpr Whole kMost = std::numeric_limits<Whole>::max();
    // Counts downwards, as the negative range is larger by one.
    Whole value = 0;
    for (; at < text.size() && text[at] >= L'0' && text[at] <= L'9'; ++at) {
        const auto digit = static_cast<Whole>(text[at] - L'0');
        if (value < kLeast / 10 || value * 10 < kLeast + digit) {
            return negative ? kLeast : kMost;
        }
        value = value * 10 - digit;
    }
    if (negative) {
        return value;
    }
    return value == kLeast ? kMost : -value;
}

} // namespace

int TextToInt(std::wstring_view text) {
    return ToWhole<int>(text);
}

long TextToLong(std::wstring_view text) {
    return ToWhole<long>(text);
}

double TextToDouble(const std::wstring& text) {
    // The process uses the user's locale, which may have a decimal comma.
    static const locale_t kNoLocale = newlocale(LC_ALL_MASK, "C", nullptr);
    return wcstod_l(text.c_str(), nullptr, kNoLocale);
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
