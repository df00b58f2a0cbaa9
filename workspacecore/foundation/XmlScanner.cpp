#include "workspacecore/foundation/XmlScanner.h"

#include <bit>
#include <cwchar>

#include "platform/win/TextFormat.h"
#include "workspacecore/foundation/XmlCharScan.h"
#include "workspacecore/foundation/XmlName.h"

namespace Orvane {

namespace {

constexpr const wchar_t* kIncorrect = L"Incorrect %s at offset %d";
constexpr const wchar_t* kUnterminated = L"%s at offset %d unterminated";

bool StartsName(wchar_t c) {
    switch (c) {
    case L';':
    case L'<':
    case L'=':
    case L'>':
    case L'?':
    case L'@':
    case L'[':
    case L'\\':
    case L']':
    case L'^':
    case L'`':
        return false;
    default:
        return static_cast<std::uint32_t>(c) > L'9';
    }
}

bool EndsName(wchar_t c) {
    return c == L'/' || c == L'>' || IsXmlBlank(c);
}

const wchar_t* NameEnd(const wchar_t* pAt, const wchar_t* pEnd) {
    while (pAt < pEnd && !EndsName(*pAt)) {
        ++pAt;
    }
    return pAt;
}

const wchar_t* FindChar(const wchar_t* pAt, const wchar_t* pEnd, wchar_t c) {
    const wchar_t* pFound = std::wmemchr(pAt, c, static_cast<std::size_t>(pEnd - pAt));
    return pFound ? pFound : pEnd;
}

/// Bit i of the result is the parity of bits 0 to i.
std::uint32_t PrefixParity(std::uint32_t nBits) {
    nBits ^= nBits << 1;
    nBits ^= nBits << 2;
    nBits ^= nBits << 4;
    return nBits ^ nBits << 8;
}

/// Finds ">" outside quotes; each kind of quote is ignored inside the other.
class TagEndSearch {
public:
    /// The position of the ">", or the end of the text.
    const wchar_t* Find(const wchar_t* pAt, const wchar_t* pEnd) {
        for (; pEnd - pAt >= XmlCharBlock::kSize; pAt += XmlCharBlock::kSize) {
            const XmlCharBlock block(pAt);
            const std::uint32_t nEnds = block.Where('>');
            const std::uint32_t nDouble = block.Where('"');
            const std::uint32_t nSingle = block.Where('\'');
            const int nFound = (nSingle != 0 || m_cQuote == L'\'')
                                   ? WalkMarks(pAt, nEnds | nDouble | nSingle)
                                   : PickEnd(nEnds, nDouble);
            if (nFound < XmlCharBlock::kSize) {
                return pAt + nFound;
            }
        }
        while (pAt < pEnd && !Ends(*pAt)) {
            ++pAt;
        }
        return pAt;
    }

private:
    /// With only one kind of quote, the parity of the quotes tells which characters are quoted.
    int PickEnd(std::uint32_t nEnds, std::uint32_t nQuotes) {
        const std::uint32_t nBefore = m_cQuote != 0 ? ~0U : 0U;
        const std::uint32_t nHidden = PrefixParity(nQuotes) ^ nBefore;
        const std::uint32_t nFree = nEnds & ~nHidden;
        if (nFree != 0) {
            return std::countr_zero(nFree);
        }
        m_cQuote = (nHidden >> (XmlCharBlock::kSize - 1) & 1) != 0 ? L'"' : L'\0';
        return XmlCharBlock::kSize;
    }
    int WalkMarks(const wchar_t* pBlock, std::uint32_t nMarks) {
        for (; nMarks != 0; nMarks &= nMarks - 1) {
            const int nMark = std::countr_zero(nMarks);
            if (Ends(pBlock[nMark])) {
                return nMark;
            }
        }
        return XmlCharBlock::kSize;
    }
    bool Ends(wchar_t c) {
        if (m_cQuote != 0) {
            m_cQuote = c == m_cQuote ? L'\0' : m_cQuote;
            return false;
        }
        if (c == L'"' || c == L'\'') {
            m_cQuote = c;
        }
        return c == L'>';
    }

