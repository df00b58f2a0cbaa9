// For any text: the links of the index are consistent, a traversal ends and visits each element
// once, a copy is the same document, and reading twice gives the same result.
#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "fuzz/XmlIndexCheck.h"
#include "platform/win/CodePage.h"
#include "workspacecore/foundation/XmlDocument.h"
#include "workspacecore/foundation/XmlParser.h"

namespace {

using Orvane::XmlDocument;

void Require(bool holds, const char* fault) {
    if (!holds) {
        std::fprintf(stderr, "%s\n", fault);
        std::abort();
    }
}

/// Traverses the documents side by side, without recursion, as nesting is limited only by the
/// length of the text. Returns the number of elements.
int WalkTogether(XmlDocument& left, XmlDocument& right) {
    int elements = 0;
    int level = 0;
    for (;;) {
        const bool found = left.FindElem();
        Require(right.FindElem() == found, "only one of the documents has the element");
        if (found) {
            ++elements;
            for (const wchar_t* name : {L"id", L"x", L"a[1]"}) {
                Require(left.GetAttrib(name) == right.GetAttrib(name), "attributes differ");
            }
            Require(left.IntoElem() && right.IntoElem(), "an element cannot be entered");
            ++level;
        } else {
            const bool out = left.OutOfElem();
            Require(right.OutOfElem() == out && out == (level > 0), "the levels do not match");
            if (!out) {
                return elements;
            }
            --level;
        }
    }
}

int CheckIndex(std::wstring_view text, bool ignoreCase) {
    Orvane::XmlIndex index;
    index.Reserve(1);
    index[0] = {};
    int posFree = 1;
    const CString error = Orvane::XmlParser(text, index, posFree, ignoreCase).Run();
    const std::string fault = Orvane::XmlIndexCheck(text, index, posFree).Run();
    Require(fault.empty(), fault.c_str());
    const bool illFormed = (index[0].flags & Orvane::XML_FLAG_ILL_FORMED) != 0;
    Require(illFormed != error.IsEmpty(), "the message does not match the well-formedness");
    return posFree - 1;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::wstring text = Utf8ToWide({reinterpret_cast<const char*>(data), size});
    const bool ignoreCase = size > 0 && (data[size - 1] & 1) != 0;
    CheckIndex(text, ignoreCase);

    text.resize(std::min(text.find(L'\0'), text.size())); // SetDoc stops at a NUL
    const int elements = CheckIndex(text, ignoreCase);

    XmlDocument doc;
    doc.SetDocFlags(ignoreCase ? XmlDocument::kIgnoreCase : 0);
    const bool wellFormed = doc.SetDoc(text.c_str());
    Require(doc.GetDoc().Str() == text, "the text was changed");
    Require(wellFormed == doc.GetError().IsEmpty(), "the result contradicts the message");
    XmlDocument copy(doc);
    Require(WalkTogether(doc, copy) == elements, "the walk missed elements");

    // Copying in the middle of a document keeps the cursor.
    if (XmlDocument again(doc); again.SetDoc(text.c_str()) == wellFormed && again.FindElem()) {
        XmlDocument middle(again);
        Require(middle.GetAttrib(L"id") == again.GetAttrib(L"id"), "the cursor was lost");
        WalkTogether(again, middle);
    } else {
        Require(elements == 0, "reading again gives another result");
    }
    return 0;
}
