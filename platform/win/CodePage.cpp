#include "platform/win/CodePage.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

#ifndef TESSALY_CODE_PAGE
#define TESSALY_CODE_PAGE 1252
#endif

namespace {

/// The upper half of the page where it differs from Latin-1. 0 means the C1 control.
struct CodePageTable {
    unsigned char first;
    std::array<wchar_t, 32> characters;
};

#if TESSALY_CODE_PAGE == 1252
constexpr CodePageTable kTable = {
    0x80, {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
           0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
           0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178}};
#elif TESSALY_CODE_PAGE == 28591
constexpr CodePageTable kTable = {0x80, {}};
#else
#error "TESSALY_CODE_PAGE must be 1252 or 28591"
#endif

constexpr wchar_t kReplacement = 0xFFFD;

unsigned char ByteOf(wchar_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) {
        return static_cast<unsigned char>(character);
    }
    const auto hit = std::find(kTable.characters.begin(), kTable.characters.end(), character);
    if (hit != kTable.characters.end()) {
        return static_cast<unsigned char>(kTable.first + (hit - kTable.characters.begin()));
    }
    const bool freeControl =
        character >= 0x80 && character < 0xA0 &&
        kTable.characters[static_cast<std::size_t>(character - kTable.first)] == 0;
    return freeControl ? static_cast<unsigned char>(character) : '?';
}

/// Length announced by a lead byte; 0 if it cannot start a sequence.
int SequenceLength(unsigned char lead) {
    if (lead < 0x80) {
        return 1;
    }
    if (lead >= 0xC2 && lead <= 0xDF) {
        return 2;
    }
    if (lead >= 0xE0 && lead <= 0xEF) {
        return 3;
    }
    return lead >= 0xF0 && lead <= 0xF4 ? 4 : 0;
}

bool IsScalar(std::uint32_t code) {
    return code < 0xD800 || (code > 0xDFFF && code <= 0x10FFFF);
}

/// Reads the sequence at `at`. For an ill-formed one, returns the replacement character and
/// advances by one byte.
wchar_t ReadSequence(std::string_view bytes, std::size_t& at) {
    const auto lead = static_cast<unsigned char>(bytes[at]);
    const int length = SequenceLength(lead);
    if (length == 1) {
        ++at;
        return lead;
    }
    if (length == 0 || at + static_cast<std::size_t>(length) > bytes.size()) {
        ++at;
        return kReplacement;
    }
    std::uint32_t code = lead & (0xFFU >> (length + 1));
    for (int i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(bytes[at + static_cast<std::size_t>(i)]);
        if ((next & 0xC0) != 0x80) {
            ++at;
            return kReplacement;
        }
        code = code << 6 | (next & 0x3F);
    }
    constexpr std::uint32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
    if (code < kLeast[length] || !IsScalar(code)) {
        ++at;
        return kReplacement;
    }
    at += static_cast<std::size_t>(length);
    return static_cast<wchar_t>(code);
}

/// Widens the leading ASCII characters of `bytes` and returns their number.
std::size_t CopyAscii(std::string_view bytes, wchar_t* out) {
    constexpr std::size_t kStep = 32;
    std::size_t at = 0;
    for (; at + kStep <= bytes.size(); at += kStep) {
        std::uint64_t words[kStep / 8];
        std::memcpy(words, bytes.data() + at, kStep);
        if (((words[0] | words[1] | words[2] | words[3]) & 0x8080808080808080ULL) != 0) {
            break;
        }
        for (std::size_t i = 0; i < kStep; ++i) {
            out[at + i] = static_cast<unsigned char>(bytes[at + i]);
        }
    }
    for (; at < bytes.size() && static_cast<unsigned char>(bytes[at]) < 0x80; ++at) {
        out[at] = static_cast<unsigned char>(bytes[at]);
    }
    return at;
}

