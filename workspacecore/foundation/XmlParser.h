// Builds the element index of a text.
#pragma once

#include <string_view>

#include "platform/win/String.h"
#include "workspacecore/Api.h"
#include "workspacecore/foundation/XmlIndex.h"
#include "workspacecore/foundation/XmlOpenTags.h"
#include "workspacecore/foundation/XmlScanner.h"

namespace Orvane {

/// Reads the elements of one text into an index whose record 0 is zeroed. Not recursive, and in
/// linear time for any input.
class WORKSPACE_API XmlParser {
public:
    /// `nPosFree` is the next free record, and is advanced.
    XmlParser(std::wstring_view text, XmlIndex& index, int& nPosFree, bool bIgnoreCase)
        : m_index(index), m_nPosFree(nPosFree), m_scanner(text), m_openTags(bIgnoreCase) {}

    /// Returns the first error, or an empty text if there is none.
    CString Run();

private:
    void OnElement(const XmlToken& token);
    void OnEndTag(const XmlToken& token);
    void OnError(const XmlToken& token);
    int TakeRecord();
    void LinkAsLastChild(int nRecord, int nParent);
    /// Marks all tags above that depth as unclosed. `pEndTag` is null at the end of the text.
    void CloseUnended(int nDepth, const XmlToken* pEndTag);
    void ReportUnended(const XmlOpenTag& tag, const XmlToken* pEndTag);
    void MoveChildrenUp(int nDepth);

    XmlIndex& m_index;
    int& m_nPosFree;
    XmlScanner m_scanner;
    XmlOpenTags m_openTags;
    CString m_strError;
};

} // namespace Orvane
