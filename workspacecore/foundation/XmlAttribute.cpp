#include "workspacecore/foundation/XmlAttribute.h"

#include <cwchar>

#include "workspacecore/foundation/XmlName.h"

namespace Orvane {

namespace {

/// Iterates over the tokens of a tag. Names and values end at different characters: "c/" is a
/// value, but not a name.
class TagTokens {
public:
    explicit TagTokens(std::wstring_view tag)
        : m_pAt(tag.data()), m_pEnd(tag.data() + tag.size()) {}

    /// The next non-space character; ">" at the end of the text.
    wchar_t Peek() {
        while (m_pAt < m_pEnd && IsXmlBlank(*m_pAt)) {
            ++m_pAt;
        }
        return m_pAt < m_pEnd ? *m_pAt : L'>';
    }
    void Skip() { ++m_pAt; }
    std::wstring_view Name() {
        const wchar_t cFirst = Peek();
        return IsQuote(cFirst) ? Quoted(cFirst) : Run([](wchar_t c) {
            return c == L'=' || c == L'>' || c == L'/' || c == L'?' || IsXmlBlank(c);
        });
    }
    std::wstring_view Value() {
        const wchar_t cFirst = Peek();
        return IsQuote(cFirst) ? Quoted(cFirst)
                               : Run([](wchar_t c) { return c == L'>' || IsXmlBlank(c); });
    }

private:
    static bool IsQuote(wchar_t c) { return c == L'"' || c == L'\''; }
    std::wstring_view Quoted(wchar_t cQuote) {
        const wchar_t* pStart = m_pAt + 1;
        const auto nRest = static_cast<std::size_t>(m_pEnd - pStart);
        const wchar_t* pClose = std::wmemchr(pStart, cQuote, nRest);
        m_pAt = pClose ? pClose + 1 : m_pEnd;
        return {pStart, pClose ? static_cast<std::size_t>(pClose - pStart) : nRest};
    }
    template <class Ends>
    std::wstring_view Run(Ends ends) {
        const wchar_t* pStart = m_pAt;
        while (m_pAt < m_pEnd && !ends(*m_pAt)) {
            ++m_pAt;
        }
        return {pStart, static_cast<std::size_t>(m_pAt - pStart)};
    }

    const wchar_t* m_pAt;
    const wchar_t* m_pEnd;
};

} // namespace

void FindXmlAttributes(std::wstring_view tag, std::span<const std::wstring_view> names,
                       bool bIgnoreCase, std::span<std::optional<std::wstring_view>> values) {
    TagTokens tokens(tag);
    tokens.Name(); // the element's own name
    for (std::size_t nMissing = names.size(); nMissing > 0;) {
        const wchar_t cFirst = tokens.Peek();
        if (cFirst == L'>' || cFirst == L'/' || cFirst == L'?') {
            return;
        }
        if (cFirst == L'=') {
            tokens.Skip();
            tokens.Value();
            continue;
        }
        const std::wstring_view found = tokens.Name();
        std::wstring_view value = found;
        if (tokens.Peek() == L'=') {
            tokens.Skip();
            value = tokens.Value();
        }
        for (std::size_t i = 0; i < names.size(); ++i) {
            if (!values[i] && MatchXmlName(found, names[i], bIgnoreCase)) {
                values[i] = value;
                --nMissing;
            }
        }
    }
}

} // namespace Orvane
