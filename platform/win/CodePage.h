// Conversion between wide texts, UTF-8 and the ANSI code page.
//
// The ANSI page is one fixed single-byte page, chosen when the platform is built
// (TESSALY_CODE_PAGE, CP1252 unless set otherwise). Every byte has a character: one
// that the page leaves undefined maps to the C1 control of the same number, so all
// 256 bytes come back unchanged.
#pragma once

#include <string>
#include <string_view>

#include "platform/Api.h"

/// A character that the page does not hold becomes "?".
PLATFORM_API std::string WideToAnsi(std::wstring_view text);
PLATFORM_API std::wstring AnsiToWide(std::string_view bytes);
/// The character of one byte of the page.
PLATFORM_API wchar_t AnsiToWide(unsigned char byte);

/// Ill-formed sequences become U+FFFD, one for each byte that starts nothing.
PLATFORM_API std::wstring Utf8ToWide(std::string_view bytes);
/// The same into `text`, which has room for one character a byte. Returns the count.
PLATFORM_API std::size_t Utf8ToWide(std::string_view bytes, wchar_t* text);
/// How many of these bytes make the same characters whatever follows them: all but an
/// unfinished sequence at the end. For texts that are converted piece by piece.
PLATFORM_API std::size_t FinishedUtf8Length(std::string_view bytes);
/// Characters that are no Unicode scalar values become U+FFFD.
PLATFORM_API std::string WideToUtf8(std::wstring_view text);
