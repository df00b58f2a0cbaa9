// Escaping and decoding of entities.
#include "workspacecore/foundation/XmlDocument.h"

#include <algorithm>
#include <cwchar>

namespace Orvane {

namespace {

struct Entity {
    wchar_t character;
    std::wstring_view name; ///< without "&" and including ";"
};

/// Without kEscapeQuotes only the first three are escaped.
constexpr std::array<Entity, 5> kEntities = {
    {{L'<', L"lt;"}, {L'&', L"amp;"}, {L'>', L"gt;"}, {L'\'', L"apos;"}, {L'"', L"quot;"}}};
constexpr std::size_t kEntitiesWithoutQuotes = 3;

bool IsReferenceStart(wchar_t c) {
    return c == L'#' || c == L':' || c == L'_' || (c >= L'A' && c <= L'Z') ||
           (c >= L'a' && c <= L'z') || static_cast<std::uint32_t>(c) >= 128;
}

bool IsReferencePart(wchar_t c) {
    return (c != L'#' && IsReferenceStart(c)) || c == L'-' || c == L'.' || (c >= L'0' && c <= L'9');
}

/// Length of the reference at the start of the text; 0 if there is none.
std::size_t ReferenceLength(std::wstring_view text) {
    if (text.size() < 2 || !IsReferenceStart(text[1])) {
        return 0;
    }
    const auto end = std::find_if_not(text.begin() + 2, text.end(), IsReferencePart);
    return end != text.end() && *end == L';' ? static_cast<std::size_t>(end - text.begin()) + 1 : 0;
}

/// Decodes the numeric reference at the start of the text and returns its length; 0 if its end is
/// not within reach.
std::size_t DecodeNumber(std::wstring_view text, std::wstring& result) {
    constexpr std::size_t kMostDigits = 7;
    const bool bHex = text.size() > 2 && text[2] == L'x';
    const std::size_t nDigits = bHex ? 3 : 2;
    const std::size_t nEnd = text.substr(0, nDigits + kMostDigits + 1).find(L';', nDigits);
    if (nEnd == text.npos) {
        return 0;
    }
    const std::wstring strDigits(text.substr(nDigits, nEnd - nDigits));
    const long nNumber = std::wcstol(strDigits.c_str(), nullptr, bHex ? 16 : 10);
    result += static_cast<wchar_t>(nNumber);
    if (nNumber == 0) {
        // The unparsable text stays visible after the NUL.
        result += L'&';
        return 1;
    }
    return nEnd + 1;
}

/// Decodes the reference at the start of the text and returns its length; 0 if there is none.
std::size_t DecodeReference(std::wstring_view text, std::wstring& result) {
    if (text.size() > 1 && text[1] == L'#') {
        return DecodeNumber(text, result);
    }
    for (const Entity& entity : kEntities) {
        if (text.substr(1).starts_with(entity.name)) {
            result += entity.character;
            return 1 + entity.name.size();
        }
    }
    return 0;
}

} // namespace

CString XmlDocument::EscapeEntities(std::wstring_view text, int nFlags) {
    const auto* pEnd = (nFlags & kEscapeQuotes) != 0 ? kEntities.end()
                                                     : kEntities.begin() + kEntitiesWithoutQuotes;
    std::wstring result;
    result.reserve(text.size() + text.size() / 10 + 7);
    for (std::size_t nAt = 0; nAt < text.size();) {
        const wchar_t c = text[nAt];
        const auto* pEntity = std::find_if(
            kEntities.begin(), pEnd, [c](const Entity& entity) { return entity.character == c; });
        std::size_t nKept = pEntity == pEnd ? 1 : 0;
        if (c == L'&' && (nFlags & kEscapeKeepReferences) != 0) {
            nKept = ReferenceLength(text.substr(nAt));
        }
        if (nKept == 0) {
            (result += L'&') += pEntity->name;
            ++nAt;
        } else {
            result += text.substr(nAt, nKept);
            nAt += nKept;
        }
    }
    return CString(std::move(result));
}

CString XmlDocument::UnescapeEntities(std::wstring_view text) {
    std::size_t nAmpersand = text.find(L'&');
    if (nAmpersand == text.npos) {
        return CString(text);
    }
    std::wstring result;
    result.reserve(text.size());
    while (nAmpersand != text.npos) {
        result += text.substr(0, nAmpersand);
        text.remove_prefix(nAmpersand);
        const std::size_t nLength = DecodeReference(text, result);
        if (nLength == 0) {
            result += L'&';
        }
        text.remove_prefix(std::max<std::size_t>(nLength, 1));
        nAmpersand = text.find(L'&');
    }
    result += text;
    return CString(std::move(result));
}

CString XmlDocument::WrapCData(std::wstring_view text) {
    CString strInner(text);
    strInner.Replace(L"]]>", L"]]]]><![CDATA[>");
    return L"<![CDATA[" + strInner + L"]]>";
}

} // namespace Orvane
