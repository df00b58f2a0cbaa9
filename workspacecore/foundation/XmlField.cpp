#include "workspacecore/foundation/XmlField.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cstdint>
#include <limits>

#include "platform/win/CodePage.h"
#include "platform/win/Number.h"
#include "workspacecore/foundation/XmlDocument.h"

namespace Orvane {

namespace {

constexpr std::size_t kPairLength = 3; ///< "=" and two digits

void AppendPair(std::string& text, unsigned nValue) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    text += '=';
    text += kDigits[nValue >> 4 & 0xF];
    text += kDigits[nValue & 0xF];
}

/// Characters other than the digits we write count as 0.
unsigned Digit(char c) {
    if (c >= '0' && c <= '9') {
        return static_cast<unsigned>(c - '0');
    }
    return c >= 'A' && c <= 'F' ? static_cast<unsigned>(c - 'A' + 10) : 0;
}

/// The value of the pair at the start of the bytes, which is a "=".
unsigned Pair(std::string_view bytes) {
    return Digit(bytes[1]) << 4 | Digit(bytes[2]);
}

/// Number of pairs in a sequence starting with this byte; 0 if it cannot start one.
std::size_t SequencePairs(unsigned nFirst) {
    constexpr std::array<std::pair<unsigned, std::size_t>, 5> kLastOfLength = {
        {{0xDF, 2}, {0xEF, 3}, {0xF7, 4}, {0xFB, 5}, {0xFD, 6}}};
    if (nFirst < 0xC0) {
        return 0;
    }
    for (const auto& [nLast, nPairs] : kLastOfLength) {
        if (nFirst <= nLast) {
            return nPairs;
        }
    }
    return 0;
}

/// ASCII is the same in all code pages.
wchar_t Wide(unsigned char byte) {
    return byte < 0x80 ? static_cast<wchar_t>(byte) : AnsiToWide(byte);
}

/// Decodes the sequence at the start of the bytes and returns the number of bytes used; 0 if the
/// text ends within it.
std::size_t DecodeOne(std::string_view bytes, std::wstring& result) {
    constexpr unsigned kLastPlain = 126;
    if (bytes.size() < kPairLength) {
        return 0;
    }
    const unsigned nFirst = Pair(bytes);
    if (nFirst <= kLastPlain) {
        result += static_cast<wchar_t>(nFirst);
        return kPairLength;
    }
    const std::size_t nPairs = SequencePairs(nFirst);
    if (nPairs == 0) {
        return 1;
    }
    const std::size_t nLength = nPairs * kPairLength;
    if (nLength > bytes.size()) {
        return 0;
    }
    const unsigned nSecondLast = Pair(bytes.substr(nLength - 2 * kPairLength));
    const unsigned nLast = Pair(bytes.substr(nLength - kPairLength));
    result += Wide(static_cast<unsigned char>((nSecondLast - 2) * 64 + nLast));
    return nLength;
}

/// Number of leading characters that need no escaping in an attribute.
std::size_t PlainLength(std::wstring_view text) {
    static constexpr auto kPlain = [] {
        std::array<bool, 0x80> plain{};
        std::fill(plain.begin() + 1, plain.end(), true);
        for (const wchar_t c : {L'<', L'&', L'>', L'\'', L'"', L'='}) {
            plain[std::bit_cast<std::uint32_t>(c)] = false;
        }
        return plain;
    }();
    const auto hit = std::find_if_not(text.begin(), text.end(), [](wchar_t c) {
        const auto nCode = std::bit_cast<std::uint32_t>(c);
        return nCode < kPlain.size() && kPlain[nCode];
    });
    return static_cast<std::size_t>(hit - text.begin());
}

void AppendEqualsHex(std::string& result, std::wstring_view text) {
    for (const char c : WideToAnsi(text)) {
        const unsigned nByte = static_cast<unsigned char>(c);
        if (c == '=') {
            AppendPair(result, nByte);
        } else if (nByte < 0x80) {
            result += c;
        } else {
            // The byte is sign-extended to 0xFF80 and above before it is converted to UTF-8, as
            // in existing files.
            const unsigned nWidened = 0xFF00U | nByte;
            AppendPair(result, 0xE0 | nWidened >> 12);
            AppendPair(result, 0x80 | (nWidened >> 6 & 0x3F));
            AppendPair(result, 0x80 | (nWidened & 0x3F));
        }
    }
}

} // namespace

CString EncodeXmlField(const wchar_t* pszValue) {
    std::string text;
    AppendXmlField(text, pszValue);
    return CString(std::wstring(text.begin(), text.end()));
}

void AppendXmlField(std::string& text, const CString& strValue) {
    constexpr int kFlags = XmlDocument::kEscapeQuotes | XmlDocument::kEscapeKeepReferences;
    const std::wstring_view value = strValue.View();
    const std::size_t nPlain = PlainLength(value);
    const std::size_t nBefore = text.size();
    text.resize(nBefore + nPlain);
    std::transform(value.begin(), value.begin() + static_cast<std::ptrdiff_t>(nPlain),
                   text.begin() + static_cast<std::ptrdiff_t>(nBefore),
                   [](wchar_t c) { return static_cast<char>(c); });
    if (nPlain < value.size()) {
        // Up to the first NUL.
        const std::wstring_view rest(strValue.GetString() + nPlain);
        AppendEqualsHex(text, XmlDocument::EscapeEntities(rest, kFlags).View());
    }
}

void AppendXmlInt(std::string& text, int nValue) {
    std::array<char, std::numeric_limits<int>::digits10 + 2> digits{}; // including a sign
    text.append(digits.data(),
                std::to_chars(digits.data(), digits.data() + digits.size(), nValue).ptr);
}

CString DecodeXmlField(const wchar_t* pszRaw) {
    const std::wstring_view raw(pszRaw ? pszRaw : L"");
    return raw.find(L'&') == raw.npos ? DecodeEqualsHex(raw)
                                      : DecodeEqualsHex(XmlDocument::UnescapeEntities(raw).View());
}

CString XmlFieldText(std::optional<std::wstring_view> raw) {
    const std::wstring_view text = raw.value_or(std::wstring_view());
    return PlainLength(text) == text.size() ? CString(text)
                                            : DecodeXmlField(XmlDocument::UnescapeEntities(text));
}

int XmlFieldInt(std::optional<std::wstring_view> raw) {
    const std::wstring_view text = raw.value_or(std::wstring_view());
    return text.find(L'&') == text.npos ? TextToInt(text)
                                        : TextToInt(XmlDocument::UnescapeEntities(text).View());
}

CString EncodeEqualsHex(std::wstring_view text) {
    std::string result;
    AppendEqualsHex(result, text);
    return CString(std::wstring(result.begin(), result.end()));
}

CString DecodeEqualsHex(std::wstring_view text) {
    const std::string bytes = WideToAnsi(text);
    std::wstring result;
    result.reserve(bytes.size());
    for (std::string_view rest = bytes; !rest.empty();) {
        std::size_t nUsed = 1;
        if (rest.front() == '=') {
            nUsed = DecodeOne(rest, result);
            if (nUsed == 0) {
                break;
            }
        } else {
            result += Wide(static_cast<unsigned char>(rest.front()));
        }
        rest.remove_prefix(nUsed);
    }
    return CString(std::move(result));
}

} // namespace Orvane
