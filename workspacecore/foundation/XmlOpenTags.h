// The tags that are open while a text is parsed, innermost last.
#pragma once

#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace Orvane {

struct XmlOpenTag {
    int nRecord;
    std::wstring_view name; ///< lies in the text
};

/// A stack that can be searched by name. A well-formed text only ever finds its innermost
/// tag. So that a hostile one, with many end tags that end nothing below many open tags,
/// does not search them all again and again, the names are counted from the first deep
/// search on.
class XmlOpenTags {
public:
    explicit XmlOpenTags(bool bIgnoreCase) : m_bIgnoreCase(bIgnoreCase) {}

    int Depth() const { return static_cast<int>(m_tags.size()); }
    const XmlOpenTag& At(int nDepth) const { return m_tags[static_cast<std::size_t>(nDepth)]; }
    /// The record of the innermost tag; 0, the virtual root, if none is open.
    int Parent() const { return m_tags.empty() ? 0 : m_tags.back().nRecord; }
    void Push(int nRecord, std::wstring_view name);
    void Pop();
    /// The innermost tag that an end tag of this name ends; -1 if there is none.
    int Find(std::wstring_view endName);

private:
    bool MayHold(std::wstring_view endName);
    std::uint64_t Hash(std::wstring_view name) const;

    std::vector<XmlOpenTag> m_tags;
    std::unordered_map<std::uint64_t, int> m_counts; ///< by hash of the name
    bool m_bCounted = false;
    bool m_bIgnoreCase;
};

} // namespace Orvane
