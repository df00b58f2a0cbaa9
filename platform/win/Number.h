// Reading of numbers from texts, independent of the locale.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/Api.h"

/// The standard conversion of a text to an int: leading blanks and one sign are taken,
/// reading stops at the first other character, no digits give 0, and a number out of
/// range gives the nearest int.
PLATFORM_API int TextToInt(std::wstring_view text);
/// The same to a long.
PLATFORM_API long TextToLong(std::wstring_view text);
/// The same to a double, with a decimal point; a number out of range gives infinity or 0.
PLATFORM_API double TextToDouble(const std::wstring& text);

/// The whole text as a finite number with a decimal point, or nothing. Takes a leading
/// plus sign; blanks are not taken.
PLATFORM_API std::optional<double> TextToReal(std::string_view text);

/// The shortest decimal form that reads back as the same number.
PLATFORM_API std::wstring RealToText(double value);
