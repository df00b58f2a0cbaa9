// Stack of open tags during a parse, innermost last.
#pragma once

#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace Orvane {

struct XmlOpenTag {
    int nRecord;
    std::wstring_view name; ///< points into the text
};

/// A stack with search by name. In a well-formed text only the innermost tag is ever found. After
/// the first deep search names are counted, so a hostile text with many unmatched end tags inside
/// many open tags does not cause quadratic time.
class XmlOpenTags {
public:
    explicit XmlOpenTags(bool bIgnoreCase) : m_bIgnoreCase(bIgnoreCase) {}

    int Depth() const { return static_cast<int>(m_tags.size()); }
    const XmlOpenTag& At(int nDepth) const { return m_tags[static_cast<std::size_t>(nDepth)]; }
    /// The record of the innermost tag; 0, the virtual root, if none is open.
    int Parent() const { return m_tags.empty() ? 0 : m_tags.back().nRecord; }
    void Push(int nRecord, std::wstring_view name);
    void Pop();
    /// The innermost tag closed by an end tag with this name; -1 if there is none.
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
