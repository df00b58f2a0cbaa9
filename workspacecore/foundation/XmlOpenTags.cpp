#include "workspacecore/foundation/XmlOpenTags.h"

#include "workspacecore/foundation/XmlName.h"

namespace Orvane {

namespace {

constexpr int kShallow = 64;
constexpr std::size_t kFirstRoom = 6;
constexpr std::uint64_t kHashStart = 0xCBF29CE484222325;

std::uint64_t HashOn(std::uint64_t nHash, wchar_t c) {
    return (nHash ^ static_cast<std::uint32_t>(c)) * 0x100000001B3;
}

} // namespace

void XmlOpenTags::Push(int nRecord, std::wstring_view name) {
    if (m_tags.size() == m_tags.capacity()) {
        m_tags.reserve(2 * m_tags.size() + kFirstRoom);
    }
    m_tags.push_back({nRecord, name});
    if (m_bCounted) {
        ++m_counts[Hash(name)];
    }
}

void XmlOpenTags::Pop() {
    if (m_bCounted) {
        const auto count = m_counts.find(Hash(m_tags.back().name));
        if (--count->second == 0) {
            m_counts.erase(count);
        }
    }
    m_tags.pop_back();
}

int XmlOpenTags::Find(std::wstring_view endName) {
    for (int nDepth = Depth() - 1; nDepth >= 0; --nDepth) {
        if (MatchXmlName(At(nDepth).name, endName, m_bIgnoreCase)) {
            return nDepth;
        }
        if (Depth() - nDepth == kShallow && !MayHold(endName)) {
            return -1;
        }
    }
    return -1;
}

bool XmlOpenTags::MayHold(std::wstring_view endName) {
    if (!m_bCounted) {
        m_bCounted = true;
        for (const XmlOpenTag& tag : m_tags) {
            ++m_counts[Hash(tag.name)];
        }
    }
    // A tag matches if its name is this one up to any of the characters that may follow.
    std::uint64_t nHash = kHashStart;
    for (const wchar_t c : endName) {
        if ((c == L'=' || c == L'[' || c == L']') && m_counts.contains(nHash)) {
            return true;
        }
        nHash = HashOn(nHash, m_bIgnoreCase ? ToLower(c) : c);
    }
    return m_counts.contains(nHash);
}

std::uint64_t XmlOpenTags::Hash(std::wstring_view name) const {
    std::uint64_t nHash = kHashStart;
    for (const wchar_t c : name) {
        nHash = HashOn(nHash, m_bIgnoreCase ? ToLower(c) : c);
    }
    return nHash;
}

} // namespace Orvane
