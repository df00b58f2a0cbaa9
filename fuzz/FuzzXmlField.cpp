// A value of the code page survives a round trip through its field and the attribute it is stored
// in, and no field at all does harm.
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

/// Writes and reads the field as an attribute of a document.
CString ThroughAttribute(const CString& field) {
    XmlDocument doc;
    Require(doc.SetDoc(L"<a b=\"" + field + L"\" c='" + field + L"'/>"),
            "the field corrupts the tag");
    Require(doc.FindElem(L"a"), "the element is missing");
    CString raw = doc.GetAttrib(L"b");
    Require(doc.GetAttrib(L"c") == raw, "the value depends on the kind of quotes");
    return raw;
}

void CheckValue(const std::wstring& value) {
    Require(Orvane::DecodeEqualsHex(Orvane::EncodeEqualsHex(value).View()).Str() == value,
            "the hex round trip changes the value");
    for (const int flags : {0, XmlDocument::kEscapeQuotes}) {
        const CString escaped = XmlDocument::EscapeEntities(value, flags);
        Require(XmlDocument::UnescapeEntities(escaped.View()).Str() == value,
                "unescaping does not restore the text");
    }

    const CString field = Orvane::EncodeXmlField(value.c_str());
    for (const wchar_t c : field.View()) {
        Require(c != 0 && c < 0x80 && std::wstring_view(L"<>'\"").find(c) == std::wstring::npos,
                "a field contains an invalid character");
    }
    // References in a value are kept as such, so only values without any survive unchanged.
    const std::wstring_view text(value.c_str());
    if (text.find(L'&') == text.npos) {
        Require(Orvane::DecodeXmlField(field).View() == text,
                "decoding does not restore the value");
        Require(Orvane::DecodeXmlField(ThroughAttribute(field)).View() == text,
                "an attribute does not restore the value");
    }
    const CString kept = XmlDocument::EscapeEntities(text, XmlDocument::kEscapeQuotes |
                                                               XmlDocument::kEscapeKeepReferences);
    Require(XmlDocument::EscapeEntities(kept.View(), XmlDocument::kEscapeQuotes |
                                                         XmlDocument::kEscapeKeepReferences) ==
                kept,
            "escaping again changes the text");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    CheckValue(AnsiToWide(bytes));

    // A field from a broken file may give any value, but the result is in the code page.
    const std::wstring wide = Utf8ToWide(bytes);
    const CString decoded = Orvane::DecodeXmlField(wide.c_str());
    Require(AnsiToWide(WideToAnsi(decoded.View())) == decoded.Str(),
            "a character outside the code page");
    Require(decoded.View().size() <= std::wcslen(wide.c_str()) * 2,
            "decoding made the text longer");
    const CString wrapped = XmlDocument::WrapCData(wide);
    Require(!XmlDocument().SetDoc(wide.c_str()) ||
                XmlDocument().SetDoc(L"<a>" + wrapped + L"</a>") ||
                wide.find(L'\0') != std::wstring::npos,
            "a CDATA section does not contain its text");

    // UTF-8 converted in pieces gives the same text.
    const std::size_t cut = FinishedUtf8Length(bytes.substr(0, size / 2));
    Require(Utf8ToWide(bytes.substr(0, cut)) + Utf8ToWide(bytes.substr(cut)) == wide,
            "converting in pieces gives another text");
    Require(Utf8ToWide(WideToUtf8(wide)) == wide, "the UTF-8 round trip changes the text");
    return 0;
}
