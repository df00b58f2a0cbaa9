#include "workspacecore/foundation/XmlParser.h"

#include <algorithm>

namespace Orvane {

CString XmlParser::Run() {
    for (;;) {
        const XmlToken token = m_scanner.Next();
        switch (token.nType) {
        case XML_NODE_ELEMENT:
            OnElement(token);
            break;
        case XML_TOKEN_END_TAG:
            OnEndTag(token);
            break;
        case XML_TOKEN_ERROR:
            OnError(token);
            break;
        case XML_TOKEN_END_OF_TEXT:
            CloseUnended(0, nullptr);
            return m_strError;
        default:
            break; // stays in the text without a record
        }
    }
}

int XmlParser::TakeRecord() {
    if (m_nPosFree == m_index.Capacity()) {
        m_index.Grow(m_nPosFree);
    }
    return m_nPosFree++;
}

void XmlParser::LinkAsLastChild(int nRecord, int nParent) {
    XmlNodePos& node = m_index[nRecord];
    XmlNodePos& parent = m_index[nParent];
    node.parent = nParent;
    node.next = 0;
    if (parent.child == 0) {
        parent.child = nRecord;
        node.prev = nRecord;
        node.flags |= XML_FLAG_FIRST;
        return;
    }
    XmlNodePos& first = m_index[parent.child];
    node.prev = first.prev;
    m_index[first.prev].next = nRecord;
    first.prev = nRecord;
}

void XmlParser::OnElement(const XmlToken& token) {
    const int nRecord = TakeRecord();
    XmlNodePos& node = m_index[nRecord];
    node.start = token.nStart;
    node.length = token.nLength;
    node.SetTagLengths(token.nLength, 0);
    node.child = 0;
    const auto nDepth = static_cast<std::uint32_t>(m_openTags.Depth());
    node.flags = std::min<std::uint32_t>(nDepth, XML_FLAG_LEVEL_MASK);
    LinkAsLastChild(nRecord, m_openTags.Parent());
    if (token.bEmptyElement) {
        node.flags |= XML_FLAG_EMPTY;
    } else {
        m_openTags.Push(nRecord, token.name);
    }
}

void XmlParser::OnEndTag(const XmlToken& token) {
    const int nDepth = m_openTags.Find(token.name);
    if (nDepth < 0) {
        m_index[0].flags |= XML_FLAG_ILL_FORMED;
        m_index[m_openTags.Parent()].flags |= XML_FLAG_CONTENT_ERROR;
        if (m_strError.IsEmpty()) {
            m_strError.Format(L"No start tag for end tag '%s' at offset %d", token.name,
                              token.nStart);
        }
        return;
    }
    CloseUnended(nDepth + 1, &token);
    XmlNodePos& node = m_index[m_openTags.Parent()];
    node.length = token.End() - node.start;
    node.SetEndTagLength(token.nLength);
    m_openTags.Pop();
}

void XmlParser::OnError(const XmlToken& token) {
    m_index[0].flags |= XML_FLAG_ILL_FORMED;
    m_index[m_openTags.Parent()].flags |= XML_FLAG_CONTENT_ERROR;
    if (m_strError.IsEmpty()) {
        m_strError = token.ErrorText();
    }
}

void XmlParser::CloseUnended(int nDepth, const XmlToken* pEndTag) {
    if (m_openTags.Depth() == nDepth) {
        return;
    }
    ReportUnended(m_openTags.At(m_openTags.Depth() - 1), pEndTag);
    MoveChildrenUp(nDepth);
    bool bContentError = false;
    while (m_openTags.Depth() > nDepth) {
        XmlNodePos& node = m_index[m_openTags.Parent()];
        bContentError |= (node.flags & XML_FLAG_CONTENT_ERROR) != 0;
        node.length = node.StartTagLength();
        node.flags |= XML_FLAG_NO_END_TAG | (bContentError ? XML_FLAG_CONTENT_ERROR : 0U);
        m_openTags.Pop();
    }
    m_index[0].flags |= XML_FLAG_ILL_FORMED;
    if (bContentError) {
        m_index[m_openTags.Parent()].flags |= XML_FLAG_CONTENT_ERROR;
    }
}

void XmlParser::ReportUnended(const XmlOpenTag& tag, const XmlToken* pEndTag) {
    if (!m_strError.IsEmpty()) {
        return;
    }
    const int nStart = m_index[tag.nRecord].start;
    if (pEndTag) {
        m_strError.Format(L"End tag '%s' at offset %d does not match start tag '%s' at offset %d",
                          pEndTag->name, pEndTag->nStart + 1, tag.name, nStart);
    } else {
        m_strError.Format(L"Element '%s' at offset %d not ended", tag.name, nStart);
    }
}

// Each open tag is the last child of the one around it. So all their children, taken from
// the outermost tag inwards, line up in the order of the text, and each is moved only once.
void XmlParser::MoveChildrenUp(int nDepth) {
    const int nParent = nDepth > 0 ? m_openTags.At(nDepth - 1).nRecord : 0;
    int nLast = 0;
    for (int i = nDepth; i < m_openTags.Depth(); ++i) {
        nLast = m_openTags.At(i).nRecord;
        XmlNodePos& node = m_index[nLast];
        const int nChild = node.child;
        if (nChild == 0) {
            continue; // only the innermost tag can be without children
        }
        node.child = 0;
        node.next = nChild;
        m_index[nChild].prev = nLast;
        m_index[nChild].flags &= ~XML_FLAG_FIRST;
        for (int nMoved = nChild; nMoved != 0; nMoved = m_index[nMoved].next) {
            m_index[nMoved].parent = nParent;
            nLast = nMoved;
        }
    }
    m_index[m_index[nParent].child].prev = nLast;
}

} // namespace Orvane
