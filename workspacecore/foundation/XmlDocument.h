// The markup class on which every persisted text rests.
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

/// Places of a document that were given a name, in buckets by the name's characters.
struct XmlSavedPosition {
    CString strName;
    int nPos = 0;
};
using XmlSavedPositions = std::array<std::vector<XmlSavedPosition>, 7>;

/// A whole document as one text, a flat index of its elements beside it, and a cursor
/// that walks the index. Attribute values are cut out of the text when they are asked for.
///
/// An ill-formed document can be walked as far as its index goes. A fresh object has no
/// index: it answers false or an empty text to everything until SetDoc or Load. Used by
/// one thread at a time.
class WORKSPACE_API XmlDocument {
public:
    XmlDocument() = default;
    XmlDocument(const XmlDocument& other);
    XmlDocument(XmlDocument&& other) noexcept;
    XmlDocument& operator=(const XmlDocument& other);
    XmlDocument& operator=(XmlDocument&& other) noexcept;
    ~XmlDocument() = default;

    /// Takes a text (null: an empty one) and tells whether it is well formed.
    bool SetDoc(const wchar_t* pszText);
    /// The same for a text in UTF-8, which may hold anything.
    bool SetDocUtf8(std::string_view text);
    /// Reads a UTF-8 file. GetError holds a report after a good load, too.
    bool Load(const wchar_t* pszPath);
    /// Writes the text as UTF-8, as it stands. GetError holds a report afterwards.
    bool Save(const wchar_t* pszPath);
    CString GetDoc() const;
    CString GetError() const { return m_strErrorText; }

    /// Moves to the next sibling of that name, or to the first child of the parent if
    /// there is no current element. No name takes the next one whatever it is called.
    bool FindElem(const wchar_t* pszName = nullptr);
    /// Makes the current element the parent; its children are found next.
    bool IntoElem();
    /// Makes the parent the current element; its next sibling is found next.
    bool OutOfElem();
    /// The value of an attribute of the current element with its entities decoded, or
    /// an empty text.
    CString GetAttrib(const wchar_t* pszName) const;
    /// Several attributes in one walk over the tag, as they stand in the text, entities and
    /// all: parts of it that hold until the next document. No value where there is none.
    template <std::size_t N>
    std::array<std::optional<std::wstring_view>, N>
    GetRawAttribs(const std::array<std::wstring_view, N>& names) const {
        std::array<std::optional<std::wstring_view>, N> values;
        FindRawAttribs(names, values);
        return values;
    }

    static constexpr int kIgnoreCase = 8; ///< names compare ignoring case
    int GetDocFlags() const { return m_nDocFlags; }
    /// End tags are compared during a parse, so the flags count from the next one on there.
    void SetDocFlags(int nDocFlags) { m_nDocFlags = nDocFlags; }

    static constexpr int kEscapeQuotes = 1;         ///< apostrophes and double quotes as well
    static constexpr int kEscapeKeepReferences = 2; ///< leaves "&name;" and "&#1;" as they stand
    static CString EscapeEntities(std::wstring_view text, int nFlags = 0);
    static CString UnescapeEntities(std::wstring_view text);
    /// The text as CDATA, in several sections where it holds the end mark of a section.
    static CString WrapCData(std::wstring_view text);

private:
    std::wstring_view Text() const { return {m_docText.Data(), m_docText.Length()}; }
    bool IgnoresCase() const { return (m_nDocFlags & kIgnoreCase) != 0; }
    void Clear();
    /// Expects the new text in a cleared document, and in the error text what it should open with.
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
