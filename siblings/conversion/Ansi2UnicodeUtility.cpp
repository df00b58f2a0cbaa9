#include "siblings/conversion/Ansi2UnicodeUtility.h"

#include <algorithm>

#include "platform/win/CodePage.h"

namespace Orvane {

CAnsi2UnicodeUtility* CAnsi2UnicodeUtility::Instance() {
    static auto* const instance = new CAnsi2UnicodeUtility;
    return instance;
}

void CAnsi2UnicodeUtility::ReserveBufferMemory(std::size_t characters) {
    m_strUnicode.reserve(characters);
    m_strAnsi.reserve(characters);
}

void CAnsi2UnicodeUtility::ReleaseBufferMemory() {
    // Swap, because clear and shrink_to_fit may keep the memory.
    std::wstring().swap(m_strUnicode);
    std::string().swap(m_strAnsi);
}

std::size_t CAnsi2UnicodeUtility::GetBufferCapacity() const {
    // The small-string buffer inside the object was never reserved by anyone.
    const std::size_t room = std::min(m_strUnicode.capacity(), m_strAnsi.capacity());
    return room > std::string().capacity() ? room : 0;
}

const wchar_t* CAnsi2UnicodeUtility::AnsiToUnicode(std::string_view bytes) {
    m_strUnicode.resize(bytes.size());
    std::transform(bytes.begin(), bytes.end(), m_strUnicode.begin(),
                   [](char byte) { return AnsiToWide(static_cast<unsigned char>(byte)); });
    return m_strUnicode.c_str();
}

const char* CAnsi2UnicodeUtility::UnicodeToAnsi(std::wstring_view text) {
    m_strAnsi.clear();
    // In chunks short enough for the small-string buffer.
    constexpr std::size_t kPiece = 15;
    for (std::size_t at = 0; at < text.size(); at += kPiece) {
        m_strAnsi += WideToAnsi(text.substr(at, kPiece));
    }
    return m_strAnsi.c_str();
}

} // namespace Orvane
