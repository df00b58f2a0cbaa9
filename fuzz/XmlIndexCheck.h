// Invariants of the index of any text, well-formed or not.
#pragma once

#include <string>
#include <string_view>

#include "workspacecore/foundation/XmlIndex.h"

namespace Orvane {

/// Follows every link of an index once and returns the first fault; empty if there is none.
class XmlIndexCheck {
public:
    XmlIndexCheck(std::wstring_view text, const XmlIndex& index, int nPosFree)
        : m_text(text), m_index(index), m_nPosFree(nPosFree) {}

    std::string Run() {
        // Elements are numbered by their start tags, so a traversal from the root visits them in
        // order.
        int nExpected = 1;
        int nRecord = m_index[0].child;
        CheckRing(0);
        while (nRecord != 0 && m_strFault.empty()) {
            Expect(nRecord == nExpected++, nRecord, "visited out of order");
            if (!m_strFault.empty()) {
                break;
            }
            CheckRecord(nRecord);
            CheckRing(nRecord);
            nRecord = After(nRecord);
        }
        Expect(nExpected == m_nPosFree, nExpected, "is the first that was not visited");
        return m_strFault;
    }

private:
    void Expect(bool bHolds, int nRecord, const char* pszFault) {
        if (!bHolds && m_strFault.empty()) {
            m_strFault = "record " + std::to_string(nRecord) + " " + pszFault;
        }
    }
    bool InRange(int nRecord) const { return nRecord >= 0 && nRecord < m_nPosFree; }
    int After(int nRecord) const {
        if (m_index[nRecord].child != 0) {
            return m_index[nRecord].child;
        }
        while (nRecord != 0 && m_index[nRecord].next == 0) {
            nRecord = m_index[nRecord].parent;
        }
        return nRecord != 0 ? m_index[nRecord].next : 0;
    }

    /// The children of a record: a list forwards, a ring backwards.
    void CheckRing(int nParent) {
        const int nFirst = m_index[nParent].child;
        int nBefore = 0;
        for (int nChild = nFirst; nChild != 0 && m_strFault.empty();) {
            Expect(InRange(nChild) && nChild > nBefore, nParent, "has a bad child");
            if (!m_strFault.empty()) {
                return;
            }
            const XmlNodePos& child = m_index[nChild];
            Expect(child.parent == nParent, nChild, "has another parent");
            Expect(((child.flags & XML_FLAG_FIRST) != 0) == (nChild == nFirst), nChild,
                   "has a wrong flag of the first sibling");
            Expect(nChild == nFirst || child.prev == nBefore, nChild, "has a wrong neighbour");
            nBefore = nChild;
            nChild = child.next;
        }
        if (nFirst != 0) {
            Expect(m_index[nFirst].prev == nBefore, nFirst, "does not lead to the last sibling");
        }
    }

    void CheckRecord(int nRecord) {
        const XmlNodePos& node = m_index[nRecord];
        const long long nEnd = static_cast<long long>(node.start) + node.length;
        Expect(node.start >= 0 && node.length >= 0 && nEnd <= static_cast<long long>(m_text.size()),
               nRecord, "is outside the text");
        if (!m_strFault.empty()) {
            return;
        }
        Expect(m_text[node.start] == L'<', nRecord, "does not start with a tag");
        const bool bNoEndTag = (node.flags & XML_FLAG_NO_END_TAG) != 0;
        const bool bEmpty = (node.flags & XML_FLAG_EMPTY) != 0;
        Expect(!(bNoEndTag || bEmpty) || node.child == 0, nRecord, "has impossible children");
        if (bNoEndTag) {
            Expect((m_index[0].flags & XML_FLAG_ILL_FORMED) != 0, nRecord,
                   "was accepted without an end tag");
            return; // its length is that of the readable part of the start tag
        }
        Expect(node.length >= 3 && m_text[nEnd - 1] == L'>', nRecord, "does not end with a tag");
        if (node.child != 0) {
            const XmlNodePos& last = m_index[m_index[node.child].prev];
            Expect(m_index[node.child].start > node.start && last.start + last.length < nEnd,
                   nRecord, "does not enclose its children");
            Expect(m_index[node.child].Level() > node.Level() ||
                       node.Level() == XML_FLAG_LEVEL_MASK,
                   nRecord, "is not one level above its children");
        }
    }

    std::wstring_view m_text;
    const XmlIndex& m_index;
    int m_nPosFree;
    std::string m_strFault;
};

} // namespace Orvane
