// Conversion between wide texts, UTF-8 and the ANSI code page.
//
// The ANSI page is a fixed single-byte page, chosen at build time (TESSALY_CODE_PAGE, CP1252 by
// default). Every byte maps to a character: bytes that the page leaves undefined map to the C1
// control of the same number, so all 256 bytes survive a round trip.
#pragma once

#include <string>
#include <string_view>

#include "platform/Api.h"

/// Characters that are not in the page become "?".
PLATFORM_API std::string WideToAnsi(std::wstring_view text);
PLATFORM_API std::wstring AnsiToWide(std::string_view bytes);
/// The character of one byte of the page.
PLATFORM_API wchar_t AnsiToWide(unsigned char byte);

/// Ill-formed sequences become U+FFFD, one for each byte that cannot start a sequence.
PLATFORM_API std::wstring Utf8ToWide(std::string_view bytes);
/// The same into `text`, which must have room for one character per byte. Returns the count.
PLATFORM_API std::size_t Utf8ToWide(std::string_view bytes, wchar_t* text);
/// Number of leading bytes whose conversion does not depend on what follows: all but an incomplete
/// sequence at the end. For texts that are converted piece by piece.
PLATFORM_API std::size_t FinishedUtf8Length(std::string_view bytes);
/// Characters that are not Unicode scalar values become U+FFFD.
PLATFORM_API std::string WideToUtf8(std::wstring_view text);