    wchar_t m_cQuote = L'\0';
};

} // namespace

std::wstring XmlToken::ErrorText() const {
    return pszErrorFormat == kIncorrect ? FormatText(kIncorrect, pszErrorSubject, nStart)
                                        : FormatText(kUnterminated, pszErrorSubject, nStart);
}

XmlToken XmlScanner::Next() {
    XmlToken token;
    token.nStart = static_cast<int>(m_pAt - m_pText);
    if (m_pAt == m_pEnd) {
        return token;
    }
    if (*m_pAt == L'<') {
        ScanMarkup(token);
    } else {
        ScanText(token);
    }
    return token;
}

void XmlScanner::ScanText(XmlToken& token) {
    const wchar_t* pAt = m_pAt;
    while (pAt < m_pEnd && IsXmlBlank(*pAt)) {
        ++pAt;
    }
    if (pAt == m_pEnd || *pAt == L'<') {
        Finish(token, XML_NODE_WHITESPACE, pAt);
    } else {
        Finish(token, XML_NODE_TEXT, FindChar(pAt, m_pEnd, L'<'));
    }
}

void XmlScanner::ScanMarkup(XmlToken& token) {
    const wchar_t* pAt = m_pAt + 1;
    if (pAt == m_pEnd) {
        Unterminated(token, L"tag");
    } else if (StartsName(*pAt)) {
        ScanElement(token);
    } else if (*pAt == L'/') {
        ScanEndTag(token);
    } else if (*pAt == L'?') {
        ScanTo(token, XML_NODE_INSTRUCTION, L"?>", L"Processing instruction");
    } else if (*pAt == L'!') {
        ScanDeclaration(token);
    } else {
        Incorrect(token, L"tag name character", pAt);
    }
}

void XmlScanner::ScanElement(XmlToken& token) {
    const wchar_t* pName = m_pAt + 1;
    const wchar_t* pNameEnd = NameEnd(pName, m_pEnd);
    const wchar_t* pClose = TagEndSearch().Find(pNameEnd, m_pEnd);
    if (pClose == m_pEnd) {
        Unterminated(token, L"Element tag");
        return;
    }
    token.name = {pName, static_cast<std::size_t>(pNameEnd - pName)};
    // A slash after anything else is part of an unquoted value.
    const wchar_t* pSlash = pClose - 1;
    if (pSlash >= pNameEnd && *pSlash == L'/') {
        const wchar_t cBefore = pSlash[-1];
        token.bEmptyElement =
            pSlash == pNameEnd || cBefore == L'"' || cBefore == L'\'' || IsXmlBlank(cBefore);
    }
    Finish(token, XML_NODE_ELEMENT, pClose + 1);
}

void XmlScanner::ScanEndTag(XmlToken& token) {
    const wchar_t* pName = m_pAt + 2;
    const wchar_t* pNameEnd = NameEnd(pName, m_pEnd);
    const wchar_t* pClose = FindChar(pNameEnd, m_pEnd, L'>');
    if (pClose == m_pEnd) {
        Unterminated(token, L"Element end tag");
        return;
    }
    token.name = {pName, static_cast<std::size_t>(pNameEnd - pName)};
    Finish(token, XML_TOKEN_END_TAG, pClose + 1);
}

void XmlScanner::ScanDeclaration(XmlToken& token) {
    const wchar_t* pAt = m_pAt + 2;
    const wchar_t cKind = pAt < m_pEnd ? *pAt : L'\0';
    const bool bTwoLetters = cKind == L'-' || cKind == L'[';
    if (pAt == m_pEnd || (bTwoLetters && pAt + 1 == m_pEnd)) {
        Unterminated(token, L"tag");
    } else if (cKind == L'-') {
        if (pAt[1] == L'-') {
            ScanTo(token, XML_NODE_COMMENT, L"-->", L"Comment");
        } else {
            Incorrect(token, L"comment tag", pAt + 1);
        }
    } else if (cKind == L'[') {
        if (pAt[1] == L'C') {
            ScanTo(token, XML_NODE_CDATA, L"]]>", L"CDATA Section");
        } else {
            Incorrect(token, L"tag", pAt + 1);
        }
    } else if (cKind == L'D') {
        ScanDocType(token, true);
    } else if (cKind == L'E' || cKind == L'A' || cKind == L'N') {
        ScanDocType(token, false);
    } else {
        Incorrect(token, L"! tag", pAt);
    }
}

void XmlScanner::ScanTo(XmlToken& token, int nType, std::wstring_view mark,
                        const wchar_t* pszSubject) {
    // The end mark may overlap the opening: "<!-->" is a complete comment.
    for (const wchar_t* pAt = m_pAt + 2; (pAt = FindChar(pAt, m_pEnd, L'>')) != m_pEnd;) {
        ++pAt;
        if (std::wstring_view(m_pAt, static_cast<std::size_t>(pAt - m_pAt)).ends_with(mark)) {
            Finish(token, nType, pAt);
            return;
        }
    }
    Unterminated(token, pszSubject);
}

void XmlScanner::ScanDocType(XmlToken& token, bool bNested) {
    int nLevel = 1;
    wchar_t cQuote = L'\0';
    for (const wchar_t* pAt = m_pAt + 2; pAt < m_pEnd; ++pAt) {
        if (cQuote != 0) {
            cQuote = *pAt == cQuote ? L'\0' : cQuote;
        } else if (bNested && (*pAt == L'"' || *pAt == L'\'')) {
            // A declaration ends at its first ">", even inside quotes.
            cQuote = *pAt;
        } else if (bNested && *pAt == L'<') {
            ++nLevel;
        } else if (*pAt == L'>' && --nLevel == 0) {
            Finish(token, XML_NODE_DOCTYPE, pAt + 1);
            return;
        }
    }
    Unterminated(token, L"Doctype");
}

void XmlScanner::Finish(XmlToken& token, int nType, const wchar_t* pBehind) {
    token.nType = nType;
    token.nLength = static_cast<int>(pBehind - m_pAt);
    m_pAt = pBehind;
}

void XmlScanner::Incorrect(XmlToken& token, const wchar_t* pszSubject, const wchar_t* pAt) {
    token.pszErrorFormat = kIncorrect;
    token.pszErrorSubject = pszSubject;
    while (pAt < m_pEnd && *pAt != L'<' && *pAt != L'>') {
        ++pAt;
    }
    const bool bOwnEnd = pAt < m_pEnd && *pAt == L'>';
    Finish(token, XML_TOKEN_ERROR, bOwnEnd ? pAt + 1 : pAt);
}

void XmlScanner::Unterminated(XmlToken& token, const wchar_t* pszSubject) {
    token.pszErrorFormat = kUnterminated;
    token.pszErrorSubject = pszSubject;
    Finish(token, XML_TOKEN_ERROR, m_pEnd);
}

} // namespace Orvane
