// Splits a text into markup tokens.
#pragma once

#include <string>
#include <string_view>

#include "workspacecore/foundation/XmlNodePos.h"

namespace Orvane {

/// One token. Offsets and lengths are in wide characters of the whole text.
struct XmlToken {
    int nType = XML_TOKEN_END_OF_TEXT;
    int nStart = 0;
    int nLength = 0;
    bool bEmptyElement = false;
    std::wstring_view name; ///< name of an element or end tag; points into the text
    /// For a token in error: a format string for the two other members. The message is built on
    /// demand, since a broken text may contain millions of errors.
    const wchar_t* pszErrorFormat = nullptr;
    const wchar_t* pszErrorSubject = nullptr;

    int End() const { return nStart + nLength; }
    std::wstring ErrorText() const;
};

/// Every character belongs to exactly one token, and every call advances by at least one
/// character.
class XmlScanner {
public:
    explicit XmlScanner(std::wstring_view text)
        : m_pText(text.data()), m_pAt(text.data()), m_pEnd(text.data() + text.size()) {}

    XmlToken Next();

private:
    void ScanText(XmlToken& token);
    void ScanMarkup(XmlToken& token);
    void ScanElement(XmlToken& token);
    void ScanEndTag(XmlToken& token);
    void ScanDeclaration(XmlToken& token);
    /// Ends the token at a mark that ends in ">".
    void ScanTo(XmlToken& token, int nType, std::wstring_view mark, const wchar_t* pszSubject);
    void ScanDocType(XmlToken& token, bool bNested);

    void Finish(XmlToken& token, int nType, const wchar_t* pBehind);
    void Incorrect(XmlToken& token, const wchar_t* pszSubject, const wchar_t* pAt);
    void Unterminated(XmlToken& token, const wchar_t* pszSubject);

    const wchar_t* m_pText;
    const wchar_t* m_pAt;
    const wchar_t* m_pEnd;
};

} // namespace Orvane
