#include "workspacecore/foundation/XmlDocument.h"

#include <algorithm>
#include <cerrno>
#include <cwchar>
#include <limits>
#include <optional>
#include <utility>

#include "platform/win/CodePage.h"
#include "platform/win/ErrorText.h"
#include "platform/win/File.h"
#include "workspacecore/foundation/XmlAttribute.h"
#include "workspacecore/foundation/XmlName.h"
#include "workspacecore/foundation/XmlParser.h"

namespace Orvane {

namespace {

/// Offsets into the text are ints.
constexpr long long kMostCharacters = std::numeric_limits<int>::max();
constexpr std::size_t kCharactersPerRecord = 64;
constexpr std::size_t kSpareRecords = 8;

CString TooLarge(long long nSize, const wchar_t* pszUnit) {
    CString strText;
    strText.Format(L"Document of %lld %s exceeds the limit of %lld", nSize, pszUnit,
                   kMostCharacters);
    return strText;
}

/// Reads a file in chunks, so that each chunk is converted while it is in the processor's cache,
/// and no second copy of the document is needed.
class TextFile {
public:
    bool Open(const wchar_t* pszPath) {
        m_file = OpenRegularFile(pszPath);
        if (!m_file) {
            return false;
        }
        std::setvbuf(m_file.get(), nullptr, _IONBF, 0);
        if (std::fseek(m_file.get(), 0, SEEK_END) != 0 ||
            (m_nSize = std::ftell(m_file.get())) < 0 ||
            std::fseek(m_file.get(), 0, SEEK_SET) != 0) {
            SetLastErrorNumber(errno);
            return false;
        }
        m_pPiece = std::make_unique_for_overwrite<char[]>(kPiece);
        return m_nSize == 0 || ReadPiece(std::min<long long>(m_nSize, kPiece));
    }
    long long Size() const { return m_nSize; }
    /// Bytes read so far.
    long long Taken() const { return m_nTaken; }

    /// The whole text; nullopt after a read error. Ends early if the file was truncated since.
    std::optional<WideBuffer> ReadText() {
        WideBuffer text(static_cast<std::size_t>(m_nSize));
        std::size_t nLength = 0;
        while (m_nFilled > 0) {
            const bool bLast = m_nTaken == m_nSize || std::feof(m_file.get()) != 0;
            const std::string_view piece(m_pPiece.get(), m_nFilled);
            const std::size_t nFinished = bLast ? m_nFilled : FinishedUtf8Length(piece);
            nLength += Utf8ToWide(piece.substr(0, nFinished), text.Data() + nLength);
            m_nFilled -= nFinished;
            if (bLast) {
                break;
            }
            std::copy_n(m_pPiece.get() + nFinished, m_nFilled, m_pPiece.get());
            if (!ReadPiece(std::min<long long>(m_nSize - m_nTaken,
                                               kPiece - static_cast<long long>(m_nFilled)))) {
                return std::nullopt;
            }
        }
        text.Shorten(nLength);
        return text;
    }

private:
    static constexpr std::size_t kPiece = std::size_t{128} << 10;

    bool ReadPiece(long long nBytes) {
        const std::size_t nRead = std::fread(m_pPiece.get() + m_nFilled, 1,
                                             static_cast<std::size_t>(nBytes), m_file.get());
        if (std::ferror(m_file.get()) != 0) {
            SetLastErrorNumber(errno);
            return false;
        }
        m_nFilled += nRead;
        m_nTaken += static_cast<long long>(nRead);
        return true;
    }

