#include "workspacecore/foundation/XmlField.h"

#include <array>

#include "platform/win/CodePage.h"
#include "platform/win/Number.h"
#include "workspacecore/foundation/XmlDocument.h"

namespace Orvane {

namespace {

constexpr std::size_t kPairLength = 3; ///< "=" and two digits

void AppendPair(std::wstring& text, unsigned nValue) {
    constexpr std::wstring_view kDigits = L"0123456789ABCDEF";
    text += L'=';
    text += kDigits[nValue >> 4 & 0xF];
    text += kDigits[nValue & 0xF];
}

/// Other characters than the ones that are written count as 0.
unsigned Digit(char c) {
    if (c >= '0' && c <= '9') {
        return static_cast<unsigned>(c - '0');
    }
    return c >= 'A' && c <= 'F' ? static_cast<unsigned>(c - 'A' + 10) : 0;
}

/// The value of the pair whose "=" stands at the front of the bytes.
unsigned Pair(std::string_view bytes) {
    return Digit(bytes[1]) << 4 | Digit(bytes[2]);
}

/// Pairs in a sequence that starts with this one; 0 if none does.
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

/// Decodes what stands at the "=" at the front of the bytes and returns how many of them
/// were used; 0 if the text ends within it.
std::size_t DecodeOne(std::string_view bytes, std::string& result) {
    constexpr unsigned kLastPlain = 126;
    if (bytes.size() < kPairLength) {
        return 0;
    }
    const unsigned nFirst = Pair(bytes);
    if (nFirst <= kLastPlain) {
        result += static_cast<char>(nFirst);
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
    result += static_cast<char>((nSecondLast - 2) * 64 + nLast);
    return nLength;
}

} // namespace

CString EncodeXmlField(const wchar_t* pszValue) {
    constexpr int kFlags = XmlDocument::kEscapeQuotes | XmlDocument::kEscapeKeepReferences;
    return EncodeEqualsHex(XmlDocument::EscapeEntities(pszValue ? pszValue : L"", kFlags).View());
}

CString DecodeXmlField(const wchar_t* pszRaw) {
    return DecodeEqualsHex(XmlDocument::UnescapeEntities(pszRaw ? pszRaw : L"").View());
}

CString ReadXmlText(const XmlDocument& document, const wchar_t* pszName) {
    return DecodeXmlField(document.GetAttrib(pszName));
}

int ReadXmlInt(const XmlDocument& document, const wchar_t* pszName) {
    return TextToInt(document.GetAttrib(pszName).View());
}

CString EncodeEqualsHex(std::wstring_view text) {
    const std::string bytes = WideToAnsi(text);
    std::wstring result;
    result.reserve(bytes.size());
    for (const char c : bytes) {
        const unsigned nByte = static_cast<unsigned char>(c);
        if (c == '=') {
            AppendPair(result, nByte);
        } else if (nByte < 0x80) {
            result += static_cast<wchar_t>(nByte);
        } else {
            // The byte counts as negative and is widened to 0xFF80 and above before it is
            // brought to UTF-8. Files in use are written so.
            const unsigned nWidened = 0xFF00U | nByte;
            AppendPair(result, 0xE0 | nWidened >> 12);
            AppendPair(result, 0x80 | (nWidened >> 6 & 0x3F));
            AppendPair(result, 0x80 | (nWidened & 0x3F));
        }
    }
    return CString(std::move(result));
}

CString DecodeEqualsHex(std::wstring_view text) {
    const std::string bytes = WideToAnsi(text);
    std::string result;
    result.reserve(bytes.size());
    for (std::string_view rest = bytes; !rest.empty();) {
        std::size_t nUsed = 1;
        if (rest.front() == '=') {
            nUsed = DecodeOne(rest, result);
            if (nUsed == 0) {
                break;
            }
        } else {
            result += rest.front();
        }
        rest.remove_prefix(nUsed);
    }
    return CString(AnsiToWide(result));
}

} // namespace Orvane
