#include "platform/win/String.h"

#include <algorithm>
#include <cwctype>

namespace {

std::size_t Clamp(int position, std::size_t length) {
    return position <= 0 ? 0 : std::min(static_cast<std::size_t>(position), length);
}

int Position(std::size_t found) {
    return found == std::wstring::npos ? -1 : static_cast<int>(found);
}

bool IsBlank(wchar_t c) {
    return c == L' ' || (c >= L'\t' && c <= L'\r');
}

/// Accented Latin, Greek and Cyrillic letters, which the C locale does not convert. Within a block,
/// upper and lower case are a fixed distance apart or alternate.
struct CaseBlock {
    wchar_t firstUpper;
    wchar_t lastUpper;
    int distance; ///< 0: alternating, upper case even; 1: alternating, upper case odd
};

constexpr CaseBlock kCaseBlocks[] = {
    {0x00C0, 0x00D6, 32}, {0x00D8, 0x00DE, 32}, {0x0100, 0x012E, 0},  {0x0132, 0x0136, 0},
    {0x0139, 0x0147, 1},  {0x014A, 0x0176, 0},  {0x0179, 0x017D, 1},  {0x0391, 0x03A1, 32},
    {0x03A3, 0x03AB, 32}, {0x0400, 0x040F, 80}, {0x0410, 0x042F, 32}, {0x0460, 0x0480, 0},
};

} // namespace

wchar_t ToLower(wchar_t c) {
    if (c < 0x80) {
        return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c + 32) : c;
    }
    for (const CaseBlock& block : kCaseBlocks) {
        if (c >= block.firstUpper && c <= block.lastUpper) {
            if (block.distance > 1) {
                return static_cast<wchar_t>(c + block.distance);
            }
            return (c & 1) == block.distance ? static_cast<wchar_t>(c + 1) : c;
        }
    }
    return c == 0x0178 ? L'\u00FF' : c;
}

wchar_t ToUpper(wchar_t c) {
    if (c < 0x80) {
        return c >= L'a' && c <= L'z' ? static_cast<wchar_t>(c - 32) : c;
    }
    for (const CaseBlock& block : kCaseBlocks) {
        const int distance = block.distance > 1 ? block.distance : 1;
        if (c >= block.firstUpper + distance && c <= block.lastUpper + distance) {
            const auto upper = static_cast<wchar_t>(c - distance);
            return ToLower(upper) == c ? upper : c;
        }
    }
    return c == 0x00FF ? L'\u0178' : c;
}

int CString::CompareNoCase(const wchar_t* other) const {
    const std::wstring_view right(other ? other : L"");
    const std::size_t common = std::min(m_text.size(), right.size());
    for (std::size_t i = 0; i < common; ++i) {
        const wchar_t a = ToLower(m_text[i]);
        const wchar_t b = ToLower(right[i]);
        if (a != b) {
            return a < b ? -1 : 1;
        }
    }
    return m_text.size() == right.size() ? 0 : m_text.size() < right.size() ? -1 : 1;
}

int CString::Find(std::wstring_view part, int start) const {
    return Position(m_text.find(part, Clamp(start, m_text.size())));
}

int CString::Find(wchar_t character, int start) const {
    return Position(m_text.find(character, Clamp(start, m_text.size())));
}

int CString::ReverseFind(wchar_t character) const {
    return Position(m_text.rfind(character));
}

CString CString::Left(int count) const {
    return CString(m_text.substr(0, Clamp(count, m_text.size())));
}

CString CString::Right(int count) const {
    return CString(m_text.substr(m_text.size() - Clamp(count, m_text.size())));
}

CString CString::Mid(int first) const {
    return CString(m_text.substr(Clamp(first, m_text.size())));
}

CString CString::Mid(int first, int count) const {
    const std::size_t from = Clamp(first, m_text.size());
    return CString(m_text.substr(from, Clamp(count, m_text.size() - from)));
}

CString& CString::MakeUpper() {
    std::transform(m_text.begin(), m_text.end(), m_text.begin(), ToUpper);
    return *this;
}

CString& CString::MakeLower() {
    std::transform(m_text.begin(), m_text.end(), m_text.begin(), ToLower);
    return *this;
}

CString& CString::Trim() {
    m_text.erase(std::find_if_not(m_text.rbegin(), m_text.rend(), IsBlank).base(), m_text.end());
    m_text.erase(m_text.begin(), std::find_if_not(m_text.begin(), m_text.end(), IsBlank));
    return *this;
}

int CString::Replace(std::wstring_view from, std::wstring_view to) {
    if (from.empty()) {
        return 0;
    }
    int count = 0;
    std::wstring result;
    std::size_t at = 0;
    for (std::size_t hit; (hit = m_text.find(from, at)) != std::wstring::npos; ++count) {
        result.append(m_text, at, hit - at).append(to);
        at = hit + from.size();
    }
    if (count > 0) {
        result.append(m_text, at);
        m_text = std::move(result);
    }
    return count;
}
