// Locale-independent parsing of numbers.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/Api.h"

/// Parses an int like wcstol: skips leading white space, accepts a sign, stops at the first other
/// character, and returns 0 without digits. Out-of-range numbers are clamped.
PLATFORM_API int TextToInt(std::wstring_view text);
/// The same for long.
PLATFORM_API long TextToLong(std::wstring_view text);
/// The same for double, with a decimal point; out-of-range numbers give infinity or 0.
PLATFORM_API double TextToDouble(const std::wstring& text);

/// Parses the whole text as a finite number with a decimal point; nothing if that fails. Accepts a
/// leading plus sign but no spaces.
PLATFORM_API std::optional<double> TextToReal(std::string_view text);

/// The shortest decimal form that parses to the same number.
PLATFORM_API std::wstring RealToText(double value);
