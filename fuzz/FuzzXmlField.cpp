// A value of the code page comes back from its field and from the attribute it is stored in,
// whatever it holds, and no field at all can do harm.
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "platform/win/CodePage.h"
#include "workspacecore/foundation/XmlDocument.h"
#include "workspacecore/foundation/XmlField.h"

namespace {

using Orvane::XmlDocument;

void Require(bool holds, const char* fault) {
    if (!holds) {
        std::fprintf(stderr, "%s\n", fault);
        std::abort();
    }
}

/// Through a document and back, as a writer and a reader of attributes do it.
CString ThroughAttribute(const CString& field) {
    XmlDocument doc;
    Require(doc.SetDoc(L"<a b=\"" + field + L"\" c='" + field + L"'/>"),
            "the field breaks the tag");
    Require(doc.FindElem(L"a"), "the element is gone");
    CString raw = doc.GetAttrib(L"b");
    Require(doc.GetAttrib(L"c") == raw, "the quotes make a difference");
    return raw;
}

void CheckValue(const std::wstring& value) {
    Require(Orvane::DecodeEqualsHex(Orvane::EncodeEqualsHex(value).View()).Str() == value,
            "bytes do not come back");
    for (const int flags : {0, XmlDocument::kEscapeQuotes}) {
        const CString escaped = XmlDocument::EscapeEntities(value, flags);
        Require(XmlDocument::UnescapeEntities(escaped.View()).Str() == value,
                "escaped text does not come back");
    }

    const CString field = Orvane::EncodeXmlField(value.c_str());
    for (const wchar_t c : field.View()) {
        Require(c != 0 && c < 0x80 && std::wstring_view(L"<>'\"").find(c) == std::wstring::npos,
                "a field holds a character that it may not");
    }
    // References in a value stay references, so only a value without any is its own copy.
    const std::wstring_view text(value.c_str());
    if (text.find(L'&') == text.npos) {
        Require(Orvane::DecodeXmlField(field).View() == text, "a value does not come back");
        Require(Orvane::DecodeXmlField(ThroughAttribute(field)).View() == text,
                "a value does not come back from an attribute");
    }
    const CString kept = XmlDocument::EscapeEntities(text, XmlDocument::kEscapeQuotes |
                                                               XmlDocument::kEscapeKeepReferences);
    Require(XmlDocument::EscapeEntities(kept.View(), XmlDocument::kEscapeQuotes |
                                                         XmlDocument::kEscapeKeepReferences) ==
                kept,
            "escaping what is escaped changes it");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    CheckValue(AnsiToWide(bytes));

    // As a field from a broken file: anything goes, but the result is of the page.
    const std::wstring wide = Utf8ToWide(bytes);
    const CString decoded = Orvane::DecodeXmlField(wide.c_str());
    Require(AnsiToWide(WideToAnsi(decoded.View())) == decoded.Str(),
            "a character outside the page");
    Require(decoded.View().size() <= std::wcslen(wide.c_str()) * 2, "decoding made text longer");
    const CString wrapped = XmlDocument::WrapCData(wide);
    Require(!XmlDocument().SetDoc(wide.c_str()) ||
                XmlDocument().SetDoc(L"<a>" + wrapped + L"</a>") ||
                wide.find(L'\0') != std::wstring::npos,
            "a section does not hold its text");

    // UTF-8 in any pieces is the same text.
    const std::size_t cut = FinishedUtf8Length(bytes.substr(0, size / 2));
    Require(Utf8ToWide(bytes.substr(0, cut)) + Utf8ToWide(bytes.substr(cut)) == wide,
            "pieces of UTF-8 make another text");
    Require(Utf8ToWide(WideToUtf8(wide)) == wide, "UTF-8 does not come back");
    return 0;
}
