// The XML class behind all persisted texts.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "platform/win/String.h"
#include "platform/win/WideBuffer.h"
#include "workspacecore/Api.h"
#include "workspacecore/foundation/XmlIndex.h"
#include "workspacecore/foundation/XmlNodePos.h"

namespace Orvane {

/// Named positions of a document, in hash buckets by name.
struct XmlSavedPosition {
    CString strName;
    int nPos = 0;
};
using XmlSavedPositions = std::array<std::vector<XmlSavedPosition>, 7>;

/// A whole document as one text, with a flat index of its elements and a cursor that walks the
/// index. Attribute values are extracted on demand.
///
/// An ill-formed document can be walked as far as it was indexed. A new object has no index: it
/// returns false or an empty text for everything until SetDoc or Load. To be used by one thread
/// at a time.
class WORKSPACE_API XmlDocument {
public:
    XmlDocument() = default;
    XmlDocument(const XmlDocument& other);
    XmlDocument(XmlDocument&& other) noexcept;
    XmlDocument& operator=(const XmlDocument& other);
    XmlDocument& operator=(XmlDocument&& other) noexcept;
    ~XmlDocument() = default;

    /// Sets the text (null: an empty one) and returns whether it is well formed.
    bool SetDoc(const wchar_t* pszText);
    /// The same for UTF-8, which may contain invalid bytes.
    bool SetDocUtf8(std::string_view text);
    /// Reads a UTF-8 file. GetError returns a report even after success.
    bool Load(const wchar_t* pszPath);
    /// Writes the text unchanged, as UTF-8. GetError returns a report afterwards.
    bool Save(const wchar_t* pszPath);
    CString GetDoc() const;
    CString GetError() const { return m_strErrorText; }

    /// Moves to the next sibling with that name, or to the first child of the parent if there is
    /// no current element. Without a name any element matches.
    bool FindElem(const wchar_t* pszName = nullptr);
    /// Makes the current element the parent, so its children are found next.
    bool IntoElem();
    /// Makes the parent the current element, so its next sibling is found next.
    bool OutOfElem();
    /// The decoded value of an attribute of the current element, or an empty text.
    CString GetAttrib(const wchar_t* pszName) const;
    /// Several attributes in one pass over the tag, raw, i.e. with entities not decoded. The
    /// views stay valid until the next document; nullopt for missing attributes.
    template <std::size_t N>
    std::array<std::optional<std::wstring_view>, N>
    GetRawAttribs(const std::array<std::wstring_view, N>& names) const {
        std::array<std::optional<std::wstring_view>, N> values;
        FindRawAttribs(names, values);
        return values;
    }

    static constexpr int kIgnoreCase = 8; ///< names compare ignoring case
    int GetDocFlags() const { return m_nDocFlags; }
    /// Parsing compares end tags, so a change of the flags affects them from the next parse on.
    void SetDocFlags(int nDocFlags) { m_nDocFlags = nDocFlags; }

    static constexpr int kEscapeQuotes = 1;         ///< also escapes apostrophes and double quotes
    static constexpr int kEscapeKeepReferences = 2; ///< keeps existing "&name;" and "&#1;"
    static CString EscapeEntities(std::wstring_view text, int nFlags = 0);
    static CString UnescapeEntities(std::wstring_view text);
    /// The text as CDATA, split into several sections if it contains the end mark.
    static CString WrapCData(std::wstring_view text);

private:
    std::wstring_view Text() const { return {m_docText.Data(), m_docText.Length()}; }
    bool IgnoresCase() const { return (m_nDocFlags & kIgnoreCase) != 0; }
    void Clear();
    /// Expects the new text in a cleared document, and in the error text the prefix of its
    /// message.
    bool Parse();
    CString BuildIndex();
    std::wstring_view ElementName(int nRecord) const;
    void FindRawAttribs(std::span<const std::wstring_view> names,
                        std::span<std::optional<std::wstring_view>> values) const;
    void Swap(XmlDocument& other) noexcept;
    void SetCursor(int nParent, int nPos, int nChild);

    WideBuffer m_docText;
    CString m_strErrorText;
    int m_nPosParent = 0;
    int m_nPos = 0;
    int m_nPosChild = 0;
    int m_nPosFree = 1;
    int m_nPosDeleted = 0; ///< head of the records free for reuse, linked by `next`
    int m_nNodeType = XML_NODE_NONE;
    int m_nNodeOffset = 0;
    int m_nNodeLength = 0;
    int m_nDocFlags = 0;
    std::unique_ptr<XmlSavedPositions> m_pSavedPositions; ///< absent until first used
    XmlIndex m_index;
};

} // namespace Orvane