/// Writes a scalar value from 0x80 on and returns the end of the sequence.
char* WriteSequence(std::uint32_t code, char* out) {
    if (code < 0x800) {
        *out++ = static_cast<char>(0xC0 | code >> 6);
    } else {
        if (code < 0x10000) {
            *out++ = static_cast<char>(0xE0 | code >> 12);
        } else {
            *out++ = static_cast<char>(0xF0 | code >> 18);
            *out++ = static_cast<char>(0x80 | (code >> 12 & 0x3F));
        }
        *out++ = static_cast<char>(0x80 | (code >> 6 & 0x3F));
    }
    *out++ = static_cast<char>(0x80 | (code & 0x3F));
    return out;
}

} // namespace

wchar_t AnsiToWide(unsigned char byte) {
    if (byte >= 0x80 && byte < 0xA0) {
        const wchar_t mapped = kTable.characters[static_cast<std::size_t>(byte - kTable.first)];
        return mapped ? mapped : static_cast<wchar_t>(byte);
    }
    return static_cast<wchar_t>(byte);
}

std::string WideToAnsi(std::wstring_view text) {
    std::string bytes(text.size(), '\0');
    std::transform(text.begin(), text.end(), bytes.begin(),
                   [](wchar_t c) { return static_cast<char>(ByteOf(c)); });
    return bytes;
}

std::wstring AnsiToWide(std::string_view bytes) {
    std::wstring text(bytes.size(), L'\0');
    std::transform(bytes.begin(), bytes.end(), text.begin(),
                   [](char c) { return AnsiToWide(static_cast<unsigned char>(c)); });
    return text;
}

std::size_t Utf8ToWide(std::string_view bytes, wchar_t* text) {
    wchar_t* out = text;
    std::size_t at = 0;
    while (at < bytes.size()) {
        const std::size_t ascii = CopyAscii(bytes.substr(at), out);
        at += ascii;
        out += ascii;
        // Non-ASCII text comes in runs, too: do not search for ASCII before each character.
        while (at < bytes.size() && static_cast<unsigned char>(bytes[at]) >= 0x80) {
            *out++ = ReadSequence(bytes, at);
        }
    }
    return static_cast<std::size_t>(out - text);
}

std::wstring Utf8ToWide(std::string_view bytes) {
    std::wstring text;
    text.reserve(bytes.size());
    wchar_t block[1024];
    while (!bytes.empty()) {
        std::string_view piece = bytes.substr(0, std::size(block));
        if (piece.size() < bytes.size()) {
            piece = piece.substr(0, FinishedUtf8Length(piece));
        }
        text.append(block, Utf8ToWide(piece, block));
        bytes.remove_prefix(piece.size());
    }
    return text;
}

std::size_t FinishedUtf8Length(std::string_view bytes) {
    constexpr std::size_t kLongest = 4;
    std::size_t at = bytes.size() - std::min(bytes.size(), kLongest - 1);
    for (; at < bytes.size(); ++at) {
        const int length = SequenceLength(static_cast<unsigned char>(bytes[at]));
        if (at + static_cast<std::size_t>(length) > bytes.size()) {
            break;
        }
    }
    return at;
}

std::string WideToUtf8(std::wstring_view text) {
    constexpr std::size_t kLongest = 4;
    std::string bytes;
    bytes.reserve(text.size());
    char block[4096];
    while (!text.empty()) {
        const std::wstring_view piece = text.substr(0, std::size(block) / kLongest);
        char* out = block;
        for (const wchar_t character : piece) {
            const auto code = std::bit_cast<std::uint32_t>(character);
            if (code < 0x80) {
                *out++ = static_cast<char>(code);
            } else {
                out = WriteSequence(IsScalar(code) ? code : std::uint32_t{kReplacement}, out);
            }
        }
        bytes.append(block, static_cast<std::size_t>(out - block));
        text.remove_prefix(piece.size());
    }
    return bytes;
}