    FileHandle m_file;
    std::unique_ptr<char[]> m_pPiece;
    std::size_t m_nFilled = 0;
    long long m_nSize = 0;
    long long m_nTaken = 0;
};

/// Writes and closes; a full disk may only be reported on closing.
bool WriteAll(FileHandle file, std::string_view bytes) {
    errno = 0;
    const bool bWritten = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
    const int nWriteError = errno;
    const bool bClosed = std::fclose(file.release()) == 0;
    if (!bWritten || !bClosed) {
        SetLastErrorNumber(bWritten ? errno : nWriteError);
    }
    return bWritten && bClosed;
}

} // namespace

XmlDocument::XmlDocument(const XmlDocument& other)
    : m_docText(other.m_docText.Length()), m_strErrorText(other.m_strErrorText),
      m_nPosParent(other.m_nPosParent), m_nPos(other.m_nPos), m_nPosChild(other.m_nPosChild),
      m_nPosFree(other.m_nPosFree), m_nPosDeleted(other.m_nPosDeleted),
      m_nNodeType(other.m_nNodeType), m_nNodeOffset(other.m_nNodeOffset),
      m_nNodeLength(other.m_nNodeLength), m_nDocFlags(other.m_nDocFlags) {
    std::copy_n(other.m_docText.Data(), other.m_docText.Length(), m_docText.Data());
    if (other.m_pSavedPositions) {
        m_pSavedPositions = std::make_unique<XmlSavedPositions>(*other.m_pSavedPositions);
    }
    m_index.CopyFrom(other.m_index, m_nPosFree);
}

XmlDocument::XmlDocument(XmlDocument&& other) noexcept {
    Swap(other);
}

XmlDocument& XmlDocument::operator=(const XmlDocument& other) {
    XmlDocument copy(other);
    Swap(copy);
    return *this;
}

XmlDocument& XmlDocument::operator=(XmlDocument&& other) noexcept {
    XmlDocument taken(std::move(other));
    Swap(taken);
    return *this;
}

void XmlDocument::Swap(XmlDocument& other) noexcept {
    m_docText.Swap(other.m_docText);
    std::swap(m_strErrorText, other.m_strErrorText);
    std::swap(m_nPosParent, other.m_nPosParent);
    std::swap(m_nPos, other.m_nPos);
    std::swap(m_nPosChild, other.m_nPosChild);
    std::swap(m_nPosFree, other.m_nPosFree);
    std::swap(m_nPosDeleted, other.m_nPosDeleted);
    std::swap(m_nNodeType, other.m_nNodeType);
    std::swap(m_nNodeOffset, other.m_nNodeOffset);
    std::swap(m_nNodeLength, other.m_nNodeLength);
    std::swap(m_nDocFlags, other.m_nDocFlags);
    std::swap(m_pSavedPositions, other.m_pSavedPositions);
    m_index.Swap(other.m_index);
}

// Frees the old text before the new one is built, to avoid holding both. The intermediate state
// is a valid empty document, in case memory runs out.
void XmlDocument::Clear() {
    m_docText = WideBuffer();
    m_strErrorText.Empty();
    SetCursor(0, 0, 0);
    m_pSavedPositions.reset();
    m_nPosFree = 1;
    m_nPosDeleted = 0;
    if (m_index.Capacity() > 0) {
        m_index[0] = {};
    }
}

bool XmlDocument::SetDoc(const wchar_t* pszText) {
    const std::wstring_view text(pszText ? pszText : L"");
    Clear();
    if (static_cast<long long>(text.size()) > kMostCharacters) {
        m_strErrorText = TooLarge(static_cast<long long>(text.size()), L"characters");
    } else {
        m_docText = WideBuffer(text.size());
        std::copy_n(text.data(), text.size(), m_docText.Data());
    }
    return Parse();
}

bool XmlDocument::SetDocUtf8(std::string_view text) {
    Clear();
    if (static_cast<long long>(text.size()) > kMostCharacters) {
        m_strErrorText = TooLarge(static_cast<long long>(text.size()), L"bytes");
    } else {
        m_docText = WideBuffer(text.size());
        m_docText.Shorten(Utf8ToWide(text, m_docText.Data()));
    }
    return Parse();
}

bool XmlDocument::Load(const wchar_t* pszPath) {
    TextFile file;
    if (!file.Open(pszPath)) {
        m_strErrorText = LastErrorText();
        return false;
    }
    Clear();
    if (file.Size() > kMostCharacters) {
        m_strErrorText = TooLarge(file.Size(), L"bytes");
        return Parse();
    }
    std::optional<WideBuffer> text = file.ReadText();
    if (text) {
        m_docText = std::move(*text);
        m_strErrorText.Format(L"%s%d bytes to %d wide chars", L"", file.Taken(),
                              m_docText.Length());
    } else {
        m_strErrorText = LastErrorText();
    }
    return Parse();
}

bool XmlDocument::Save(const wchar_t* pszPath) {
    FileHandle file = OpenFile(pszPath, "wb");
    if (!file) {
        m_strErrorText = LastErrorText();
        return false;
    }
    const std::string bytes = WideToUtf8(Text());
    m_strErrorText.Format(L"%d wide chars to %s%d bytes", m_docText.Length(), L"", bytes.size());
    const bool bWritten = WriteAll(std::move(file), bytes);
    if (!bWritten) {
        m_strErrorText = LastErrorText();
    }
    return bWritten;
}

CString XmlDocument::GetDoc() const {
    return CString(Text());
}

bool XmlDocument::Parse() {
    const CString strPrevious = std::exchange(m_strErrorText, CString());
    m_strErrorText = BuildIndex();
    if (!strPrevious.IsEmpty()) {
        m_strErrorText =
            m_strErrorText.IsEmpty() ? strPrevious : strPrevious + L", " + m_strErrorText;
    }
    const XmlNodePos& root = m_index[0];
    return (root.flags & XML_FLAG_ILL_FORMED) == 0 && root.child != 0 &&
           m_index[root.child].next == 0;
}

CString XmlDocument::BuildIndex() {
    m_index.Reserve(static_cast<int>(m_docText.Length() / kCharactersPerRecord + kSpareRecords));
    m_index[0] = {};
    if (m_docText.Length() == 0) {
        return L"Empty document";
    }
    CString strError = XmlParser(Text(), m_index, m_nPosFree, IgnoresCase()).Run();
    m_index[0].length = static_cast<int>(m_docText.Length());
    const int nRootElement = m_index[0].child;
    if (nRootElement == 0) {
        return L"No root element";
    }
    return m_index[nRootElement].next != 0 ? CString(L"Root element has sibling") : strError;
}

void XmlDocument::SetCursor(int nParent, int nPos, int nChild) {
    m_nPosParent = nParent;
    m_nPos = nPos;
    m_nPosChild = nChild;
    m_nNodeType = nPos != 0 ? XML_NODE_ELEMENT : XML_NODE_NONE;
    m_nNodeOffset = 0;
    m_nNodeLength = 0;
}

bool XmlDocument::FindElem(const wchar_t* pszName) {
    if (m_index.Capacity() == 0) {
        return false;
    }
    const std::wstring_view name(pszName ? pszName : L"");
    int nFound = m_nPos != 0 ? m_index[m_nPos].next : m_index[m_nPosParent].child;
    while (nFound != 0 && !name.empty() &&
           !MatchXmlName(ElementName(nFound), name, IgnoresCase())) {
        nFound = m_index[nFound].next;
    }
    if (nFound == 0) {
        return false;
    }
    SetCursor(m_index[nFound].parent, nFound, 0);
    return true;
}

std::wstring_view XmlDocument::ElementName(int nRecord) const {
    const wchar_t* pName = m_docText.Data() + m_index[nRecord].start + 1;
    const wchar_t* pEnd = pName;
    while (!EndsElementName(*pEnd)) {
        ++pEnd; // a start tag always ends in ">"
    }
    return {pName, static_cast<std::size_t>(pEnd - pName)};
}

bool XmlDocument::IntoElem() {
    if (m_nPos == 0 || m_nNodeType != XML_NODE_ELEMENT) {
        return false;
    }
    SetCursor(m_nPos, m_nPosChild, 0);
    return true;
}

bool XmlDocument::OutOfElem() {
    if (m_nPosParent == 0) {
        return false;
    }
    SetCursor(m_index[m_nPosParent].parent, m_nPosParent, m_nPos);
    return true;
}

CString XmlDocument::GetAttrib(const wchar_t* pszName) const {
    if (!pszName) {
        return CString();
    }
    const auto [value] = GetRawAttribs<1>({pszName});
    return value ? UnescapeEntities(*value) : CString();
}

void XmlDocument::FindRawAttribs(std::span<const std::wstring_view> names,
                                 std::span<std::optional<std::wstring_view>> values) const {
    if (m_nPos != 0 && m_nNodeType == XML_NODE_ELEMENT) {
        const auto nTag = static_cast<std::size_t>(m_index[m_nPos].start) + 1;
        FindXmlAttributes(Text().substr(nTag), names, IgnoresCase(), values);
    }
}

} // namespace Orvane
